#pragma once

#include <QLabel>

#include "vue.h"

namespace ui::qt {

/// A label. Its text is wrapped at spaces and drawn smaller rather than cut off.
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
    bool mesuree_ = false;  ///< `ajustee_` is known; it is worked out at the first painting
};

}  // namespace ui::qt
