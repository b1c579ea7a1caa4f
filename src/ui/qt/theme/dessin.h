#pragma once

// Draws the parts of a window. `unite` is the size of one pixel of the design, in pixels of the
// window; every length is a multiple of it, so that a window looks the same at every size.

#include <QColor>
#include <QRectF>

class QPainter;

namespace ui::qt::dessin {

/// The state of a button.
struct Etat {
    bool actif = true;
    bool survole = false;
    bool enfonce = false;
    bool defaut = false;  ///< the default button, which Enter clicks
    bool focus = false;
};

/// An ordinary button, or the one that stands out.
enum class Bouton { Courant, Principal };

/// Draws a button. Returns the colour of its text: `encre`, or the one that suits its state.
QColor bouton(QPainter& peintre, const QRectF& place, double unite, const QColor& face,
              Bouton genre, const Etat& etat, const QColor& encre);
/// Draws a letter tile. Returns the rectangle in which to draw its letter.
QRectF tuile(QPainter& peintre, const QRectF& place, double unite, const QColor& fond,
             const Etat& etat);
/// Draws the empty place of a tile without a letter.
void alveole(QPainter& peintre, const QRectF& place, double unite, const QColor& fond,
             const Etat& etat);

/// The state and shape of a text box.
struct Boite {
    bool actif = true;
    bool focus = false;
    bool survole = false;
    double rayon = 4;  ///< of the corners, in pixels of the design
};

/// Of the corners of a clock, in pixels of the design.
inline constexpr double rayonhorloge = 8;

/// Draws the background and the edge of a text box.
void boite(QPainter& peintre, const QRectF& place, double unite, const QColor& fond,
           const Boite& etat);
/// Draws a frame: a card lighter than `fond`, the colour of its form.
void carte(QPainter& peintre, const QRectF& place, double unite, const QColor& fond);
/// Draws the square of a check box, with its tick if `cochee`.
void coche(QPainter& peintre, const QRectF& place, double unite, bool cochee, const Etat& etat);
/// Draws the focus ring along the inside of `place`.
void anneau(QPainter& peintre, const QRectF& place, double unite, double rayon);
/// Draws an arrow that points down.
void fleche(QPainter& peintre, const QRectF& place, double unite, const QColor& encre);
/// Width of the thinnest line, in pixels of the window.
[[nodiscard]] double trait(double unite);

}  // namespace ui::qt::dessin
