#pragma once

// How the pieces of a window are drawn. Lengths follow `unite`, the size of one pixel of the
// design, so that a window looks the same at every size.

#include <QColor>
#include <QRectF>

class QPainter;

namespace ui::qt::dessin {

/// What a button is going through.
struct Etat {
    bool actif = true;
    bool survole = false;
    bool enfonce = false;
    bool defaut = false;  ///< Enter clicks it
    bool focus = false;
};

enum class Bouton { Courant, Principal };

/// Draws a button and returns the colour for its text, given the colour asked for.
QColor bouton(QPainter& peintre, const QRectF& place, double unite, const QColor& face,
              Bouton genre, const Etat& etat, const QColor& encre);
/// A letter tile. Returns where its letter belongs.
QRectF tuile(QPainter& peintre, const QRectF& place, double unite, const QColor& fond,
             const Etat& etat);
/// The place of a tile that holds no letter.
void alveole(QPainter& peintre, const QRectF& place, double unite, const QColor& fond,
             const Etat& etat);

struct Boite {
    bool actif = true;
    bool focus = false;
    bool survole = false;
    double rayon = 4;  ///< pixels of the design
};

/// The body of a text box.
void boite(QPainter& peintre, const QRectF& place, double unite, const QColor& fond,
           const Boite& etat);
/// A frame: a light card on the colour of the form.
void carte(QPainter& peintre, const QRectF& place, double unite, const QColor& fond);
/// The square of a check box.
void coche(QPainter& peintre, const QRectF& place, double unite, bool cochee, const Etat& etat);
/// The ring that shows where the keyboard is, inside `place`.
void anneau(QPainter& peintre, const QRectF& place, double unite, double rayon);
/// An arrow that points down.
void fleche(QPainter& peintre, const QRectF& place, double unite, const QColor& encre);
/// Width of a hairline.
[[nodiscard]] double trait(double unite);

}  // namespace ui::qt::dessin
