#pragma once

// Pictures, frames and lines.

#include <QFrame>
#include <QLabel>

#include "vue.h"

namespace ui::qt {

/// A picture file, drawn from its sharpest variant.
class Image : public VueDe<QLabel> {
  public:
    using VueDe::VueDe;

  protected:
    void paintEvent(QPaintEvent* evenement) override;
};

/// A frame: a light card, its text as a heading.
class Cadre : public VueDe<QFrame> {
  public:
    using VueDe::VueDe;

  protected:
    void paintEvent(QPaintEvent* evenement) override;
};

/// A line along the longer side of its place.
class Ligne : public VueDe<QFrame> {
  public:
    using VueDe::VueDe;

  protected:
    [[nodiscard]] QRect place() const override;
    void paintEvent(QPaintEvent* evenement) override;
};

}  // namespace ui::qt
