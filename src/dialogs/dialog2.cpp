#include "dialog2.h"

#include <array>
#include <utility>

#include "couleurs.h"
#include "echap.h"
#include "nombre.h"
#include "settings.h"

namespace dialogs {
namespace {

constexpr int nblabel2 = 10;
constexpr int nblabel3 = 4;
/// The other three headings in `Label1` have a transparent background.
constexpr int nblabel1colores = 3;

void finir(ui::Controle& boite, std::int16_t valeur) {
    boite.texte = std::to_string(valeur);
    boite.selectionner(std::string::npos, std::string::npos);
}

}  // namespace

Dialog2::Dialog2(ui::Plateforme& plateforme, const Voisins& voisins,
                 std::function<void()> decharger)
    : Formulaire(plateforme, "Dialog2"),
      voisins_(voisins),
      decharger_(std::move(decharger)),
      vert_(ajouter(ui::Genre::Boite, "Text1", 0)),
      rouge_(ajouter(ui::Genre::Boite, "Text1", 1)),
      temps_(ajouter(ui::Genre::Boite, "Text2")),
      base_(ajouter(ui::Genre::Boite, "Text3")),
      couleur_(ajouter(ui::Genre::Liste, "Combo1")),
      son_(ajouter(ui::Genre::Case, "Check1")),
      assistance_(ajouter(ui::Genre::Case, "Check2")),
      duree_(ajouter(ui::Genre::Etiquette, "tps30mots")),
      message_(ajouter(ui::Genre::Etiquette, "Label4")),
      ok_(ajouter(ui::Genre::Bouton, "OKButton")),
      annuler_(ajouter(ui::Genre::Bouton, "Command1")) {
    texte = "Options";
    int i = 0;
    for (auto& taille : tailles_) {
        taille = &ajouter(ui::Genre::Etiquette, "nbechan", i++);
        taille->gras = true;
    }
    son_.texte = "Son";
    assistance_.texte = "Saisie dynamique";
    assistance_.infobulle =
        "Saisie assistée : empêche de saisir une lettre absente du tirage et actualise les lettres "
        "restantes en temps réel";
    duree_.gras = true;
    message_.gras = true;
    ok_.texte = "OK";
    ok_.aspect = ui::Aspect::Principal;
    annuler_.texte = "Annuler";
    couleur_.texte = std::string(profiles::couleurpardefaut);
    std::vector<std::string> noms;
    for (const auto& c : profiles::couleursdufond())
        noms.emplace_back(c.nom);
    couleur_.choix = std::move(noms);
    disposer();
    brancher();
}

void Dialog2::brancher() {
    using options::Champ;
    vert_.change = [this] { change(Champ::Vert); };
    rouge_.change = [this] { change(Champ::Rouge); };
    temps_.change = [this] { change(Champ::Temps); };
    base_.change = [this] { change(Champ::Base); };
    couleur_.clic = [this] { Combo1_Click(); };
    ok_.clic = [this] { cliquerok(); };
    annuler_.clic = [this] { partir(); };
    fermeture = [this] { partir(); };
    fermerparechap(*this);
    mettredefaut(ok_);
    tabulation({&vert_, &rouge_, &temps_, &base_, &couleur_, &son_, &assistance_, &ok_, &annuler_});
}

void Dialog2::charger() {
    const auto& v = voisins_.dialog2;
    devant = true;
    son_.fond = fond();
    assistance_.fond = fond();
    finir(vert_, v.seuilch);
    finir(rouge_, v.seuilcb);
    finir(temps_, v.tempsparmot);
    duree_.texte = options::tempsdeserie(v.tempsparmot);
    son_.coche = v.son != 0;
    assistance_.coche = v.saisieassistee != 0;
    finir(base_, v.nbechantillon);
    affichertailles();
    colorerlabels();
}

void Dialog2::ouvrir() {
    montrer();
    assistance_.coche = voisins_.dialog2.saisieassistee != 0;
    choisircouleur(voisins_.form3.couleurdufond);
    if (focus() == nullptr)
        donnerfocus(vert_);
}

void Dialog2::choisircouleur(std::string_view nomdecouleur) {
    couleur_.texte = std::string(nomdecouleur);
    Combo1_Click();
}

void Dialog2::Combo1_Click() {
    const auto choisie = profiles::couleurdufond(couleur_.texte());
    fond = choisie;
    voisins_.menu.donnerfond(choisie);
    voisins_.multi.donnerfond(choisie);
    colorerlabels();
}

options::Saisie Dialog2::saisie() const {
    return {vert_.texte(), rouge_.texte(), temps_.texte(), base_.texte()};
}

void Dialog2::change(options::Champ champ) {
    const auto boites = saisie();
    if (const auto dit = options::message(champ, boites))
        message_.texte = *dit;
    if (!options::repercute(champ, boites))
        return;
    if (champ == options::Champ::Temps)
        duree_.texte = options::tempsdeserie(common::valeur(boites.temps));
    else
        affichertailles();
}

void Dialog2::affichertailles() {
    const auto nbser =
        common::entier16(common::valeur(base_.texte()), "Echantillon de base (options)");
    const auto textes = options::tailles(voisins_.dialog2, nbser);
    for (std::size_t i = 0; i < textes.size(); ++i)
        tailles_[i]->texte = textes[i];
}

void Dialog2::colorerlabels() {
    for (auto* controle : {&son_, &assistance_, &message_, &duree_})
        controle->fond = fond();
    const auto colorer = [this](std::string_view nomdulabel, int nombre) {
        for (int i = 0; i < nombre; ++i)
            controle(nomdulabel, i).fond = fond();
    };
    colorer("Label1", nblabel1colores);
    colorer("Label2", nblabel2);
    colorer("Label3", nblabel3);
    for (auto* taille : tailles_)
        taille->fond = fond();
}

void Dialog2::cliquerok() {
    const auto verdict = options::valider(saisie());
    if (verdict.message)
        message_.texte = std::string(*verdict.message);
    if (!verdict.accepte)
        return;
    ranger();
    voisins_.menu.maj();
    partir();
}

/// Makes the contents of the boxes the settings, in memory and on disk.
void Dialog2::ranger() {
    const auto boites = saisie();
    const auto entier = [](const std::string& boite) {
        return common::entier16(common::valeur(boite), "Options");
    };
    auto& v = voisins_.dialog2;
    v.seuilch = entier(boites.vert);
    v.seuilcb = entier(boites.rouge);
    v.tempsparmot = entier(boites.temps);
    v.nbechantillon = entier(boites.base);
    v.son = son_.coche() ? 1 : 0;
    v.saisieassistee = assistance_.coche() ? 1 : 0;
    profiles::ecriresettings(plateforme().disque(), voisins_.form3.util, v, couleur_.texte());
    voisins_.form3.couleurdufond = couleur_.texte();
}

void Dialog2::partir() {
    visible = false;
    decharger_();
}

}  // namespace dialogs
