#include "partie.h"

#include <algorithm>
#include <tuple>
#include <utility>

#include "chemin.h"

namespace endurance {

Partie::Partie(const std::filesystem::path& jeu)
    : machine_(jeu),
      seance_(machine_.seance),
      fiches_{fiche("Form1", false), fiche("Multi", true)},
      instant_(seance_.plateforme.maintenant()) {}

Partie::Fiche Partie::fiche(const char* nom, bool multi) {
    auto& voisins = seance_.programme->voisins();
    return {nom, {multi, voisins.form3, voisins.dialog2}, {}, {}};
}

bool Partie::montre(std::string_view nom) const {
    const auto* trouve = formulaire(nom);
    return trouve != nullptr && trouve->visible();
}

const Suivi* Partie::serie() const {
    for (const auto& fiche : fiches_)
        if (fiche.ecran.visible)
            return &fiche.suivi;
    return nullptr;
}

std::string Partie::scenario(std::size_t derniers) const {
    std::string texte;
    const auto debut = trace_.size() - std::min(derniers, trace_.size());
    for (auto i = debut; i < trace_.size(); ++i)
        texte += trace_[i];
    return texte;
}

bool Partie::donner(const std::string& ordre, const std::vector<std::string>& lignes) {
    auto decoupe = banc::decouper(ordre);
    decoupe.lignes = lignes;
    auto& texte = trace_.emplace_back(ordre + "\n");
    for (const auto& ligne : lignes)
        texte += ligne.empty() ? "|\n" : "| " + ligne + "\n";
    verifier(decoupe, seance_.repondre(decoupe));
    annonce_.reset();
    return !finie() && constats_.aucun();
}

std::vector<std::string> Partie::lignesde(const std::string& chemin) const {
    auto systeme = chemin;
    std::replace(systeme.begin(), systeme.end(), '\\', '/');
    return leslignes(machine_.dossier.chemin() / common::chemin(systeme));
}

Fichiers Partie::lirefichiers(const std::string& revision) const {
    return {revision.empty() ? std::vector<std::string>() : lignesde(revision),
            lignesde(util_ + "\\hist.dat")};
}

void Partie::verifier(const banc::Ordre& ordre, const std::string& reponse) {
    constats_.exiger(!reponse.starts_with("erreur:"), "ordre refusé : " + reponse);
    const auto ecritures = seance_.plateforme.disque().ecritures();
    const auto avant = fichiers_;
    const auto util = std::exchange(util_, seance_.programme->voisins().form3.util);
    const auto revision = annonce_ ? annonce_->revision : revision_;
    if (ecritures != ecritures_ || revision != revision_ || util != util_ || ordre.nom == "fichier")
        fichiers_ = lirefichiers(revision);
    ecritures_ = ecritures;
    revision_ = revision;
    if (finie()) {
        constats_.exiger(util != util_ || avant.hist == fichiers_.hist,
                         "la fin a touché à l'historique");
        verifierfin(ordre);
        return;
    }
    constats_.exiger(fauteattendue_.empty(), "faute attendue : " + fauteattendue_);
    const auto debut = std::exchange(instant_, seance_.plateforme.maintenant());
    auto& messages = seance_.plateforme.journal.messages;
    for (auto& fiche : fiches_) {
        const auto* form = formulaire(fiche.nom);
        if (form == nullptr)
            continue;
        if (!fiche.lecteur)
            fiche.lecteur.emplace(*form);
        const auto ecranavant = std::exchange(fiche.ecran, fiche.lecteur->lire());
        Moment moment{
            ordre,     ecranavant, fiche.ecran, avant,
            fichiers_, debut,      instant_,    messages.empty() ? std::string() : messages.back()};
        verifierfiche(fiche, moment);
    }
    seance_.plateforme.journal = {};
}

void Partie::verifierfiche(Fiche& fiche, const Moment& moment) {
    const auto& [avant, apres] = std::tie(moment.avant, moment.apres);
    if (!avant.visible && apres.visible) {
        constats_.exiger(annonce_ && annonce_->multi == (&fiche == &fiches_[1]),
                         std::string("lancement inattendu sur ") + fiche.nom);
        if (!annonce_)
            return;
        ++listes_;
        fiche.suivi.commencer(*annonce_, lignesde(annonce_->fich), moment, constats_);
    } else if (avant.visible && apres.visible) {
        series_ += avant.etat() == Etat::Ouverte && apres.etat() != Etat::Ouverte ? 1 : 0;
        fiche.suivi.suivre(moment, constats_);
    } else {
        fiche.suivi.cacher(moment);
    }
}

void Partie::verifierfin(const banc::Ordre& ordre) {
    const auto& rapport = seance_.plateforme.rapport();
    if (!rapport) {
        const bool voulue = ordre.suite == "Form3.Command10" || ordre.suite == "Form3";
        constats_.exiger(voulue && seance_.plateforme.statut() == 0,
                         "le programme s'est terminé sans raison");
        return;
    }
    constats_.egal(seance_.plateforme.statut(), 1, "statut d'une faute");
    if (!fauteattendue_.empty())
        constats_.exiger(rapport->find(fauteattendue_) != std::string::npos,
                         "faute attendue « " + fauteattendue_ + " », lue « " + *rapport + " »");
    else
        constats_.exiger(fauteprevue(*rapport, ordre), "faute imprévue : " + *rapport);
}

/// The faults that the rules give a player who does what he should not.
bool Partie::fauteprevue(const std::string& rapport, const banc::Ordre& ordre) const {
    const auto dit = [&](const char* texte) { return rapport.find(texte) != std::string::npos; };
    const auto& [form1, multi] = fiches_;
    constexpr int dixheures = 36000;
    if (dit("il ne peut pas atteindre 10 heures"))
        return ordre.nom == "avancer" && form1.suivi.total() + std::stoi(ordre.suite) >= dixheures;
    if (dit("Temps passé sur un mot"))
        return ordre.nom == "avancer" && (form1.ecran.minuteries[2] || multi.ecran.minuteries[2]);
    if (dit("a trop de lettres"))  // a long solution, shown in the place of its rack, and entered
        return std::any_of(fiches_.begin(), fiches_.end(), [](const Fiche& fiche) {
            return std::any_of(fiche.ecran.tirage.begin(), fiche.ecran.tirage.end(),
                               [](const Boite& boite) { return net(boite.texte).size() > 15; });
        });
    // The sample of this row is compared with the size for duos, and drawn on Form1.
    if (dit("la liste n'en compte que"))
        return ordre.suite == "Form3.Command6(6)";
    if (dit("n'admet aucune lettre")) {
        const int boite = multi.ecran.boiteactive;
        return ordre.nom == "taper" && multi.ecran.visible && multi.ecran.corriger && boite >= 0 &&
               multi.suivi.assistee() && multi.suivi.rangee(multi.suivi.placede(boite)) == nullptr;
    }
    return false;
}

}  // namespace endurance
