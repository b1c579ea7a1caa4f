#include "chronos.h"

#include "etats.h"
#include "nombre.h"
#include "texte.h"

namespace series {
namespace {

constexpr std::int32_t minute = 60;
constexpr std::int32_t heure = 3600;
constexpr std::string_view pause = "Pause";
constexpr std::string_view reprise = "Reprendre";

}  // namespace

std::string texteserie(std::int32_t secondes) {
    return std::to_string(secondes / minute) + ":" + common::deuxchiffres(secondes % minute);
}

std::string textetotal(std::int32_t secondes) {
    return std::to_string(secondes / heure) + ":" +
           common::deuxchiffres(secondes % heure / minute) + ":" +
           common::deuxchiffres(secondes % minute);
}

std::string dureeutilisee(std::int32_t tempsserie, std::string_view texteduchrono) {
    const auto reste = minute * common::valeur(common::debut(texteduchrono, 1)) +
                       common::valeur(common::fin(texteduchrono, 2));
    return common::CalcDuree(common::entier16(tempsserie - reste, "Durée de la série"));
}

Chronos::Chronos(ui::Formulaire& formulaire, std::optional<std::int32_t> limitetotal)
    : Label3(formulaire.ajouter(ui::Genre::Etiquette, "Label3")),
      Label1(formulaire.ajouter(ui::Genre::Etiquette, "Label1")),
      temps(formulaire.ajouter(ui::Genre::Boite, "temps")),
      Label2(formulaire.ajouter(ui::Genre::Etiquette, "Label2")),
      tempstot(formulaire.ajouter(ui::Genre::Boite, "tempstot")),
      Check1(formulaire.ajouter(ui::Genre::Case, "Check1")),
      Command5(formulaire.ajouter(ui::Genre::Bouton, "Command5")),
      Timer1(formulaire.ajouterminuterie("Timer1")),
      Timer2(formulaire.ajouterminuterie("Timer2")),
      Timer3(formulaire.ajouterminuterie("Timer3")),
      limitetotal_(limitetotal) {
    Label3.texte = "TEMPS";
    Label3.gras = true;
    Label1.texte = "Série";
    Label2.texte = "Total";
    temps.texte = texteserie(tempsaffiche_);
    temps.accessible = "Temps restant de la série";
    tempstot.texte = "0:00:00";
    tempstot.accessible = "Temps total de la liste";
    for (auto* horloge : {&temps, &tempstot}) {
        horloge->verrou = true;
        horloge->aspect = ui::Aspect::Horloge;
        horloge->alignement = ui::Alignement::Centre;
        horloge->taille = 18;
        horloge->gras = true;
    }
    Check1.texte = "Afficher";
    Check1.accessible = "Afficher les chronomètres";
    Check1.coche = true;
    Command5.texte = std::string(pause);
    Check1.clic = [this] {
        for (auto* controle : {&temps, &tempstot, &Label1, &Label2})
            controle->visible = Check1.coche();
    };
    Command5.clic = [this] { surpause(); };
    Timer1.tic = [this] { battreserie(); };
    Timer2.tic = [this] { battretotal(); };
    Timer3.tic = [this] {
        tempsmot_ = common::entier16(std::int64_t{tempsmot_} + 1, "Temps passé sur un mot");
    };
}

void Chronos::donner(std::int32_t secondes) {
    tempsrestant_ = secondes;
    tempsserie_ = secondes;
}

void Chronos::lancer() {
    Timer1.actif = true;
    Timer2.actif = true;
}

void Chronos::entrerboite() {
    tempsmot_ = 0;
    Timer3.actif = true;
}

void Chronos::tenir(bool enpause, bool serieouverte) {
    Timer1.actif = !enpause && serieouverte;
    Timer2.actif = !enpause;
    Command5.texte = std::string(enpause ? reprise : pause);
}

void Chronos::peindre(ui::Controle& horloge, bool arretee) {
    const auto rendu = apparencedelhorloge(arretee);
    horloge.fond = rendu.fond;
    horloge.description = std::string(rendu.paroles);
}

void Chronos::battreserie() {
    --tempsrestant_;
    tempsaffiche_ = tempsrestant_;
    temps.texte = texteserie(tempsaffiche_);
    if (tempsrestant_ < 1)
        auterme();
}

void Chronos::battretotal() {
    ++tempstotal_;
    if (limitetotal_ && tempstotal_ >= *limitetotal_) {
        alalimite();
        return;
    }
    tempstot.texte = textetotal(tempstotal_);
}

}  // namespace series
