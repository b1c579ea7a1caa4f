// The design of the options: places in twips, fixed texts.

#include <array>
#include <string>
#include <string_view>

#include "dialog2.h"
#include "listes.h"

namespace dialogs {
namespace {

// Three columns: what a line is about, its value, its unit.
constexpr int margeoptions = 360;
constexpr int colonnevaleur = 4860;
constexpr int colonneunite = 5760;
constexpr int largeuroptions = 8280;
constexpr int largeurlibelle = colonnevaleur - margeoptions - 120;
constexpr int largeurvaleur = 780;
constexpr int largeurresultat = largeuroptions - colonnevaleur - margeoptions;
constexpr int largeurunite = largeuroptions - colonneunite - margeoptions;
constexpr int hauteurlibelle = 285;
constexpr int hauteurboite = 345;
constexpr int largeurbouton = 1680;
constexpr int hauteurbouton = 450;
constexpr double tailletitre = 11;
/// Warm, and readable on each of the six backgrounds.
constexpr ui::Couleur couleurdumessage{0x8C1500};

// The lines of the form, from top to bottom.
constexpr int ligneseuils = 180;
constexpr int lignechrono = 1560;
constexpr int ligneechantillons = 2925;
constexpr int lignecouleur = 5565;
constexpr int ligneson = 6045;
constexpr int ligneassistance = 6465;
constexpr int lignemessage = 7065;
constexpr int ligneboutons = 7560;
constexpr int hauteuroptions = 8220;
constexpr int pas = 390;
constexpr int ecartsousfilet = 135;
constexpr int pasresultat = 315;

/// The line of a group: its heading is line 0.
constexpr int ligne(int groupe, int numero) {
    return groupe + numero * pas;
}
/// The line of a sample size, under the box of the sample.
constexpr int resultat(int numero) {
    return ligne(ligneechantillons, 2) + 15 + numero * pasresultat;
}

/// A label of fixed text; `haut` is the top of its line.
struct Libelle {
    std::string_view nom;
    int index;
    std::string texte;
    int haut;
};

auto titres() {
    return std::array{
        Libelle{"Label1", 0, "Seuils de pourcentages", ligneseuils},
        Libelle{"Label1", 1, "Chronomètre", lignechrono},
        Libelle{"Label1", 2, "Taille des échantillons", ligneechantillons},
        Libelle{"Label1", 3, "Couleur du fond", lignecouleur},
        Libelle{"Label1", 4, "Son", ligneson},
        Libelle{"Label1", 5, "Saisie assistée", ligneassistance},
    };
}
/// The headings from this one on stand beside their control, on a transparent background.
constexpr int premiertitrefondu = 3;

/// How many racks a series has.
std::string tirages() {
    return std::to_string(common::tiragesform1) + " tirages";
}
std::string entre(const options::Bornes& bornes) {
    return " (de " + std::to_string(bornes.bas) + " à " + std::to_string(bornes.haut) + ")";
}

auto libelles() {
    return std::array{
        Libelle{"Label2", 0, "Vert à partir de", ligne(ligneseuils, 1)},
        Libelle{"Label2", 1, "Rouge en dessous de", ligne(ligneseuils, 2)},
        Libelle{"Label2", 2, "Temps moyen par mot =", ligne(lignechrono, 1)},
        Libelle{"Label2", 3, "Temps pour " + std::to_string(common::tiragesform1) + " mots = ",
                ligne(lignechrono, 2)},
        Libelle{"Label2", 4,
                "Echantillon de base (séries de " + tirages() + ") =", ligne(ligneechantillons, 1)},
        Libelle{"Label2", 5, "Nombre de mots solution unique =", resultat(0)},
        Libelle{"Label2", 6, "Nombre de mots duos =", resultat(1)},
        Libelle{"Label2", 7, "Nombre de mots trios =", resultat(2)},
        Libelle{"Label2", 8, "Nombre de mots quatuors =", resultat(3)},
        Libelle{"Label2", 9, "Nombre de mots quintets =", resultat(4)},
    };
}

auto unites() {
    return std::array{
        Libelle{"Label3", 0, "%", ligne(ligneseuils, 1)},
        Libelle{"Label3", 1, "%", ligne(ligneseuils, 2)},
        Libelle{"Label3", 2, "secondes" + entre(options::bornestemps), ligne(lignechrono, 1)},
        Libelle{"Label3", 3, "série(s)" + entre(options::bornesbase), ligne(ligneechantillons, 1)},
    };
}

/// A control that exists already; `nomaccessible` tells what a box holds. A label is told by its
/// text.
struct Place {
    std::string_view nom;
    int index;
    ui::Cadrage cadre;
    std::string nomaccessible;
};

constexpr ui::Cadrage boite(int haut) {
    return {colonnevaleur, haut - 30, largeurvaleur, hauteurboite};
}
constexpr ui::Cadrage calcul(int haut) {
    return {colonnevaleur, haut, largeurresultat, hauteurlibelle};
}
constexpr ui::Cadrage choix(int haut) {
    return {colonnevaleur, haut - 30, largeurresultat, hauteurboite};
}
constexpr ui::Cadrage bouton(int rangdepuisladroite) {
    return {
        largeuroptions - margeoptions - largeurbouton - rangdepuisladroite * (largeurbouton + 180),
        ligneboutons, largeurbouton, hauteurbouton};
}

auto places() {
    return std::array{
        Place{"Text1", 0, boite(ligne(ligneseuils, 1)), "Vert à partir de, en pourcentage"},
        Place{"Text1", 1, boite(ligne(ligneseuils, 2)), "Rouge en dessous de, en pourcentage"},
        Place{"Text2", -1, boite(ligne(lignechrono, 1)), "Temps moyen par mot, en secondes"},
        Place{"tps30mots", -1, calcul(ligne(lignechrono, 2)), ""},
        Place{"Text3", -1, boite(ligne(ligneechantillons, 1)),
              "Echantillon de base, en séries de " + tirages()},
        Place{"nbechan", 0, calcul(resultat(0)), ""},
        Place{"nbechan", 1, calcul(resultat(1)), ""},
        Place{"nbechan", 2, calcul(resultat(2)), ""},
        Place{"nbechan", 3, calcul(resultat(3)), ""},
        Place{"nbechan", 4, calcul(resultat(4)), ""},
        Place{"Combo1", -1, choix(lignecouleur), "Couleur du fond"},
        Place{"Check1", -1, choix(ligneson), ""},
        Place{"Check2", -1, choix(ligneassistance), ""},
        Place{"Label4",
              -1,
              {margeoptions, lignemessage, largeuroptions - 2 * margeoptions, hauteurboite},
              ""},
        Place{"OKButton", -1, bouton(1), ""},
        Place{"Command1", -1, bouton(0), ""},
    };
}

ui::Controle& etiquette(ui::Formulaire& form, const Libelle& libelle, int gauche, int largeur) {
    auto& controle = form.ajouter(ui::Genre::Etiquette, libelle.nom, libelle.index);
    controle.texte = libelle.texte;
    controle.placer({gauche, libelle.haut, largeur, hauteurlibelle});
    return controle;
}

/// A thin rule above a group.
void filet(ui::Formulaire& form, int index, int haut) {
    auto& trait = form.ajouter(ui::Genre::Ligne, "Line1", index);
    trait.placer({margeoptions, haut, largeuroptions - 2 * margeoptions, 0});
    trait.couleur = ui::Couleur(0x9A8C80);
}

}  // namespace

/// Makes the labels of fixed text, and gives every control its place.
void Dialog2::disposer() {
    largeur = largeuroptions;
    hauteur = hauteuroptions;
    message_.couleur = couleurdumessage;
    for (const auto& titre : titres()) {
        const bool fondu = titre.index >= premiertitrefondu;
        auto& pose = etiquette(*this, titre, margeoptions,
                               fondu ? largeurlibelle : largeuroptions - 2 * margeoptions);
        pose.gras = true;
        pose.taille = tailletitre;
        pose.aspect = ui::Aspect::Titre;
        pose.fondu = fondu;
    }
    for (const auto& libelle : libelles())
        etiquette(*this, libelle, margeoptions, largeurlibelle);
    for (const auto& unite : unites())
        etiquette(*this, unite, colonneunite, largeurunite);
    int index = 0;
    for (const int haut : {lignechrono, ligneechantillons, lignecouleur, lignemessage})
        filet(*this, index++, haut - ecartsousfilet);
    for (const auto& place : places()) {
        auto& pose = controle(place.nom, place.index);
        pose.placer(place.cadre);
        pose.accessible = place.nomaccessible;
    }
}

}  // namespace dialogs
