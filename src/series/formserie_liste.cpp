// The list, as both series forms have it: its rows, the draw of a series, the criterion, the end.

#include "fichier.h"
#include "formserie.h"
#include "hist.h"
#include "journal.h"
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
    return nomfichierderevision(serie_.fich, voisins_.form3.toue, voisins_.form3.util);
}

/// The name that the record of this run bears. Lists that share a revision file each keep their
/// own.
std::string Formserie::nomenregistre() const {
    const auto& menu = voisins_.form3;
    const bool connue = menu.toue == common::modes::revision &&
                        common::cheminrevision(menu.util, menu.listerevisee) == serie_.fich;
    return connue ? menu.listerevisee : profiles::nomcourt(serie_.fich, menu.toue, menu.util);
}

void Formserie::ouvrirliste(std::string_view chemin) {
    const auto& menu = voisins_.form3;
    quitter.fond = ui::Couleur::bouton();
    Label7.texte = menu.nombase;
    series::ouvrirliste(serie_, plateforme().disque(), chemin,
                        naturedelaliste(menu.typ, menu.nombase));
    chronos.peindretotal(false);
}

void Formserie::garderechantillon(int taille) {
    auto& hasard = plateforme().hasard();
    hasard.amorcer(plateforme().maintenant().secondesdepuisminuit());
    echantillonner(serie_, hasard, taille);
}

std::int32_t Formserie::tempsdeserie() const {
    return std::int32_t{voisins_.dialog2.tempsparmot} * serie_.boitesutiles;
}

void Formserie::initchrono() {
    chronos.donner(tempsdeserie());
    for (std::size_t i = 0; i < solution.size(); ++i)
        solution[i]->visible = i < static_cast<std::size_t>(serie_.boitesutiles);
}

void Formserie::libellercritere() {
    const bool secondes = serie_.critere.secondes;
    Label5.texte = std::string(secondes ? gabarit_.enmoinsde : apressucces);
    Label6.texte = secondes ? "secondes." : "réussites.";
}

bool Formserie::criterelibre() const {
    return voisins_.form3.toue == common::modes::revision || voisins_.menu.app();
}

void Formserie::nouvelleserie() {
    for (int i = 0; i < serie_.boitesutiles; ++i)
        peindreaurepos(i);
    effacerserie();
    auto& hasard = plateforme().hasard();
    hasard.amorcer(plateforme().maintenant().secondesdepuisminuit());
    tirer(serie_, hasard);
    tuiles.oublier();
    for (int i = 0; i < serie_.boitesutiles; ++i) {
        auto& boite = *solution[static_cast<std::size_t>(i)];
        boite.texte = "";
        boite.barre = false;
    }
    montrertirages();
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
    motsleft.texte = std::to_string(serie_.rangees.nbmots());
    for (auto* resultat : {&score, &tps, &InfoSourisText})
        resultat->visible = false;
    InfoSourisText.texte = "";
    if (serie_.enpause)
        basculerpause();
}

/// Looks the rows of the series up in the revision file.
void Formserie::prendrerevisions() {
    const auto nombre = static_cast<std::size_t>(serie_.nombre());
    std::vector<std::string> lignesdelaserie;
    lignesdelaserie.reserve(nombre);
    for (std::size_t i = 0; i < nombre; ++i)
        lignesdelaserie.push_back(serie_.places[i].texte);
    const auto presents =
        presentsenrevision(plateforme().disque(), getnomfichierderev(), lignesdelaserie);
    for (std::size_t i = 0; i < nombre; ++i)
        serie_.places[i].enrevision = presents[i];
}

/// Opens the series that has been drawn: entry, focus and clocks.
void Formserie::ouvrirserie() {
    pointeur = ui::Pointeur::Normal;
    seuiltxt.fond = ui::Couleur::fenetre();
    for (auto* boite : solution)
        boite->pressepapiers = true;
    serie_.ouverte = true;
    corriger.actif = serie_.ouverte;
    restart.actif = false;
    lettres_.annoncer("");
    // By way of the clock, so that box 0 is entered even if it has the focus.
    donnerfocus(chronos.temps);
    focaliserboite(0);
    chronos.peindreserie(false);
    initchrono();
    chronos.lancer();
}

void Formserie::finserie(std::int64_t base, std::int64_t fautes,
                         const std::string& textedesfautes) {
    tenirjournal();
    if (const auto fin = finir(serie_, base, fautes))
        finirliste(*fin, textedesfautes);
}

void Formserie::tenirjournal() {
    const auto& menu = voisins_.form3;
    const auto liste = nomenregistre();
    profiles::journaliser(plateforme().disque(), menu.util,
                          {plateforme().maintenant(), liste, menu.toue}, jugements(serie_),
                          voisins_.journalenattente);
}

void Formserie::finirliste(const Findeliste& fin, const std::string& textedesfautes) {
    chronos.arretertotal();
    chronos.peindretotal(true);
    const auto& menu = voisins_.form3;
    if (fin.pourc) {
        const double pourc = *fin.pourc;
        fautesaffichees.texte = textedesfautes + " - " + common::textenombre(pourc) + " %";
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
