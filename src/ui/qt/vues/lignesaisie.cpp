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

/// Code units of a text that are laid out at once: many more than a screen is wide.
constexpr qsizetype troncon = 4000;
constexpr double plancher = .55;  // of the font's size, under which the text slides instead
// A font's height leaves room for accents on capitals: that much of it may pass the edges.
constexpr double hauteurutile = .86;

}  // namespace

void LigneSaisie::composer(const QString& texte, const QFont& fonte, const QRectF& place,
                           Alignement alignement, const QPaintDevice& support) {
    complet_ = texte;
    place_ = place;
    alignement_ = alignement;
    const QSizeF libre(place.width(), place.height() / hauteurutile);
    fonte_ = ajusterligne(fonte, texte.left(troncon), libre, support, plancher);
    // The painter measures as the screen does.
    fonte_ = QFont(fonte_, &support);
    hauteur_ = QFontMetricsF(fonte_).height();
    decouper(debut_);
}

/// Lays out the stretch that begins at a code unit, or the last one before the end.
void LigneSaisie::decouper(qsizetype debut) {
    debut_ = std::clamp<qsizetype>(debut, 0, std::max<qsizetype>(0, complet_.size() - troncon));
    if (debut_ > 0 && complet_.at(debut_).isLowSurrogate())
        --debut_;
    texte_ = complet_.mid(debut_, troncon);
    avant_ = static_cast<std::size_t>(complet_.left(debut_).toUcs4().size());
    entiere_ = QFontMetricsF(fonte_).horizontalAdvance(texte_);
    const double reste = std::max(0.0, place_.width() - entiere_);
    const double part = alignement_ == Alignement::Centre   ? .5
                        : alignement_ == Alignement::Droite ? 1
                                                            : 0;
    depart_ = place_.left() + reste * part;
}

/// Moves the stretch on when the caret comes near an end of it that is not the text's.
void LigneSaisie::suivre(qsizetype curseur) {
    constexpr qsizetype bord = troncon / 4;
    const auto fin = debut_ + texte_.size();
    const bool tropagauche = debut_ > 0 && curseur < debut_ + bord;
    const bool tropadroite = fin < complet_.size() && curseur > fin - bord;
    if (tropagauche || tropadroite)
        decouper(curseur - troncon / 2);
}

double LigneSaisie::largeur(int unites) const {
    return QFontMetricsF(fonte_).horizontalAdvance(texte_, unites);
}

void LigneSaisie::poserselection(std::size_t ancre, std::size_t curseur) {
    const qsizetype place = placeqt(complet_, curseur);
    suivre(place);
    const auto dedans = [this](qsizetype unite) {
        return static_cast<int>(std::clamp<qsizetype>(unite - debut_, 0, texte_.size()));
    };
    ancre_ = dedans(placeqt(complet_, ancre));
    curseur_ = dedans(place);
    const double trop = std::max(0.0, entiere_ - place_.width());
    const double x = trop > 0 ? largeur(curseur_) : 0;
    glisse_ = std::clamp(glisse_, x - place_.width(), x);
    glisse_ = std::clamp(glisse_, 0.0, trop);
}

std::size_t LigneSaisie::caractere(double x) const {
    const double cible = x - depart_ + glisse_;
    // Half of each character belongs to the place before it.
    const auto devant = [&](std::size_t position) {
        const int ici = placeqt(texte_, position);
        return cible < (largeur(ici) + largeur(placeqt(texte_, position + 1))) / 2;
    };
    std::size_t bas = 0;
    auto haut = static_cast<std::size_t>(texte_.toUcs4().size());
    while (bas < haut) {
        const auto milieu = (bas + haut) / 2;
        if (devant(milieu))
            haut = milieu;
        else
            bas = milieu + 1;
    }
    return avant_ + bas;
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
