#include "minuteur.h"

#include <algorithm>
#include <chrono>
#include <limits>
#include <utility>

namespace ui::qt {
namespace {

std::int64_t horlogeduprocessus() {
    using namespace std::chrono;
    return duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count();
}

}  // namespace

Minuteur::Minuteur(std::function<void(const std::function<void()>&)> executer, Horloge horloge)
    : executer_(std::move(executer)), horloge_(horloge ? std::move(horloge) : horlogeduprocessus) {
    reveil_.setSingleShot(true);
    reveil_.setTimerType(Qt::PreciseTimer);
    QObject::connect(&reveil_, &QTimer::timeout, this, [this] { echoir(); });
}

void Minuteur::accueillir(Formulaire& formulaire) {
    for (const auto& minuterie : formulaire.minuteries())
        suivre(formulaire, *minuterie);
    formulaire.surminuterie = [this, &formulaire](Minuterie& m) { suivre(formulaire, m); };
}

/// Behind the form's other timers, whatever forms have come since.
void Minuteur::suivre(const Formulaire& formulaire, Minuterie& minuterie) {
    const auto derniere = std::find_if(suivis_.rbegin(), suivis_.rend(),
                                       [&](const Suivi& s) { return s.formulaire == &formulaire; });
    suivis_.insert(derniere == suivis_.rend() ? suivis_.end() : derniere.base(),
                   {&minuterie, &formulaire, 0});
    minuterie.surchangement = [this](Minuterie& m) { changement(m); };
    if (minuterie.actif())
        changement(minuterie);
}

void Minuteur::oublier(Formulaire& formulaire) {
    formulaire.surminuterie = nullptr;
    std::erase_if(suivis_, [&](const Suivi& s) {
        if (s.formulaire == &formulaire)
            s.minuterie->surchangement = nullptr;
        return s.formulaire == &formulaire;
    });
}

void Minuteur::changement(const Minuterie& minuterie) {
    const auto suivi = std::find_if(suivis_.begin(), suivis_.end(),
                                    [&](const Suivi& s) { return s.minuterie == &minuterie; });
    if (suivi == suivis_.end())
        return;
    suivi->echeance = horloge_() + periode;
    armer();
}

void Minuteur::armer() {
    auto prochaine = std::numeric_limits<std::int64_t>::max();
    for (const auto& suivi : suivis_) {
        if (suivi.minuterie->actif())
            prochaine = std::min(prochaine, suivi.echeance);
    }
    if (silences_ > 0 || prochaine == std::numeric_limits<std::int64_t>::max()) {
        reveil_.stop();
        return;
    }
    reveil_.start(static_cast<int>(std::clamp<std::int64_t>(prochaine - horloge_(), 0, periode)));
}

/// The first running timer from `depuis` on that is due by `limite`.
Minuteur::Suivi* Minuteur::due(std::int64_t limite, std::size_t depuis) {
    for (auto i = depuis; i < suivis_.size(); ++i) {
        if (suivis_[i].minuterie->actif() && suivis_[i].echeance <= limite)
            return &suivis_[i];
    }
    return nullptr;
}

void Minuteur::echoir() {
    if (silences_ > 0)
        return;
    const auto maintenant = horloge_();
    const auto limite = maintenant + ensemble;
    // A tick may start, stop or do away with timers: look again after each, going down the list.
    for (std::size_t rang = 0; auto* suivi = due(limite, rang);) {
        rang = static_cast<std::size_t>(suivi - suivis_.data()) + 1;
        const auto retard = std::max<std::int64_t>(0, maintenant - suivi->echeance);
        suivi->echeance += periode * (1 + retard / periode);
        executer_([minuterie = suivi->minuterie] { survenir(*minuterie, minuterie->tic); });
    }
    armer();
}

}  // namespace ui::qt
