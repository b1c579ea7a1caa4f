#pragma once

// The progress of a player: calendar, days to come, steps, lists, hardest racks; each as a picture
// with its table.

#include <string>
#include <vector>

#include <QWidget>

class QComboBox;
class QLabel;

namespace carnet {

class Planche;
class Seance;

class Pageprogres : public QWidget {
    Q_OBJECT
  public:
    Pageprogres(Seance& seance, QWidget* parent);

  protected:
    void showEvent(QShowEvent* evenement) override;

  private:
    enum class Vue { calendrier, jours, echelle, listes, liste, durs };

    QWidget* choix();
    QWidget* boutons();
    QAction* action(const char* libelle, const QKeySequence& raccourci,
                    void (Pageprogres::*faire)());
    [[nodiscard]] Vue vue() const;
    void proposer();
    void montrer();
    void montrervue(Vue vue);
    void montrerannee();
    void enimage();
    void encsv();
    void faireliste();
    void dire(const QString& texte);
    void ecrire(const QString& chemin, const std::string& octets);

    Seance& seance_;
    QComboBox* vues_;
    QLabel* titredequoi_;
    QComboBox* dequoi_;  ///< the year, or the list
    QLabel* vide_;
    Planche* planche_;
    QAction* surlesdurs_;
    std::vector<QAction*> surimage_;
    QLabel* message_;
};

}  // namespace carnet
