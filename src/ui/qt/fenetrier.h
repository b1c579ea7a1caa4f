#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <vector>

#include <QObject>
#include <QPointer>
#include <QString>

#include "formulaire.h"
#include "minuteur.h"

class QMenu;
class QWidget;

namespace ui::qt {

class Fenetre;

/// Makes the windows of forms, keeps them in step with the model, and drives the forms' timers. It
/// knows nothing of clock, disk or network: any platform may hand its forms to one.
class Fenetrier : public QObject {
  public:
    struct Reglages {
        bool minuteries = true;         ///< drive the forms' timers by the machine's clock
        std::filesystem::path dossier;  ///< of the pictures; empty: the working folder
    };

    explicit Fenetrier(Plateforme& plateforme) : Fenetrier(plateforme, Reglages()) {}
    Fenetrier(Plateforme& plateforme, Reglages reglages);
    Fenetrier(const Fenetrier&) = delete;
    Fenetrier& operator=(const Fenetrier&) = delete;
    ~Fenetrier() override;

    /// Gives a form its window (as the form's view) and, if asked for, its timers their beat. The
    /// controls get their widgets (as their views) when the window is first shown.
    void accueillir(Formulaire& formulaire);

    /// The widget that shows a control, its object name the control's full name; null for an entry
    /// of a menu, and for a control of a form that has no window here or was not shown yet.
    [[nodiscard]] QWidget* widget(const Controle& controle) const;
    /// The window of a form; null if it has none here.
    [[nodiscard]] Fenetre* fenetre(const Formulaire& formulaire) const;
    /// The pop-up menu of a form, if it is on screen. Its actions bear the full names of the
    /// entries as object names.
    [[nodiscard]] QMenu* menu(const Formulaire& formulaire) const;
    /// The window that is in front, or was last; null if none is shown.
    [[nodiscard]] Fenetre* enavant() const;
    /// The window that those of forms that stay in front belong to: of the others the one that was
    /// active or shown last. Null if none is shown.
    [[nodiscard]] Fenetre* proprietaire() const;
    [[nodiscard]] const std::vector<Fenetre*>& fenetres() const { return fenetres_; }

    /// Runs an event in the model, then brings the windows to it.
    void executer(const std::function<void()>& evenement);
    /// Brings the windows to the model. Done after every event of the windows, and by itself, as
    /// soon as events run, after a change from elsewhere.
    void rafraichir();

    [[nodiscard]] Minuteur& minuteur() { return minuteur_; }
    /// The system's path of a picture.
    [[nodiscard]] QString chemin(std::string_view image) const;

    // Told by the windows.
    void demanderrafraichissement();
    void activee(Fenetre& fenetre);
    /// A window that others may belong to is about to show itself.
    void montree(Fenetre& fenetre) { dessous_ = &fenetre; }
    /// A window has come in front of the others, but for those of forms that stay there.
    void garderdevant(const Fenetre& fenetre);
    /// A window is on screen: the program's icon, whose files take their time, may follow.
    void peinte();
    void oublier(Fenetre& fenetre, Formulaire& formulaire);

  protected:
    bool event(QEvent* evenement) override;

  private:
    void tour();

    Plateforme& plateforme_;
    Reglages reglages_;
    Minuteur minuteur_;
    std::vector<Fenetre*> fenetres_;
    std::vector<QPointer<Fenetre>> partantes_;  ///< windows of forms that are gone
    Fenetre* derniere_ = nullptr;               ///< last one activated
    Fenetre* dessous_ = nullptr;  ///< last one activated or shown, but for those in front
    bool demande_ = false;
    bool encours_ = false;
    bool sale_ = false;
    bool icone_ = false;  ///< asked for
};

}  // namespace ui::qt
