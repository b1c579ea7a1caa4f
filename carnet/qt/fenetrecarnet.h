#pragma once

// The window of the carnet: its pages, their menus, and how far the long work is.

#include <QMainWindow>

#include "seance.h"

class QComboBox;
class QProgressBar;
class QPushButton;
class QTabWidget;

namespace carnet {

class Fenetrecarnet : public QMainWindow {
    Q_OBJECT
  public:
    explicit Fenetrecarnet(Seance& seance);
    /// First ends the long work, which uses the pages.
    ~Fenetrecarnet() override {
        seance_.tache().finir();
        seance_.lecture().finir();
    }

  protected:
    /// The trainer may have been played meanwhile.
    void changeEvent(QEvent* evenement) override;

  private:
    void garnir();
    void choisirjoueur();
    void suivre();

    Seance& seance_;
    QTabWidget* onglets_;
    QComboBox* joueurs_;
    QProgressBar* avance_;
    QPushButton* annuler_;
};

}  // namespace carnet
