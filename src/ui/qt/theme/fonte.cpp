#include "fonte.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <functional>

#include <QFontDatabase>
#include <QFontMetricsF>
#include <QHash>
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

/// The family that stands for a name on this system: itself if it is there or none of its
/// substitutes is. Given the whole list, Qt would ask fontconfig to go on with it at every size.
QString presente(const QString& famille) {
    static const auto absentes = [] {
        QHash<QString, QString> resultat;
        auto toutes = QFontDatabase::families();
        for (auto& nom : toutes)  // told with its maker where there are several
            nom = nom.section(QStringLiteral(" ["), 0, 0);
        for (const auto& [nom, substituts] : remplacements) {
            const auto trouve = std::find_if(
                substituts.begin(), substituts.end(),
                [&](const char* nomme) { return toutes.contains(QString::fromLatin1(nomme)); });
            if (trouve != substituts.end() && !toutes.contains(QString::fromLatin1(nom)))
                resultat.insert(QString::fromLatin1(nom), QString::fromLatin1(*trouve));
        }
        return resultat;
    }();
    return absentes.value(famille, famille);
}

/// The largest font, in steps, in which a text fits its place; `fonte` itself if it does. A smaller
/// one is also set a little closer: screens know whole pixels only, and a step down may be a large
/// one. `mesure` tells what the text takes in a font. Every size that is tried is read from the
/// disk, so the search begins where the first one says.
QFont reduire(const QFont& fonte, double plancher, const QSizeF& place,
              const std::function<QSizeF(const QFont&)>& mesure) {
    const auto tient = [&](const QSizeF& prise) {
        return prise.width() <= place.width() && prise.height() <= place.height();
    };
    const auto entiere = mesure(fonte);
    if (tient(entiere))
        return fonte;
    constexpr int crans = 24;
    int bas = 0;  // smallest size, taken as it comes
    int haut = crans;
    QFont essai = fonte;
    essai.setLetterSpacing(QFont::PercentageSpacing, serrage);
    const auto taille = [&](int cran) {
        essai.setPointSizeF(fonte.pointSizeF() * (plancher + (1 - plancher) * cran / crans));
    };
    const double part = std::min(place.width() / std::max(entiere.width() * serrage / 100, 1.0),
                                 place.height() / std::max(entiere.height(), 1.0));
    const double vise = std::ceil((part - plancher) / (1 - plancher) * crans);
    int cran = static_cast<int>(std::clamp<double>(vise, bas + 1, haut - 1));
    for (int pas = 1; haut - bas > 1; pas *= 2) {
        taille(cran);
        const bool convient = tient(mesure(essai));
        (convient ? bas : haut) = cran;
        cran += convient ? pas : -pas;
        if (cran <= bas || cran >= haut)
            cran = (bas + haut) / 2;
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
    QFont resultat(presente(famille.empty() ? familledebase() : versqt(famille)));
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
    if (texte.isEmpty())
        return fonte;
    return reduire(fonte, plancher, place, [&](const QFont& essai) {
        constexpr double sansfond = 1e6;
        return QFontMetricsF(essai, &support)
            .boundingRect(QRectF(0, 0, place.width(), sansfond), Qt::TextWordWrap | Qt::AlignLeft,
                          texte)
            .size();
    });
}

QFont ajusterligne(const QFont& fonte, const QString& texte, const QSizeF& place,
                   const QPaintDevice& support, double plancher) {
    return reduire(fonte, plancher, place, [&](const QFont& essai) {
        const QFontMetricsF metrique(essai, &support);
        return QSizeF(metrique.horizontalAdvance(texte), metrique.height());
    });
}

}  // namespace ui::qt
