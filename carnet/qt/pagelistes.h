#pragma once

// Lists by search: criteria, what they find at once, and what can be done with it.

#include <optional>

#include <QWidget>

#include "recherche.h"

class QLabel;
class QTableView;

namespace carnet {

class Criteres;
class Modelemots;
class Seance;

class Pagelistes : public QWidget {
    Q_OBJECT
  public:
    Pagelistes(Seance& seance, QWidget* parent);

  private:
    QWidget* resultats();
    void agir();
    void chercher();
    void montrer(const recherche::Demande& demande);
    void proposer();
    /// The rows of what is found, to be played, or for paper; nothing, once it has been said why.
    [[nodiscard]] std::optional<recherche::Liste> liste();
    [[nodiscard]] std::optional<recherche::Liste> papier();
    [[nodiscard]] std::optional<recherche::Liste> remplie(recherche::Liste liste);
    void enregistrer();
    void ecrire(const QString& nom);
    void imprimer();
    void enpdf();
    void copier();
    void verifier();
    void action(const char* libelle, const QKeySequence& raccourci, void (Pagelistes::*faire)(),
                bool surliste);

    Seance& seance_;
    Criteres* criteres_;
    Modelemots* modele_;
    QTableView* table_;
    QLabel* compte_;
    QLabel* message_;
    std::vector<QAction*> surliste_;  // need something found
};

}  // namespace carnet
