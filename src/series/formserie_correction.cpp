// The correction, as both series forms have it: what closes a series, notes, missed rows, the word
// menu. Which answer is right is each form's own rule.

#include <algorithm>
#include <utility>

#include "formserie.h"
#include "nombre.h"
#include "revision.h"

namespace series {
namespace {

void annoter(ui::Controle& boite, const std::string& note) {
    boite.infobulle = note;
    boite.pointeur = ui::Pointeur::Texte;
}

}  // namespace

void Formserie::arreterserie() {
    chronos.arreterserie();
    chronos.quitterboite();
    chronos.temps.fond = ui::couleurs::juste;
    restart.actif = true;
}

void Formserie::fermersaisie() {
    corriger.actif = false;
    for (auto* boite : tirage)
        boite->fond = ui::couleurs::tirageaurepos;
    for (auto* boite : solution)
        boite->pressepapiers = false;
}

void Formserie::retenirrapide(int rang, bool bon, std::string_view atemps) {
    auto& etat = rapide_[static_cast<std::size_t>(rang)];
    if (bon && etat == 0)
        return;
    etat = bon ? 1 : 0;
    voyant.texte = std::string(bon ? atemps : gabarit_.troptard);
}

bool Formserie::erreursaurevision() const {
    return voisins_.form3.toue != common::modes::revision && !voisins_.menu.app();
}

void Formserie::garderenrevision(std::span<const Ratee> ratees) {
    if (ratees.empty())
        return;
    const auto chemin = getnomfichierderev();
    std::vector<std::string> lignesratees;
    for (const auto& ratee : ratees)
        lignesratees.push_back(ratee.ligne);
    const auto presentes = ajoutsdejapresents(plateforme().disque(), chemin, lignesratees);
    std::vector<std::string> nouvelles;
    for (std::size_t i = 0; i < ratees.size(); ++i) {
        const auto& ligne = lignesratees[i];
        if (presentes[i] || std::find(nouvelles.begin(), nouvelles.end(), ligne) != nouvelles.end())
            continue;
        nouvelles.push_back(ligne);
        enrevision_[static_cast<std::size_t>(ratees[i].place)] = true;
    }
    ajouterenrevision(plateforme().disque(), chemin, nouvelles);
}

void Formserie::retenirjugement(int place, std::vector<std::string> solutions,
                                std::vector<std::string> saisis) {
    auto& juge = juges_[static_cast<std::size_t>(place)];
    if (!juge || juge->trouve())
        juge = {tiragedelarangee(place), std::move(solutions), std::move(saisis)};
}

void Formserie::tenirjournal(int nombre) {
    std::vector<profiles::Tiragejuge> juges;
    for (int place = 0; place < nombre; ++place) {
        if (auto& juge = juges_[static_cast<std::size_t>(place)])
            juges.push_back(std::move(*juge));
    }
    const auto& menu = voisins_.form3;
    profiles::journaliser(plateforme().disque(), menu.util,
                          {plateforme().maintenant(), nomenregistre(), menu.toue}, juges,
                          voisins_.journalenattente);
}

void Formserie::afficherscore(int justes, int tirages) {
    score.texte = std::to_string(justes) + "/" + std::to_string(tirages);
    score.visible = true;
    nbseriesfaites_ =
        common::entier16(std::int64_t{nbseriesfaites_} + 1, "Nombre de séries réalisées");
    nbseries.texte = std::to_string(nbseriesfaites_) + " série(s) déjà réalisée(s).";
    tps.texte = chronos.utilise();
    tps.visible = true;
}

void Formserie::montrernotes(std::span<const std::string> mots, std::span<const int> boites) {
    auto notes = cherchernotes(plateforme().disque(), common::fichierinfosouris,
                               gabarit_.limitenotes, gabarit_.lignesdemots, Recherche(mots));
    if (notes.empty())
        return;
    const auto boite = [&](const Note& note) { return boites[note.mot]; };
    std::stable_sort(notes.begin(), notes.end(),
                     [&](const Note& a, const Note& b) { return boite(a) < boite(b); });
    std::string textedesnotes;
    for (const auto& note : notes) {
        const int rang = boite(note);
        annoter(*solution[static_cast<std::size_t>(rang)], note.texte);
        if (gabarit_.notessurletirage)
            annoter(*tirage[static_cast<std::size_t>(placede(rang))], note.texte);
        textedesnotes += mots[note.mot] + " " + note.texte + "\n";
    }
    InfoSourisText.texte = textedesnotes;
    InfoSourisText.visible = true;
    InfoSourisText.premierplan();
}

void Formserie::ouvrirmenumot(int place, const ui::Controle& boite, std::string_view mot,
                              bool definition) {
    derniereboite_ = place;
    if (serieouverte() || boite.texte().empty() || rangee(place) < 0)
        return;
    const auto i = static_cast<std::size_t>(place);
    menumot.surrevision = [this, i](bool dedans) { enrevision_[i] = dedans; };
    menumot.ouvrir({std::string(mot), ligneboite_[i], definition, enrevision_[i]});
}

}  // namespace series
