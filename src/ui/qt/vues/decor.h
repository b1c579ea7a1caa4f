#pragma once

// Pictures, frames and lines.

#include <QFrame>
#include <QLabel>
#include <QPixmap>
#include <QString>

#include "vue.h"

namespace ui::qt {

/// A picture, sharp at the size at which it is drawn.
class Image : public VueDe<QLabel> {
  public:
    using VueDe::VueDe;

  protected:
    void paintEvent(QPaintEvent* evenement) override;

  private:
    void charger();

    // Kept here, as the large pictures of high-density screens do not fit Qt's cache.
    QPixmap vignette_;
    QString chemin_;  ///< file that `vignette_` was made from
    QSize place_;     ///< size that it was made for, in pixels
};

/// A frame: a light card with the control's text as its heading.
class Cadre : public VueDe<QFrame> {
  public:
    using VueDe::VueDe;

  protected:
    void paintEvent(QPaintEvent* evenement) override;
};

/// A line, horizontal or vertical along the longer side of the control.
class Ligne : public VueDe<QFrame> {
  public:
    using VueDe::VueDe;

  protected:
    [[nodiscard]] QRect place() const override;
    void paintEvent(QPaintEvent* evenement) override;
};

}  // namespace ui::qt
