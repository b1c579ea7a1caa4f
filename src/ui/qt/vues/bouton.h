#pragma once

#include <QPushButton>

#include "dessin.h"
#include "vue.h"

namespace ui::qt {

/// A button or a letter tile. Every press and release on it is a click, however fast they come.
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
    bool mesuree_ = false;  ///< waits for the first painting: a hidden button needs no font
};

}  // namespace ui::qt
