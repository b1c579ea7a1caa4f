#include "lignesaisie.h"

#include <algorithm>
#include <cmath>

#include <QFontMetricsF>
#include <QPainter>

#include "fonte.h"
#include "texteqt.h"
#include "theme.h"

namespace ui::qt {
namespace {

constexpr double plancher = .55;  // of the font's size, under which the text slides instead
// A font's height leaves room for accents on capitals: that much of it may pass the edges.
constexpr double hauteurutile = .86;

}  // namespace

void LigneSaisie::composer(const QString& texte, const QFont& fonte, const QRectF& place,
                           Alignement alignement, const QPaintDevice& support) {
    texte_ = texte;
    place_ = place;
    const QSizeF libre(place.width(), place.height() / hauteurutile);
    fonte_ = ajusterligne(fonte, texte, libre, support, plancher);
    // The painter measures as the screen does.
    fonte_ = QFont(fonte_, &support);
    const QFontMetricsF mesure(fonte_);
    hauteur_ = mesure.height();
    entiere_ = mesure.horizontalAdvance(texte);
    const double reste = std::max(0.0, place.width() - entiere_);
    const double part = alignement == Alignement::Centre   ? .5
                        : alignement == Alignement::Droite ? 1
                                                           : 0;
    depart_ = place.left() + reste * part;
}

double LigneSaisie::largeur(int unites) const {
    return QFontMetricsF(fonte_).horizontalAdvance(texte_, unites);
}

void LigneSaisie::poserselection(std::size_t ancre, std::size_t curseur) {
    ancre_ = placeqt(texte_, ancre);
    curseur_ = placeqt(texte_, curseur);
    const double trop = std::max(0.0, entiere_ - place_.width());
    const double x = trop > 0 ? largeur(curseur_) : 0;
    glisse_ = std::clamp(glisse_, x - place_.width(), x);
    glisse_ = std::clamp(glisse_, 0.0, trop);
}

std::size_t LigneSaisie::caractere(double x) const {
    const double cible = x - depart_ + glisse_;
    std::size_t position = 0;
    double avant = 0;
    for (int i = 0; i < texte_.size(); ++position) {
        const int suivant = i + (texte_.at(i).isHighSurrogate() ? 2 : 1);
        const double apres = largeur(suivant);
        if (cible < (avant + apres) / 2)
            return position;
        avant = apres;
        i = suivant;
    }
    return position;
}

QRectF LigneSaisie::curseur(double epaisseur) const {
    const double x = std::min(depart_ - glisse_ + largeur(curseur_), place_.right());
    const double haut = place_.center().y() - hauteur_ / 2;
    return {x - epaisseur / 2, haut, epaisseur, hauteur_};
}

void LigneSaisie::peindre(QPainter& peintre, const QColor& encre, bool avecselection) const {
    const double base = place_.center().y() +
                        (QFontMetricsF(fonte_).ascent() - QFontMetricsF(fonte_).descent()) / 2;
    const QPointF origine(depart_ - glisse_, base);
    peintre.setFont(fonte_);
    peintre.setPen(encre);
    const bool deborde = entiere_ > place_.width();
    if (deborde)
        peintre.setClipRect(place_);
    peintre.drawText(origine, texte_);
    if (!avecselection || ancre_ == curseur_)
        return;
    const double gauche = origine.x() + largeur(std::min(ancre_, curseur_));
    const double droite = origine.x() + largeur(std::max(ancre_, curseur_));
    const QRectF choisie(gauche, place_.center().y() - hauteur_ / 2, droite - gauche, hauteur_);
    peintre.fillRect(choisie, QColor::fromRgb(teintes::accent));
    peintre.setClipRect(choisie, deborde ? Qt::IntersectClip : Qt::ReplaceClip);
    peintre.setPen(QColor::fromRgb(teintes::papier));
    peintre.drawText(origine, texte_);
    peintre.setClipping(false);
}

}  // namespace ui::qt
