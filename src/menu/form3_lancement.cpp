// The launches: what a click leaves in the shared variables, and which list goes to which form.

#include "aides.h"
#include "form3.h"
#include "listes.h"
#include "nombre.h"

namespace menu {

/// The path of the revision file of a row's list, which is created if it is missing.
std::string Form3::preparerrevision(std::size_t rangee) {
    auto chemin = common::cheminrevision(voisins_.form3.util, listes_.at(rangee).fichier);
    common::toucher(plateforme().disque(), chemin, "Préparation du fichier de révisions");
    return chemin;
}

void Form3::lancer(Ecran ecran, std::string_view chemin) {
    auto& serie = ecran == Ecran::multi ? voisins_.multi : voisins_.form1;
    visible = false;
    serie.patienter();
    serie.coloration();
    serie.montrer();
    serie.commencer(chemin);
}

void Form3::jouertout(std::size_t rangee) {
    auto& variables = voisins_.form3;
    variables.toue = common::modes::tout;
    variables.nombase = lignes_[rangee].nom.texte();
    variables.typ = panneau_->typ;
    preparerrevision(rangee);
    lancer(ecran(*panneau_, rangee, variables.persomulti),
           common::cheminliste(listes_.at(rangee).fichier));
}

void Form3::jouerrevision(std::size_t rangee) {
    auto& variables = voisins_.form3;
    variables.toue = common::modes::revision;
    variables.nombase = lignes_[rangee].nom.texte() + std::string(common::titrerevision);
    variables.listerevisee = listes_.at(rangee).fichier;
    variables.typ = panneau_->typ;
    lancer(ecran(*panneau_, rangee, variables.persomulti), preparerrevision(rangee));
}

/// Does not set `typ`. Empties the result of the row whose number is the index of the button; on
/// one panel that is another row than the one that is launched.
void Form3::jouerpartie(std::size_t index, std::size_t partie) {
    const auto rangee = rangeedepartie(*panneau_, index, partie);
    if (!rangee)
        return;
    auto& variables = voisins_.form3;
    variables.toue = common::modes::partie;
    variables.nombase = lignes_[*rangee].nom.texte();
    ecrireresultat(index, {});
    preparerrevision(*rangee);
    lancer(ecran(*panneau_, *rangee, variables.persomulti),
           common::cheminliste(fichierdepartie(listes_.at(*rangee).fichier, partie)));
}

/// A launch hides the menu, and the stages after it still run.
void Form3::jouerechantillon(std::size_t rangee) {
    auto& variables = voisins_.form3;
    auto& tailles = voisins_.dialog2;
    variables.typ.clear();
    variables.toue = common::modes::echantillon;
    variables.nombase = lignes_[rangee].nom.texte();
    tailles.affecterechantillons(tailles.nbechantillon);
    const auto base = common::valeur(lignes_[rangee].nombre.texte());
    for (const auto& etape : etapes(*panneau_, rangee, variables.persomulti, base, tailles)) {
        if (etape.refus)
            annoncer(messageechantillon);
        if (!etape.lancement)
            continue;
        variables.typ = panneau_->typ;
        preparerrevision(rangee);
        lancer(*etape.lancement, common::cheminliste(listes_.at(rangee).fichier));
    }
}

}  // namespace menu
