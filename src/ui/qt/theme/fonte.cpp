#include "fonte.h"

#include <algorithm>
#include <array>
#include <functional>

#include <QFontMetricsF>
#include <QPaintDevice>
#include <QStringList>

#include "texteqt.h"

namespace ui::qt {
namespace {

constexpr double pointsparpouce = 72;
constexpr double serrage = 96;  // percent of the usual space between letters

struct Remplacement {
    const char* famille;
    std::array<const char*, 3> substituts;
};

// Chosen so that the families that the player cycles through stay five different ones.
constexpr std::array remplacements{
    Remplacement{"Arial", {"Liberation Sans", "Nimbus Sans", "DejaVu Sans"}},
    Remplacement{"Verdana", {"DejaVu Sans", "Liberation Sans", "Nimbus Sans"}},
    Remplacement{"Times New Roman", {"Liberation Serif", "Nimbus Roman", "DejaVu Serif"}},
    Remplacement{"Lucida Sans", {"DejaVu Sans Condensed", "DejaVu Sans", "Liberation Sans"}},
    Remplacement{"Georgia", {"Gelasio", "C059", "DejaVu Serif"}},
    Remplacement{"Constantia", {"P052", "C059", "DejaVu Serif"}},
    Remplacement{"Segoe UI", {"Liberation Sans", "Nimbus Sans", "DejaVu Sans"}}};

/// The largest font, in steps, that passes a test; `fonte` itself if it does. A smaller one is also
/// set a little closer: screens know whole pixels only, and a step down may be a large one.
QFont reduire(const QFont& fonte, double plancher, const std::function<bool(const QFont&)>& tient) {
    if (tient(fonte))
        return fonte;
    constexpr int crans = 24;
    int bas = 0;  // smallest size, taken as it comes
    int haut = crans;
    QFont essai = fonte;
    essai.setLetterSpacing(QFont::PercentageSpacing, serrage);
    const auto taille = [&](int cran) {
        essai.setPointSizeF(fonte.pointSizeF() * (plancher + (1 - plancher) * cran / crans));
    };
    while (haut - bas > 1) {
        const int milieu = (bas + haut) / 2;
        taille(milieu);
        (tient(essai) ? bas : haut) = milieu;
    }
    taille(bas);
    return essai;
}

}  // namespace

QString familledebase() {
#ifdef Q_OS_WIN
    return QStringLiteral("Segoe UI");
#else
    return QStringLiteral("Liberation Sans");
#endif
}

void inscrirefamilles() {
    for (const auto& [famille, substituts] : remplacements) {
        QStringList liste;
        for (const auto* substitut : substituts)
            liste << QString::fromLatin1(substitut);
        QFont::removeSubstitutions(QString::fromLatin1(famille));
        QFont::insertSubstitutions(QString::fromLatin1(famille), liste);
    }
}

QFont fonte(std::string_view famille, double corps, const QPaintDevice& support) {
    QFont resultat(famille.empty() ? familledebase() : versqt(famille));
    // A size in points keeps its fraction, one in pixels is rounded.
    resultat.setPointSizeF(std::max(corps, 1.0) * pointsparpouce / support.logicalDpiY());
    resultat.setHintingPreference(QFont::PreferVerticalHinting);
    resultat.setStyleStrategy(QFont::PreferAntialias);
    return resultat;
}

QFont fonte(const Controle& controle, double corps, const QPaintDevice& support) {
    auto resultat = fonte(controle.police(), corps, support);
    resultat.setBold(controle.gras());
    resultat.setItalic(controle.italique());
    resultat.setStrikeOut(controle.barre());
    return resultat;
}

QFont ajuster(const QFont& fonte, const QString& texte, const QSizeF& place,
              const QPaintDevice& support, double plancher) {
    return reduire(fonte, plancher, [&](const QFont& essai) {
        constexpr double sansfond = 1e6;
        const auto tour = QFontMetricsF(essai, &support)
                              .boundingRect(QRectF(0, 0, place.width(), sansfond),
                                            Qt::TextWordWrap | Qt::AlignLeft, texte);
        return tour.width() <= place.width() && tour.height() <= place.height();
    });
}

QFont ajusterligne(const QFont& fonte, const QString& texte, const QSizeF& place,
                   const QPaintDevice& support, double plancher) {
    return reduire(fonte, plancher, [&](const QFont& essai) {
        const QFontMetricsF mesure(essai, &support);
        return mesure.horizontalAdvance(texte) <= place.width() &&
               mesure.height() <= place.height();
    });
}

}  // namespace ui::qt
