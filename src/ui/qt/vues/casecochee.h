#pragma once

#include <QCheckBox>

#include "vue.h"

namespace ui::qt {

/// A check box. The widget only reports the click; it is the model that ticks the box.
class CaseCochee : public VueDe<QCheckBox> {
  public:
    CaseCochee(QWidget& parent, Hote& hote, Controle& controle);

  protected:
    [[nodiscard]] bool clicnatif() const override { return true; }
    void montrer(Champs champs) override;
    void nextCheckState() override {}
    [[nodiscard]] bool hitButton(const QPoint& point) const override {
        return rect().contains(point);
    }
    void paintEvent(QPaintEvent* evenement) override;

  private:
    [[nodiscard]] QRectF carre() const;
    [[nodiscard]] QRectF placetexte() const;

    QFont ajustee_;
};

}  // namespace ui::qt
