#pragma once

// The text line of a box: the position of each character, the caret, and the drawing of the line.

#include <cstddef>

#include <QColor>
#include <QFont>
#include <QRectF>
#include <QString>

#include "valeurs.h"

class QPaintDevice;
class QPainter;

namespace ui::qt {

/// Texts are those of Qt; positions given to and by its operations count characters, and lengths
/// are pixels of the box.
class LigneSaisie {
  public:
    /// Lays out a text in `place`. One too wide is drawn smaller; one that would become too small
    /// to read scrolls instead, so that the caret stays visible.
    void composer(const QString& texte, const QFont& fonte, const QRectF& place,
                  Alignement alignement, const QPaintDevice& support);
    /// Sets the fixed end of the selection and the caret, and scrolls to the caret.
    void poserselection(std::size_t ancre, std::size_t curseur);

    /// Position of the gap between characters that is nearest to `x`: 0 is before the first.
    [[nodiscard]] std::size_t caractere(double x) const;
    /// The rectangle of a caret of this width.
    [[nodiscard]] QRectF curseur(double epaisseur) const;
    /// Draws the text, and the selection if asked for, but not the caret.
    void peindre(QPainter& peintre, const QColor& encre, bool avecselection) const;

  private:
    [[nodiscard]] double largeur(int unites) const;
    void decouper(qsizetype debut);
    void suivre(qsizetype curseur);

    QString complet_;
    QString texte_;          ///< part of it that is laid out: all of it, unless it is very long
    qsizetype debut_ = 0;    ///< where that part begins, in code units
    std::size_t avant_ = 0;  ///< number of characters before it
    Alignement alignement_{};
    QFont fonte_;
    QRectF place_;
    double depart_ = 0;   ///< left end of the text before scrolling
    double glisse_ = 0;   ///< how far it is scrolled to the left
    double hauteur_ = 0;  ///< of the font
    double entiere_ = 0;  ///< width of `texte_`
    int ancre_ = 0;       ///< in code units, as is `curseur_`
    int curseur_ = 0;
};

}  // namespace ui::qt
