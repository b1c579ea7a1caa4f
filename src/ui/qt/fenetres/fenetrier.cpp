#include "fenetrier.h"

#include <algorithm>
#include <array>
#include <utility>

#include <QApplication>
#include <QEvent>
#include <QIcon>
#include <QMenu>

#include "disquereel.h"
#include "fenetre.h"
#include "images.h"

namespace ui::qt {
namespace {

const auto evenementrafraichir = static_cast<QEvent::Type>(QEvent::registerEventType());

// Handlers that answer a refresh with changes get another one; a ring of them would not end.
constexpr int tourslimite = 8;

}  // namespace

Fenetrier::Fenetrier(Plateforme& plateforme, Reglages reglages)
    : plateforme_(plateforme),
      reglages_(std::move(reglages)),
      minuteur_([this](const auto& evenement) { executer(evenement); }) {}

Fenetrier::~Fenetrier() {
    for (const auto& fenetre : std::exchange(fenetres_, {})) {
        if (!fenetre->orpheline())
            minuteur_.oublier(fenetre->formulaire());
        delete fenetre;
    }
    for (const auto& fenetre : partantes_)
        delete fenetre.data();
}

void Fenetrier::accueillir(Formulaire& formulaire) {
    auto* fenetre = new Fenetre(*this, formulaire);  // deleted here, or by Qt once it is orphaned
    fenetres_.push_back(fenetre);
    if (reglages_.minuteries)
        minuteur_.accueillir(formulaire);
    demanderrafraichissement();
}

QString Fenetrier::chemin(std::string_view image) const {
    const auto systeme = common::DisqueReel(reglages_.dossier).systeme(image).u8string();
    return QString::fromUtf8(reinterpret_cast<const char*>(systeme.data()),
                             static_cast<qsizetype>(systeme.size()));
}

QWidget* Fenetrier::widget(const Controle& controle) const {
    const auto* voulue = fenetre(controle.formulaire());
    auto* vue = voulue == nullptr ? nullptr : voulue->vuede(controle);
    return vue == nullptr ? nullptr : &vue->widget();
}

Fenetre* Fenetrier::fenetre(const Formulaire& formulaire) const {
    const auto trouvee = std::find_if(fenetres_.begin(), fenetres_.end(), [&](const Fenetre* f) {
        return !f->orpheline() && &f->formulaire() == &formulaire;
    });
    return trouvee == fenetres_.end() ? nullptr : *trouvee;
}

QMenu* Fenetrier::menu(const Formulaire& formulaire) const {
    const auto* voulue = fenetre(formulaire);
    return voulue == nullptr ? nullptr : voulue->menu();
}

Fenetre* Fenetrier::enavant() const {
    if (derniere_ != nullptr && derniere_->isVisible())
        return derniere_;
    const auto visible = std::find_if(fenetres_.rbegin(), fenetres_.rend(),
                                      [](const Fenetre* f) { return f->isVisible(); });
    return visible == fenetres_.rend() ? nullptr : *visible;
}

Fenetre* Fenetrier::proprietaire() const {
    const auto possible = [](const Fenetre* f) {
        return !f->orpheline() && f->isVisible() && f->formulaire().visible() &&
               !f->formulaire().devant();
    };
    if (dessous_ != nullptr && possible(dessous_))
        return dessous_;
    const auto autre = std::find_if(fenetres_.rbegin(), fenetres_.rend(), possible);
    return autre == fenetres_.rend() ? nullptr : *autre;
}

void Fenetrier::executer(const std::function<void()>& evenement) {
    plateforme_.executer(evenement);
    rafraichir();
}

void Fenetrier::demanderrafraichissement() {
    sale_ = true;
    if (encours_ || std::exchange(demande_, true))
        return;
    QCoreApplication::postEvent(this, new QEvent(evenementrafraichir), Qt::HighEventPriority);
}

bool Fenetrier::event(QEvent* evenement) {
    if (evenement->type() != evenementrafraichir)
        return QObject::event(evenement);
    demande_ = false;
    rafraichir();
    return true;
}

void Fenetrier::rafraichir() {
    if (std::exchange(encours_, true))
        return;
    tour();  // also puts back a focus that Qt has moved
    for (int n = 1; sale_ && n < tourslimite; ++n)
        tour();
    encours_ = false;
}

void Fenetrier::tour() {
    sale_ = false;
    // A window that shows itself before another hides leaves no moment without a window.
    constexpr std::array etapes{&Fenetre::montrercontroles, &Fenetre::apparaitre,
                                &Fenetre::rattacher, &Fenetre::disparaitre, &Fenetre::accorder};
    const auto fenetres = fenetres_;
    for (const auto etape : etapes) {
        for (auto* fenetre : fenetres) {
            if (!fenetre->orpheline())
                (fenetre->*etape)();
        }
    }
}

void Fenetrier::activee(Fenetre& fenetre) {
    derniere_ = &fenetre;
    if (!fenetre.formulaire().devant()) {
        dessous_ = &fenetre;
        demanderrafraichissement();  // those in front may have to follow
    }
    garderdevant(fenetre);
}

void Fenetrier::garderdevant(const Fenetre& fenetre) {
    for (auto* autre : fenetres_) {
        if (autre != &fenetre && autre->isVisible() && autre->formulaire().devant())
            autre->raise();
    }
}

void Fenetrier::peinte() {
    if (std::exchange(icone_, true))
        return;
    const auto mettre = [this] {
        QApplication::setWindowIcon(
            iconeprogramme([this](std::string_view image) { return chemin(image); }));
    };
    QMetaObject::invokeMethod(this, mettre, Qt::QueuedConnection);
}

void Fenetrier::oublier(Fenetre& fenetre, Formulaire& formulaire) {
    minuteur_.oublier(formulaire);
    std::erase(fenetres_, &fenetre);
    partantes_.emplace_back(&fenetre);
    std::erase_if(partantes_, [](const auto& f) { return f.isNull(); });
    for (auto* place : {&derniere_, &dessous_}) {
        if (*place == &fenetre)
            *place = nullptr;
    }
}

}  // namespace ui::qt
