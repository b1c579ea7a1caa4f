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

/// A set of properties of a control.
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

/// What all views of controls have in common: notes what has changed, brings the widget to the
/// model when the window asks for it, and reports the mouse.
class Vue : public VueControle {
  public:
    Vue(Hote& hote, Controle& controle);
    Vue(const Vue&) = delete;
    Vue& operator=(const Vue&) = delete;
    ~Vue() override;

    [[nodiscard]] virtual QWidget& widget() = 0;
    /// The widget that takes the keys of this control.
    [[nodiscard]] virtual QWidget& widgetclavier() { return widget(); }
    /// Null once the form is gone.
    [[nodiscard]] Controle* controle() const { return controle_; }

    void modifie(Champ champ) final;
    /// Brings the widget to the model, as far as it has changed.
    void appliquer();
    /// The scale of the window, or its pointer, has changed.
    void toutnoter() { champs_ = tous; }
    /// The form is going away.
    void detacher();
    /// The form's default button, the focus or the window's activation may have changed.
    virtual void accorder() { widget().update(); }
    /// A key that the view deals with by itself, before the model hears of it.
    virtual bool touchepropre(const QKeyEvent& /*evenement*/) { return false; }

  protected:
    /// Shows what is particular to the genre; the widget is redrawn afterwards in any case.
    virtual void montrer(Champs champs);
    /// The widget makes clicks out of presses and releases by itself.
    [[nodiscard]] virtual bool clicnatif() const { return false; }
    /// Where the widget lies in the window.
    [[nodiscard]] virtual QRect place() const;
    /// The user has clicked the control.
    virtual void cliquer();

    /// Reports of the mouse that belong before and after what the widget does by itself.
    void avant(const QEvent& evenement);
    void apres(const QEvent& evenement);

    [[nodiscard]] Hote& hote() const { return hote_; }
    void executer(const std::function<void()>& evenement) const;
    /// The control's text.
    [[nodiscard]] QString texte() const;
    /// What assistive technologies are told beside the name.
    [[nodiscard]] virtual QString description() const;
    /// The control's font at the window's scale.
    [[nodiscard]] const QFont& fonte() const { return fonte_; }
    /// The font of menus at the window's scale.
    [[nodiscard]] QFont fontedemenu() const;
    [[nodiscard]] double unite() const;
    /// The control has no background of its own: transparent, or the colour of its form.
    [[nodiscard]] bool sansfond() const;
    [[nodiscard]] bool alefocus() const;

  private:
    void montrerpointeur();
    void presser(const QMouseEvent& evenement);
    void relacher(const QMouseEvent& evenement);

    Hote& hote_;
    Controle* controle_;
    QFont fonte_;
    Champs champs_ = tous;
    bool notee_ = false;   ///< the window knows that something has changed
    bool presse_ = false;  ///< the left button went down on the control
};

/// A view that is a widget of Qt.
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
