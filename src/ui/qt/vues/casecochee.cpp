#include "casecochee.h"

#include <algorithm>

#include <QPainter>

#include "dessin.h"
#include "fonte.h"
#include "theme.h"

namespace ui::qt {
namespace {

constexpr double cote = 18;  // pixels of the design
constexpr double margecoche = 3;
constexpr double ecart = 7;
constexpr double rayoncoche = 5;

}  // namespace

CaseCochee::CaseCochee(QWidget& parent, Hote& hote, Controle& controle)
    : VueDe(parent, hote, controle) {
    QObject::connect(this, &QAbstractButton::clicked, this, [this] {
        if (this->controle() != nullptr)
            cliquer();
    });
}

QRectF CaseCochee::carre() const {
    const double c = std::min(cote * unite(), height() - 2.0);
    return {margecoche * unite(), (height() - c) / 2, c, c};
}

QRectF CaseCochee::placetexte() const {
    return QRectF(rect()).adjusted(carre().right() + ecart * unite(), 0, -margecoche * unite(), 0);
}

void CaseCochee::montrer(Champs champs) {
    if ((champs & ensemble(Champ::Coche)) != 0)
        setChecked(controle()->coche());
    if ((champs & (champsplace | champsfonte | ensemble(Champ::Texte))) != 0)
        ajustee_ = ajuster(fonte(), texte(), placetexte().size(), *this);
}

void CaseCochee::paintEvent(QPaintEvent* /*evenement*/) {
    if (controle() == nullptr)
        return;
    QPainter peintre(this);
    peintre.setRenderHint(QPainter::Antialiasing);
    if (!sansfond()) {
        peintre.setPen(Qt::NoPen);
        peintre.setBrush(couleurqt(controle()->fond()));
        peintre.drawRoundedRect(QRectF(rect()), rayoncoche * unite(), rayoncoche * unite());
    }
    dessin::coche(
        peintre, carre(), unite(), controle()->coche(),
        {.actif = isEnabled(), .survole = isEnabled() && underMouse(), .enfonce = isDown()});
    peintre.setFont(ajustee_);
    peintre.setPen(isEnabled() ? encreqt(controle()->couleur())
                               : QColor::fromRgb(teintes::encrepale));
    peintre.drawText(placetexte(), Qt::AlignLeft | Qt::AlignVCenter | Qt::TextWordWrap, texte());
    if (alefocus())
        dessin::anneau(peintre, QRectF(rect()), unite(), rayoncoche);
}

}  // namespace ui::qt
