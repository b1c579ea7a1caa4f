#include "messages.h"

#include <memory>

#include <QMessageBox>
#include <QPointer>
#include <QPushButton>

#include "fenetre.h"
#include "fenetrier.h"
#include "texteqt.h"

namespace ui::qt {
namespace {

const QString programme = QStringLiteral("Orvane");

QMessageBox::Icon iconeqt(Icone icone) {
    switch (icone) {
        case Icone::Information:
            return QMessageBox::Information;
        case Icone::Exclamation:
            return QMessageBox::Warning;
        case Icone::Question:
            return QMessageBox::Question;
        default:
            return QMessageBox::NoIcon;
    }
}

/// A message box over a window; it lives until it is answered, or with its window.
QMessageBox* boitedemessage(QWidget* parent, QMessageBox::Icon icone, std::string_view texte) {
    auto* boite = new QMessageBox(icone, programme, versqt(texte), QMessageBox::NoButton, parent);
    boite->setTextFormat(Qt::PlainText);
    boite->setTextInteractionFlags(Qt::TextSelectableByMouse);
    boite->setWindowModality(Qt::ApplicationModal);
    return boite;
}

}  // namespace

Reponse demander(Fenetrier& fenetrier, std::string_view texte, Icone icone, bool ouinon) {
    fenetrier.rafraichir();
    const QPointer<QMessageBox> boite = boitedemessage(fenetrier.enavant(), iconeqt(icone), texte);
    const auto* oui = boite->addButton(ouinon ? QStringLiteral("Oui") : QStringLiteral("OK"),
                                       QMessageBox::YesRole);
    if (ouinon)
        boite->setEscapeButton(boite->addButton(QStringLiteral("Non"), QMessageBox::NoRole));
    boite->exec();
    if (boite.isNull())
        return ouinon ? Reponse::Non : Reponse::Ok;
    const std::unique_ptr<QMessageBox> fin(boite.data());
    if (!ouinon)
        return Reponse::Ok;
    return fin->clickedButton() == oui ? Reponse::Oui : Reponse::Non;
}

void rapporter(const Fenetrier& fenetrier, std::string_view rapport) {
    const QPointer<QMessageBox> boite =
        boitedemessage(fenetrier.enavant(), QMessageBox::Critical, rapport);
    boite->addButton(QStringLiteral("OK"), QMessageBox::AcceptRole);
    boite->exec();
    delete boite.data();
}

}  // namespace ui::qt
