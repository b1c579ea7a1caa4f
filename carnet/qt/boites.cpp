#include "boites.h"

#include <QMessageBox>
#include <QPushButton>

namespace carnet {

void avertir(QWidget* parent, const QString& texte) {
    QMessageBox boite(QMessageBox::Warning, QStringLiteral("Attention"), texte,
                      QMessageBox::NoButton, parent);
    boite.addButton(QStringLiteral("OK"), QMessageBox::AcceptRole);
    boite.exec();
}

bool confirmer(QWidget* parent, const QString& texte, const QString& oui) {
    QMessageBox boite(QMessageBox::Question, QStringLiteral("Confirmer"), texte,
                      QMessageBox::NoButton, parent);
    auto* accepte = boite.addButton(oui, QMessageBox::AcceptRole);
    boite.setDefaultButton(boite.addButton(QStringLiteral("Annuler"), QMessageBox::RejectRole));
    boite.exec();
    return boite.clickedButton() == accepte;
}

}  // namespace carnet
