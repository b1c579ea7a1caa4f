#include "disque.h"

#include <algorithm>
#include <array>

namespace common {
namespace {

class Ennuis : public std::error_category {
  public:
    [[nodiscard]] const char* name() const noexcept override { return "orvane"; }
    [[nodiscard]] std::string message(int code) const override {
        switch (static_cast<Ennui>(code)) {
            case Ennui::PasUnFichier:
                return "ce n'est pas un fichier ordinaire";
            case Ennui::Retenu:
                return "un autre programme le retient ; la limite d'attente est de " +
                       std::to_string(attentelimite / 1000) +
                       " secondes. Fermez l'autre programme et recommencez";
            case Ennui::PartPleine:
                return "votre part du disque est pleine";
            case Ennui::NomReserve:
                return "ce nom est réservé par Windows";
            case Ennui::NomInterdit:
                return "Windows refuse ce nom : un nom n'a ni < > : \" / \\ | ? * ni, à la fin, un "
                       "point ou une espace";
            case Ennui::LigneTropLongue:
                break;
        }
        return "une ligne est trop longue";
    }
};

}  // namespace

std::error_code make_error_code(Ennui ennui) {
    static const Ennuis categorie;
    return {static_cast<int>(ennui), categorie};
}

std::string raison(const std::error_code& erreur) {
    if (erreur.category() == make_error_code(Ennui::Retenu).category())
        return erreur.message();
    struct Cas {
        std::errc code;
        const char* texte;
    };
    static constexpr std::array cas{
        Cas{std::errc::no_such_file_or_directory, "fichier introuvable"},
        Cas{std::errc::permission_denied, "accès refusé"},
        Cas{std::errc::operation_not_permitted, "opération refusée par le système"},
        Cas{std::errc::no_space_on_device, "le disque est plein"},
        Cas{std::errc::file_too_large, "fichier trop grand pour ce disque"},
        Cas{std::errc::read_only_file_system, "le disque est en lecture seule"},
        Cas{std::errc::is_a_directory, "c'est un dossier et non un fichier"},
        Cas{std::errc::not_a_directory, "un des dossiers du chemin n'en est pas un"},
        Cas{std::errc::filename_too_long, "nom trop long pour le système"},
        Cas{std::errc::file_exists, "un fichier de ce nom existe déjà"},
        Cas{std::errc::directory_not_empty, "un dossier de ce nom existe déjà"},
        Cas{std::errc::too_many_files_open, "trop de fichiers ouverts"},
        Cas{std::errc::io_error, "erreur du disque"},
        Cas{std::errc::invalid_argument, "nom refusé par le système"},
    };
    const auto* trouve =
        std::find_if(cas.begin(), cas.end(), [&](const Cas& c) { return erreur == c.code; });
    if (trouve != cas.end())
        return trouve->texte;
    return "erreur du système n° " + std::to_string(erreur.value());
}

}  // namespace common
