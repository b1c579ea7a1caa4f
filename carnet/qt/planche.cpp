#include "planche.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QScrollArea>
#include <QSplitter>
#include <QTableView>

namespace carnet {
namespace {

// How picture and table share the width.
constexpr int image = 3;
constexpr int texte = 2;
constexpr int large = 1000;

}  // namespace

Planche::Planche(const QString& titre, QWidget* parent)
    : QWidget(parent),
      dessin_(new Dessin(this)),
      modele_(new Modeletable(this)),
      table_(new QTableView(this)),
      partage_(new QSplitter(this)) {
    auto* vue = new QScrollArea(this);
    vue->setWidget(dessin_);
    vue->setWidgetResizable(true);
    vue->setFocusPolicy(Qt::NoFocus);
    table_->setModel(modele_);
    table_->setSelectionBehavior(QAbstractItemView::SelectRows);
    table_->setTabKeyNavigation(false);
    table_->setAlternatingRowColors(true);
    table_->setWordWrap(false);
    table_->verticalHeader()->hide();
    table_->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    table_->verticalHeader()->setDefaultSectionSize(fontMetrics().lineSpacing() * 3 / 2);
    table_->horizontalHeader()->setStretchLastSection(true);
    partage_->addWidget(vue);
    partage_->addWidget(table_);
    partage_->setStretchFactor(0, image);
    partage_->setStretchFactor(1, texte);
    partage_->setSizes({image * large, texte * large});
    partage_->setChildrenCollapsible(false);
    auto* mise = new QHBoxLayout(this);
    mise->setContentsMargins(0, 0, 0, 0);
    mise->addWidget(partage_);
    nommer(titre);
}

void Planche::nommer(const QString& titre) {
    dessin_->setAccessibleName(titre + QStringLiteral(", image"));
    dessin_->setAccessibleDescription(QStringLiteral("Le tableau à côté dit la même chose."));
    table_->setAccessibleName(titre);
}

void Planche::montrer(const QString& titre, Sujet sujet, Tableau tableau) {
    nommer(titre);
    const auto* barres = std::get_if<Barres>(&sujet);
    const bool couchees = barres != nullptr && barres->couchees;
    if (couchees != couchees_)  // their tables have more columns
        partage_->setSizes({couchees ? large : image * large, couchees ? large : texte * large});
    couchees_ = couchees;
    dessin_->montrer(std::move(sujet));
    modele_->montrer(std::move(tableau));
    table_->horizontalHeader()->setStretchLastSection(false);
    table_->resizeColumnsToContents();
    table_->horizontalHeader()->setStretchLastSection(true);
    table_->scrollToTop();
}

}  // namespace carnet
