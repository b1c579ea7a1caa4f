#include "correctionmulti.h"

#include <span>
#include <utility>

#include "rangeesmulti.h"

namespace multi {
namespace {

using series::Correction;
using series::Etatreponse;
using series::Etattirage;

/// Those of a rack's texts that count in its judgement.
std::vector<std::string> juges(const Rack& rack, std::span<const std::string> textes) {
    const auto comptent = textes.first(nombrejuge(rack.solutions));
    return {comptent.begin(), comptent.end()};
}

/// The judgements of one series, one after the other; a rack that is judged again finds what the
/// first judgement shows.
class Juge {
  public:
    Juge(series::Serie& serie, Ratages& ratages, Saisis saisis)
        : serie_(serie),
          ratages_(ratages),
          saisis_(std::move(saisis)),
          etats_(serie.places.size(), Etattirage::Repos) {}

    /// True for a right rack.
    bool tirage(int place);
    /// The same under the seconds criterion, held for a box.
    void enbref(int place, int boite, std::int16_t tempsmot);

    Correction correction;

  private:
    [[nodiscard]] std::size_t boite(int place, std::size_t mot) const {
        return mot * static_cast<std::size_t>(serie_.regles.nbplaces) +
               static_cast<std::size_t>(place);
    }
    [[nodiscard]] Rack lire(int place) const;
    void montrer(int place, const Verdict& verdict);

    series::Serie& serie_;
    Ratages& ratages_;
    Saisis saisis_;
    std::vector<Etattirage> etats_;  ///< by place, since this correction began
};

Rack Juge::lire(int place) const {
    const auto& lue = serie_.place(place);
    Rack rack{lue.affiche, etats_[static_cast<std::size_t>(place)], {}, solutions(lue.suite)};
    for (std::size_t mot = 0; mot < serie_.nbsolutions(); ++mot)
        rack.saisis.push_back(saisis_[boite(place, mot)]);
    return rack;
}

void Juge::montrer(int place, const Verdict& verdict) {
    for (std::size_t mot = 0; mot < verdict.boites.size(); ++mot) {
        const auto& jugee = verdict.boites[mot];
        const auto rang = boite(place, mot);
        const auto etat = jugee.bonne ? Etatreponse::Juste : Etatreponse::Attendue;
        saisis_[rang] = jugee.texte;
        serie_.verdicts[rang] = etat;
        correction.boites.push_back(
            {static_cast<int>(rang), etat, jugee.texte, jugee.infobulle, false});
    }
    auto& etat = etats_[static_cast<std::size_t>(place)];
    const auto change = verdict.etat == etat ? std::nullopt : std::optional(verdict.etat);
    etat = verdict.etat;
    correction.tirages.push_back({place, change, std::nullopt, verdict.infobulle});
}

bool Juge::tirage(int place) {
    const auto rack = lire(place);
    retenirjugement(serie_, place, juges(rack, rack.solutions), juges(rack, rack.saisis));
    const auto verdict = corrigertirage(rack, ratages_);
    montrer(place, verdict);
    if (verdict.debordement == Debordement::Motsfaux)
        correction.pleine = {place, "solutions manquées", Ratages::limitemots};
    else if (verdict.debordement == Debordement::Tiragesfaux)
        correction.pleine = {place, "tirages manqués", Ratages::limitetirages};
    else if (!verdict.juste)
        correction.ratees.push_back(
            {place, lignederangee(rack.texte, rack.solutions, nombrejuge(rack.solutions))});
    return verdict.juste;
}

void Juge::enbref(int place, int boite, std::int16_t tempsmot) {
    const bool juste = tirage(place);
    if (!correction.pleine)
        correction.atemps = retenir(serie_, boite, juste && serie_.critere.seuil > tempsmot);
}

}  // namespace

Correction jugerboite(series::Serie& serie, Ratages& ratages, Saisis saisis, int boite,
                      std::int16_t tempsmot) {
    Juge juge(serie, ratages, std::move(saisis));
    juge.enbref(serie.placede(boite), boite, tempsmot);
    return juge.correction;
}

Correction corriger(series::Serie& serie, Ratages& ratages, Saisis saisis, std::int16_t tempsmot) {
    const auto& critere = serie.critere;
    serie.ouverte = false;
    Juge juge(serie, ratages, std::move(saisis));
    auto& correction = juge.correction;
    correction.nombre = serie.nombre();
    if (critere.secondes && correction.nombre > 0)
        juge.enbref(correction.nombre - 1, correction.nombre - 1, tempsmot);
    for (int place = 0; place < correction.nombre && !correction.pleine; ++place) {
        if (!juge.tirage(place))
            continue;
        ++correction.justes;
        const int rang = serie.place(place).rang;
        // Equal, not at least: lowering the threshold below a count already reached eliminates
        // nothing.
        if (!critere.secondes && critere.seuil == serie.rangees.reussir(rang))
            serie.rangees.eliminer(rang);
    }
    if (critere.secondes)
        eliminerrapides(serie);
    return std::move(juge.correction);
}

}  // namespace multi
