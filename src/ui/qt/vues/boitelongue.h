#pragma once

#include <QPlainTextEdit>

#include "vue.h"

namespace ui::qt {

/// A text box of several lines. Qt edits the text, and the box reports it to the model.
class BoiteLongue : public VueDe<QPlainTextEdit> {
  public:
    BoiteLongue(QWidget& parent, Hote& hote, Controle& controle);

  protected:
    void montrer(Champs champs) override;
    bool event(QEvent* evenement) override;
    bool viewportEvent(QEvent* evenement) override;
    void keyPressEvent(QKeyEvent* evenement) override;
    void contextMenuEvent(QContextMenuEvent* evenement) override;

  private:
    void peindrecadre();
    void rapportertexte();

    bool montre_ = false;  ///< the text is being set from the model
    bool remise_ = false;  ///< its font or its place has changed since it was laid out
};

}  // namespace ui::qt
