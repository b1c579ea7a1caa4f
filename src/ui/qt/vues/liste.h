#pragma once

#include "boite.h"

namespace ui::qt {

/// An editable combo box: a text box with an arrow. A click on the arrow, Down or F4 opens the list
/// of entries.
class Liste : public Boite {
  public:
    Liste(QWidget& parent, Hote& hote, Controle& controle);

    bool touchepropre(const QKeyEvent& evenement) override;

  protected:
    [[nodiscard]] double margedroite() const override;
    [[nodiscard]] QString description() const override;
    void completer(QPainter& peintre) override;
    void mousePressEvent(QMouseEvent* evenement) override;
    void mouseMoveEvent(QMouseEvent* evenement) override;
    void cliquer() override {}  // the event of a combo box is the choice of an entry

  private:
    [[nodiscard]] QRectF placefleche() const;
    void derouler();
};

}  // namespace ui::qt
