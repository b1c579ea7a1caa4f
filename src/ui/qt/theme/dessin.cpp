#include "dessin.h"

#include <algorithm>

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>

#include "theme.h"

namespace ui::qt::dessin {
namespace {

constexpr double rayonbouton = 7;
constexpr double rayontuile = 8;
constexpr double rayoncarte = 12;
constexpr double rayoncoche = 4;
constexpr double plusbasse = 8;  // a box lower than that is no box to look at

const QColor blanc = QColor::fromRgb(teintes::papier);
const QColor noir = QColor::fromRgb(teintes::encre);

QColor voile(QColor couleur, double opacite) {
    couleur.setAlphaF(static_cast<float>(opacite));
    return couleur;
}

QRectF dedans(const QRectF& place, double marge) {
    return place.adjusted(marge, marge, -marge, -marge);
}

void arrondi(QPainter& peintre, const QRectF& place, double rayon, const QBrush& fond) {
    peintre.setPen(Qt::NoPen);
    peintre.setBrush(fond);
    peintre.drawRoundedRect(place, rayon, rayon);
}

/// A rounded rectangle with an edge: two fills, which cost a fifth of a stroke.
void borde(QPainter& peintre, const QRectF& place, double rayon, const QBrush& fond,
           const QColor& bord, double largeur) {
    arrondi(peintre, place, rayon, bord);
    arrondi(peintre, dedans(place, largeur), std::max(0.0, rayon - largeur), fond);
}

void contour(QPainter& peintre, const QRectF& place, double rayon, const QColor& couleur,
             double largeur) {
    const auto interieur = dedans(place, largeur);
    const double reste = std::max(0.0, rayon - largeur);
    QPainterPath trace;
    trace.addRoundedRect(place, rayon, rayon);
    trace.addRoundedRect(interieur, reste, reste);
    peintre.fillPath(trace, couleur);
}

struct Visage {
    QColor haut;
    QColor bas;
    QColor bord;
};

Visage visage(const QColor& face, Bouton genre, const Etat& etat) {
    const auto accent = QColor::fromRgb(teintes::accent);
    const bool principal = genre == Bouton::Principal && etat.actif;
    const QColor fond = principal ? accent : face;
    Visage v{melange(fond, blanc, principal ? .12 : .55), melange(fond, noir, .05),
             principal ? melange(accent, noir, .35) : bordde(fond)};
    if (!etat.actif)
        return {melange(fond, blanc, .25), melange(fond, blanc, .1),
                melange(bordde(fond), blanc, .45)};
    if (etat.enfonce)
        return {melange(fond, noir, .14), melange(fond, noir, .07), melange(v.bord, noir, .2)};
    if (etat.survole)
        return {melange(v.haut, blanc, principal ? .12 : .7), melange(v.bas, blanc, .3),
                principal ? v.bord : accent};
    return v;
}

}  // namespace

double trait(double unite) {
    return std::max(1.0, unite);
}

void anneau(QPainter& peintre, const QRectF& place, double unite, double rayon) {
    const double large = std::max(2.0, 2.4 * unite);
    const double fin = trait(unite);
    contour(peintre, place, rayon * unite, QColor::fromRgb(teintes::anneau), large);
    contour(peintre, dedans(place, large), std::max(0.0, rayon * unite - large), blanc, fin);
}

QColor bouton(QPainter& peintre, const QRectF& place, double unite, const QColor& face,
              Bouton genre, const Etat& etat, const QColor& encre) {
    peintre.setRenderHint(QPainter::Antialiasing);
    const double fin = trait(unite);
    const double rayon =
        std::min(rayonbouton * unite, .3 * std::min(place.width(), place.height()));
    const auto v = visage(face, genre, etat);
    const auto corps = place.adjusted(0, 0, 0, -fin);
    if (etat.actif && !etat.enfonce)
        arrondi(peintre, corps.translated(0, fin), rayon, voile(noir, .16));
    QLinearGradient degrade(corps.topLeft(), corps.bottomLeft());
    degrade.setColorAt(0, v.haut);
    degrade.setColorAt(1, v.bas);
    const bool marque = etat.defaut && etat.actif && genre != Bouton::Principal;
    const double bord = marque ? 2 * fin : fin;
    borde(peintre, corps, rayon, degrade, marque ? QColor::fromRgb(teintes::accent) : v.bord, bord);
    if (etat.focus)
        anneau(peintre, corps, unite, rayon / unite);
    if (!etat.actif)
        return QColor::fromRgb(teintes::encrepale);
    const bool clair = genre == Bouton::Principal && encre == noir;
    return clair ? blanc : encre;
}

void alveole(QPainter& peintre, const QRectF& place, double unite, const QColor& fond,
             const Etat& etat) {
    peintre.setRenderHint(QPainter::Antialiasing);
    const auto creux = dedans(place, 3 * unite);
    const double rayon = rayontuile * unite;
    borde(peintre, creux, rayon, melange(fond, blanc, etat.survole ? .75 : .55),
          melange(fond, noir, .18), trait(unite));
    if (etat.focus)
        anneau(peintre, creux, unite, rayontuile);
}

QRectF tuile(QPainter& peintre, const QRectF& place, double unite, const QColor& fond,
             const Etat& etat) {
    peintre.setRenderHint(QPainter::Antialiasing);
    const double marge = 1.5 * unite;
    const double epaisseur = 4 * unite;
    const double chute = etat.enfonce ? epaisseur * .6 : 0;
    const double rayon = rayontuile * unite;
    const auto bloc = place.adjusted(marge, marge + chute, -marge, -marge);
    const auto dessus = bloc.adjusted(0, 0, 0, -(epaisseur - chute));
    const auto chant = melange(fond, noir, .38);
    // Shadow, side, face: the light comes from above.
    arrondi(peintre, bloc.translated(0, unite), rayon, voile(noir, .22));
    arrondi(peintre, bloc, rayon, chant);
    QLinearGradient lumiere(dessus.topLeft(), dessus.bottomLeft());
    lumiere.setColorAt(0, melange(fond, blanc, etat.survole ? .75 : .5));
    lumiere.setColorAt(.55, melange(fond, blanc, etat.survole ? .35 : .1));
    lumiere.setColorAt(1, melange(fond, noir, etat.survole ? 0 : .06));
    const double fin = trait(unite);
    borde(peintre, dessus, rayon, lumiere, melange(fond, noir, .3), fin);
    contour(peintre, dedans(dessus, fin), rayon - fin, voile(blanc, .55), fin);
    if (etat.focus)
        anneau(peintre, dessus, unite, rayontuile);
    return dessus;
}

void boite(QPainter& peintre, const QRectF& place, double unite, const QColor& fond,
           const Boite& etat) {
    peintre.setRenderHint(QPainter::Antialiasing);
    const double fin = trait(unite);
    const double rayon = std::min(etat.rayon * unite, place.height() / 2);
    if (place.height() < plusbasse * unite) {
        peintre.fillRect(place, fond);
        return;
    }
    const auto pale = etat.actif ? fond : melange(fond, QColor::fromRgb(0xFFE4E7EC), .6);
    auto bord = etat.actif ? bordde(fond) : melange(bordde(fond), blanc, .4);
    if (etat.survole && etat.actif)
        bord = melange(bord, noir, .35);
    borde(peintre, place, rayon, pale, bord, fin);
    if (etat.focus)
        anneau(peintre, place, unite, rayon / unite);
}

void carte(QPainter& peintre, const QRectF& place, double unite, const QColor& fond) {
    peintre.setRenderHint(QPainter::Antialiasing);
    const double fin = trait(unite);
    borde(peintre, place, rayoncarte * unite, melange(fond, blanc, .55), melange(fond, noir, .16),
          fin);
}

void coche(QPainter& peintre, const QRectF& place, double unite, bool cochee, const Etat& etat) {
    peintre.setRenderHint(QPainter::Antialiasing);
    const double fin = 1.4 * trait(unite);
    const auto accent = QColor::fromRgb(etat.actif ? teintes::accent : 0xFF9AA3B4);
    const auto vide = etat.actif ? (etat.survole ? QColor::fromRgb(0xFFEAF0FB) : blanc)
                                 : QColor::fromRgb(0xFFE9EBEF);
    borde(peintre, place, rayoncoche * unite, cochee ? accent : vide,
          cochee || etat.survole ? accent : QColor::fromRgb(0xFF8A92A2), fin);
    if (!cochee)
        return;
    const double c = place.width();
    QPainterPath v(place.topLeft() + QPointF(.25 * c, .53 * c));
    v.lineTo(place.topLeft() + QPointF(.43 * c, .71 * c));
    v.lineTo(place.topLeft() + QPointF(.76 * c, .31 * c));
    peintre.setBrush(Qt::NoBrush);
    peintre.setPen(QPen(blanc, .13 * c, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    peintre.drawPath(v);
}

void fleche(QPainter& peintre, const QRectF& place, double unite, const QColor& encre) {
    peintre.setRenderHint(QPainter::Antialiasing);
    const QPointF milieu = place.center();
    const double c = 4 * unite;
    QPainterPath v(milieu + QPointF(-c, -c / 2));
    v.lineTo(milieu + QPointF(0, c / 2));
    v.lineTo(milieu + QPointF(c, -c / 2));
    peintre.setBrush(Qt::NoBrush);
    peintre.setPen(QPen(encre, 1.7 * unite, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    peintre.drawPath(v);
}

}  // namespace ui::qt::dessin
