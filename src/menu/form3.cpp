#include "form3.h"

#include "aides.h"
#include "couleurs.h"
#include "hist.h"
#include "historique.h"
#include "settings.h"
#include "version.h"

namespace menu {
namespace {

using ui::Genre;

/// The user when no name was chosen at login.
constexpr std::string_view utilisateurdesecours = "Ferdo";

}  // namespace

Form3::Form3(ui::Plateforme& plateforme, const Voisins& voisins)
    : Formulaire(plateforme, "Form3"),
      voisins_(voisins),
      acces_(poseracces()),
      entetes_(poserentetes()),
      lignes_(poserlignes()),
      verbes_(poserinsignes("Image2", nbverbes, "images\\vb_30x30.bmp", "Verbes")),
      cheres_(poserinsignes("Image3", nbcheres, "images\\jkq_30x30.bmp", "Lettres chères")),
      images_(poserimages()),
      perso_(ajouter(Genre::Boite, "Text2")),
      persook_(poser(Genre::Bouton, "Command16", -1, "OK", {})),
      total_(poser(Genre::Etiquette, "Label12", -1, "", {})),
      cadrepied_(ajouter(Genre::Cadre, "cadreaide")),
      aide_(poser(Genre::Etiquette, "Label11", -1, "", {})),
      fondmessage_(ajouter(Genre::Etiquette, "fondmessage")),
      message_(poser(Genre::Etiquette, "Label13", -1, "", {})),
      app_(poser(Genre::Case, "app", -1, "Apprentissage", {7560, 8610, 1860, 480})),
      options_(poser(Genre::Bouton, "Command12", -1, "Options", {9450, 8610, 2010, 480})),
      apropos_(
          poser(Genre::Bouton, "Command13", -1, "A propos de Orvan", {11640, 8610, 2010, 480})),
      miseajour_(poser(Genre::Bouton, "Command17", -1, "Vérifier la mise à jour",
                       {7560, 9240, 3900, 480})),
      quitter_(poser(Genre::Bouton, "Command10", -1, "Quitter", {11640, 9240, 2010, 480})) {
    dresser();
    brancher();
}

void Form3::charger() {
    auto& variables = voisins_.form3;
    variables.versionlocale = version::numero;
    variables.dateversion = version::date;
    texte = "Orvane - Menu";
    if (variables.util.empty())
        variables.util = utilisateurdesecours;
    texte = texte() + " - " + variables.util;
    aide(bienvenue(variables.util));
    preparerlignes();
    const auto reglages = profiles::liresettings(plateforme().disque(), variables.util);
    profiles::appliquer(reglages, voisins_.dialog2, [&](const std::string& couleur) {
        variables.couleurdufond = couleur;
        voisins_.options.choisircouleur(couleur);
    });
    effacerpanneau();
}

void Form3::maj() {
    if (!ouvert_)
        return;
    auto listes = listes_;
    if (panneau_->personnel)
        listes[rangeepersonnelle].fichier = perso_.texte();
    Derniers derniers(listes);
    profiles::parcourirhist(plateforme().disque(), voisins_.form3.util,
                            [&](std::string_view record) {
                                derniers.voir(record);
                                return true;
                            });
    Resultats resultats;
    for (std::size_t r = 0; r < nblignes; ++r)
        resultats.at(r) = {lignes_[r].date.texte(), lignes_[r].resultat.texte()};
    actualiser(resultats, listes, derniers);
    const auto& seuils = voisins_.dialog2;
    for (std::size_t r = 0; r < nblignes; ++r) {
        ecrireresultat(r, resultats.at(r));
        if (const auto couleur = teinte(resultats.at(r).texte, seuils.seuilch, seuils.seuilcb))
            lignes_[r].resultat.couleur = *couleur;
    }
}

bool Form3::Verification(std::string_view chemin) {
    return plateforme().disque().existe(chemin);
}

void Form3::donnerfond(ui::Couleur couleur) {
    fond = couleur;
    app_.fond = fond();
}

void Form3::aide(std::string_view texteaide) {
    aide_.texte = std::string(texteaide);
}

void Form3::patienter(bool attente) {
    pointeur = attente ? ui::Pointeur::Attente : ui::Pointeur::Normal;
}

/// The message line covers the end of the help box only while it says something.
void Form3::annoncer(std::string_view annonce) {
    message_.texte = std::string(annonce);
    message_.fondu = annonce.empty();
    fondmessage_.visible = !annonce.empty();
}

/// A row without a result shows no background either.
void Form3::ecrireresultat(std::size_t rangee, const Resultat& resultat) {
    auto& ligne = lignes_[rangee];
    ligne.date.texte = resultat.date;
    ligne.resultat.texte = resultat.texte;
    ligne.resultat.fondu = resultat.texte.empty();
    decrire(ligne.resultat);
}

/// Tells assistive technologies what the colour of a result means.
void Form3::decrire(ui::Controle& resultat) {
    resultat.description =
        std::string(resultat.texte().empty() ? "" : nomdelateinte(resultat.couleur()));
}

void Form3::historique(std::size_t rangee) {
    voisins_.historique.montrer(lignes_[rangee].nom.texte());
    std::vector<std::string> lignes;
    profiles::parcourirhist(plateforme().disque(), voisins_.form3.util,
                            [&](std::string_view record) {
                                if (rangee >= listes_.size())
                                    return false;
                                auto ligne = lignehistorique(record, listes_[rangee]);
                                if (ligne)
                                    lignes.push_back(std::move(*ligne));
                                return ligne.has_value();
                            });
    voisins_.historique.ajouter(lignes);
}

}  // namespace menu
