#pragma once

// What is due: today, in the next days, by step; and the list of the day for the trainer.

#include <QWidget>

class QLabel;
class QPushButton;
class QSpinBox;

namespace carnet {

class Planche;
class Seance;

class Pagerevoir : public QWidget {
    Q_OBJECT
  public:
    Pagerevoir(Seance& seance, QWidget* parent);

  protected:
    void showEvent(QShowEvent* evenement) override;

  private:
    QWidget* planches();
    void montrer();
    void compter();
    void montrerplanches();
    void changerplafond();
    void dire(const QString& texte);
    void preparer();

    Seance& seance_;
    QLabel* compte_;
    QLabel* detail_;
    QSpinBox* plafond_;
    QPushButton* preparer_;
    QLabel* message_;
    QWidget* planches_ = nullptr;  ///< the pictures, once there is something to show
    Planche* jours_;
    Planche* paliers_;
};

}  // namespace carnet
