#include "ecran.h"

#include <algorithm>
#include <stdexcept>

namespace endurance {
namespace {

constexpr std::array marques{"Image1", "Image2",       "Image3",       "Image4",      "Image5",
                             "Image6", "ImageDemiVbt", "ImageDemiPpi", "ImageDemiInv"};

std::vector<Boite> boites(const std::vector<const ui::Controle*>& rang) {
    std::vector<Boite> lues;
    lues.reserve(rang.size());
    for (const auto* c : rang)
        lues.push_back({c->texte(), c->fond(), c->verrou(), c->visible()});
    return lues;
}

}  // namespace

Lecteurecran::Lecteurecran(const ui::Formulaire& formulaire)
    : formulaire_(formulaire),
      tirage_(rang("tirage")),
      solution_(rang("solution")),
      tuiles_(rang("Command1")) {
    for (const auto* nom : marques) {
        const auto siennes = rang(nom);
        marques_.insert(marques_.end(), siennes.begin(), siennes.end());
    }
}

const ui::Controle& Lecteurecran::controle(std::string_view nom) const {
    const auto* trouve = formulaire_.trouver(nom);
    if (trouve == nullptr)
        throw std::logic_error("contrôle inconnu : " + std::string(nom));
    return *trouve;
}

std::vector<const ui::Controle*> Lecteurecran::rang(std::string_view nom) const {
    std::vector<const ui::Controle*> trouves;
    while (const auto* c = formulaire_.trouver(nom, static_cast<int>(trouves.size())))
        trouves.push_back(c);
    return trouves;
}

Ecran Lecteurecran::lire() const {
    Ecran ecran;
    ecran.visible = formulaire_.visible();
    lirefocus(ecran);
    if (!ecran.visible) {  // the total clock and the focus outlive the hiding
        ecran.minuteries[1] = formulaire_.minuteries()[1]->actif();
        return ecran;
    }
    ecran.corriger = controle("corriger").actif();
    ecran.restart = controle("restart").actif();
    ecran.recherche = controle("recherche").actif();
    ecran.pause = controle("Command5").texte() == "Reprendre";
    ecran.menu = formulaire_.menuouvert() != nullptr;
    ecran.ajouter = controle("addrevmenu").actif();
    ecran.supprimer = controle("supprevmenu").actif();
    ecran.marques = std::any_of(marques_.begin(), marques_.end(),
                                [](const ui::Controle* m) { return m->visible(); });
    ecran.notesvisibles = controle("InfoSourisText").visible();
    ecran.scorevisible = controle("score").visible();
    ecran.seuilvisible = controle("seuiltxt").visible();
    for (std::size_t i = 0; i < ecran.minuteries.size(); ++i)
        ecran.minuteries.at(i) = formulaire_.minuteries().at(i)->actif();
    ecran.tirage = boites(tirage_);
    ecran.solution = boites(solution_);
    for (const auto* tuile : tuiles_)
        ecran.tuiles.push_back(tuile->fond());
    liretextes(ecran);
    return ecran;
}

void Lecteurecran::lirefocus(Ecran& ecran) const {
    const auto* focus = formulaire_.focus();
    if (focus == nullptr)
        return;
    ecran.focusaccessible = ui::Formulaire::accessible(*focus);
    ecran.saisie = focus->genre() == ui::Genre::Boite;
    if (focus->nom() == "solution")
        ecran.boiteactive = focus->index();
}

void Lecteurecran::liretextes(Ecran& ecran) const {
    const bool form1 = formulaire_.nom() == "Form1";
    ecran.fondtemps = controle("temps").fond();
    ecran.fondtempstot = controle("tempstot").fond();
    ecran.fondquitter = controle("quitter").fond();
    ecran.motsleft = controle("motsleft").texte();
    ecran.score = controle("score").texte();
    ecran.fautes = controle(form1 ? "nbftot" : "nbftotal").texte();
    ecran.nbseries = controle("nbseries").texte();
    ecran.critere = controle("Label6").texte();
    ecran.seuil = controle("seuiltxt").texte();
    ecran.temps = controle("temps").texte();
    ecran.tempstot = controle("tempstot").texte();
    ecran.titre = controle("Label7").texte();
    ecran.notes = controle("InfoSourisText").texte();
}

}  // namespace endurance
