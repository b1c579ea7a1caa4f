#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <vector>

#include <QObject>
#include <QPointer>
#include <QString>

#include "bureau.h"
#include "formulaire.h"
#include "minuteur.h"

class QMenu;
class QWidget;

namespace ui::qt {

/// Makes the windows of forms, keeps them up to date with the model, and drives the forms' timers.
/// It uses nothing of the platform but `executer`, so any platform can give its forms to one.
class Fenetrier : public QObject, public Bureau {
  public:
    struct Reglages {
        bool minuteries = true;         ///< drive the forms' timers from the machine's clock
        std::filesystem::path dossier;  ///< of the pictures; empty: the working folder
    };

    explicit Fenetrier(Plateforme& plateforme) : Fenetrier(plateforme, Reglages()) {}
    Fenetrier(Plateforme& plateforme, Reglages reglages);
    Fenetrier(const Fenetrier&) = delete;
    Fenetrier& operator=(const Fenetrier&) = delete;
    ~Fenetrier() override;

    /// Makes the window of a form, which becomes the form's view, and drives its timers if the
    /// settings say so. The controls get their views when the window is first shown.
    void accueillir(Formulaire& formulaire);

    /// The widget of a control; its object name is the control's full name. Null for an entry of a
    /// menu and for a control of a form that has no window here or was not yet shown.
    [[nodiscard]] QWidget* widget(const Controle& controle) const;
    /// The window of a form; null if it has none here.
    [[nodiscard]] Fenetre* fenetre(const Formulaire& formulaire) const;
    /// The pop-up menu of a form; null if none is open. The object names of its actions are the
    /// full names of the entries.
    [[nodiscard]] QMenu* menu(const Formulaire& formulaire) const;
    /// The windows of the forms that exist, in the order of `accueillir`.
    [[nodiscard]] const std::vector<Fenetre*>& fenetres() const { return fenetres_; }

    /// Brings the windows up to date with the model. Done after each event of the windows; after a
    /// change from elsewhere as soon as events run.
    void rafraichir();

    [[nodiscard]] Minuteur& minuteur() { return minuteur_; }

    [[nodiscard]] Fenetre* enavant() const override;
    [[nodiscard]] Fenetre* proprietaire() const override;
    [[nodiscard]] QString chemin(std::string_view image) const override;
    void executer(const std::function<void()>& evenement) override;
    void demanderrafraichissement() override;
    void activee(Fenetre& fenetre) override;
    void montree(Fenetre& fenetre) override { derniere_ = dessous_ = &fenetre; }
    void garderdevant(const Fenetre& fenetre) override;
    /// Sets the program's icon at the first call: loading it earlier would delay that window.
    void peinte() override;
    void oublier(Fenetre& fenetre, Formulaire& formulaire) override;

  protected:
    bool event(QEvent* evenement) override;

  private:
    void tour();

    Plateforme& plateforme_;
    Reglages reglages_;
    Minuteur minuteur_;
    std::vector<Fenetre*> fenetres_;
    std::vector<QPointer<Fenetre>> partantes_;  ///< windows of forms that were destroyed
    Fenetre* derniere_ = nullptr;               ///< active now or last, or about to be
    Fenetre* dessous_ = nullptr;                ///< last one activated or shown that is no dialog
    bool demande_ = false;
    bool encours_ = false;
    bool sale_ = false;
    bool icone_ = false;  ///< the icon was set, or will be
};

}  // namespace ui::qt
