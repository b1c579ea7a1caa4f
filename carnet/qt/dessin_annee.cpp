// The calendar of a year: a box for each day, with the number of its racks, filled from below by
// the share that was found.

#include <algorithm>
#include <array>

#include <QFontMetricsF>
#include <QPainter>

#include "calendrier.h"
#include "dessin.h"
#include "journal.h"
#include "textesqt.h"

namespace carnet {
namespace {

constexpr int moisparan = 12;
constexpr int semaine = 7;
constexpr int semainesdunmois = 6;
constexpr double creux = 0.06;     // of a day's room, left free on each side
constexpr int transparence = 110;  // figures are read over the colour

constexpr std::array<const char*, moisparan> lesmois{
    "janvier", "février", "mars",      "avril",   "mai",      "juin",
    "juillet", "août",    "septembre", "octobre", "novembre", "décembre"};

struct Mois {
    int annee;
    int mois;  ///< 1 to 12
};

Mois suivant(Mois mois) {
    return mois.mois == moisparan ? Mois{mois.annee + 1, 1} : Mois{mois.annee, mois.mois + 1};
}

Jour premierjour(Mois mois) {
    return profiles::jourdu(mois.annee, mois.mois, 1).value_or(0);
}

void peindrejour(QPainter& peintre, const QRectF& place, const QPalette& palette,
                 const Journee* journee) {
    const auto cadre = place.adjusted(place.width() * creux, place.height() * creux,
                                      -place.width() * creux, -place.height() * creux);
    if (journee == nullptr) {
        peintre.setPen(palette.color(QPalette::Mid));
        peintre.drawRect(cadre);
        peintre.setPen(palette.color(QPalette::Text));
        return;
    }
    auto couleur = palette.color(QPalette::Highlight);
    couleur.setAlpha(transparence);
    const double part = static_cast<double>(journee->trouves) / static_cast<double>(journee->juges);
    peintre.fillRect(cadre.adjusted(0, cadre.height() * (1 - part), 0, 0), couleur);
    peintre.drawRect(cadre);
    const auto nombre = QString::number(journee->juges);
    auto fonte = peintre.font();
    const auto avant = fonte;
    const double veut = QFontMetricsF(fonte).horizontalAdvance(nombre);
    if (veut > cadre.width() * 0.9)
        fonte.setPixelSize(std::max(
            5, static_cast<int>(QFontMetricsF(fonte).height() * 0.8 * cadre.width() * 0.9 / veut)));
    peintre.setFont(fonte);
    peintre.drawText(cadre, Qt::AlignCenter, nombre);
    peintre.setFont(avant);
}

void peindremois(QPainter& peintre, const QRectF& place, const QPalette& palette, Mois mois,
                 const std::map<Jour, Journee>& journees) {
    const double ligne = QFontMetricsF(peintre.font()).lineSpacing();
    const auto titre = QString::fromUtf8(lesmois.at(static_cast<std::size_t>(mois.mois - 1))) +
                       QLatin1Char(' ') + QString::number(mois.annee);
    peintre.drawText(QRectF(place.left(), place.top(), place.width(), ligne), Qt::AlignLeft, titre);
    const double large = place.width() / semaine;
    const double haute = (place.height() - ligne) / semainesdunmois;
    const auto premier = premierjour(mois);
    const auto fin = premierjour(suivant(mois));
    const int decalage = jourdesemaine(premier);
    for (Jour jour = premier; jour < fin; ++jour) {
        const int rang = jour - premier + decalage;
        const auto trouve = journees.find(jour);
        peindrejour(peintre,
                    {place.left() + large * (rang % semaine),
                     place.top() + ligne + haute * (rang / semaine), large, haute},
                    palette, trouve == journees.end() ? nullptr : &trouve->second);
    }
}

}  // namespace

void peindre(QPainter& peintre, const QRectF& place, const QPalette& palette, const Annee& annee) {
    constexpr int colonnes = 4;
    constexpr int rangees = moisparan / colonnes;
    const double ligne = QFontMetricsF(peintre.font()).lineSpacing();
    const double blanc = ligne / 2;
    const auto champ = place.adjusted(0, 0, 0, -2 * ligne);
    const double large = (champ.width() + blanc) / colonnes;
    const double haute = champ.height() / rangees;
    Mois mois{annee.annee, annee.mois};
    for (int i = 0; i < moisparan; ++i, mois = suivant(mois))
        peindremois(peintre,
                    {champ.left() + large * (i % colonnes), champ.top() + haute * (i / colonnes),
                     large - blanc, haute - blanc},
                    palette, mois, annee.journees);
    peintre.drawText(
        QRectF(place.left(), champ.bottom(), place.width(), 2 * ligne),
        Qt::AlignLeft | Qt::AlignVCenter | Qt::TextWordWrap,
        QStringLiteral("Une case par jour, la semaine du lundi au dimanche. Le chiffre : "
                       "tirages corrigés ; ce qui est rempli : la part trouvée."));
}

}  // namespace carnet
