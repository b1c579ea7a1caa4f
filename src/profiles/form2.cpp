#include "form2.h"

#include "couleurs.h"
#include "settings.h"
#include "utilisateurs.h"

namespace profiles {
namespace {

using ui::Genre;

constexpr std::int16_t dureeadieu = 8;  // seconds
constexpr std::string_view auteur =
    "A propos de l'auteur :\n\n"
    "Un joueur de club qui a passé trop de soirées à chercher ses anagrammes, et qui a fini par "
    "écrire le programme qui l'oblige à les apprendre.\n\n"
    "Merci d'avoir joué, et à bientôt !";

// The design, in twips.
constexpr int largeurdessin = 11280;
constexpr int hauteurdessin = 5640;
constexpr int marge = 360;
constexpr int colonne = 6840;
constexpr int largeurcolonne = 4080;
constexpr ui::Cadrage cadretexte{marge, 1140, 10560, 3000};

}  // namespace

Form2::Form2(ui::Plateforme& plateforme, common::VariablesForm3& form3, ui::FaceMenu& menu,
             ui::FaceSerie& form1)
    : Formulaire(plateforme, "Form2"),
      form3_(form3),
      menu_(menu),
      form1_(form1),
      titre_(poser(Genre::Etiquette, "Label1", -1, "ORVANE - PROGRAMME D'ENTRAÎNEMENT AU SCRABBLE",
                   {marge, 300, 10560, 540})),
      image_(ajouter(Genre::Image, "Image1")),
      utilisateur_(poser(Genre::Etiquette, "Label4", -1,
                         "Utilisateur :", {colonne, 1140, largeurcolonne, 300})),
      user_(ajouter(Genre::Liste, "user")),
      commencer_(
          poser(Genre::Bouton, "Command1", -1, "COMMENCER", {colonne, 2070, largeurcolonne, 660})),
      nouveau_(poser(Genre::Bouton, "Command2", -1, "Nouvel utilisateur ?",
                     {colonne, 2910, largeurcolonne, 450})),
      invite_(poser(Genre::Etiquette, "Label5", -1,
                    "Saisissez votre nom d'utilisateur :", {colonne, 3720, largeurcolonne, 300})),
      nom_(ajouter(Genre::Boite, "Text2")),
      conseil_(poser(Genre::Etiquette, "Label3", -1, "(pas de caractères spéciaux)",
                     {colonne, 4500, largeurcolonne, 300})),
      ok_(poser(Genre::Bouton, "Command3", -1, "OK", {colonne + 3180, 4050, 900, 405})),
      texte_(ajouter(Genre::Boite, "Text1")),
      quitter_(poser(Genre::Bouton, "quitter", -1, "Command4", {marge, 5010, 1500, 405})),
      compte_(poser(Genre::Etiquette, "Label2", -1, "", {marge, 5130, 10560, 360})),
      minuterie_(ajouterminuterie("Timer1")) {
    dresser();
    brancher();
}

void Form2::dresser() {
    texte = "Bienvenue :o)";
    fond = couleurdufond(couleurpardefaut);
    largeur = largeurdessin;
    hauteur = hauteurdessin;
    titre_.taille = 17;
    titre_.gras = true;
    titre_.alignement = ui::Alignement::Centre;
    titre_.aspect = ui::Aspect::Titre;
    image_.image = "images\\connexion.png";
    image_.accessible = "Illustration";
    image_.placer({marge, 1140, 6120, 3825});
    user_.texte = "Saisissez votre nom d'utilisateur";
    user_.accessible = "Utilisateur";
    user_.placer({colonne, 1470, largeurcolonne, 420});
    commencer_.taille = 13;
    commencer_.gras = true;
    commencer_.aspect = ui::Aspect::Principal;
    commencer_.actif = false;
    nom_.accessible = "Nom du nouvel utilisateur";
    nom_.placer({colonne, 4050, 3060, 405});
    conseil_.italique = true;
    compte_.taille = 14;
    compte_.alignement = ui::Alignement::Centre;
    texte_.multiligne = true;
    texte_.accessible = "A propos de l'auteur";
    texte_.taille = 12;
    texte_.visible = false;
    quitter_.visible = false;
    montrersaisie(false);
    mettredefaut(commencer_);
    tabulation({&user_, &commencer_, &nouveau_, &nom_, &ok_});
}

void Form2::brancher() {
    user_.change = [this] { commencer_.actif = true; };
    // Enter takes what was typed where it was typed.
    user_.entree = [this] { mettredefaut(commencer_); };
    nom_.entree = [this] { mettredefaut(ok_); };
    commencer_.clic = [this] { connecter(); };
    nouveau_.clic = [this] { saisirnouveau(); };
    ok_.clic = [this] { accepternouveau(); };
    minuterie_.tic = [this] { decompter(); };
    fermeture = [] { ui::Plateforme::terminer(); };
}

void Form2::charger() {
    auto& disque = plateforme().disque();
    std::string octets;
    const auto erreur = common::essayerliretexte(disque, fichierusers, octets);
    auto lus = utilisateurs(octets);
    const bool connus = !lus.noms.empty();
    user_.choix = std::move(lus.noms);
    if (erreur || !connus) {
        // Whoever types at once does not type into the text of the prompt; Enter goes on.
        donnerfocus(nouveau_);
        return;
    }
    user_.texte = lus.derniereligne;
    commencer_.actif = true;
    donnerfocus(commencer_);
    if (common::essayerliretexte(disque, cheminsettings(lus.derniereligne), octets))
        return;
    if (const auto couleur = couleurreglee(octets))
        fond = couleurdufond(*couleur);
}

/// The entry of a new name.
void Form2::montrersaisie(bool montree) {
    for (auto* controle : {&invite_, &nom_, &conseil_, &ok_})
        controle->visible = montree;
    mettredefaut(commencer_);
}

void Form2::saisirnouveau() {
    montrersaisie(true);
    donnerfocus(nom_);
}

void Form2::accepternouveau() {
    auto liste = user_.choix();
    liste.push_back(nom_.texte());
    user_.choix = std::move(liste);
    user_.texte = nom_.texte();
    commencer_.actif = true;
    montrersaisie(false);
    user_.visible = true;
    commencer_.visible = true;
    donnerfocus(commencer_);
}

void Form2::connecter() {
    auto& disque = plateforme().disque();
    const auto nom = user_.texte();
    form3_.util = nom;
    auto liste = user_.choix();
    liste.push_back(nom);
    user_.choix = liste;
    ecrireusers(disque, liste, nom);
    if (!dossierexiste(disque, nom))
        creerutilisateur(disque, nom);
    plateforme().laissercourir();
    form1_.patienter();
    menu_.montrer();
    visible = false;
}

void Form2::apropos() {
    minuterie_.actif = true;
    decompte_ = dureeadieu;
    for (auto* controle : {&user_, &titre_, &commencer_, &quitter_})
        controle->visible = false;
    texte = "A bientôt !";
    texte_.placer(cadretexte);
    texte_.visible = true;
    texte_.premierplan();
    texte_.texte = std::string(auteur);
}

void Form2::decompter() {
    --decompte_;
    compte_.texte = std::to_string(decompte_);
    if (decompte_ == -1)
        ui::Plateforme::terminer();
}

}  // namespace profiles
