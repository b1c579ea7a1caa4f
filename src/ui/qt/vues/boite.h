#pragma once

#include <QBasicTimer>
#include <QLineEdit>

#include "lignesaisie.h"
#include "vue.h"

namespace ui::qt {

/// A text box of one line. The model edits the text; the box shows text, caret and selection, and
/// reports what mouse, input methods and assistive technologies do. QLineEdit only serves as the
/// interface to the last two.
class Boite : public VueDe<QLineEdit> {
  public:
    Boite(QWidget& parent, Hote& hote, Controle& controle);

    void accorder() override;

    [[nodiscard]] QVariant inputMethodQuery(Qt::InputMethodQuery question) const override;

  protected:
    void montrer(Champs champs) override;
    void cliquer() override;
    /// Width at the right end that is kept free of text, in pixels of the design.
    [[nodiscard]] virtual double margedroite() const { return 0; }
    /// Draws what the box holds beside its text.
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
    bool eteint_ = false;  ///< the blinking caret is hidden
    bool glisse_ = false;  ///< the user is selecting with the mouse
    bool sien_ = false;    ///< QLineEdit is changing, but not by the user's action
};

}  // namespace ui::qt
