#pragma once

#include <QPushButton>

#include "dessin.h"
#include "vue.h"

namespace ui::qt {

/// A button or a letter tile. Each press and release is a click, the second of a double click
/// too.
class Bouton : public VueDe<QPushButton> {
  public:
    Bouton(QWidget& parent, Hote& hote, Controle& controle);

  protected:
    [[nodiscard]] bool clicnatif() const override { return true; }
    void montrer(Champs champs) override;
    void paintEvent(QPaintEvent* evenement) override;

  private:
    [[nodiscard]] dessin::Etat etat() const;
    void mesurer();
    void peindretuile(QPainter& peintre);

    QFont ajustee_;
    bool mesuree_ = false;  ///< `ajustee_` is known; it is worked out at the first painting
};

}  // namespace ui::qt
