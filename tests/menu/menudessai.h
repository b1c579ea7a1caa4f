#pragma once

// The menu on a machine of its own, with the files of the panels that a test opens.

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "attendu.h"
#include "form3.h"
#include "voisinage.h"

namespace essai {

class Menudessai : public testing::Test {
  protected:
    Machine machine;
    Voisinage v;
    std::unique_ptr<menu::Form3> form;

    static constexpr std::string_view util = "Léa";

    Menudessai();
    /// A fresh menu, loaded for the user.
    void charger();
    /// A menu with a panel on show. Row r of it holds r+1 lines unless its file is there already.
    void ouvrir(std::string_view cle);
    /// The files of a panel.
    void garnir(std::string_view cle);

    /// A control by its name, with the index behind it: "Label1(3)".
    [[nodiscard]] ui::Controle& controle(std::string_view nom) const;
    [[nodiscard]] std::string texte(std::string_view nom) const { return controle(nom).texte(); }
    [[nodiscard]] bool visible(std::string_view nom) const { return controle(nom).visible(); }
    void cliquer(std::string_view nom);
    void survoler(std::string_view nom);
    /// Writes the journal of results, a record a line.
    void ecrirehist(const std::vector<std::string>& records);
    void maj();
    /// Date and result of a row, "date | result"; empty if it shows none.
    [[nodiscard]] std::string resultat(std::size_t rangee) const;
    /// Names of the buttons of a set of names that are on show, with a blank between them.
    [[nodiscard]] std::string montres(std::string_view noms) const;
    [[nodiscard]] std::string rapport() const {
        return machine.plateforme.rapport().value_or("aucun");
    }
};

/// "nom(rang)"
[[nodiscard]] std::string avecrang(std::string_view nom, std::size_t rang);
/// The words of a text.
[[nodiscard]] std::vector<std::string> mots(std::string_view texte);
/// A record of a whole run.
[[nodiscard]] std::string record(std::string_view date, std::string_view pourcentage,
                                 std::string_view suite);

}  // namespace essai
