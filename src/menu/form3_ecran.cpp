// The design of the menu: places in twips, fonts, the order of Tab.

#include <array>

#include "couleurs.h"
#include "form3.h"

namespace menu {
namespace {

using ui::Genre;

constexpr int largeurdessin = 13800;
constexpr int hauteurdessin = 9870;

// The table: height of a row, place of the first row, columns.
constexpr int hauteurligne = 720;
constexpr int hautlignes = 2760;
constexpr int hautparties = 3015;
constexpr int hautentete = 2340;
constexpr int hauteurtexte = 315;
constexpr int colonneinsigne = 120;
constexpr int coteinsigne = 450;
constexpr int colonnenom = 630;
constexpr int largeurnom = 2460;
constexpr int colonnenombre = 3120;
constexpr int decalagenombre = 80;
constexpr int largeurnombre = 900;
constexpr int colonnedate = 4080;
constexpr int largeurdate = 2040;
constexpr int colonneresultat = 6210;
constexpr int largeurresultat = 1950;
constexpr int colonnetout = 8400;
constexpr int largeurtout = 855;
constexpr int hauteurtout = 495;
constexpr int hauteurtoutpartage = 255;
constexpr int colonneechantillon = 9450;
constexpr int colonnerevision = 11640;
constexpr int largeurlancement = 2010;
constexpr std::array<int, nbparties> colonnesparties{8400, 8615, 8825, 9035};
constexpr int largeurpartie = 220;
constexpr int hauteurpartie = 240;

constexpr ui::Cadrage cadretable{45, 2250, 13710, 6180};
constexpr ui::Cadrage cadretotal{colonnetout, hautentete, 5250, hauteurtexte};
constexpr ui::Couleur encreentete{0x4A4438};

// The foot: the help box, the message line over its end, and the buttons beside it.
constexpr ui::Cadrage cadrepied{45, 8505, 7395, 1290};
constexpr ui::Cadrage cadreaide{120, 8600, 7215, 1000};
constexpr ui::Cadrage cadremessage{120, 9240, 7215, 495};
/// Covers the end of the help box behind the message line. It starts below the second line of help,
/// so that no line is half hidden.
constexpr ui::Cadrage cadrefondmessage{75, 9150, 7335, 615};
constexpr std::string_view policeaide = "Times New Roman";

/// The background of a result. Green, orange and red stand out equally on it, whatever colour the
/// player has chosen for the form.
constexpr ui::Couleur fonddesresultats{0x101418};

int haut(std::size_t rangee) {
    return hautlignes + static_cast<int>(rangee) * hauteurligne;
}

}  // namespace

Form3::Controles Form3::poseracces() {
    Controles boutons;
    for (const auto& acces : lesacces()) {
        auto& bouton = poser(Genre::Bouton, acces.bouton->nom, acces.bouton->index,
                             acces.bouton->libelle, acces.cadre);
        if (acces.permanent()) {
            bouton.gras = true;
            bouton.taille = 9;
            bouton.aspect = ui::Aspect::Principal;
        }
        boutons.push_back(&bouton);
    }
    return boutons;
}

/// A card under the table, and the headings of its columns.
Form3::Controles Form3::poserentetes() {
    struct Entete {
        std::string_view nom;
        std::string_view libelle;
        int gauche;
        int largeur;
    };
    constexpr std::array entetes{
        Entete{"Label2", "Listes", colonnenom, largeurnom},
        Entete{"Label3", "Nombre", colonnenombre, largeurnombre},
        Entete{"Label7", "Date", colonnedate, largeurdate},
        Entete{"Label9", "Dernier pourcentage", colonneresultat - 120, largeurresultat},
        Entete{"Label8", "%", colonneresultat + largeurresultat - 150, 210},
    };
    Controles poses{&poser(Genre::Cadre, "cadretable", -1, "", cadretable)};
    for (const auto& e : entetes) {
        auto& entete = poser(Genre::Etiquette, e.nom, -1, e.libelle,
                             {e.gauche, hautentete, e.largeur, hauteurtexte});
        entete.couleur = encreentete;
        poses.push_back(&entete);
    }
    return poses;
}

Form3::Ligne Form3::poserligne(int rangee) {
    const int sommet = haut(static_cast<std::size_t>(rangee));
    const int milieu = sommet + (hauteurtout - hauteurtexte) / 2;
    const auto etiquette = [&](std::string_view nom, int gauche, int large) -> ui::Controle& {
        return poser(Genre::Etiquette, nom, rangee, "", {gauche, milieu, large, hauteurtexte});
    };
    const auto bouton = [&](std::string_view nom, std::string_view libelle, int gauche,
                            int large) -> ui::Controle& {
        return poser(Genre::Bouton, nom, rangee, libelle, {gauche, sommet, large, hauteurtout});
    };
    Ligne ligne{etiquette("Label1", colonnenom, largeurnom),
                etiquette("Label4", colonnenombre, largeurnombre),
                etiquette("Label5", colonnedate, largeurdate),
                etiquette("Label6", colonneresultat, largeurresultat),
                bouton("Command14", "Tout", colonnetout, largeurtout),
                bouton("Command6", "Echantillon", colonneechantillon, largeurlancement),
                bouton("Command22", "Révision", colonnerevision, largeurlancement),
                {}};
    constexpr std::array<std::string_view, nbparties> noms{"coma", "comb", "comc", "comd"};
    for (std::size_t i = 0; i < nbparties; ++i) {
        const char lettre = lettredepartie(i);
        auto& partie = poser(Genre::Bouton, noms.at(i), rangee, {&lettre, 1},
                             {colonnesparties.at(i), 0, largeurpartie, hauteurpartie});
        partie.taille = 8;
        ligne.parties.push_back(&partie);
    }
    return ligne;
}

std::vector<Form3::Ligne> Form3::poserlignes() {
    std::vector<Ligne> lignes;
    lignes.reserve(nblignes);
    for (int r = 0; r < static_cast<int>(nblignes); ++r)
        lignes.push_back(poserligne(r));
    return lignes;
}

Form3::Controles Form3::poserinsignes(std::string_view nom, std::size_t combien,
                                      std::string_view image, std::string_view accessible) {
    Controles insignes;
    for (int i = 0; i < static_cast<int>(combien); ++i) {
        auto& insigne =
            poser(Genre::Image, nom, i, "", {colonneinsigne, 0, coteinsigne, coteinsigne});
        insigne.image = std::string(image);
        insigne.accessible = std::string(accessible);
        insignes.push_back(&insigne);
    }
    return insignes;
}

/// The buttons of the two pictures of racks take the place of the launch buttons in the last row,
/// which their panel does not use.
Form3::Controles Form3::poserimages() {
    constexpr int ecart = 90;
    constexpr int largeurimage = (colonnerevision + largeurlancement - colonnetout - ecart) / 2;
    const int sommet = haut(nblignes - 1);
    return {&poser(Genre::Bouton, "Command11", 0, "8L, + de 5 anagrammes",
                   {colonnetout + largeurimage + ecart, sommet, largeurimage, hauteurtout}),
            &poser(Genre::Bouton, "Command11", 1, "7L, + de 5 anagrammes",
                   {colonnetout, sommet, largeurimage, hauteurtout})};
}

void Form3::dresser() {
    largeur = largeurdessin;
    hauteur = hauteurdessin;
    donnerfond(profiles::couleurdufond(profiles::couleurpardefaut));
    auto& titre = poser(Genre::Etiquette, "Label10", -1, "Entraînement", {150, 60, 9000, 510});
    titre.taille = 18;
    titre.gras = true;
    titre.aspect = ui::Aspect::Titre;
    const int sommet = haut(rangeepersonnelle);
    perso_.placer({colonnenom, sommet + 60, 1800, 375});
    perso_.texte = "perso.txt";
    perso_.accessible = "Fichier personnel";
    persook_.placer({colonnenom + 1860, sommet + 60, 570, 375});
    total_.placer(cadretotal);
    total_.alignement = ui::Alignement::Droite;
    total_.gras = true;
    cadrepied_.placer(cadrepied);
    aide_.placer(cadreaide);
    aide_.police = std::string(policeaide);
    aide_.taille = 12;
    fondmessage_.placer(cadrefondmessage);
    fondmessage_.fond = ui::Couleur::fenetre();
    fondmessage_.visible = false;
    message_.fond = ui::Couleur::fenetre();
    message_.placer(cadremessage);
    message_.police = std::string(policeaide);
    message_.taille = 9.75;
    ordonner();
}

void Form3::ordonner() {
    Controles ordre = acces_;
    for (auto& ligne : lignes_) {
        ordre.push_back(&ligne.tout);
        ordre.insert(ordre.end(), ligne.parties.begin(), ligne.parties.end());
        ordre.insert(ordre.end(), {&ligne.echantillon, &ligne.revision});
    }
    ordre.insert(ordre.end(), {&perso_, &persook_, images_[1], images_[0], &app_, &options_,
                               &apropos_, &miseajour_, &quitter_});
    tabulation(ordre);
}

/// Fonts and sizes of the rows, empty captions, the part buttons hidden and at their places.
void Form3::preparerlignes() {
    constexpr double taille = 11;
    for (std::size_t r = 0; r < nblignes; ++r) {
        auto& ligne = lignes_[r];
        ligne.nom.police = "Constantia";
        ligne.nom.taille = taille;
        ligne.nom.gras = true;
        ligne.nombre.taille = taille;
        ligne.date.gras = true;
        ligne.resultat.gras = true;
        ligne.resultat.taille = taille;
        ligne.resultat.fond = fonddesresultats;
        ligne.resultat.alignement = ui::Alignement::Centre;
        ligne.nom.texte = "";
        ligne.nombre.texte = "";
        ecrireresultat(r, {});
        for (auto* partie : ligne.parties)
            partie->visible = false;
        placerparties(r, r);
    }
    total_.texte = "";
}

void Form3::placerinsigne(ui::Controle& insigne, std::size_t rangee) const {
    insigne.haut = haut(rangee);
}

void Form3::placerparties(std::size_t index, std::size_t rangee) {
    for (auto* partie : lignes_[index].parties)
        partie->haut = hautparties + static_cast<int>(rangee) * hauteurligne;
}

void Form3::placernombre(std::size_t rangee, bool decale) {
    lignes_[rangee].nombre.gauche = colonnenombre + (decale ? decalagenombre : 0);
}

/// "Tout" is lower on a row that shows its parts under it.
void Form3::placertout(std::size_t rangee, bool partages) {
    lignes_[rangee].tout.hauteur = partages ? hauteurtoutpartage : hauteurtout;
}

}  // namespace menu
