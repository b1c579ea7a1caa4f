#include "constats.h"

#include <algorithm>

#include <QDialog>
#include <QDialogButtonBox>
#include <QFileInfo>
#include <QHeaderView>
#include <QLabel>
#include <QTableWidget>
#include <QVBoxLayout>

#include "textesqt.h"

namespace carnet {
namespace {

/// Findings that are shown one by one.
constexpr std::size_t montresmax = 1000;

QTableWidget* tableau(QWidget* parent, const std::vector<atelier::Constat>& constats) {
    const auto nombre = static_cast<int>(std::min(constats.size(), montresmax));
    auto* table = new QTableWidget(nombre, 2, parent);
    table->setHorizontalHeaderLabels({QStringLiteral("Ligne"), QStringLiteral("Constat")});
    table->setAccessibleName(QStringLiteral("Constats"));
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setTabKeyNavigation(false);
    table->setWordWrap(true);
    table->verticalHeader()->hide();
    for (int i = 0; i < nombre; ++i) {
        const auto& constat = constats[static_cast<std::size_t>(i)];
        table->setItem(
            i, 0,
            new QTableWidgetItem(constat.ligne > 0 ? QString::number(constat.ligne) : QString()));
        const bool remarque = constat.gravite == atelier::Gravite::remarque;
        table->setItem(i, 1,
                       new QTableWidgetItem((remarque ? QStringLiteral("remarque : ") : QString()) +
                                            qt(constat.ennui)));
    }
    table->horizontalHeader()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    table->horizontalHeader()->setStretchLastSection(true);
    return table;
}

}  // namespace

void montrerconstats(QWidget* parent, const QString& fichier,
                     const std::vector<atelier::Constat>& constats) {
    QDialog boite(parent);
    boite.setWindowTitle(QStringLiteral("Vérification de ") + QFileInfo(fichier).fileName());
    auto* mise = new QVBoxLayout(&boite);
    const auto fautes = static_cast<std::size_t>(std::count_if(
        constats.begin(), constats.end(),
        [](const atelier::Constat& c) { return c.gravite == atelier::Gravite::faute; }));
    auto* resume =
        new QLabel(fautes > 0 ? compte(fautes, QStringLiteral("faute."), QStringLiteral("fautes."))
                              : QStringLiteral("Aucune faute : cette liste se joue."),
                   &boite);
    resume->setObjectName(QStringLiteral("resume"));
    mise->addWidget(resume);
    if (!constats.empty())
        mise->addWidget(tableau(&boite, constats));
    auto* boutons = new QDialogButtonBox(&boite);
    boutons->addButton(QStringLiteral("Fermer"), QDialogButtonBox::RejectRole);
    QObject::connect(boutons, &QDialogButtonBox::rejected, &boite, &QDialog::reject);
    mise->addWidget(boutons);
    if (!constats.empty())
        boite.resize(boite.fontMetrics().averageCharWidth() * 90,
                     boite.fontMetrics().height() * 24);
    boite.exec();
}

}  // namespace carnet
