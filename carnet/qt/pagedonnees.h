#pragma once

// A player's folder, copied elsewhere and brought back.

#include <functional>
#include <string>

#include <QWidget>

#include "sauvegarde.h"

class QLabel;
class QPushButton;

namespace carnet {

class Seance;

class Pagedonnees : public QWidget {
    Q_OBJECT
  public:
    Pagedonnees(Seance& seance, QWidget* parent);

  private:
    void accorder();
    void copier();
    void remettre();
    void revenir(const std::filesystem::path& copie, const Sauvegarde::Retour& retour);
    [[nodiscard]] bool accord(const Sauvegarde::Retour& retour);
    void lancer(std::function<Issue(const Avancecopie&)> travail, bool retour);
    void dire(const Issue& issue, bool retour);
    void inscrire(const std::string& util);

    Seance& seance_;
    QLabel* joueur_;
    QPushButton* copier_;
    QPushButton* remettre_;
    QLabel* message_;
};

}  // namespace carnet
