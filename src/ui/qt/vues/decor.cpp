#include "decor.h"

#include <algorithm>
#include <cmath>

#include <QPainter>

#include "dessin.h"
#include "formulaire.h"
#include "images.h"
#include "theme.h"

namespace ui::qt {
namespace {

constexpr double margetitre = 10;  // pixels of the design
constexpr double hauttitre = 6;
constexpr double forceligne = .3;

}  // namespace

void Image::charger() {
    const auto chemin = hote().chemin(controle()->image());
    if (!vignette_.isNull() && chemin == chemin_ && size() == place_ &&
        vignette_.devicePixelRatio() == devicePixelRatio())
        return;
    vignette_ = image(chemin, size(), devicePixelRatio());
    chemin_ = chemin;
    place_ = size();
}

void Image::paintEvent(QPaintEvent* /*evenement*/) {
    if (controle() == nullptr || controle()->image().empty())
        return;
    charger();
    if (vignette_.isNull())
        return;
    QPainter peintre(this);
    const auto taille = vignette_.deviceIndependentSize();
    peintre.drawPixmap(QPointF((width() - taille.width()) / 2, (height() - taille.height()) / 2),
                       vignette_);
}

void Cadre::paintEvent(QPaintEvent* /*evenement*/) {
    if (controle() == nullptr)
        return;
    QPainter peintre(this);
    const auto fond = controle()->fond() == Couleur::bouton() ? controle()->formulaire().fond()
                                                              : controle()->fond();
    dessin::carte(peintre, QRectF(rect()), unite(), couleurqt(fond));
    if (texte().isEmpty())
        return;
    auto grasse = fonte();
    grasse.setBold(true);
    peintre.setFont(grasse);
    peintre.setPen(encreqt(controle()->couleur()));
    peintre.drawText(QRectF(rect()).adjusted(margetitre * unite(), hauttitre * unite(), 0, 0),
                     Qt::AlignLeft | Qt::AlignTop, texte());
}

/// A line of the design has no thickness; its widget needs one to be seen.
QRect Ligne::place() const {
    auto place = VueDe::place();
    const int mince = static_cast<int>(std::ceil(dessin::trait(unite()))) + 1;
    if (place.width() >= place.height())
        place.setHeight(std::max(place.height(), mince));
    else
        place.setWidth(std::max(place.width(), mince));
    return place;
}

void Ligne::paintEvent(QPaintEvent* /*evenement*/) {
    if (controle() == nullptr)
        return;
    QPainter peintre(this);
    const auto fond = couleurqt(controle()->formulaire().fond());
    const double fin = dessin::trait(unite());
    peintre.setPen(QPen(melange(fond, encreqt(controle()->couleur()), forceligne), fin));
    const auto milieu = QRectF(rect()).center();
    if (width() >= height())
        peintre.drawLine(QPointF(0, milieu.y()), QPointF(width(), milieu.y()));
    else
        peintre.drawLine(QPointF(milieu.x(), 0), QPointF(milieu.x(), height()));
}

}  // namespace ui::qt
