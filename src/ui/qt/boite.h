#pragma once

#include <QBasicTimer>
#include <QLineEdit>

#include "lignesaisie.h"
#include "vue.h"

namespace ui::qt {

/// A text box of one line. The model edits; the box shows text, caret and selection, and reports
/// what mouse, keyboard and input methods do. QLineEdit only lends its face to input methods and
/// assistive technologies.
class Boite : public VueDe<QLineEdit> {
  public:
    Boite(QWidget& parent, Fenetre& fenetre, Controle& controle);

    void accorder() override;

    [[nodiscard]] QVariant inputMethodQuery(Qt::InputMethodQuery question) const override;

  protected:
    void montrer(Champs champs) override;
    void cliquer() override;
    /// Room at the right end that is not for the text, in pixels of the design.
    [[nodiscard]] virtual double margedroite() const { return 0; }
    /// Draws what else the box holds.
    virtual void completer(QPainter& /*peintre*/) {}

    void paintEvent(QPaintEvent* evenement) override;
    void mousePressEvent(QMouseEvent* evenement) override;
    void mouseMoveEvent(QMouseEvent* evenement) override;
    void mouseReleaseEvent(QMouseEvent* evenement) override;
    void mouseDoubleClickEvent(QMouseEvent* evenement) override;
    void contextMenuEvent(QContextMenuEvent* evenement) override;
    void inputMethodEvent(QInputMethodEvent* evenement) override;
    void timerEvent(QTimerEvent* evenement) override;

  private:
    void battre();
    void poser(const QMouseEvent& evenement, bool etendre);
    void composer();
    void montrertexte();

    LigneSaisie ligne_;
    QBasicTimer battement_;
    bool eteint_ = false;  ///< the caret is in the dark half of its blink
    bool glisse_ = false;  ///< the mouse is selecting
};

}  // namespace ui::qt
