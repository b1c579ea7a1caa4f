#pragma once

// The criteria of a search, as a form.

#include <vector>

#include <QLabel>
#include <QRandomGenerator>
#include <QWidget>

#include "criteres.h"

class QComboBox;

namespace carnet {

class Criteres : public QWidget {
    Q_OBJECT
  public:
    explicit Criteres(QWidget* parent);

    /// The search as a text; empty if nothing is filled in.
    [[nodiscard]] QString texte() const;
    /// Files of the folder of the lists, offered where a list is asked for.
    void proposerlistes(const QStringList& fichiers);
    /// Shows what is wrong beside the field that it is about; an empty refusal clears.
    void dire(const recherche::Refus& refus);
    void effacer();

  signals:
    void change();

  private:
    struct Champ {
        QString cle;
        QWidget* saisie;
        QLabel* ennui;
    };
    QWidget* ajouter(const char* cle, const char* libelle, QWidget* saisie, const char* aide);
    QWidget* ligne(const char* indication);
    QWidget* choix(const std::vector<std::pair<const char*, const char*>>& choix);
    QWidget* listes();
    QWidget* natures();
    [[nodiscard]] QString valeurnatures() const;
    [[nodiscard]] QString valeur(const Champ& champ) const;

    std::vector<Champ> champs_;
    std::vector<QComboBox*> natures_;
    quint32 graine_ = QRandomGenerator::global()->generate();  ///< of the order by chance
};

}  // namespace carnet
