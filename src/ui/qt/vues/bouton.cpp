#include "bouton.h"

#include <algorithm>
#include <utility>

#include <QPainter>

#include "fonte.h"
#include "formulaire.h"
#include "theme.h"

namespace ui::qt {
namespace {

constexpr double margelaterale = 6;           // pixels of the design
constexpr double margeproportionnelle = .12;  // of a small button's width
constexpr double margeverticale = 2;
constexpr double lettredetuile = .62;  // of the tile's side

QSizeF placetexte(const QSize& taille, double unite) {
    const double l = std::min(margelaterale * unite, margeproportionnelle * taille.width());
    const double h = std::min(margeverticale * unite, margeproportionnelle / 2 * taille.height());
    return {std::max(1.0, taille.width() - 2 * l), std::max(1.0, taille.height() - 2 * h)};
}

}  // namespace

Bouton::Bouton(QWidget& parent, Hote& hote, Controle& controle) : VueDe(parent, hote, controle) {
    QObject::connect(this, &QAbstractButton::clicked, this, [this] {
        if (this->controle() != nullptr)
            cliquer();
    });
}

void Bouton::montrer(Champs champs) {
    const bool remesurer =
        (champs & (champsplace | champsfonte | ensemble(Champ::Texte, Champ::Aspect))) != 0;
    if (remesurer)
        mesuree_ = false;
}

void Bouton::mesurer() {
    if (texte().isEmpty() || std::exchange(mesuree_, true))
        return;
    if (controle()->aspect() == Aspect::Tuile) {
        auto grande = qt::fonte(*controle(), lettredetuile * std::min(width(), height()), *this);
        grande.setBold(true);
        const double bord = 2 * margeverticale * unite();
        ajustee_ = ajusterligne(grande, texte(), QSizeF(width() - 2 * bord, height() * 2), *this);
    } else {
        ajustee_ = ajuster(fonte(), texte(), placetexte(size(), unite()), *this);
    }
}

dessin::Etat Bouton::etat() const {
    return {.actif = isEnabled(),
            .survole = isEnabled() && underMouse(),
            .enfonce = isDown(),
            .defaut = controle()->formulaire().defaut() == controle(),
            .focus = alefocus()};
}

void Bouton::paintEvent(QPaintEvent* /*evenement*/) {
    if (controle() == nullptr)
        return;
    mesurer();
    QPainter peintre(this);
    if (controle()->aspect() == Aspect::Tuile) {
        peindretuile(peintre);
        return;
    }
    const bool principal =
        controle()->aspect() == Aspect::Principal && controle()->fond() == Couleur::bouton();
    const auto genre = principal ? dessin::Bouton::Principal : dessin::Bouton::Courant;
    const auto encre =
        dessin::bouton(peintre, QRectF(rect()), unite(), couleurqt(controle()->fond()), genre,
                       etat(), encreqt(controle()->couleur()));
    const double enfonce = isDown() ? unite() : 0;
    peintre.setFont(ajustee_);
    peintre.setPen(encre);
    peintre.drawText(QRectF(rect()).adjusted(0, enfonce - unite() / 2, 0, enfonce),
                     Qt::AlignCenter | Qt::TextWordWrap, texte());
}

void Bouton::peindretuile(QPainter& peintre) {
    if (controle()->texte().empty()) {
        dessin::alveole(peintre, QRectF(rect()), unite(), couleurqt(controle()->fond()), etat());
        return;
    }
    const auto dessus =
        dessin::tuile(peintre, QRectF(rect()), unite(), couleurqt(controle()->fond()), etat());
    peintre.setFont(ajustee_);
    peintre.setPen(isEnabled() ? encreqt(controle()->couleur())
                               : QColor::fromRgb(teintes::encrepale));
    peintre.drawText(dessus, Qt::AlignCenter, texte());
}

}  // namespace ui::qt
