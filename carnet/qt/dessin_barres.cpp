// Columns, bars, and points over time.

#include <algorithm>
#include <cmath>

#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>

#include "calendrier.h"
#include "dessin.h"
#include "tableaux.h"
#include "textesqt.h"

namespace carnet {
namespace {

constexpr double remplie = 0.7;  // of the room of a bar
constexpr double cent = 100;

double plushaute(const Barres& barres) {
    double haute = 1;
    for (const auto& barre : barres.barres)
        haute = std::max({haute, barre.valeur, barre.repere});
    return haute;
}

void tracer(QPainter& peintre, const QRectF& barre, const QPalette& palette) {
    peintre.fillRect(barre, palette.color(QPalette::Highlight));
    peintre.drawRect(barre);
}

void peindrecolonnes(QPainter& peintre, const QRectF& place, const QPalette& palette,
                     const Barres& barres) {
    const QFontMetricsF metrique(peintre.font());
    const double ligne = metrique.lineSpacing();
    const double pied = place.bottom() - ligne;
    const double haute = pied - place.top() - ligne;
    const double large = place.width() / static_cast<double>(barres.barres.size());
    double libre = place.left();  // where the next name may begin
    for (std::size_t i = 0; i < barres.barres.size(); ++i) {
        const auto& barre = barres.barres[i];
        const QRectF colonne(place.left() + large * static_cast<double>(i), place.top(), large,
                             place.height());
        const double longueur = haute * barre.valeur / plushaute(barres);
        const QRectF corps(colonne.left() + large * (1 - remplie) / 2, pied - longueur,
                           large * remplie, longueur);
        if (barre.valeur > 0) {
            tracer(peintre, corps, palette);
            const double plus = std::max(0.0, metrique.horizontalAdvance(barre.dit) - large) / 2;
            peintre.drawText(
                QRectF(colonne.left() - plus, corps.top() - ligne, large + 2 * plus, ligne),
                Qt::AlignCenter, barre.dit);
        }
        const double nom = metrique.horizontalAdvance(barre.nom);
        const double debut = std::clamp(colonne.center().x() - nom / 2, place.left(),
                                        std::max(place.left(), place.right() - nom));
        if (debut >= libre) {
            peintre.drawText(QRectF(debut, pied, nom + 1, ligne), Qt::AlignCenter, barre.nom);
            libre = debut + nom + metrique.averageCharWidth();
        }
    }
    peintre.drawLine(QPointF(place.left(), pied), QPointF(place.right(), pied));
}

void peindrecouchees(QPainter& peintre, const QRectF& place, const QPalette& palette,
                     const Barres& barres) {
    const QFontMetricsF metrique(peintre.font());
    const double blanc = metrique.averageCharWidth();
    double noms = 0;
    double dits = 0;
    for (const auto& barre : barres.barres) {
        noms = std::max(noms, metrique.horizontalAdvance(barre.nom));
        dits = std::max(dits, metrique.horizontalAdvance(barre.dit));
    }
    noms = std::min(noms, place.width() / 3);
    const double debut = place.left() + noms + blanc;
    const double longue = std::max(1.0, place.right() - debut - dits - 2 * blanc);
    const double libre =
        place.height() - (barres.legende.isEmpty() ? 0 : 2 * metrique.lineSpacing());
    const double haute =
        std::min(libre / static_cast<double>(barres.barres.size()), metrique.lineSpacing() * 2);
    peintre.drawText(place, Qt::AlignLeft | Qt::AlignBottom, barres.legende);
    for (std::size_t i = 0; i < barres.barres.size(); ++i) {
        const auto& barre = barres.barres[i];
        const QRectF rangee(place.left(), place.top() + haute * static_cast<double>(i),
                            place.width(), haute);
        peintre.drawText(QRectF(rangee.left(), rangee.top(), noms, haute),
                         Qt::AlignRight | Qt::AlignVCenter,
                         metrique.elidedText(barre.nom, Qt::ElideRight, noms));
        const QRectF corps(debut, rangee.top() + haute * (1 - remplie) / 2,
                           longue * barre.valeur / plushaute(barres), haute * remplie);
        tracer(peintre, corps, palette);
        if (barre.repere >= 0) {
            const double ici = debut + longue * barre.repere / plushaute(barres);
            peintre.drawLine(QPointF(ici, corps.top()), QPointF(ici, corps.bottom()));
        }
        peintre.drawText(QRectF(debut + longue + blanc, rangee.top(), dits + blanc, haute),
                         Qt::AlignRight | Qt::AlignVCenter, barre.dit);
    }
}

/// A shape of its own for each mode.
QPainterPath forme(char mode, const QPointF& ou, double rayon) {
    QPainterPath chemin;
    if (mode == modetout) {
        chemin.addEllipse(ou, rayon, rayon);
        return chemin;
    }
    if (mode == modeechantillon) {
        chemin.addRect(QRectF(ou.x() - rayon, ou.y() - rayon, 2 * rayon, 2 * rayon));
        return chemin;
    }
    chemin.moveTo(ou.x(), ou.y() - rayon);
    if (mode == moderevision) {
        chemin.lineTo(ou.x() + rayon, ou.y() + rayon);
        chemin.lineTo(ou.x() - rayon, ou.y() + rayon);
    } else {
        chemin.lineTo(ou.x() + rayon, ou.y());
        chemin.lineTo(ou.x(), ou.y() + rayon);
        chemin.lineTo(ou.x() - rayon, ou.y());
    }
    chemin.closeSubpath();
    return chemin;
}

void peindrelegende(QPainter& peintre, const QRectF& place, const QPalette& palette, double rayon) {
    const QFontMetricsF metrique(peintre.font());
    double ici = place.left();
    for (const char mode : {modetout, modeechantillon, moderevision, modepartie}) {
        const auto nom = qt(nomdemode(mode));
        const auto signe = forme(mode, {ici + rayon, place.center().y()}, rayon);
        peintre.fillPath(signe, palette.color(QPalette::Highlight));
        peintre.drawPath(signe);
        ici += 3 * rayon;
        peintre.drawText(QRectF(ici, place.top(), place.right() - ici, place.height()),
                         Qt::AlignLeft | Qt::AlignVCenter, nom);
        ici += metrique.horizontalAdvance(nom) + 3 * rayon;
    }
}

/// Lines at each fifth of the height, with their percents; what is left for the points.
QRectF peindrequadrillage(QPainter& peintre, const QRectF& place, const QPalette& palette) {
    constexpr int pas = 20;
    const QFontMetricsF metrique(peintre.font());
    const double ligne = metrique.lineSpacing();
    const double bord = metrique.horizontalAdvance(QStringLiteral("100 %")) + ligne / 2;
    const auto champ = place.adjusted(bord, ligne / 2, -ligne, -3 * ligne);
    for (int pourcent = 0; pourcent <= static_cast<int>(cent); pourcent += pas) {
        const double y = champ.bottom() - champ.height() * pourcent / cent;
        peintre.setPen(palette.color(QPalette::Mid));
        peintre.drawLine(QPointF(champ.left(), y), QPointF(champ.right(), y));
        peintre.setPen(palette.color(QPalette::Text));
        peintre.drawText(QRectF(place.left(), y - ligne / 2, bord - ligne / 2, ligne),
                         Qt::AlignRight | Qt::AlignVCenter,
                         QString::number(pourcent) + QStringLiteral(" %"));
    }
    return champ;
}

}  // namespace

void peindre(QPainter& peintre, const QRectF& place, const QPalette& palette,
             const Barres& barres) {
    if (barres.barres.empty())
        return;
    if (barres.couchees)
        peindrecouchees(peintre, place, palette, barres);
    else
        peindrecolonnes(peintre, place, palette, barres);
}

void peindre(QPainter& peintre, const QRectF& place, const QPalette& palette, const Nuage& nuage) {
    if (nuage.points.empty())
        return;
    const double ligne = QFontMetricsF(peintre.font()).lineSpacing();
    const double rayon = ligne / 4;
    const auto champ = peindrequadrillage(peintre, place, palette);
    const auto [premier, dernier] =
        std::minmax_element(nuage.points.begin(), nuage.points.end(),
                            [](const Passage& a, const Passage& b) { return a.jour < b.jour; });
    const double duree = dernier->jour - premier->jour;
    const auto ou = [&](const Passage& point) {
        const double x = duree > 0 ? (point.jour - premier->jour) / duree : 0.5;
        const double y = std::clamp(point.pourcent, 0.0, cent) / cent;
        return QPointF(champ.left() + x * champ.width(), champ.bottom() - y * champ.height());
    };
    for (std::size_t i = 1; i < nuage.points.size(); ++i)
        peintre.drawLine(ou(nuage.points[i - 1]), ou(nuage.points[i]));
    for (const auto& point : nuage.points) {
        const auto signe = forme(point.mode, ou(point), rayon);
        peintre.fillPath(signe, palette.color(QPalette::Highlight));
        peintre.drawPath(signe);
    }
    const QRectF jours(champ.left(), champ.bottom() + ligne / 2, champ.width(), ligne);
    peintre.drawText(jours, duree > 0 ? Qt::AlignLeft : Qt::AlignHCenter,
                     qt(datefrancaise(premier->jour)));
    if (duree > 0)
        peintre.drawText(jours, Qt::AlignRight, qt(datefrancaise(dernier->jour)));
    peindrelegende(peintre, {champ.left(), jours.bottom(), champ.width(), 1.4 * ligne}, palette,
                   rayon);
}

}  // namespace carnet
