#pragma once

#include <QLabel>

#include "vue.h"

namespace ui::qt {

/// A label: its text breaks at blanks, and is drawn smaller rather than clipped.
class Etiquette : public VueDe<QLabel> {
  public:
    Etiquette(QWidget& parent, Hote& hote, Controle& controle);

  protected:
    void montrer(Champs champs) override;
    void paintEvent(QPaintEvent* evenement) override;

  private:
    [[nodiscard]] QRectF placetexte() const;
    void mesurer();

    QFont ajustee_;
    Qt::Alignment verticale_;
    bool mesuree_ = false;  ///< waits for the first painting: a hidden label needs no font
};

}  // namespace ui::qt
