#include "editions.h"

#include <QFileDialog>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "textesqt.h"

namespace carnet {

Editions::Editions(QWidget* parent) : QWidget(parent) {
    auto* grille = new QGridLayout(this);
    grille->setContentsMargins({});
    for (std::size_t i = 0; i < saisies_.size(); ++i) {
        const auto libelle =
            i == 0 ? QStringLiteral("Édition d'avant ") + qt(atelier::editions.front().annee)
                   : QStringLiteral("Édition de ") + qt(atelier::editions.at(i - 1).annee);
        auto* saisie = new QLineEdit(this);
        saisie->setAccessibleName(libelle);
        saisie->setClearButtonEnabled(true);
        saisie->setPlaceholderText(QStringLiteral("un fichier de mots, si vous l'avez"));
        auto* nom = new QLabel(libelle, this);
        nom->setBuddy(saisie);
        auto* choisir = new QPushButton(QStringLiteral("Choisir…"), this);
        choisir->setAccessibleName(QStringLiteral("Choisir : ") + libelle);
        connect(saisie, &QLineEdit::textChanged, this, &Editions::change);
        connect(choisir, &QPushButton::clicked, this, [this, saisie, libelle] {
            const auto chemin = QFileDialog::getOpenFileName(this, libelle);
            if (!chemin.isEmpty())
                saisie->setText(chemin);
        });
        const auto rang = static_cast<int>(i);
        grille->addWidget(nom, rang, 0);
        grille->addWidget(saisie, rang, 1);
        grille->addWidget(choisir, rang, 2);
        saisies_.at(i) = saisie;
    }
}

Fichiersdeditions Editions::fichiers() const {
    Fichiersdeditions tous;
    for (std::size_t i = 0; i < saisies_.size(); ++i)
        tous.at(i) = utf8(saisies_.at(i)->text().trimmed());
    return tous;
}

}  // namespace carnet
