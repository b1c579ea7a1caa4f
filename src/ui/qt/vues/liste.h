#pragma once

#include "boite.h"

namespace ui::qt {

/// A combo box with an editable text: a text box whose arrow, or Down or F4, opens the entries.
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
    void cliquer() override {}  // the event of a list is the pick of an entry

  private:
    [[nodiscard]] QRectF placefleche() const;
    void derouler();
};

}  // namespace ui::qt
