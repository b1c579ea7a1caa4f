#pragma once

// The line of a text box, as it stands in its place: where each character lies, and how it is
// drawn with caret and selection.

#include <cstddef>

#include <QColor>
#include <QFont>
#include <QRectF>
#include <QString>

#include "valeurs.h"

class QPaintDevice;
class QPainter;

namespace ui::qt {

class LigneSaisie {
  public:
    /// Sets the text in its place. A text too wide for it is drawn smaller; one that would become
    /// too small to read slides, so that the caret stays in sight.
    void composer(const QString& texte, const QFont& fonte, const QRectF& place,
                  Alignement alignement, const QPaintDevice& support);
    void poserselection(std::size_t ancre, std::size_t curseur);

    /// Where the character (0 is the first) nearest to a horizontal place begins.
    [[nodiscard]] std::size_t caractere(double x) const;
    /// Where the caret stands.
    [[nodiscard]] QRectF curseur(double epaisseur) const;
    void peindre(QPainter& peintre, const QColor& encre, bool avecselection) const;

  private:
    [[nodiscard]] double largeur(int unites) const;
    void decouper(qsizetype debut);
    void suivre(qsizetype curseur);

    QString complet_;
    QString texte_;  ///< the stretch of it that is laid out: all of it, unless it is very long
    qsizetype debut_ = 0;    ///< where that stretch begins
    std::size_t avant_ = 0;  ///< characters before it
    Alignement alignement_{};
    QFont fonte_;
    QRectF place_;
    double depart_ = 0;   ///< where the text begins, before it slides
    double glisse_ = 0;   ///< how far it has slid to the left
    double hauteur_ = 0;  ///< of the font
    double entiere_ = 0;  ///< width of the whole text
    int ancre_ = 0;       ///< code units of Qt
    int curseur_ = 0;
};

}  // namespace ui::qt
