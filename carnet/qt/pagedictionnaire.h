#pragma once

// The player's own dictionary: looked at, made into lists, taken back.

#include <memory>

#include <QWidget>

#include "dictionnaireperso.h"

class QLabel;
class QPlainTextEdit;
class QPushButton;

namespace carnet {

class Editions;
class Seance;

class Pagedictionnaire : public QWidget {
    Q_OBJECT
  public:
    Pagedictionnaire(Seance& seance, QWidget* parent);

  private:
    /// What was seen of a file.
    struct Examen {
        std::variant<Motslus, std::string> lus;
        Ecart ecart;
    };

    void choisir();
    void examiner(const QString& chemin);
    void montrer(const QString& chemin, Examen& examen);
    void faire();
    /// Years of the marks in force that a making would empty, as their editions are not given.
    [[nodiscard]] QString editionsperdues() const;
    void revenir();
    void fabriquerlistes(bool libre);
    void direenvigueur();
    void accorder();

    Seance& seance_;
    QLabel* envigueur_;
    QPushButton* choisir_;
    QPlainTextEdit* examen_;
    Editions* editions_;
    QPushButton* faire_;
    QPushButton* revenir_;
    QLabel* message_;
    QString fichier_;
    std::shared_ptr<Motslus> mots_;  // of the file that was looked at
};

}  // namespace carnet
