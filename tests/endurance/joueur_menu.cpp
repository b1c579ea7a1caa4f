// What the player does in the menu and in the dialogs.

#include <algorithm>
#include <array>

#include "catalogue.h"
#include "joueur.h"
#include "lancement.h"
#include "tableau.h"

namespace endurance {
namespace {

constexpr std::array fenetres{"Dialog2", "Dialog", "Dialog1"};
constexpr std::array personnelles{"perso.txt", "ma liste été.txt"};

std::string indexe(std::string_view nom, std::size_t index) {
    return std::string(nom) + "(" + std::to_string(index) + ")";
}

}  // namespace

void Joueur::jouermenu() {
    if (partie_.montre("Dialog2") && alea_.surcent(70)) {
        reglagedesoptions();
        return;
    }
    using J = Joueur;
    static const std::vector<Coup> coups{
        {20, &J::ouvrirpanneau},     {60, &J::lancer},
        {6, &J::lancerdirectement},  {4, &J::lancerpersonnel},
        {4, &J::cliquerlibelle},     {4, &J::survoler},
        {6, &J::apprentissage},      {5, &J::options},
        {10, &J::fermerfenetres},    {4, &J::patienter},
        {1, &J::quitterleprogramme},
    };
    faire(coups);
}

void Joueur::ouvrirpanneau() {
    if (!partie_.montre("Form3"))
        return;
    // A panel whose lists were filled, more often than not.
    panneau_ = alea_.surcent(70) && !listes_.empty() ? alea_.choisir(listes_).panneau
                                                     : alea_.choisir(menu::panneaux()).cle;
    if (alea_.surcent(3))
        panneau_ = "lc78";
    donner("panneau " + panneau_);
}

/// One of the buttons of a row of the panel on show.
void Joueur::lancer() {
    const auto boutons = accessibles("Form3", true);
    const auto* panneau = menu::panneau(panneau_);
    if (panneau == nullptr || boutons.empty())
        return;
    constexpr std::array noms{"Command14", "Command14", "Command6", "Command22",
                              "coma",      "comb",      "comc",     "comd"};
    const std::string nom = alea_.choisir(noms);
    const auto index = alea_.sous(panneau->rangees.size());
    const auto bouton = "Form3." + indexe(nom, index);
    if (std::count(boutons.begin(), boutons.end(), bouton) == 0)
        return;
    const auto partie = static_cast<std::size_t>(nom.back() - 'a');
    auto rang = index;
    if (nom.starts_with("com"))
        rang = menu::rangeedepartie(*panneau, index, partie).value();
    const std::string fichier(panneau->rangees[rang].fichier);
    const bool cassee = std::any_of(listes_.begin(), listes_.end(), [&](const Listefaite& liste) {
        return liste.cassee && liste.fichier == fichier;
    });
    if (cassee && nom != "Command22") {
        // The fault is told for the whole list alone: who knows which part has the line.
        if (nom == "Command14")
            partie_.attendrefaute("il manque le « ; » derrière le tirage");
        else
            return;
    }
    const bool perso = partie_.seance().programme->voisins().form3.persomulti;
    const bool multi = menu::ecran(*panneau, rang, perso) == menu::Ecran::multi;
    const auto revision = util_ + "\\rev-" + fichier;
    const auto* app = partie_.formulaire("Form3")->trouver("app");
    Lancement lancement{"listes\\" + fichier, revision, fichier, multi, app->coche()};
    if (nom == "Command22")
        lancement.fich = revision;
    if (nom.starts_with("com")) {
        lancement.nom = menu::fichierdepartie(fichier, partie);
        lancement.fich = "listes\\" + lancement.nom;
    }
    partie_.annoncer(lancement);
    donner("clic " + bouton);
}

/// Without the menu, as the bench does it.
void Joueur::lancerdirectement() {
    if (listes_.empty())
        return;
    const auto& liste = alea_.choisir(listes_);
    const bool revision = alea_.surcent(20);
    const bool app = alea_.surcent(20);
    const std::string chemin =
        revision ? util_ + "\\rev-" + liste.fichier : "listes\\" + liste.fichier;
    if (revision && !partie_.seance().plateforme.disque().existe(chemin))
        return;
    const auto& options = partie_.seance().programme->voisins().dialog2;
    const bool echantillon = !revision && !liste.multi && alea_.surcent(8) &&
                             options.nbechuni > static_cast<int>(liste.lignes.size());
    if (liste.cassee && !revision)
        partie_.attendrefaute("il manque le « ; » derrière le tirage");
    else if (echantillon)
        partie_.attendrefaute("la liste n'en compte que");
    const std::string mode = revision ? "R" : echantillon ? "E" : "T";
    const bool rallonges = liste.panneau == "rallong";
    const bool benjamins = liste.fichier == "benj_uni.txt";
    partie_.annoncer({chemin, util_ + "\\rev-" + liste.fichier, liste.fichier, liste.multi, app});
    donner("serie " + std::string(liste.multi ? "Multi " : "Form1 ") + chemin + " toue=" + mode +
           (rallonges ? " typ=rallong" : "") + (app ? " app=1" : "") +
           (rallonges   ? " nombase=Rallonges avant 7-8"
            : benjamins ? " nombase=Benjamins uniques"
                        : ""));
}

void Joueur::lancerpersonnel() {
    if (!partie_.montre("Form3"))
        return;
    panneau_ = "autres";
    const std::string fichier = alea_.choisir(personnelles);
    if (!donner("panneau autres") || !donner("focus Form3.Text2") || !donner("selectionner") ||
        !donner("taper \"" + fichier + "\"") || !donner("clic Form3.Command16"))
        return;
    const auto* app = partie_.formulaire("Form3")->trouver("app");
    const bool multi = partie_.seance().programme->voisins().form3.persomulti;
    partie_.annoncer(
        {"listes\\" + fichier, util_ + "\\rev-" + fichier, fichier, multi, app->coche()});
    donner("clic Form3.Command14(7)");
}

/// The history of a row, or the text about the program.
void Joueur::cliquerlibelle() {
    if (!partie_.montre("Form3"))
        return;
    if (alea_.surcent(80))
        donner("clic Form3." + indexe("Label6", alea_.sous(menu::nblignes)));
    else
        donner("clic Form3.Command13");
}

void Joueur::survoler() {
    const auto controles = accessibles("Form3", false);
    if (!controles.empty())
        donner("survol " + alea_.choisir(controles));
}

void Joueur::apprentissage() {
    if (partie_.montre("Form3"))
        donner("clic Form3.app");
}

void Joueur::options() {
    if (partie_.montre("Form3"))
        donner("clic Form3.Command12");
}

void Joueur::reglagedesoptions() {
    constexpr std::array boites{"Text1(0)", "Text1(1)", "Text2", "Text3"};
    constexpr std::array valeurs{"90", "50", "5", "12", "1", "2", "", "3.5", "x", "200", "-4"};
    constexpr std::array couleurs{"Par défaut", "Jaune", "Bleu"};
    const std::string form = "Dialog2.";
    switch (alea_.sous(8)) {
        case 0:
            donner("clic " + form + "Check1");
            break;
        case 1:
            donner("clic " + form + "Check2");
            break;
        case 2:
            donner("choisir " + form + "Combo1 " + alea_.choisir(couleurs));
            break;
        case 3:
            donner("clic " + form + "OKButton");
            break;
        case 4:
            donner("clic " + form + "Command1");
            break;
        default:
            if (donner("focus " + form + alea_.choisir(boites)) && donner("selectionner"))
                taper(alea_.choisir(valeurs));
            break;
    }
}

void Joueur::fermerfenetres() {
    for (const auto* nom : fenetres)
        if (continuer() && partie_.montre(nom))
            donner("fermer " + std::string(nom));
}

void Joueur::patienter() {
    donner("avancer " + std::to_string(alea_.entre(1, 90)));
}

void Joueur::quitterleprogramme() {
    if (partie_.montre("Form3") && alea_.surcent(30))
        donner(alea_.surcent(50) ? "clic Form3.Command10" : "fermer Form3");
}

}  // namespace endurance
