// Entry of answers, as both series forms have it: the pool of letters, the keys that are taken or
// refused, the walk of the focus, the second line of entry, the colours of the current box.

#include <algorithm>
#include <string>

#include "faute.h"
#include "fichier.h"
#include "formserie.h"
#include "texte.h"

namespace series {
namespace {

int majuscule(int code) {
    return code >= 'a' && code <= 'z' ? code - ('a' - 'A') : code;
}

bool lettre(int code) {
    return code >= 'A' && code <= 'Z';
}

/// Codes that no answer takes: blanks, digits, punctuation, diacritic keys, accented letters.
bool refusee(int code) {
    struct Plage {
        int premier;
        int dernier;
    };
    static constexpr std::array refusees{Plage{32, 64}, Plage{91, 96}, Plage{168, 168},
                                         Plage{176, 176}, Plage{192, 255}};
    return std::any_of(refusees.begin(), refusees.end(), [code](const Plage& plage) {
        return code >= plage.premier && code <= plage.dernier;
    });
}

}  // namespace

void Formserie::brancherboites() {
    tuiles.surclic = [this] {
        if (serieouverte())
            peindrecourante(boite_);
    };
    for (int i = 0; i < gabarit_.nbboites; ++i) {
        auto& boite = *solution[static_cast<std::size_t>(i)];
        boite.entree = [this, i] { entrerboite(i); };
        boite.sortie = [this, i] { quitterboite(i); };
        boite.toucheenfoncee = [this, i](ui::Touche& touche) { toucheboite(i, touche); };
        boite.caractere = [this, i](int& code) { frapper(i, code); };
        boite.toucherelachee = [this, i](int code) {
            const bool efface = code == ui::touches::retour || code == ui::touches::suppr;
            if (efface && serieouverte())
                recalculerlettres(i);
        };
    }
    Command2.clic = [this] { suivante(); };
}

void Formserie::brancherrecherche() {
    recherche.caractere = [](int& code) { code = majuscule(code); };
    valider.clic = [this] { validerrecherche(); };
}

void Formserie::suivante() {
    if (const auto boite = boitevoisine(boite_, ui::touches::entree))
        focaliserboite(*boite);
}

void Formserie::toucheboite(int rang, ui::Touche& touche) {
    if (touche.code == ui::touches::suppr)
        touche.avalee = !serieouverte();
    const auto boite = boitevoisine(rang, touche.code);
    if (!boite)
        return;
    touche.avalee = true;
    focaliserboite(*boite);
}

void Formserie::validerrecherche() {
    auto& reponse = *solution[static_cast<std::size_t>(boite_)];
    if (serieouverte())
        reponse.texte = recherche.texte();
    recherche.texte = "";
    donnerfocus(reponse);
    suivante();
    donnerfocus(recherche);
}

void Formserie::cliquerrecherche(int rang) {
    mettredefaut(valider);
    if (!serieouverte())
        return;
    tirage.front()->fond = ui::couleurs::tirageaurepos;
    solution[static_cast<std::size_t>(rang)]->fond = ui::couleurs::courante;
}

bool Formserie::saisieassistee() const {
    return lettresdutirage(nature_) && serieouverte() && voisins_.dialog2.saisieassistee != 0;
}

void Formserie::lirelettres(std::string_view texteduntirage, int place) {
    if (lettres_.lirelettres(texteduntirage))
        return;
    throw common::Faute(common::rapportligne("Saisie d'une réponse", fich_, lignedufichier(place),
                                             "le tirage « " + std::string(texteduntirage) +
                                                 " » a trop de lettres ; la limite est de " +
                                                 std::to_string(Lettres::limite)));
}

void Formserie::recalculerlettres(int rang) {
    if (!saisieassistee())
        return;
    lettres_.recalculer(solution[static_cast<std::size_t>(rang)]->texte());
    const auto& boite = *tirage[static_cast<std::size_t>(placede(rang))];
    if (boite.texte().find_first_of(gabarit_.marquesgardees) != std::string::npos)
        return;
    reduire(placede(rang));
}

/// Shows the letters left in the place of the rack.
void Formserie::reduire(int place) {
    tirage[static_cast<std::size_t>(place)]->texte = lettres_.restantes();
    entame_[static_cast<std::size_t>(place)] = true;
}

void Formserie::rendretirages() {
    const int courant = placede(derniereboite_);
    for (int place = 0; place < gabarit_.nbtirages; ++place) {
        const auto i = static_cast<std::size_t>(place);
        if (rangee(place) >= 0 && (entame_[i] || place == courant))
            tirage[i]->texte = tiragedelarangee(place);
    }
    std::fill(entame_.begin(), entame_.end(), false);
}

void Formserie::entrerboite(int rang) {
    boite_ = rang;
    derniereboite_ = rang;
    if (serieouverte()) {
        mettredefaut(Command2);
        if (criteresecondes())
            chronos.entrerboite();
        peindreautres(rang);
        peindrecourante(rang);
    }
    lirelettres(tirage[static_cast<std::size_t>(placede(rang))]->texte(), placede(rang));
    afficherlettres();
    if (serieouverte())
        recalculerlettres(rang);
}

void Formserie::quitterboite(int rang) {
    chronos.quitterboite();
    const int place = placede(rang);
    // A rack that was reduced is given back, even if the option was switched off meanwhile.
    if (saisieassistee() || entame_[static_cast<std::size_t>(place)])
        rendreletirage(place);
    entame_[static_cast<std::size_t>(place)] = false;
    if (!occupee(place) || !serieouverte())
        return;
    if (criteresecondes())
        jugerboite(rang);
    peindreaurepos(rang);
}

void Formserie::peindrecourante(int rang) {
    tirage[static_cast<std::size_t>(placede(rang))]->fond = ui::couleurs::juste;
    solution[static_cast<std::size_t>(rang)]->fond = ui::couleurs::courante;
}

void Formserie::peindreaurepos(int rang) {
    tirage[static_cast<std::size_t>(placede(rang))]->fond = ui::couleurs::tirageaurepos;
    solution[static_cast<std::size_t>(rang)]->fond = ui::couleurs::solutionaurepos;
}

void Formserie::peindreautres(int rang) {
    for (int place = 0; place < gabarit_.nbtirages; ++place)
        if (place != placede(rang))
            tirage[static_cast<std::size_t>(place)]->fond = ui::couleurs::tirageaurepos;
    for (int i = 0; i < boitesutiles_; ++i)
        if (i != rang)
            solution[static_cast<std::size_t>(i)]->fond = ui::couleurs::solutionaurepos;
}

void Formserie::frapper(int rang, int& code) {
    code = majuscule(code);
    if (!serieouverte()) {
        if (lettre(code))
            code = 0;
        return;
    }
    const auto& boite = *solution[static_cast<std::size_t>(rang)];
    const int place = placede(rang);
    bool refus = refusee(code);
    if (saisieassistee()) {
        // The letter will replace the whole answer: the letters of the rack are free again.
        if (boite.remplacetout() && lettre(code))
            lirelettres(tirageasaisir(place), place);
        const auto touchetexte =
            common::utf8(common::caractere1252(static_cast<unsigned char>(code)));
        const bool prise = lettres_.prendre(touchetexte);
        if (prise)
            reduire(place);
        refus = refus || (lettre(code) && !prise);
    }
    if (!refus)
        return;
    code = 0;
    plateforme().bip();
}

}  // namespace series
