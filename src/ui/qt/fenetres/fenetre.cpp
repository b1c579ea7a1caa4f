#include "fenetre.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include <QApplication>
#include <QCloseEvent>
#include <QGuiApplication>
#include <QPainter>
#include <QScreen>
#include <QWindow>

#include "bureau.h"
#include "fonte.h"
#include "fontessysteme.h"
#include "menucontextuel.h"
#include "nouvellevue.h"
#include "texteqt.h"
#include "theme.h"

namespace ui::qt {
namespace {

constexpr unsigned bit(ChampFormulaire champ) {
    return 1U << static_cast<unsigned>(champ);
}

// The design that a screen of 1366 by 768 shows one to one. Smaller forms take its scale, so that
// all windows of the program have texts of the same size.
constexpr QSize designdereference(20490, 10980);
constexpr int decor = 36;           // pixels that a title bar takes, at the most
constexpr double corpsdemenu = 10;  // points
constexpr double plusgrande = 2;    // scale that a window doesn't pass by itself
constexpr double pluspetite = .35;  // under it nobody could read

double partwip(const QSize& place, const QSize& design) {
    return std::min(static_cast<double>(place.width()) / design.width(),
                    static_cast<double>(place.height()) / design.height());
}

QSize enpixels(const QSize& design, double facteur) {
    return (QSizeF(design) * facteur).toSize();
}

}  // namespace

Fenetre::Fenetre(Bureau& bureau, Formulaire& formulaire)
    : bureau_(bureau),
      formulaire_(&formulaire),
      deroulant_(std::make_unique<MenuContextuel>(*this, *this)) {
    setObjectName(versqt(formulaire.nom()));
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::NoFocus);
    formulaire.vue = this;
}

Fenetre::~Fenetre() {
    for (auto* vue : vues_)
        vue->detacher();
    if (formulaire_ != nullptr && formulaire_->vue == this)
        formulaire_->vue = nullptr;
}

/// Makes the views of the controls that have none yet, once their scale is known.
void Fenetre::completer() {
    if (!dimensionnee_)
        return;
    const auto& controles = formulaire_->controles();
    if (vues_.empty())
        annoncerimage(*this, *formulaire_, devicePixelRatio());
    attendrefontes();
    for (auto i = vues_.size() + entrees_; i < controles.size(); ++i) {
        auto& controle = *controles[i];
        auto* vue = nouvellevue(*this, *this, controle);
        if (vue == nullptr) {
            ++entrees_;
            continue;
        }
        vue->widget().setObjectName(versqt(controle.nomcomplet()));
        vue->widget().setMouseTracking(true);
        vue->widget().setAttribute(Qt::WA_Hover, static_cast<bool>(controle.clic));
        vue->widget().setFocusPolicy(controle.focalisable ? Qt::StrongFocus : Qt::NoFocus);
        vues_.push_back(vue);
        parcontrole_.emplace(&controle, vue);
        filtrer(vue->widget(), controle);
        vue->appliquer();
    }
    empiler();
}

/// Raises what has come to the front since the last time, and what was made after it.
void Fenetre::empiler() {
    if (plan_ == formulaire_->plan())
        return;
    std::vector<Vue*> montees;
    std::copy_if(vues_.begin(), vues_.end(), std::back_inserter(montees),
                 [this](const Vue* vue) { return vue->controle()->plan() > plan_; });
    std::stable_sort(montees.begin(), montees.end(), [](const Vue* a, const Vue* b) {
        return a->controle()->plan() < b->controle()->plan();
    });
    for (auto* vue : montees)
        vue->widget().raise();
    plan_ = formulaire_->plan();
}

void Fenetre::filtrer(QWidget& widget, Controle& controle) {
    widget.installEventFilter(this);
    parwidget_.emplace(&widget, &controle);
    for (auto* enfant : widget.findChildren<QWidget*>()) {
        enfant->installEventFilter(this);
        parwidget_.emplace(enfant, &controle);
    }
}

Vue* Fenetre::vuede(const Controle& controle) const {
    const auto trouve = parcontrole_.find(&controle);
    return trouve == parcontrole_.end() ? nullptr : trouve->second;
}

QFont Fenetre::fontedemenu() const {
    return fonte({}, echelle_.corps(corpsdemenu), *this);
}

QMenu* Fenetre::menu() const {
    return deroulant_->menu();
}

QString Fenetre::chemin(std::string_view image) const {
    return bureau_.chemin(image);
}

