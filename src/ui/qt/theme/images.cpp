#include "images.h"

#include <array>
#include <chrono>
#include <future>
#include <memory>
#include <string>
#include <system_error>
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

/// A picture at its size on a screen.
struct Vignette {
    QString chemin;
    QSize voulue;  ///< pixels of the screen

    [[nodiscard]] QString cle() const {
        return QStringLiteral("%1 %2 %3").arg(chemin).arg(voulue.width()).arg(voulue.height());
    }
    [[nodiscard]] QImage faire() const {
        const auto originale = choisir(chemin, voulue);
        if (originale.isNull() || voulue.isEmpty())
            return {};
        return originale.scaled(voulue, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    }
};

/// What a thread is making.
struct Enroute {
    QString cle;
    std::future<QImage> image;
};

Enroute& enroute() {
    static Enroute seule;
    return seule;
}

}  // namespace

void annoncer(const QString& chemin, const QSize& taille, double densite) {
    constexpr int grande = 10000;  // pixels: decoding fewer is quicker than a thread
    const Vignette vignette{chemin, (QSizeF(taille) * densite).toSize()};
    const auto cle = vignette.cle();
    auto& route = enroute();
    const bool prise = route.image.valid() &&
                       route.image.wait_for(std::chrono::seconds(0)) != std::future_status::ready;
    if (prise || route.cle == cle || QPixmapCache::find(cle, nullptr) ||
        vignette.voulue.width() * vignette.voulue.height() < grande)
        return;
    try {
        route.image = std::async(std::launch::async, &Vignette::faire, vignette);
        route.cle = cle;
    } catch (const std::system_error&) {
        route.cle.clear();  // no thread to be had
    }
}

QPixmap image(const QString& chemin, const QSize& taille, double densite) {
    const Vignette voulue{chemin, (QSizeF(taille) * densite).toSize()};
    const auto cle = voulue.cle();
    QPixmap vignette;
    if (QPixmapCache::find(cle, &vignette))
        return vignette;
    auto& route = enroute();
    const bool annoncee = route.image.valid() && route.cle == cle;
    const auto faite = annoncee ? route.image.get() : voulue.faire();
    if (annoncee)
        route.cle.clear();
    if (faite.isNull())
        return {};
    vignette = QPixmap::fromImage(faite);
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
