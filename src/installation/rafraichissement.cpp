#include "rafraichissement.h"

#include <optional>
#include <set>

#include "attente.h"
#include "disquereel.h"
#include "faute.h"
#include "fichier.h"
#include "listes.h"
#include "somme.h"

namespace installation {
namespace {

constexpr std::string_view actionplace = "Mise en place des fichiers du programme";
constexpr std::string_view fichierdictionnaire = "listes\\dictionnaire.dat";
constexpr int attentes = 12;  // times the limit for a lock: a slow disk takes a while

void verifier(std::string_view chemin, const std::error_code& erreur) {
    if (erreur)
        throw common::Faute(common::rapportfichier(actionplace, chemin, common::raison(erreur)));
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

/// The file as it is in the folder; nothing if it is missing. Its sum is empty if what has its name
/// is not a file or cannot be read.
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
    Rafraichissement(common::Appels& appels, common::DisqueReel& source, common::DisqueReel& cible,
                     const Inventaire& inventaire)
        : appels_(appels),
          source_(source),
          cible_(cible),
          inventaire_(inventaire),
          connus_(cible, inventaire),
          attente_(appels, cible.systeme(dossierattente)) {}

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
        for (const auto* apport : apports_)
            preparer(*apport);
        connus_.enregistrer(cible_);
        if (!apports_.empty())
            placertout();
        if (!inventaire_.version.empty())
            verifier(fichierversion, cible_.remplacer(fichierversion, inventaire_.version + "\n"));
        return bilan_;
    }

  private:
    [[nodiscard]] Ordre decider(const Fourni& fourni) const {
        const auto actuel = present(cible_, fourni.chemin);
        if (!actuel)
            return Ordre::Apporter;
        if (*actuel == fourni || (bilan_.dictionnaireperso && faitdemots(fourni.chemin)))
            return Ordre::Rien;
        return connus_.connait(*actuel) ? Ordre::Apporter : Ordre::Garder;
    }

    /// Copies a file to where it waits.
    void preparer(const Fourni& fourni) {
        std::string octets;
        verifier(fourni.chemin, common::essayerlire(source_, fourni.chemin, octets));
        Somme somme;
        somme.ajouter(octets);
        if (somme.finir() != fourni.somme)
            throw common::Faute(
                common::rapportfichier(actionplace, fourni.chemin,
                                       "le fichier installé n'est pas celui qui était attendu"));
        verifier(dossierattente, attente_.ajouter(octets));
    }

    void placertout() {
        verifier(dossierattente, attente_.synchroniser());
        const auto erreur = cible_.supprimer(fichierversion);
        if (erreur != std::errc::no_such_file_or_directory)
            verifier(fichierversion, erreur);
        // No file may be found in its place after a power cut that brings the version back.
        const auto version = cible_.systeme(fichierversion);
        verifier(fichierversion, appels_.synchroniserdossier(version.parent_path()));
        for (std::size_t i = 0; i < apports_.size(); ++i)
            placer(*apports_[i], i);
        verifier(dossierattente, attente_.finir());
    }

    void placer(const Fourni& fourni, std::size_t rang) {
        // The player may have written it meanwhile.
        if (decider(fourni) != Ordre::Apporter)
            return;
        for (auto fin = fourni.chemin.find('\\'); fin != std::string::npos;
             fin = fourni.chemin.find('\\', fin + 1)) {
            const auto dossier = fourni.chemin.substr(0, fin);
            if (!cible_.estdossier(dossier))
                verifier(dossier, cible_.creerdossier(dossier));
        }
        auto erreur = attente_.placer(rang, cible_.systeme(fourni.chemin));
        if (erreur == std::errc::cross_device_link) {  // its folder is a link to another disk
            std::string octets;
            erreur = common::essayerlire(source_, fourni.chemin, octets);
            if (!erreur)
                erreur = cible_.remplacer(fourni.chemin, octets);
        }
        verifier(fourni.chemin, erreur);
        ++bilan_.apportes;
    }

    common::Appels& appels_;
    common::DisqueReel& source_;
    common::DisqueReel& cible_;
    const Inventaire& inventaire_;
    Connus connus_;
    Bilan bilan_;
    std::vector<const Fourni*> apports_;
    Attente attente_;
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

Bilan rafraichir(common::Appels& appels, const std::filesystem::path& source,
                 const std::filesystem::path& cible, const Inventaire& inventaire) {
    common::DisqueReel fournis(source, appels);
    common::DisqueReel jeu(cible, appels);
    const auto verrou = verrouiller(jeu);
    if (!inventaire.version.empty() && versionrecue(jeu) == inventaire.version)
        return {};
    return Rafraichissement(appels, fournis, jeu, inventaire).faire();
}

}  // namespace installation
