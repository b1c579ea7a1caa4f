#include "rafraichissement.h"

#include <algorithm>
#include <optional>
#include <set>

#include "faute.h"
#include "fichier.h"
#include "listes.h"
#include "octetsdefichier.h"
#include "somme.h"

namespace installation {
namespace {

constexpr std::string_view action = "Mise en place des fichiers du programme";
constexpr std::string_view fichierdictionnaire = "listes\\dictionnaire.dat";
constexpr int attentes = 12;  // times the limit for a lock: a slow disk takes a while

void verifier(std::string_view chemin, const std::error_code& erreur) {
    if (erreur)
        throw common::Faute(common::rapportfichier(action, chemin, common::raison(erreur)));
}

/// Every line that was ever written there, and those of the inventory.
class Connus {
  public:
    Connus(common::Disque& cible, const Inventaire& inventaire) {
        const auto erreur = common::essayerlire(cible, fichierfournis, avant_);
        if (erreur != std::errc::no_such_file_or_directory)
            verifier(fichierfournis, erreur);
        common::Lignes lues(avant_);
        std::string_view ligne;
        while (lues.suivante(ligne))
            lignes_.emplace(ligne);
        for (const auto& fourni : inventaire.fichiers)
            lignes_.insert(lignede(fourni));
    }
    [[nodiscard]] bool connait(const Fourni& fichier) const {
        return lignes_.contains(lignede(fichier));
    }
    void enregistrer(common::Disque& cible) const {
        std::string texte;
        for (const auto& ligne : lignes_)
            texte += ligne + "\n";
        if (texte != avant_)
            verifier(fichierfournis, cible.remplacer(fichierfournis, texte));
    }

  private:
    std::string avant_;
    std::set<std::string, std::less<>> lignes_;
};

/// The file as the folder has it; nothing if there is none. Without a sum if what has its name is
/// no file, or none that the player lets be read.
std::optional<Fourni> present(common::Disque& cible, const std::string& chemin) {
    Fourni fichier{{}, chemin};
    const auto erreur = sommer(cible, chemin, fichier.somme);
    if (erreur == std::errc::no_such_file_or_directory || erreur == std::errc::not_a_directory)
        return std::nullopt;
    if (erreur != std::errc::is_a_directory && erreur != common::Ennui::PasUnFichier &&
        erreur != std::errc::permission_denied)
        verifier(chemin, erreur);
    return fichier;
}

bool faitdemots(std::string_view chemin) {
    return chemin.starts_with("listes\\") || chemin.starts_with("infosouris") ||
           chemin.starts_with("listes-LICENCE") ||
           (chemin.starts_with("images\\") && chemin.find("anagrammes") != chemin.npos);
}

enum class Ordre : std::uint8_t { Rien, Apporter, Garder };

class Rafraichissement {
  public:
    Rafraichissement(common::Disque& source, common::Disque& cible, const Inventaire& inventaire)
        : source_(source), cible_(cible), inventaire_(inventaire), connus_(cible, inventaire) {}

    [[nodiscard]] Bilan faire() {
        const auto dictionnaire = present(cible_, std::string(fichierdictionnaire));
        bilan_.dictionnaireperso = dictionnaire && !connus_.connait(*dictionnaire);
        for (const auto& fourni : inventaire_.fichiers) {
            const auto ordre = decider(fourni);
            if (ordre == Ordre::Apporter)
                apports_.push_back(&fourni);
            else if (ordre == Ordre::Garder)
                bilan_.gardes.push_back(fourni.chemin);
        }
        for (std::size_t i = 0; i < apports_.size(); ++i)
            preparer(*apports_[i], attente(i));
        connus_.enregistrer(cible_);
        if (!apports_.empty())
            placertout();
        nettoyer();
        if (!inventaire_.version.empty())
            verifier(fichierversion, cible_.remplacer(fichierversion, inventaire_.version + "\n"));
        return bilan_;
    }

