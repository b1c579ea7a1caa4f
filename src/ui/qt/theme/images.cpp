#include "images.h"

#include <array>
#include <memory>
#include <string>
#include <utility>

#include <QFileInfo>
#include <QImage>
#include <QImageReader>
#include <QPixmapCache>

namespace ui::qt {
namespace {

constexpr std::array variantes{"", "@2x", "@4x"};
constexpr std::array icones{16, 24, 32, 48, 64, 128, 256};

QString variante(const QString& chemin, const char* marque) {
    const auto point = chemin.lastIndexOf(QLatin1Char('.'));
    auto nom = chemin;
    return point < 0 ? nom + QLatin1String(marque) : nom.insert(point, QLatin1String(marque));
}

/// A reader of a picture; null if the file is missing or is none. Qt is asked for the format that
/// the ending says: to find out by itself it would load all that it has.
std::unique_ptr<QImageReader> lecteur(const QString& chemin) {
    const QFileInfo fichier(chemin);
    if (!fichier.isFile())  // a pipe would be waited for
        return nullptr;
    auto direct = std::make_unique<QImageReader>(chemin, fichier.suffix().toLower().toLatin1());
    direct->setAutoDetectImageFormat(false);
    if (direct->size().isValid())
        return direct;
    auto curieux = std::make_unique<QImageReader>(chemin);
    return curieux->size().isValid() ? std::move(curieux) : nullptr;
}

/// The variant to draw from: the smallest one that is large enough, or else the largest; null if
/// no picture can be read.
QImage choisir(const QString& chemin, const QSize& voulue) {
    std::unique_ptr<QImageReader> choix;
    for (const auto* marque : variantes) {
        auto essai = lecteur(variante(chemin, marque));
        if (essai == nullptr)
            continue;
        choix = std::move(essai);
        const auto taille = choix->size();
        if (taille.width() >= voulue.width() || taille.height() >= voulue.height())
            break;
    }
    return choix ? choix->read() : QImage();
}

}  // namespace

QPixmap image(const QString& chemin, const QSize& taille, double densite) {
    const auto voulue = (QSizeF(taille) * densite).toSize();
    const auto cle =
        QStringLiteral("%1 %2 %3").arg(chemin).arg(voulue.width()).arg(voulue.height());
    QPixmap vignette;
    if (QPixmapCache::find(cle, &vignette))
        return vignette;
    const auto originale = choisir(chemin, voulue);
    if (originale.isNull() || voulue.isEmpty())
        return {};
    vignette =
        QPixmap::fromImage(originale.scaled(voulue, Qt::KeepAspectRatio, Qt::SmoothTransformation));
    vignette.setDevicePixelRatio(densite);
    QPixmapCache::insert(cle, vignette);
    return vignette;
}

QIcon iconeprogramme(const std::function<QString(std::string_view)>& systeme) {
    QIcon icone;
    for (const int cote : icones) {
        const auto essai = lecteur(systeme("images\\orvane_" + std::to_string(cote) + ".png"));
        if (essai != nullptr)
            icone.addPixmap(QPixmap::fromImage(essai->read()));
    }
    return icone;
}

}  // namespace ui::qt
