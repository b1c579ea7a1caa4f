#include "style.h"

#include <algorithm>

#include <QPainter>
#include <QStyleFactory>
#include <QStyleOption>

#include "dessin.h"
#include "theme.h"

namespace ui::qt {
namespace {

constexpr int largeurascenseur = 14;  // pixels
constexpr double margeascenseur = 3;
constexpr QSize tailleboutons(92, 32);  // of message boxes, at least
constexpr int airentreesdemenu = 6;

dessin::Etat etatde(const QStyleOptionButton& option) {
    const auto a = [&](QStyle::StateFlag drapeau) { return option.state.testFlag(drapeau); };
    return {.actif = a(QStyle::State_Enabled),
            .survole = a(QStyle::State_MouseOver),
            .enfonce = a(QStyle::State_Sunken),
            .defaut = option.features.testFlag(QStyleOptionButton::DefaultButton),
            .focus = a(QStyle::State_HasFocus)};
}

void ascenseur(const QRect& manche, const QStyleOptionSlider& option, QPainter& peintre) {
    const bool saisi = option.state.testFlag(QStyle::State_Sunken) &&
                       option.activeSubControls.testFlag(QStyle::SC_ScrollBarSlider);
    const bool survole = option.state.testFlag(QStyle::State_MouseOver);
    const QRectF barre =
        QRectF(manche).adjusted(margeascenseur, margeascenseur, -margeascenseur, -margeascenseur);
    const double rayon = std::min(barre.width(), barre.height()) / 2;
    peintre.setRenderHint(QPainter::Antialiasing);
    peintre.setPen(Qt::NoPen);
    const bool inutile = option.maximum <= option.minimum;  // the whole is in sight
    peintre.setBrush(QColor::fromRgb(inutile   ? 0xFFDDE1E8
                                     : saisi   ? 0xFF6F7890
                                     : survole ? 0xFF8F97AB
                                               : 0xFFB3B9C7));
    peintre.drawRoundedRect(barre, rayon, rayon);
}

}  // namespace

Style::Style() : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion"))) {}

void Style::drawControl(ControlElement element, const QStyleOption* option, QPainter* peintre,
                        const QWidget* widget) const {
    const auto* bouton = qstyleoption_cast<const QStyleOptionButton*>(option);
    if (element == CE_PushButtonBevel && bouton != nullptr) {
        peintre->save();
        const auto genre = bouton->features.testFlag(QStyleOptionButton::DefaultButton)
                               ? dessin::Bouton::Principal
                               : dessin::Bouton::Courant;
        dessin::bouton(*peintre, QRectF(bouton->rect), 1, QColor::fromRgb(teintes::face), genre,
                       etatde(*bouton), QColor::fromRgb(teintes::encre));
        peintre->restore();
        return;
    }
    if (element == CE_PushButtonLabel && bouton != nullptr &&
        bouton->features.testFlag(QStyleOptionButton::DefaultButton)) {
        auto blanc = *bouton;
        blanc.palette.setColor(QPalette::ButtonText, QColor::fromRgb(teintes::papier));
        QProxyStyle::drawControl(element, &blanc, peintre, widget);
        return;
    }
    QProxyStyle::drawControl(element, option, peintre, widget);
}

void Style::drawComplexControl(ComplexControl controle, const QStyleOptionComplex* option,
                               QPainter* peintre, const QWidget* widget) const {
    const auto* glissiere = qstyleoption_cast<const QStyleOptionSlider*>(option);
    if (controle != CC_ScrollBar || glissiere == nullptr) {
        QProxyStyle::drawComplexControl(controle, option, peintre, widget);
        return;
    }
    peintre->save();
    peintre->fillRect(option->rect, QColor::fromRgb(0xFFF3F4F7));
    ascenseur(subControlRect(controle, option, SC_ScrollBarSlider, widget), *glissiere, *peintre);
    peintre->restore();
}

void Style::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* peintre,
                          const QWidget* widget) const {
    if (element == PE_FrameFocusRect) {
        return;  // what has the focus is drawn by the control itself
    }
    QProxyStyle::drawPrimitive(element, option, peintre, widget);
}

int Style::pixelMetric(PixelMetric mesure, const QStyleOption* option,
                       const QWidget* widget) const {
    if (mesure == PM_ScrollBarExtent)
        return largeurascenseur;
    return QProxyStyle::pixelMetric(mesure, option, widget);
}

QSize Style::sizeFromContents(ContentsType contenu, const QStyleOption* option, const QSize& taille,
                              const QWidget* widget) const {
    const auto ordinaire = QProxyStyle::sizeFromContents(contenu, option, taille, widget);
    if (contenu == CT_PushButton)
        return ordinaire.expandedTo(tailleboutons);
    if (contenu == CT_MenuItem)
        return ordinaire + QSize(0, airentreesdemenu);
    return ordinaire;
}

int Style::styleHint(StyleHint indication, const QStyleOption* option, const QWidget* widget,
                     QStyleHintReturn* retour) const {
    switch (indication) {
        case SH_UnderlineShortcut:
        case SH_DialogButtonBox_ButtonsHaveIcons:
        case SH_ComboBox_Popup:
        case SH_ComboBox_AllowWheelScrolling:
            return 0;
        default:
            return QProxyStyle::styleHint(indication, option, widget, retour);
    }
}

}  // namespace ui::qt