void Fenetre::executer(const std::function<void()>& evenement) {
    if (!orpheline())
        bureau_.executer(evenement);
}

void Fenetre::modifie(ChampFormulaire champ) {
    champs_ |= bit(champ);
    appelee_ = appelee_ || champ == ChampFormulaire::Montre;
    bureau_.demanderrafraichissement();
}

void Fenetre::adieu() {
    for (auto* vue : vues_)
        vue->detacher();
    auto* partant = std::exchange(formulaire_, nullptr);
    deroulant_->accorder(formulaire_);
    notees_.clear();
    hide();
    bureau_.oublier(*this, *partant);
    deleteLater();
}

void Fenetre::noter(Vue& vue) {
    notees_.push_back(&vue);
    bureau_.demanderrafraichissement();
}

void Fenetre::montrercontroles() {
    completer();
    lacherfocus();
    for (auto* vue : std::exchange(notees_, {}))
        vue->appliquer();
    montrerformulaire();
}

void Fenetre::montrerformulaire() {
    const auto champs = std::exchange(champs_, 0);
    if ((champs & bit(ChampFormulaire::Texte)) != 0)
        setWindowTitle(versqt(formulaire_->texte()));
    if ((champs & bit(ChampFormulaire::Fond)) != 0)
        update();
    if ((champs & bit(ChampFormulaire::Pointeur)) != 0) {
        if (formulaire_->pointeur() == Pointeur::Attente)
            setCursor(Qt::WaitCursor);
        else
            unsetCursor();
        for (auto* vue : vues_)
            vue->modifie(Champ::Pointeur);
    }
    if (dimensionnee_ && design_ != tailledessinee()) {
        design_ = tailledessinee();
        attendue_ = agrandie();
        redimensionner();
    }
}

/// Follows another design, and moves only as far as the window must to stay on the screen. A hidden
/// window comes back in the middle.
void Fenetre::redimensionner() {
    const auto place = screen()->availableGeometry();
    prendretaille(place);
    remettreechelle();  // a window that keeps its size is not told
    if (agrandie())
        return;
    if (!isVisible()) {
        centrer(place);
        return;
    }
    const auto limite = place.size() - size() - QSize(0, decor);
    const auto ecart = pos() - place.topLeft();
    move(place.topLeft() + QPoint(std::clamp(ecart.x(), 0, std::max(0, limite.width())),
                                  std::clamp(ecart.y(), 0, std::max(0, limite.height()))));
}

/// Takes the size of the design at the wanted scale, or at the largest that the screen allows.
void Fenetre::prendretaille(const QRect& place) {
    const auto minimale =
        enpixels(design_, pluspetite / Echelle::twipsparpixel).boundedTo(place.size() / 2);
    if (!agrandie()) {
        setMinimumSize(0, 0);  // that of another design
        const auto facteur = std::min(voulue_, partwip(place.size() - QSize(0, decor), design_));
        demandee_ = enpixels(design_, facteur).expandedTo(minimale);
        resize(demandee_);
    }
    setMinimumSize(minimale);
}

QSize Fenetre::tailledessinee() const {
    return {std::max(1, formulaire_->largeur()), std::max(1, formulaire_->hauteur())};
}

/// The first size: the largest comfortable one on the screen, in its middle.
void Fenetre::dimensionner() {
    dimensionnee_ = true;
    design_ = tailledessinee();
    const auto* voisine = bureau_.enavant();
    const auto place = (voisine != nullptr ? voisine : this)->screen()->availableGeometry();
    voulue_ =
        std::min(partwip(place.size() - QSize(0, decor), design_.expandedTo(designdereference)),
                 plusgrande / Echelle::twipsparpixel);
    prendretaille(place);
    centrer(place);
    remettreechelle();
}

void Fenetre::centrer(const QRect& place) {
    const auto reste = place.size() - size() - QSize(0, decor);
    move(place.topLeft() + QPoint(std::max(0, reste.width() / 2), std::max(0, reste.height() / 2)));
}

void Fenetre::remettreechelle() {
    if (orpheline() || !dimensionnee_)
        return;
    echelle_.partwip = partwip(size(), design_);
    echelle_.origine = QPointF((width() - design_.width() * echelle_.partwip) / 2,
                               (height() - design_.height() * echelle_.partwip) / 2);
    for (auto* vue : vues_) {
        vue->toutnoter();
        vue->appliquer();
    }
    update();
}

