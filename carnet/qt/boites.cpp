#include "boites.h"

#include <filesystem>

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QPushButton>

#include "chemin.h"
#include "disquereel.h"
#include "textesqt.h"

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

QString ouenregistrer(QWidget* parent, const QString& titre, const QString& nom,
                      const QString& filtre) {
    QFileDialog boite(parent, titre, QDir::homePath(), filtre);
    boite.setAcceptMode(QFileDialog::AcceptSave);
    boite.setDefaultSuffix(QFileInfo(nom).suffix());
    boite.selectFile(nom);
    return boite.exec() == QDialog::Accepted ? boite.selectedFiles().value(0) : QString();
}

bool ecrirefichier(QWidget* parent, const QString& chemin, const std::string& octets) {
    const auto fichier = common::chemin(utf8(chemin));
    common::DisqueReel disque(fichier.parent_path());
    const auto erreur = disque.remplacer(fichier.filename().string(), octets);
    if (erreur)
        avertir(parent, chemin + QStringLiteral(" ne peut être écrit : ") +
                            qt(common::raison(erreur)) + QLatin1Char('.'));
    return !erreur;
}

}  // namespace carnet
