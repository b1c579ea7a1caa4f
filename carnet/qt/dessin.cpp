#include "dessin.h"

#include <QEvent>
#include <QImage>
#include <QPainter>

namespace carnet {
namespace {

constexpr int marge = 8;

/// Lines of text that a picture needs to be read.
int lignes(const Sujet& sujet) {
    constexpr int ordinaires = 8;
    constexpr int annee = 28;
    if (const auto* barres = std::get_if<Barres>(&sujet))
        return barres->couchees ? static_cast<int>(barres->barres.size()) * 3 / 2 + 3 : ordinaires;
    return std::holds_alternative<Annee>(sujet) ? annee : 2 * ordinaires;
}

}  // namespace

void Dessin::montrer(Sujet sujet) {
    sujet_ = std::move(sujet);
    mesurer();
    update();
}

void Dessin::mesurer() {
    constexpr int colonnes = 40;
    setMinimumSize(fontMetrics().averageCharWidth() * colonnes,
                   fontMetrics().lineSpacing() * lignes(sujet_) + 2 * marge);
}

QImage Dessin::image() {
    constexpr int finesse = 2;
    QImage image(size() * finesse, QImage::Format_RGB32);
    image.setDevicePixelRatio(finesse);
    image.fill(palette().color(QPalette::Base));
    render(&image);
    return image;
}

void Dessin::paintEvent(QPaintEvent* /*evenement*/) {
    QPainter peintre(this);
    peintre.fillRect(rect(), palette().color(QPalette::Base));
    peintre.setRenderHint(QPainter::Antialiasing);
    peintre.setPen(palette().color(QPalette::Text));
    const auto place = QRectF(rect()).adjusted(marge, marge, -marge, -marge);
    std::visit([&](const auto& sujet) { peindre(peintre, place, palette(), sujet); }, sujet_);
}

void Dessin::changeEvent(QEvent* evenement) {
    QWidget::changeEvent(evenement);
    if (evenement->type() == QEvent::FontChange)
        mesurer();
}

}  // namespace carnet
