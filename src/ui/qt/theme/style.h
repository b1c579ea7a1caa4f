#pragma once

#include <QProxyStyle>

namespace ui::qt {

/// The Qt style of what the views do not draw (message boxes, menus, lists, scroll bars): Fusion,
/// with the theme's buttons, slim scroll bars and no mnemonics.
class Style : public QProxyStyle {
  public:
    Style();

    void drawControl(ControlElement element, const QStyleOption* option, QPainter* peintre,
                     const QWidget* widget) const override;
    void drawComplexControl(ComplexControl controle, const QStyleOptionComplex* option,
                            QPainter* peintre, const QWidget* widget) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* peintre,
                       const QWidget* widget) const override;
    int pixelMetric(PixelMetric mesure, const QStyleOption* option,
                    const QWidget* widget) const override;
    QSize sizeFromContents(ContentsType contenu, const QStyleOption* option, const QSize& taille,
                           const QWidget* widget) const override;
    int styleHint(StyleHint indication, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* retour) const override;
};

}  // namespace ui::qt
