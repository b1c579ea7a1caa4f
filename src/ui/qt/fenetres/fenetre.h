#pragma once

#include <functional>
#include <memory>
#include <unordered_map>
#include <vector>

#include <QWidget>

#include "formulaire.h"
#include "hote.h"
#include "vue.h"

class QKeyEvent;
class QMenu;

namespace ui::qt {

class Bureau;
class MenuContextuel;

/// The window of a form. It shows the whole design, scaled to the size of the window, passes the
/// keyboard to the model, and keeps Qt's focus on the control that has the focus in the model.
class Fenetre : public QWidget, public VueFormulaire, public Hote {
  public:
    Fenetre(Bureau& bureau, Formulaire& formulaire);
    Fenetre(const Fenetre&) = delete;
    Fenetre& operator=(const Fenetre&) = delete;
    ~Fenetre() override;

    [[nodiscard]] Formulaire& formulaire() const { return *formulaire_; }
    /// The form was destroyed, and the window is about to be.
    [[nodiscard]] bool orpheline() const { return formulaire_ == nullptr; }
    [[nodiscard]] const Echelle& echelle() const override { return echelle_; }
    /// The controls have their widgets, which they get when the window is first shown.
    [[nodiscard]] bool habillee() const { return dimensionnee_; }
    [[nodiscard]] QFont fontedemenu() const override;
    [[nodiscard]] Vue* vuede(const Controle& controle) const;
    [[nodiscard]] QMenu* menu() const;
    [[nodiscard]] bool active() const override { return active_; }
    [[nodiscard]] QString chemin(std::string_view image) const override;

    void executer(const std::function<void()>& evenement) override;

    void modifie(ChampFormulaire champ) override;
    void adieu() override;

    void noter(Vue& vue) override;

    // The steps of a refresh, in this order. Each is done for all windows before the next one.
    void montrercontroles();
    void apparaitre();
    void rattacher();
    void disparaitre();
    void accorder();

    bool eventFilter(QObject* objet, QEvent* evenement) override;

  protected:
    void paintEvent(QPaintEvent* evenement) override;
    void resizeEvent(QResizeEvent* evenement) override;
    void closeEvent(QCloseEvent* evenement) override;
    void keyPressEvent(QKeyEvent* evenement) override;
    void keyReleaseEvent(QKeyEvent* evenement) override;
    bool event(QEvent* evenement) override;
    bool focusNextPrevChild(bool /*suivant*/) override { return false; }

  private:
    void completer();
    void empiler();
    void filtrer(QWidget& widget, Controle& controle);
    void montrerformulaire();
    void ouvrirdevant();
    /// Brings a window that is already shown back to the front.
    void revenir();
    void dimensionner();
    void redimensionner();
    void prendretaille(const QRect& place);
    /// The window is maximised or full screen, so the desktop decides its size.
    [[nodiscard]] bool agrandie() const { return isMaximized() || isFullScreen(); }
    /// Centres a window that is not shown in `place`, the usable part of a screen.
    void centrer(const QRect& place);
    void retenirtaille();
    void remettreechelle();
    void accorderfocus();
    void accorderdefaut();
    void activation(bool active);
    [[nodiscard]] QWidget& ciblefocus() const;
    void redessiner(const Controle* controle) const;
    void lacherfocus();
    void focusrecu(Controle& controle, Qt::FocusReason raison);
    [[nodiscard]] QSize tailledessinee() const;

    bool touche(QKeyEvent& evenement);
    void focaliserqt(QWidget& cible);
    bool touchelongue(Controle& controle, const QKeyEvent& evenement);
    bool pressepapiers(const Controle& controle, const QKeyEvent& evenement);
    void relacher(const QKeyEvent& evenement);

    Bureau& bureau_;
    Formulaire* formulaire_;
    Echelle echelle_;
    std::vector<Vue*> vues_;  ///< in the order of the form's controls; owned by Qt
    std::vector<Vue*> notees_;
    std::unordered_map<const Controle*, Vue*> parcontrole_;
    std::unordered_map<const QObject*, Controle*> parwidget_;
    std::unique_ptr<MenuContextuel> deroulant_;
    const Controle* defaut_ = nullptr;  ///< default button as last drawn
    const Controle* focus_ = nullptr;   ///< control with the focus as last drawn
    int plan_ = 0;             ///< stacking order of the controls up to which the views agree
    std::size_t entrees_ = 0;  ///< number of controls without a widget: entries of menus
    QSize design_;             ///< size in twips for which the window was last sized
    QSize demandee_;           ///< size that the window asked for; empty: the user chose one
    double voulue_ = 0;        ///< scale that the user wants, in pixels per twip
    unsigned champs_ = ~0U;
    bool dimensionnee_ = false;
    bool appelee_ = false;   ///< `Formulaire::montrer` was called
    bool attendue_ = false;  ///< to be resized to its design when no longer maximised
    bool accord_ = false;    ///< Qt's focus is being set from the model
    bool active_ = false;
};

}  // namespace ui::qt
