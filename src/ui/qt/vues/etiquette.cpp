#include "etiquette.h"

#include <utility>

#include <QFontMetricsF>
#include <QPainter>

#include "dessin.h"
#include "fonte.h"
#include "theme.h"

namespace ui::qt {
namespace {

constexpr double rayonetiquette =
    5;  // pixels of the design, of a label with a background of its own
constexpr double margeetiquette = 3;
constexpr double lignesdunparagraphe = 2.2;  // a label this high begins at its top

Qt::Alignment alignementqt(Alignement alignement) {
    switch (alignement) {
        case Alignement::Centre:
            return Qt::AlignHCenter;
        case Alignement::Droite:
            return Qt::AlignRight;
        default:
            return Qt::AlignLeft;
    }
}

}  // namespace

Etiquette::Etiquette(QWidget& parent, Hote& hote, Controle& controle)
    : VueDe(parent, hote, controle) {
    setTextFormat(Qt::PlainText);
}

QRectF Etiquette::placetexte() const {
    const double bord = sansfond() ? 0 : margeetiquette * unite();
    return QRectF(rect()).adjusted(bord, 0, -bord, 0);
}

void Etiquette::montrer(Champs champs) {
    if ((champs & ensemble(Champ::Texte)) != 0)
        setText(texte());
    constexpr auto mesures =
        champsplace | champsfonte | ensemble(Champ::Texte, Champ::Fond, Champ::Fondu);
    if ((champs & mesures) != 0)
        mesuree_ = false;
}

void Etiquette::mesurer() {
    if (std::exchange(mesuree_, true))
        return;
    ajustee_ = ajuster(fonte(), texte(), placetexte().size(), *this);
    const auto ligne = QFontMetricsF(fonte(), this).height();
    verticale_ = height() > lignesdunparagraphe * ligne ? Qt::AlignTop : Qt::AlignVCenter;
}

void Etiquette::paintEvent(QPaintEvent* /*evenement*/) {
    if (controle() == nullptr)
        return;
    QPainter peintre(this);
    if (controle()->aspect() == Aspect::Horloge) {
        dessin::boite(peintre, QRectF(rect()), unite(), couleurqt(controle()->fond()),
                      {.actif = isEnabled(), .rayon = dessin::rayonhorloge});
    } else if (!sansfond()) {
        peintre.setRenderHint(QPainter::Antialiasing);
        peintre.setPen(Qt::NoPen);
        peintre.setBrush(couleurqt(controle()->fond()));
        peintre.drawRoundedRect(QRectF(rect()), rayonetiquette * unite(), rayonetiquette * unite());
    }
    if (texte().isEmpty())
        return;
    mesurer();
    auto trait = ajustee_;
    const bool cliquable = controle()->clic && isEnabled() && underMouse();
    trait.setUnderline(cliquable);
    peintre.setFont(trait);
    peintre.setPen(isEnabled() ? encreqt(controle()->couleur())
                               : QColor::fromRgb(teintes::encrepale));
    const auto horizontale = alignementqt(controle()->alignement());
    peintre.drawText(placetexte(), static_cast<int>(horizontale | verticale_) | Qt::TextWordWrap,
                     texte());
}

}  // namespace ui::qt
