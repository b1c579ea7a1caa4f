#include "boitelongue.h"

#include <cmath>
#include <string>
#include <utility>

#include <QContextMenuEvent>
#include <QPainter>
#include <QScrollBar>

#include "dessin.h"
#include "menuedition.h"
#include "texte.h"
#include "texteqt.h"
#include "theme.h"

namespace ui::qt {
namespace {

constexpr double margelongue = 5;  // pixels of the design
constexpr double rayonlongue = 8;

QString lignesqt(std::string_view texte) {
    return versqt(texte).replace(QLatin1String("\r\n"), QLatin1String("\n"));
}

}  // namespace

BoiteLongue::BoiteLongue(QWidget& parent, Hote& hote, Controle& controle)
    : VueDe(parent, hote, controle) {
    setFrameShape(QFrame::NoFrame);
    setUndoRedoEnabled(false);
    setAcceptDrops(false);
    if (controle.ascenseur)
        setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    viewport()->setAcceptDrops(false);
    viewport()->setAutoFillBackground(false);
    viewport()->setMouseTracking(true);
    QObject::connect(this, &QPlainTextEdit::textChanged, this, [this] { rapportertexte(); });
}

void BoiteLongue::montrer(Champs champs) {
    // The document is laid out at once: not before somebody sees it.
    remise_ = remise_ || (champs & (champsfonte | champsplace)) != 0;
    if (controle()->visible() && std::exchange(remise_, false)) {
        setFont(fonte());
        const int bord = static_cast<int>(std::lround(margelongue * unite()));
        setViewportMargins(bord, bord, bord, bord);
    }
    if ((champs & ensemble(Champ::Verrou)) != 0)
        setReadOnly(controle()->verrou());
    if ((champs & ensemble(Champ::Couleur)) != 0) {
        auto couleurs = palette();
        couleurs.setColor(QPalette::Text, encreqt(controle()->couleur()));
        setPalette(couleurs);
    }
    if ((champs & ensemble(Champ::Texte)) == 0)
        return;
    const auto voulu = lignesqt(controle()->texte());
    if (voulu == toPlainText())
        return;
    montre_ = true;
    setPlainText(voulu);
    montre_ = false;
}

void BoiteLongue::rapportertexte() {
    if (montre_ || controle() == nullptr)
        return;
    auto nouveau = toPlainText();
    if (controle()->texte().find(common::findeligne) != std::string::npos)
        nouveau.replace(QLatin1String("\n"), QLatin1String("\r\n"));
    executer([&] { controle()->texte = depuisqt(nouveau); });
}

bool BoiteLongue::event(QEvent* evenement) {
    if (evenement->type() == QEvent::Paint) {
        peindrecadre();
        return true;
    }
    return VueDe::event(evenement);
}

void BoiteLongue::peindrecadre() {
    if (controle() == nullptr)
        return;
    QPainter peintre(this);
    dessin::boite(peintre, QRectF(rect()), unite(), couleurqt(controle()->fond()),
                  {.actif = isEnabled(), .focus = alefocus(), .rayon = rayonlongue});
}

bool BoiteLongue::viewportEvent(QEvent* evenement) {
    avant(*evenement);
    const bool recu = QPlainTextEdit::viewportEvent(evenement);
    apres(*evenement);
    return recu;
}

void BoiteLongue::keyPressEvent(QKeyEvent* evenement) {
    QPlainTextEdit::keyPressEvent(evenement);
    evenement->accept();  // the window has seen it already
}

void BoiteLongue::contextMenuEvent(QContextMenuEvent* evenement) {
    evenement->accept();
    const bool choisi = textCursor().hasSelection();
    const bool libre = !isReadOnly();
    deroulermenuedition(*this, evenement->globalPos(), fontedemenu(),
                        {.couper = {libre && choisi, [this] { cut(); }},
                         .copier = {choisi, [this] { copy(); }},
                         .coller = {libre && canPaste(), [this] { paste(); }},
                         .toutselectionner = {true, [this] { selectAll(); }}});
}

}  // namespace ui::qt
