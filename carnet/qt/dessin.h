#pragma once

// Pictures of numbers, drawn with the palette and the font of the system. Each can be read without
// its colours: by figures, lengths, filled shares and shapes.

#include <map>
#include <variant>
#include <vector>

#include <QString>
#include <QWidget>

#include "progres.h"
#include "travail.h"

namespace carnet {

struct Barre {
    QString nom;
    double valeur = 0;
    QString dit;         ///< its value, as text
    double repere = -1;  ///< value at which a line is drawn across the bar; negative: none
};
/// Columns from left to right, or bars from top to bottom where the names are long.
struct Barres {
    std::vector<Barre> barres;
    bool couchees = false;
    QString legende{};
};
/// Twelve months from a given one on, a cell for each day.
struct Annee {
    int annee = 0;
    int mois = 1;
    std::map<Jour, Journee> journees;
};
/// Percents over time.
struct Nuage {
    std::vector<Passage> points;
};

using Sujet = std::variant<Barres, Annee, Nuage>;

class Dessin : public QWidget {
    Q_OBJECT
  public:
    using QWidget::QWidget;

    void montrer(Sujet sujet);
    /// The whole picture, at twice its size on the screen.
    [[nodiscard]] QImage image();

  protected:
    void paintEvent(QPaintEvent* evenement) override;
    void changeEvent(QEvent* evenement) override;

  private:
    void mesurer();

    Sujet sujet_;
};

/// How each kind of picture is drawn in a rectangle. The painter has font and pen of the text.
void peindre(QPainter& peintre, const QRectF& place, const QPalette& palette, const Barres& barres);
void peindre(QPainter& peintre, const QRectF& place, const QPalette& palette, const Annee& annee);
void peindre(QPainter& peintre, const QRectF& place, const QPalette& palette, const Nuage& nuage);

}  // namespace carnet