void Fenetre::apparaitre() {
    const bool appelee = std::exchange(appelee_, false);
    if (formulaire_->visible() && isVisible() && appelee)
        revenir();
    if (!formulaire_->visible() || isVisible())
        return;
    if (!dimensionnee_)
        dimensionner();
    const auto* voisine = bureau_.enavant();
    if (formulaire_->devant())
        ouvrirdevant();
    else
        bureau_.montree(*this);
    // A window that replaces another gets its widgets before it is shown. The first one, which the
    // player waits for, gets them while the desktop places it, and is not painted before either.
    if (voisine != nullptr)
        completer();
    show();
    activateWindow();
    completer();
}

/// A dialog of the window that it stays in front of: the desktop keeps the two in that order.
void Fenetre::ouvrirdevant() {
    if (windowType() != Qt::Dialog)
        setWindowFlags(Qt::Dialog);
    winId();  // makes the window of the system
    if (const auto* dessous = bureau_.proprietaire(); dessous != nullptr)
        windowHandle()->setTransientParent(dessous->windowHandle());
}

/// Follows the window to stay in front of. Desktops ask whose a window is when it shows itself, so
/// it does that again, without taking the keyboard.
void Fenetre::rattacher() {
    auto* dessous = bureau_.proprietaire();
    if (!formulaire_->devant() || !isVisible() || dessous == nullptr ||
        windowHandle()->transientParent() == dessous->windowHandle())
        return;
    // A window that shows itself just now takes the keyboard, though nothing has told so yet.
    const bool active = active_ && bureau_.enavant() == this;
    const bool ailleurs =
        QApplication::activeWindow() == nullptr;  // the player is in another program
    const auto place = pos();
    hide();
    windowHandle()->setTransientParent(dessous->windowHandle());
    setAttribute(Qt::WA_ShowWithoutActivating, !active);
    move(place);
    show();
    if (!ailleurs)
        (active ? this : dessous)->activateWindow();
}

void Fenetre::revenir() {
    setWindowState(windowState() & ~Qt::WindowMinimized);
    raise();
    bureau_.garderdevant(*this);
    activateWindow();
}

void Fenetre::disparaitre() {
    if (!formulaire_->visible() && isVisible())
        hide();
}

void Fenetre::accorder() {
    accorderfocus();
    accorderdefaut();
    deroulant_->accorder(formulaire_);
}

void Fenetre::accorderdefaut() {
    if (formulaire_->defaut() == defaut_)
        return;
    const auto* ancien = std::exchange(defaut_, formulaire_->defaut());
    redessiner(ancien);
    redessiner(defaut_);
}

void Fenetre::redessiner(const Controle* controle) const {
    if (controle == nullptr)
        return;
    if (auto* vue = vuede(*controle); vue != nullptr)
        vue->accorder();
}

void Fenetre::paintEvent(QPaintEvent* evenement) {
    QPainter peintre(this);
    const auto fond = orpheline() ? Couleur::bouton() : formulaire_->fond();
    peintre.fillRect(evenement->rect(), couleurqt(fond));
    if (!orpheline())
        bureau_.peinte();
}

void Fenetre::resizeEvent(QResizeEvent* evenement) {
    QWidget::resizeEvent(evenement);
    retenirtaille();
    remettreechelle();
}

/// A size that the window neither asked for nor was given by the desktop is one that the user has
/// chosen, and so is its scale.
void Fenetre::retenirtaille() {
    if (orpheline() || size() == demandee_ || agrandie() || attendue_)
        return;
    demandee_ = {};
    voulue_ = partwip(size(), design_);
}

void Fenetre::closeEvent(QCloseEvent* evenement) {
    evenement->ignore();
    executer([this] { formulaire_->fermer(); });
}

bool Fenetre::event(QEvent* evenement) {
    const bool recu = QWidget::event(evenement);
    if (evenement->type() == QEvent::WindowActivate)
        activation(true);
    if (evenement->type() == QEvent::WindowDeactivate)
        activation(false);
    if (evenement->type() == QEvent::ScreenChangeInternal)
        remettreechelle();
    if (evenement->type() == QEvent::WindowStateChange && attendue_ && !agrandie()) {
        attendue_ = false;
        redimensionner();
    }
    return recu;
}

void Fenetre::activation(bool active) {
    if (orpheline() || active == active_)
        return;
    active_ = active;
    if (active) {
        bureau_.activee(*this);
        accorderfocus();
    }
    redessiner(focus_);
    if (!active && isVisible())
        executer([this] { survenir(*formulaire_, formulaire_->desactivation); });
}

}  // namespace ui::qt
