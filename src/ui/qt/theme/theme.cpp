#include "theme.h"

#include <algorithm>
#include <cmath>

#include <QApplication>
#include <QToolTip>

#include "fonte.h"
#include "style.h"

namespace ui::qt {
namespace {

constexpr double corpsdebase = 10;  // points

void enlever(QPalette& p, QPalette::ColorRole role, QRgb couleur) {
    p.setColor(QPalette::Disabled, role, QColor::fromRgb(couleur));
}

}  // namespace

QColor couleurqt(const Couleur& couleur) {
    if (couleur == Couleur::fenetre())
        return QColor::fromRgb(teintes::papier);
    if (couleur == Couleur::bouton())
        return QColor::fromRgb(teintes::face);
    return QColor::fromRgb(couleur.rvb());
}

QColor encreqt(const Couleur& couleur) {
    return couleur == couleurs::noir ? QColor::fromRgb(teintes::encre) : couleurqt(couleur);
}

QColor melange(const QColor& une, const QColor& autre, double part) {
    const auto canal = [part](int a, int b) {
        return static_cast<int>(std::lround(a + (b - a) * part));
    };
    return {canal(une.red(), autre.red()), canal(une.green(), autre.green()),
            canal(une.blue(), autre.blue()), canal(une.alpha(), autre.alpha())};
}

QColor bordde(const QColor& fond) {
    if (fond.rgb() == teintes::papier || fond.rgb() == teintes::face)
        return QColor::fromRgb(teintes::bord);
    constexpr double force = .42;
    auto bord = melange(fond, QColor::fromRgb(teintes::encre), force);
    // A dark grey would look dirty on a pale fill: keep its hue alive.
    const int plein = std::min(255, bord.hslSaturation() + 40);
    bord = QColor::fromHsl(bord.hslHue() < 0 ? 0 : bord.hslHue(),
                           fond.hslSaturation() == 0 ? 0 : plein, bord.lightness());
    return bord;
}

QPalette palette() {
    const auto c = [](QRgb rgb) { return QColor::fromRgb(rgb); };
    QPalette p(c(teintes::encre), c(teintes::face), c(0xFFFFFFFF), c(0xFF8A90A0), c(teintes::bord),
               c(teintes::encre), c(0xFFFFFFFF), c(teintes::papier), c(0xFFF3F4F7));
    p.setColor(QPalette::Midlight, c(0xFFE6E9EE));
    p.setColor(QPalette::Shadow, c(0xFF60687A));
    p.setColor(QPalette::Highlight, c(teintes::accent));
    p.setColor(QPalette::HighlightedText, c(0xFFFFFFFF));
    p.setColor(QPalette::Link, c(teintes::accent));
    p.setColor(QPalette::LinkVisited, c(0xFF5B3E8C));
    p.setColor(QPalette::AlternateBase, c(0xFFF3F5F8));
    p.setColor(QPalette::ToolTipBase, c(0xFFFFFDF3));
    p.setColor(QPalette::ToolTipText, c(teintes::encre));
    p.setColor(QPalette::PlaceholderText, c(teintes::encrepale));
    enlever(p, QPalette::WindowText, teintes::encrepale);
    enlever(p, QPalette::Text, teintes::encrepale);
    enlever(p, QPalette::ButtonText, teintes::encrepale);
    enlever(p, QPalette::Highlight, 0xFFC9CED8);
    enlever(p, QPalette::HighlightedText, teintes::encrepale);
    return p;
}

void preparer() {
    // The desktop's colours, fonts and double-size rounding have no say.
    QGuiApplication::setDesktopSettingsAware(false);
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(
        Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
}

void habiller(QApplication& application) {
    inscrirefamilles();
    QApplication::setStyle(new Style);  // owned by the application
    QApplication::setPalette(palette());
    QFont base(familledebase());
    base.setPointSizeF(corpsdebase);
    // As the font of a control: of the same size, it is read once.
    base.setHintingPreference(QFont::PreferVerticalHinting);
    base.setStyleStrategy(QFont::PreferAntialias);
    QApplication::setFont(base);
    QToolTip::setPalette(palette());
    QToolTip::setFont(base);
    // The program ends by its own rules, not with its last window.
    application.setQuitOnLastWindowClosed(false);
}

}  // namespace ui::qt
