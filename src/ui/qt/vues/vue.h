#pragma once

#include <cstdint>
#include <type_traits>

#include <QEvent>
#include <QFont>
#include <QRect>
#include <QWidget>

#include "controle.h"
#include "hote.h"

class QKeyEvent;
class QMouseEvent;

namespace ui::qt {

/// A set of properties of a control, one bit each.
using Champs = std::uint32_t;

[[nodiscard]] constexpr Champs ensemble(Champ champ) {
    return Champs{1} << static_cast<unsigned>(champ);
}
template <class... C>
[[nodiscard]] constexpr Champs ensemble(Champ champ, C... autres) {
    return ensemble(champ) | ensemble(autres...);
}
inline constexpr Champs tous = ~Champs{0};
inline constexpr Champs champsplace =
    ensemble(Champ::Gauche, Champ::Haut, Champ::Largeur, Champ::Hauteur);
inline constexpr Champs champsfonte =
    ensemble(Champ::Police, Champ::Taille, Champ::Gras, Champ::Italique, Champ::Barre);

/// What the views of all controls share: it records what has changed, updates the widget when the
/// window asks for it, and reports the mouse to the model.
class Vue : public VueControle {
  public:
    Vue(Hote& hote, Controle& controle);
    Vue(const Vue&) = delete;
    Vue& operator=(const Vue&) = delete;
    ~Vue() override;

    [[nodiscard]] virtual QWidget& widget() = 0;
    /// The widget that takes the keyboard for this control.
    [[nodiscard]] virtual QWidget& widgetclavier() { return widget(); }
    /// Null once the form is gone.
    [[nodiscard]] Controle* controle() const { return controle_; }

    void modifie(Champ champ) final;
    /// Updates the widget for the properties that have changed since the last call.
    void appliquer();
    /// Makes the next `appliquer` update everything, as after a change of the window's scale.
    void toutnoter() { champs_ = tous; }
    /// Forgets the control, which is being destroyed.
    void detacher();
    /// Redraws what depends on the form's default button, the focus and the active window, any of
    /// which may have changed.
    virtual void accorder() { widget().update(); }
    /// Handles a key in the view. True if the model is not to get it.
    virtual bool touchepropre(const QKeyEvent& /*evenement*/) { return false; }

  protected:
    /// Updates what is particular to this kind of control. The widget is redrawn afterwards in any
    /// case.
    virtual void montrer(Champs champs);
    /// True if the widget itself turns presses and releases into clicks.
    [[nodiscard]] virtual bool clicnatif() const { return false; }
    /// The rectangle of the widget in the window.
    [[nodiscard]] virtual QRect place() const;
    /// Reports a click of the user on the control.
    virtual void cliquer();

    /// Report the mouse before and after the widget has handled an event itself.
    void avant(const QEvent& evenement);
    void apres(const QEvent& evenement);

    [[nodiscard]] Hote& hote() const { return hote_; }
    /// `Hote::executer`.
    void executer(const std::function<void()>& evenement) const;
    /// The control's text.
    [[nodiscard]] QString texte() const;
    /// What assistive technologies say besides the name.
    [[nodiscard]] virtual QString description() const;
    /// The control's font at the window's scale.
    [[nodiscard]] const QFont& fonte() const { return fonte_; }
    /// The font of menus at the window's scale.
    [[nodiscard]] QFont fontedemenu() const;
    /// Size of one pixel of the design in the window.
    [[nodiscard]] double unite() const;
    /// The control is transparent or has the colour of its form, so its background is not drawn.
    [[nodiscard]] bool sansfond() const;
    /// The control has the focus, and its window is active.
    [[nodiscard]] bool alefocus() const;

  private:
    void montrerpointeur();
    void presser(const QMouseEvent& evenement);
    void relacher(const QMouseEvent& evenement);

    Hote& hote_;
    Controle* controle_;
    QFont fonte_;
    Champs champs_ = tous;
    bool notee_ = false;   ///< the window was told (`Hote::noter`) since the last `appliquer`
    bool presse_ = false;  ///< the left button went down on the control
};

/// A view that is also its widget, of Qt's class `W`.
template <class W>
class VueDe : public W, public Vue {
  public:
    VueDe(QWidget& parent, Hote& hote, Controle& controle) : W(&parent), Vue(hote, controle) {}
    [[nodiscard]] QWidget& widget() override { return *this; }

  protected:
    bool event(QEvent* evenement) override {
        avant(*evenement);
        const bool recu = W::event(evenement);
        apres(*evenement);
        return recu;
    }
};

}  // namespace ui::qt