  private:
    [[nodiscard]] static std::string attente(std::size_t rang) {
        return std::string(dossierattente).append("\\").append(std::to_string(rang));
    }

    [[nodiscard]] Ordre decider(const Fourni& fourni) const {
        const auto actuel = present(cible_, fourni.chemin);
        if (!actuel)
            return Ordre::Apporter;
        if (*actuel == fourni || (bilan_.dictionnaireperso && faitdemots(fourni.chemin)))
            return Ordre::Rien;
        return connus_.connait(*actuel) ? Ordre::Apporter : Ordre::Garder;
    }

    /// Copies a file under the name under which it waits.
    void preparer(const Fourni& fourni, const std::string& nom) {
        std::string octets;
        verifier(fourni.chemin, common::essayerlire(source_, fourni.chemin, octets));
        Somme somme;
        somme.ajouter(octets);
        if (somme.finir() != fourni.somme)
            throw common::Faute(common::rapportfichier(
                action, fourni.chemin, "le fichier installé n'est pas celui qui était attendu"));
        verifier(dossierattente, cible_.creerdossier(dossierattente));
        verifier(nom, cible_.remplacer(nom, octets));
    }

    void placertout() {
        const auto erreur = cible_.supprimer(fichierversion);
        if (erreur != std::errc::no_such_file_or_directory)
            verifier(fichierversion, erreur);
        for (std::size_t i = 0; i < apports_.size(); ++i)
            placer(*apports_[i], attente(i));
    }

    /// Removes what an earlier run left waiting, if it had more to bring.
    void nettoyer() {
        auto rang = apports_.size();
        while (!cible_.supprimer(attente(rang)))
            ++rang;
        static_cast<void>(cible_.supprimer(dossierattente));  // in nobody's way
    }

    void placer(const Fourni& fourni, const std::string& nom) {
        // The player may have written it meanwhile.
        if (decider(fourni) != Ordre::Apporter) {
            static_cast<void>(cible_.supprimer(nom));
            return;
        }
        for (auto fin = fourni.chemin.find('\\'); fin != std::string::npos;
             fin = fourni.chemin.find('\\', fin + 1)) {
            const auto dossier = fourni.chemin.substr(0, fin);
            verifier(dossier, cible_.creerdossier(dossier));
        }
        auto erreur = cible_.renommer(nom, fourni.chemin);
        if (erreur == std::errc::cross_device_link) {  // its folder is a link to another disk
            erreur = cible_.remplacer(fourni.chemin, common::lirefichier(cible_, nom, action));
            static_cast<void>(cible_.supprimer(nom));
        }
        verifier(fourni.chemin, erreur);
        ++bilan_.apportes;
    }

    common::Disque& source_;
    common::Disque& cible_;
    const Inventaire& inventaire_;
    Connus connus_;
    Bilan bilan_;
    std::vector<const Fourni*> apports_;
};

std::unique_ptr<common::Verrou> verrouiller(common::Disque& cible) {
    verifier(fichierverrou, cible.ajouter(fichierverrou, {}));
    std::unique_ptr<common::Verrou> verrou;
    auto erreur = cible.verrouiller(fichierverrou, verrou);
    for (int n = 1; n < attentes && erreur == common::Ennui::Retenu; ++n)
        erreur = cible.verrouiller(fichierverrou, verrou);
    verifier(fichierverrou, erreur);
    return verrou;
}

}  // namespace

std::string versionrecue(common::Disque& cible) {
    std::string octets;
    std::string_view ligne;
    if (common::essayerliretexte(cible, fichierversion, octets))
        return {};
    common::Lignes lignes(octets);
    return lignes.suivante(ligne) ? std::string(ligne) : std::string();
}

Bilan rafraichir(common::Disque& source, common::Disque& cible, const Inventaire& inventaire) {
    const auto verrou = verrouiller(cible);
    if (!inventaire.version.empty() && versionrecue(cible) == inventaire.version)
        return {};
    return Rafraichissement(source, cible, inventaire).faire();
}

}  // namespace installation
