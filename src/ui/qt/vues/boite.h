#pragma once

#include <QBasicTimer>
#include <QLineEdit>

#include "lignesaisie.h"
#include "vue.h"

namespace ui::qt {

/// A text box of one line. The model edits; the box shows text, caret and selection, and reports
/// what mouse, keyboard, input methods and assistive technologies do. QLineEdit only lends its face
/// to the last two.
class Boite : public VueDe<QLineEdit> {
  public:
    Boite(QWidget& parent, Hote& hote, Controle& controle);

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
    void focusInEvent(QFocusEvent* evenement) override;
    void focusOutEvent(QFocusEvent* evenement) override;
    void timerEvent(QTimerEvent* evenement) override;

  private:
    void battre();
    void poser(const QMouseEvent& evenement, bool etendre);
    void composer();
    void montrertexte();
    void recevoirtexte();
    void recevoirselection();
    void retablir();

    LigneSaisie ligne_;
    QBasicTimer battement_;
    bool eteint_ = false;  ///< the caret is in the dark half of its blink
    bool glisse_ = false;  ///< the mouse is selecting
    bool sien_ = false;    ///< QLineEdit changes by this window's doing, or by a habit of its own
};

}  // namespace ui::qt
