#include "fabrication.h"

#include <set>

#include "catalogue.h"
#include "images.h"
#include "licences.h"
#include "lignestexte.h"
#include "listes.h"
#include "notes.h"
#include "references.h"
#include "tables.h"
#include "texte.h"

namespace atelier {
namespace {

std::string chemindeliste(std::string_view fichier) {
    return std::string(common::dossierlistes) + '/' + std::string(fichier);
}

std::string octets(std::span<const Rangee> rangees) {
    std::string texte;
    for (const auto& rangee : rangees)
        texte.append(rangee.texte()).append(common::findeligne);
    return texte;
}

std::string octets(const std::vector<Capitales>& mots) {
    std::string texte;
    for (const auto& mot : mots)
        texte.append(mot.texte()).append(common::findeligne);
    return texte;
}

std::string octets(const std::vector<Note>& notes) {
    std::string texte;
    for (const auto& note : notes) {
        texte.append(note.mot).append(common::findeligne);
        texte.append(common::vers1252(note.texte)).append(common::findeligne);
    }
    return texte;
}

/// A text of lines, as a file.
std::string octets(std::string_view texte) {
    std::string resultat;
    LignesTexte lignes(texte);
    std::string_view ligne;
    while (lignes.suivante(ligne))
        resultat.append(common::vers1252(ligne)).append(common::findeligne);
    return resultat;
}

/// Most rows that the form of a list can hold.
std::size_t rangeesmax(const menu::Rangee& rangee) {
    return rangee.ecran() == menu::Ecran::form1 ? common::rangeesform1 : common::rangeesmulti;
}

/// Makes the files one after the other and remembers what the notes need.
class Fabrique {
  public:
    Fabrique(const Matiere& matiere, const Thesaurus& thesaurus, const Progression& progression)
        : m_(matiere), thesaurus_(thesaurus), progression_(progression) {}

    Production tout() {
        for (const auto& panneau : menu::panneaux()) {
            for (const auto& rangee : panneau.rangees)
                liste(rangee);
        }
        progression_("listes de référence");
        for (const auto& reference : references())
            ajouter(chemindeliste(reference.liste.fichier), octets(reference.faire(m_)));
        for (const auto& table : tables)
            ajouter(table);
        progression_("notes");
        ajouter(std::string(common::fichierinfosouris),
                octets(notes(m_.mots, thesaurus_, demandes_, atypiques_)));
        for (const auto& licence : licences()) {
            ajouter(std::string(licence.fichier), octets(licence.texte));
        }
        return std::move(production_);
    }

  private:
    void ajouter(std::string chemin, std::string contenu) {
        production_.fichiers.push_back({std::move(chemin), std::move(contenu)});
    }

    void ajouter(const Table& table) {
        const auto rangees = tirages6(m_.mots, table.taille).rangees;
        ajouter(chemindeliste(table.texte), octets(rangees));
        for (const int finesse : variantes) {
            ajouter(std::string(common::dossierimages) + '/' + fichierimage(table, finesse),
                    dessinertable(titre(table), rangees, finesse));
        }
    }

    void liste(const menu::Rangee& rangee) {
        progression_(rangee.libelle);
        const auto& r = recette(rangee.fichier);
        auto contenu = r.faire(m_);
        ecrire(rangee, contenu);
        demandes_.insert(contenu.mots.begin(), contenu.mots.end());
        if (r.verbeadire)
            atypiques_.insert(contenu.mots.begin(), contenu.mots.end());
    }

    void ecrire(const menu::Rangee& rangee, Contenu& contenu) {
        const auto limite = rangeesmax(rangee);
        if (contenu.rangees.size() > limite) {
            production_.avertissements.push_back(
                std::string(rangee.fichier) + " : " + std::to_string(contenu.rangees.size()) +
                " lignes ; seules les " + std::to_string(limite) + " premières sont gardées.");
            contenu.rangees.resize(limite);
        }
        ajouter(chemindeliste(rangee.fichier), octets(contenu.rangees));
        for (std::size_t k = 0; k < rangee.parties; ++k) {
            ajouter(chemindeliste(menu::fichierdepartie(rangee.fichier, k)),
                    octets(partie(contenu.rangees, rangee.parties, k)));
        }
    }

    const Matiere& m_;
    const Thesaurus& thesaurus_;
    const Progression& progression_;
    Production production_;
    std::set<std::uint32_t> demandes_;
    std::set<std::uint32_t> atypiques_;
};

bool nomme(std::string_view fichier, std::string_view nom) {
    return nom.empty() || fichier == nom || fichier.substr(0, fichier.rfind('.')) == nom;
}

}  // namespace

std::span<const Rangee> partie(std::span<const Rangee> rangees, std::size_t parties,
                               std::size_t rang) {
    const auto debut = rang * rangees.size() / parties;
    const auto fin = (rang + 1) * rangees.size() / parties;
    return rangees.subspan(debut, fin - debut);
}

Production fabriquer(const Matiere& matiere, const Thesaurus& thesaurus,
                     const Progression& progression) {
    return Fabrique(matiere, thesaurus, progression).tout();
}

std::vector<Description> decrire(const Matiere& matiere, std::string_view nom) {
    std::vector<Description> liste;
    for (const auto& panneau : menu::panneaux()) {
        for (const auto& rangee : panneau.rangees) {
            if (!nomme(rangee.fichier, nom))
                continue;
            const auto& r = recette(rangee.fichier);
            liste.push_back({r.fichier, std::string(rangee.libelle), r.description,
                             r.faire(matiere).rangees.size()});
        }
    }
    for (const auto& reference : references()) {
        if (nomme(reference.liste.fichier, nom))
            liste.push_back({std::string(reference.liste.fichier),
                             {},
                             reference.description,
                             reference.faire(matiere).size()});
    }
    for (const auto& table : tables) {
        if (nomme(table.texte, nom))
            liste.push_back({std::string(table.texte),
                             {},
                             "Les tirages de " + std::to_string(table.taille) +
                                 " lettres qui font six mots non conjugués ou plus.",
                             tirages6(matiere.mots, table.taille).rangees.size()});
    }
    return liste;
}

}  // namespace atelier
