#pragma once

// Pictures, frames and lines.

#include <QFrame>
#include <QLabel>
#include <QPixmap>
#include <QString>

#include "vue.h"

namespace ui::qt {

/// A picture file, drawn from its sharpest variant.
class Image : public VueDe<QLabel> {
  public:
    using VueDe::VueDe;

  protected:
    void paintEvent(QPaintEvent* evenement) override;

  private:
    void charger();

    // What is drawn is kept: the cache of Qt refuses the large pictures of dense screens.
    QPixmap vignette_;
    QString chemin_;  ///< where it comes from
    QSize place_;     ///< pixels that it was made for
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
