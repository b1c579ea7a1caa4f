#include "plateforme.h"

#include <exception>
#include <utility>

#include "faute.h"

namespace ui {

void Plateforme::bip() {
    if (bipsretenus_)
        bipdemande_ = true;
    else
        sonner();
}

void Plateforme::unseulbip(const std::function<void()>& suite) {
    if (bipsretenus_) {
        suite();
        return;
    }
    bipsretenus_ = true;
    bipdemande_ = false;
    try {
        suite();
    } catch (...) {
        bipsretenus_ = false;
        throw;
    }
    bipsretenus_ = false;
    if (bipdemande_)
        sonner();
}

void Plateforme::message(std::string_view texte, Icone icone) {
    static_cast<void>(demander(texte, icone, false));
    verifierfin();
}

bool Plateforme::question(std::string_view texte) {
    const auto reponse = demander(texte, Icone::Question, true);
    verifierfin();
    return reponse == Reponse::Oui;
}

void Plateforme::jouerson(std::string_view fichier) {
    jouer(fichier);
    verifierfin();
}

void Plateforme::laissercourir() {
    pomper();
    verifierfin();
}

/// An event that ran inside this one may have ended the program.
void Plateforme::verifierfin() const {
    if (fini_)
        throw Fin{statut_};
}

void Plateforme::finir(int statut) {
    if (fini_)
        return;
    fini_ = true;
    statut_ = statut;
}

void Plateforme::retenirlieu(std::string nom) {
    if (lieu_.empty())
        lieu_ = std::move(nom);
}

/// Runs an event, and turns what it throws into the end of the program.
void Plateforme::proteger(const std::function<void()>& evenement) {
    std::string rapport;
    lieu_.clear();
    try {
        evenement();
    } catch (const Fin& fin) {
        finir(fin.statut);
    } catch (const common::Faute& faute) {
        rapport = faute.what();
        finir(1);
    } catch (const std::exception& imprevu) {
        rapport = "Erreur imprévue";
        if (!lieu_.empty())
            rapport += " dans " + lieu_;
        rapport.append(" : ").append(imprevu.what());
        finir(1);
    }
    if (!rapport.empty())
        rapporter(rapport);
    if (fini_)
        arreter(statut_);
}

void Plateforme::executer(const std::function<void()>& evenement) {
    if (fini_)
        return;
    ++profondeur_;
    proteger(evenement);
    if (--profondeur_ > 0)
        return;
    for (const auto& suite : std::exchange(suites_, {}))
        proteger(suite);
}

}  // namespace ui
