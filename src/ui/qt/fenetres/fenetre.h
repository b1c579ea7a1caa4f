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

/// The window of a form: its whole design at the scale that fits, the way from the keyboard to the
/// model, and the focus of Qt kept where the model has it.
class Fenetre : public QWidget, public VueFormulaire, public Hote {
  public:
    Fenetre(Bureau& bureau, Formulaire& formulaire);
    Fenetre(const Fenetre&) = delete;
    Fenetre& operator=(const Fenetre&) = delete;
    ~Fenetre() override;

    [[nodiscard]] Formulaire& formulaire() const { return *formulaire_; }
    /// The form is gone; the window only waits for its end.
    [[nodiscard]] bool orpheline() const { return formulaire_ == nullptr; }
    [[nodiscard]] const Echelle& echelle() const override { return echelle_; }
    /// The controls have their widgets: the window was shown once.
    [[nodiscard]] bool habillee() const { return dimensionnee_; }
    [[nodiscard]] QFont fontedemenu() const override;
    [[nodiscard]] Vue* vuede(const Controle& controle) const;
    [[nodiscard]] QMenu* menu() const;
    /// The window, or a pop-up menu of its own, is the one that the user works in.
    [[nodiscard]] bool active() const override { return active_; }
    /// The working folder of the pictures.
    [[nodiscard]] QString chemin(std::string_view image) const override;

    /// Runs a report of the user into the model, then shows what it has changed.
    void executer(const std::function<void()>& evenement) override;

    void modifie(ChampFormulaire champ) override;
    void adieu() override;

    /// Told by a view that is to be brought to its control.
    void noter(Vue& vue) override;

    // The steps of a refresh, in this order, over all windows.
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
    /// A window that is shown already comes back in front.
    void revenir();
    void dimensionner();
    void redimensionner();
    void prendretaille(const QRect& place);
    /// The desktop gives the window its size.
    [[nodiscard]] bool agrandie() const { return isMaximized() || isFullScreen(); }
    /// Puts a window that is not shown in the middle of a screen.
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
    std::vector<Vue*> vues_;  ///< in the order of the form's controls; the widgets are owned by Qt
    std::vector<Vue*> notees_;
    std::unordered_map<const Controle*, Vue*> parcontrole_;
    std::unordered_map<const QObject*, Controle*> parwidget_;
    std::unique_ptr<MenuContextuel> deroulant_;
    const Controle* defaut_ = nullptr;  ///< default button, as drawn
    const Controle* focus_ = nullptr;   ///< control with the focus, as drawn
    int plan_ = 0;                      ///< up to which the views lie as their controls do
    std::size_t entrees_ = 0;           ///< controls without a widget: entries of menus
    QSize design_;                      ///< twips, at the last fitting
    QSize demandee_;                    ///< size that the window gave itself; empty: the user's own
    double voulue_ = 0;                 ///< pixels a twip: scale that the user wants to see
    unsigned champs_ = ~0U;
    bool dimensionnee_ = false;
    bool appelee_ = false;   ///< the form was asked for
    bool attendue_ = false;  ///< the window will take the size of its design when it isn't enlarged
    bool accord_ = false;    ///< the focus of Qt is being put where the model has it
    bool active_ = false;
};

}  // namespace ui::qt
