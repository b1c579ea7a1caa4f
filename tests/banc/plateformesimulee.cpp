#include "plateformesimulee.h"

#include <algorithm>
#include <chrono>

#include "confiance.h"
#include "faute.h"
#include "fichier.h"

namespace banc {
namespace {

common::Instant unesecondeapres(const common::Instant& instant) {
    using namespace std::chrono;
    const sys_days jour = year{instant.annee} / month{static_cast<unsigned>(instant.mois)} /
                          day{static_cast<unsigned>(instant.jour)};
    const auto moment = sys_seconds{jour} + seconds{instant.secondesdepuisminuit() + 1};
    const auto minuit = floor<days>(moment);
    const year_month_day date{minuit};
    const hh_mm_ss<seconds> heure{moment - minuit};
    return {static_cast<int>(date.year()),
            static_cast<int>(static_cast<unsigned>(date.month())),
            static_cast<int>(static_cast<unsigned>(date.day())),
            static_cast<int>(heure.hours().count()),
            static_cast<int>(heure.minutes().count()),
            static_cast<int>(heure.seconds().count())};
}

}  // namespace

bool PlateformeSimulee::telecharger(std::string_view adresse, std::string_view chemin,
                                    const ui::Exigence& exigence) {
    const auto place = std::find_if(reseau_.rbegin(), reseau_.rend(),
                                    [&](const Adresse& a) { return adresse.ends_with(a.fin); });
    if (place == reseau_.rend() || !place->fichier)
        return false;
    if (exigence.sure && !ui::adressesure(adresse))
        return false;
    try {
        const auto octets = common::lirefichier(disque_, *place->fichier, "Téléchargement simulé");
        return convient(octets, exigence) && !disque_.remplacer(chemin, octets);
    } catch (const common::Faute&) {
        return false;
    }
}

bool PlateformeSimulee::convient(std::string_view octets, const ui::Exigence& exigence) const {
    if (static_cast<std::int64_t>(octets.size()) > exigence.taille)
        return false;
    return !exigence.somme || (somme && ui::memesomme(*exigence.somme, somme(octets)));
}

void PlateformeSimulee::accueillir(ui::Formulaire& formulaire) {
    if (fenetre)
        fenetre(formulaire);
    bureau.accueillir(formulaire);
}

void PlateformeSimulee::avancer(int secondes) {
    for (int i = 0; i < secondes && !fini(); ++i) {
        instant_ = unesecondeapres(instant_);
        bureau.seconde([this](const std::function<void()>& tic) { executer(tic); },
                       [this] { return fini(); });
    }
}

void PlateformeSimulee::relier(std::string_view fin, std::optional<std::string> fichier) {
    reseau_.push_back({std::string(fin), std::move(fichier)});
}

ui::Reponse PlateformeSimulee::reponsesuivante(std::string_view texte, bool ouinon) {
    const auto parDefaut = ouinon ? ui::Reponse::Oui : ui::Reponse::Ok;
    if (reponses_.empty())
        return parDefaut;
    const auto reponse = reponses_.front();
    reponses_.pop_front();
    if ((reponse == ui::Reponse::Ok) != ouinon)
        return reponse;
    incident_ = "la réponse prévue n'est pas un bouton de la boîte : " + std::string(texte);
    return parDefaut;
}

ui::Reponse PlateformeSimulee::demander(std::string_view texte, ui::Icone icone, bool ouinon) {
    journal.messages.emplace_back(texte);
    const auto reponse = reponsesuivante(texte, ouinon);
    return boite ? boite(texte, icone, ouinon, reponse) : reponse;
}

void PlateformeSimulee::rapporter(std::string_view rapport) {
    rapport_ = rapport;
    if (affichage)
        affichage(rapport);
}

void PlateformeSimulee::pomper() {
    if (pompe)
        pompe();
}

}  // namespace banc
