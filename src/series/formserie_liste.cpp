// The list, as both series forms have it: its rows, the draw of a series, the criterion, the end.

#include <algorithm>

#include "fichier.h"
#include "formserie.h"
#include "hist.h"
#include "listes.h"
#include "nombre.h"
#include "revision.h"

namespace series {
namespace {

constexpr std::string_view sondelafin = "APP05.WAV";
constexpr std::string_view bravo = "BRAVO!";
constexpr std::string_view apressucces = "Eliminer un mot après";

}  // namespace

std::string Formserie::getnomfichierderev() const {
    return nomfichierderevision(fich_, voisins_.form3.toue, voisins_.form3.util);
}

/// The name that the record of this run bears. Lists that share a revision file each keep their
/// own.
std::string Formserie::nomenregistre() const {
    const auto& menu = voisins_.form3;
    const bool connue = menu.toue == common::modes::revision &&
                        common::cheminrevision(menu.util, menu.listerevisee) == fich_;
    return connue ? menu.listerevisee : profiles::nomcourt(fich_, menu.toue, menu.util);
}

void Formserie::ouvrirliste(std::string_view chemin) {
    quitter.fond = ui::Couleur::bouton();
    Label7.texte = voisins_.form3.nombase;
    fich_ = chemin;
    // The rows that the boxes showed are gone.
    std::fill(rangboite_.begin(), rangboite_.end(), -1);
    rangees_.lire(plateforme().disque(), fich_);
    chronos.tempstot.fond = ui::Couleur::fenetre();
}

void Formserie::echantillonner(int taille) {
    auto& hasard = plateforme().hasard();
    hasard.amorcer(plateforme().maintenant().secondesdepuisminuit());
    rangees_.garder(tirersansremise(hasard, rangees_.nbmots(), taille, Comblement::Dernier));
}

int Formserie::nombredelaserie() const {
    return std::min(rangees_.nbmots(), gabarit_.nbtirages);
}

std::string Formserie::tiragedelarangee(int place) const {
    const int rang = rangee(place);
    return rang < 0 ? std::string() : rangees_.tirage(rang);
}

std::int32_t Formserie::tempsdeserie() const {
    return std::int32_t{voisins_.dialog2.tempsparmot} * boitesutiles_;
}

void Formserie::initchrono() {
    chronos.donner(tempsdeserie());
    for (int i = 0; i < gabarit_.nbboites; ++i)
        solution[static_cast<std::size_t>(i)]->visible = i < boitesutiles_;
}

void Formserie::libellercritere(bool secondes) {
    Label5.texte = std::string(secondes ? gabarit_.enmoinsde : apressucces);
    Label6.texte = secondes ? "secondes." : "réussites.";
}

double Formserie::seuil() const {
    return common::valeur(seuiltxt.texte());
}

bool Formserie::criterelibre() const {
    return voisins_.form3.toue == common::modes::revision || voisins_.menu.app();
}

void Formserie::nouvelleserie() {
    for (int i = 0; i < boitesutiles_; ++i)
        peindreaurepos(i);
    effacerserie();
    juges_.assign(juges_.size(), std::nullopt);
    tirerrangees();
    tuiles.oublier();
    std::fill(rapide_.begin(), rapide_.end(), -1);
    for (int i = 0; i < boitesutiles_; ++i) {
        auto& boite = *solution[static_cast<std::size_t>(i)];
        boite.texte = "";
        boite.barre = false;
    }
    for (int place = 0; place < gabarit_.nbtirages; ++place)
        tirage[static_cast<std::size_t>(place)]->texte = tiragedelarangee(place);
    std::fill(entame_.begin(), entame_.end(), false);
    prendrerevisions();
    ouvrirserie();
}

/// Hides marks, notes and results, empties hover texts, and ends a pause.
void Formserie::effacerserie() {
    marques.cacher();
    for (auto* boites : {&tirage, &solution}) {
        for (auto* boite : *boites) {
            boite->infobulle = "";
            boite->pointeur = ui::Pointeur::Fleche;
        }
    }
    motsleft.texte = std::to_string(rangees_.nbmots());
    for (auto* resultat : {&score, &tps, &InfoSourisText})
        resultat->visible = false;
    InfoSourisText.texte = "";
    if (chronos.enpause())
        chronos.basculerpause();
}

void Formserie::tirerrangees() {
    auto& hasard = plateforme().hasard();
    hasard.amorcer(plateforme().maintenant().secondesdepuisminuit());
    const auto tires =
        tirersansremise(hasard, rangees_.nbmots(), nombredelaserie(), gabarit_.comblement);
    std::fill(rangboite_.begin(), rangboite_.end(), -1);
    std::copy(tires.begin(), tires.end(), rangboite_.begin());
    std::transform(rangboite_.begin(), rangboite_.end(), lignesdufichier_.begin(),
                   [this](int rang) { return rang < 0 ? 0 : rangees_.ligne(rang); });
}

/// Looks the rows of the series up in the revision file.
void Formserie::prendrerevisions() {
    const int nombre = nombredelaserie();
    std::vector<std::string> lignesdelaserie;
    lignesdelaserie.reserve(static_cast<std::size_t>(nombre));
    for (int place = 0; place < nombre; ++place)
        lignesdelaserie.push_back(lignedelaliste(rangee(place)));
    std::fill(enrevision_.begin(), enrevision_.end(), false);
    const auto presents =
        presentsenrevision(plateforme().disque(), getnomfichierderev(), lignesdelaserie);
    std::copy(presents.begin(), presents.end(), enrevision_.begin());
    std::move(lignesdelaserie.begin(), lignesdelaserie.end(), ligneboite_.begin());
}

/// Opens the series that has been drawn: entry, focus and clocks.
void Formserie::ouvrirserie() {
    pointeur = ui::Pointeur::Normal;
    seuiltxt.fond = ui::Couleur::fenetre();
    for (auto* boite : solution)
        boite->pressepapiers = true;
    corriger.actif = true;
    restart.actif = false;
    lettres_.annoncer("");
    // By way of the clock, so that box 0 is entered even if it has the focus.
    donnerfocus(chronos.temps);
    focaliserboite(0);
    chronos.temps.fond = ui::Couleur::fenetre();
    initchrono();
    chronos.lancer();
}

void Formserie::finserie(std::int64_t base, std::int64_t fautes) {
    rangees_.compacter();
    if (rangees_.nbmots() == 0)
        finirliste(base, fautes);
}

void Formserie::finirliste(std::int64_t base, std::int64_t fautes) {
    chronos.arretertotal();
    chronos.tempstot.fond = ui::couleurs::juste;
    const auto& menu = voisins_.form3;
    if (base != 0) {
        const auto pourc = profiles::pourcentage(base, fautes);
        fautesaffichees.texte = fautesaffichees.texte() + " - " + common::textenombre(pourc) + " %";
        profiles::ajouterhist(
            plateforme().disque(), menu.util,
            profiles::enregistrement(plateforme().maintenant(), pourc, menu.toue, nomenregistre()));
    }
    tuiles.peindre(ui::couleurs::faux);
    motsleft.texte = "0";
    lettres_.annoncer(bravo);
    afficherlettres();
    if (InfoSourisText.visible())
        rangernotes(true);
    restart.actif = false;
    plateforme().laissercourir();
    if (voisins_.options.check1())
        plateforme().jouerson(sondelafin);
    quitter.fond = ui::couleurs::tuile;
}

}  // namespace series
