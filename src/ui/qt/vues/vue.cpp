#include "vue.h"

#include <utility>

#include <QCursor>
#include <QMouseEvent>

#include "fonte.h"
#include "formulaire.h"
#include "texteqt.h"
#include "theme.h"

namespace ui::qt {
namespace {

/// A tooltip that wraps, with the text as it stands.
QString bulle(std::string_view texte) {
    if (texte.empty())
        return {};
    return QStringLiteral("<p style='white-space:pre-wrap'>%1</p>")
        .arg(versqt(texte).toHtmlEscaped());
}

Qt::CursorShape forme(Pointeur pointeur) {
    switch (pointeur) {
        case Pointeur::Texte:
            return Qt::IBeamCursor;
        case Pointeur::Attente:
            return Qt::WaitCursor;
        default:
            return Qt::ArrowCursor;
    }
}

}  // namespace

Vue::Vue(Hote& hote, Controle& controle) : hote_(hote), controle_(&controle) {
    controle.vue = this;
}

Vue::~Vue() {
    detacher();
}

void Vue::detacher() {
    if (controle_ != nullptr && controle_->vue == this)
        controle_->vue = nullptr;
    controle_ = nullptr;
}

void Vue::modifie(Champ champ) {
    champs_ |= ensemble(champ);
    if (!std::exchange(notee_, true))
        hote_.noter(*this);
}

void Vue::appliquer() {
    notee_ = false;
    const auto champs = std::exchange(champs_, 0);
    if (controle_ == nullptr)
        return;
    auto& cible = widget();
    if ((champs & champsplace) != 0)
        cible.setGeometry(place());
    if ((champs & (champsfonte | champsplace)) != 0)
        fonte_ = qt::fonte(*controle_, hote_.echelle().corps(controle_->taille()), cible);
    if ((champs & ensemble(Champ::Infobulle)) != 0)
        cible.setToolTip(bulle(controle_->infobulle()));
    if ((champs & ensemble(Champ::Accessible, Champ::Texte)) != 0) {
        const auto nom =
            controle_->accessible().empty() ? texte() : versqt(controle_->accessible());
        if (cible.accessibleName() != nom)
            cible.setAccessibleName(nom);
    }
    if ((champs & ensemble(Champ::Description)) != 0) {
        // Screen readers say each setting anew, also of the same text.
        const auto dite = description();
        if (cible.accessibleDescription() != dite)
            cible.setAccessibleDescription(dite);
    }
    if ((champs & ensemble(Champ::Pointeur)) != 0)
        montrerpointeur();
    if ((champs & ensemble(Champ::Actif)) != 0)
        cible.setEnabled(controle_->actif());
    montrer(champs);
    if ((champs & ensemble(Champ::Visible)) != 0)
        cible.setVisible(controle_->visible());
    cible.update();
}

void Vue::montrer(Champs /*champs*/) {}

QRect Vue::place() const {
    return hote_.echelle().cadre(
        {controle_->gauche(), controle_->haut(), controle_->largeur(), controle_->hauteur()});
}

void Vue::montrerpointeur() {
    auto& cible = widget();
    const bool attente = controle_->formulaire().pointeur() == Pointeur::Attente;
    const bool etiquettecliquable = controle_->clic && (controle_->genre() == Genre::Etiquette);
    if (attente)
        cible.setCursor(Qt::WaitCursor);
    else if (controle_->pointeur() != Pointeur::Normal)
        cible.setCursor(forme(controle_->pointeur()));
    else if (controle_->genre() == Genre::Boite)
        cible.setCursor(Qt::IBeamCursor);
    else if (etiquettecliquable)
        cible.setCursor(Qt::PointingHandCursor);
    else
        cible.unsetCursor();
}

void Vue::executer(const std::function<void()>& evenement) const {
    hote_.executer(evenement);
}

void Vue::cliquer() {
    executer([this] { controle_->formulaire().cliquer(*controle_); });
}

void Vue::avant(const QEvent& evenement) {
    if (controle_ == nullptr || !Formulaire::accessible(*controle_))
        return;
    switch (evenement.type()) {
        case QEvent::Enter:
        case QEvent::MouseMove:
            if (controle_->survol)
                executer([this] { survenir(*controle_, controle_->survol); });
            break;
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonDblClick:
            presser(static_cast<const QMouseEvent&>(evenement));
            break;
        default:
            break;
    }
}

void Vue::apres(const QEvent& evenement) {
    if (evenement.type() == QEvent::MouseButtonRelease)
        relacher(static_cast<const QMouseEvent&>(evenement));
}

void Vue::presser(const QMouseEvent& evenement) {
    if (evenement.button() != Qt::LeftButton)
        return;
    const bool doublee =
        evenement.type() == QEvent::MouseButtonDblClick && !clicnatif() && controle_->doubleclic;
    presse_ = !doublee;
    executer([&] {
        if (doublee)
            controle_->formulaire().doublecliquer(*controle_);
        else
            controle_->formulaire().focaliser(*controle_);
    });
}

void Vue::relacher(const QMouseEvent& evenement) {
    const bool clic = evenement.button() == Qt::LeftButton && std::exchange(presse_, false) &&
                      !clicnatif() && widget().rect().contains(evenement.position().toPoint());
    if (clic && controle_ != nullptr && Formulaire::accessible(*controle_))
        cliquer();
    if (controle_ != nullptr && Formulaire::accessible(*controle_) && controle_->relache)
        executer([this] { survenir(*controle_, controle_->relache); });
}

QString Vue::texte() const {
    return versqt(controle_->texte());
}

QString Vue::description() const {
    return versqt(controle_->description());
}

QFont Vue::fontedemenu() const {
    return hote_.fontedemenu();
}

double Vue::unite() const {
    return hote_.echelle().unite();
}

bool Vue::sansfond() const {
    return controle_->fondu() || controle_->fond() == Couleur::bouton() ||
           controle_->fond() == controle_->formulaire().fond();
}

bool Vue::alefocus() const {
    return controle_ != nullptr && controle_->formulaire().focus() == controle_ && hote_.active();
}

}  // namespace ui::qt
