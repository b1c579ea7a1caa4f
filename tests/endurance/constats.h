#pragma once

#include <string>
#include <type_traits>
#include <vector>

namespace endurance {

/// What was found wrong, in words.
class Constats {
  public:
    void exiger(bool vrai, const std::string& ennui) {
        if (!vrai)
            ennuis_.push_back(ennui);
    }
    template <class Lu, class Attendu>
    void egal(const Lu& lu, const Attendu& attendu, const std::string& quoi) {
        exiger(lu == attendu,
               quoi + " : lu « " + texte(lu) + " », attendu « " + texte(attendu) + " »");
    }
    [[nodiscard]] const std::vector<std::string>& ennuis() const { return ennuis_; }
    [[nodiscard]] bool aucun() const { return ennuis_.empty(); }

  private:
    static std::string texte(const std::string& valeur) { return valeur; }
    template <class Nombre, class = std::enable_if_t<std::is_arithmetic_v<Nombre>>>
    static std::string texte(Nombre valeur) {
        return std::to_string(valeur);
    }
    static std::string texte(const std::vector<std::string>& lignes) {
        std::string somme;
        for (const auto& ligne : lignes)
            somme += (somme.empty() ? "" : " | ") + ligne;
        return somme;
    }

    std::vector<std::string> ennuis_;
};

}  // namespace endurance
