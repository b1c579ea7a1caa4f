#include "dialog.h"

#include <utility>

#include "echap.h"

namespace dialogs {
namespace {

constexpr int largeurforme = 6600;  // twips
constexpr int hauteurforme = 6000;

}  // namespace

Dialog::Dialog(ui::Plateforme& plateforme, std::function<void()> decharger)
    : Formulaire(plateforme, "Dialog"),
      decharger_(std::move(decharger)),
      resultats_(Formulaire::ajouter(ui::Genre::Boite, "Text1")) {
    texte = "Historique des scores";
    largeur = largeurforme;
    hauteur = hauteurforme;
    resultats_.multiligne = true;
    resultats_.ascenseur = true;
    resultats_.accessible = "Résultats de la liste, du plus ancien au plus récent";
    resultats_.placer({0, 0, largeurforme, hauteurforme});
    tabulation({&resultats_});
    fermeture = [this] {
        visible = false;
        decharger_();
    };
    fermerparechap(*this);
}

void Dialog::montrer(std::string_view titre) {
    Formulaire::montrer();
    texte = texte() + " - " + std::string(titre);
    donnerfocus(resultats_);
}

void Dialog::ajouter(std::span<const std::string> lignes) {
    auto somme = resultats_.texte();
    for (const auto& ligne : lignes)
        somme.append(ligne).append("\n");
    resultats_.texte = std::move(somme);
}

}  // namespace dialogs
