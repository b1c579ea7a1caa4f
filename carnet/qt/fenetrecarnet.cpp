#include "fenetrecarnet.h"

#include <algorithm>

#include <QAction>
#include <QMenuBar>
#include <QProgressBar>
#include <QPushButton>
#include <QScreen>
#include <QStatusBar>
#include <QTabWidget>

#include "pages.h"

namespace carnet {
namespace {

constexpr int millemes = 1000;
/// Wanted size, in characters and lines of the system's font.
constexpr int largeur = 180;
constexpr int hauteur = 40;

}  // namespace

Fenetrecarnet::Fenetrecarnet(Seance& seance)
    : seance_(seance),
      onglets_(new QTabWidget(this)),
      avance_(new QProgressBar(this)),
      annuler_(new QPushButton(QStringLiteral("Annuler"), this)) {
    setWindowTitle(QStringLiteral("Carnet d'Orvane"));
    onglets_->setAccessibleName(QStringLiteral("Pages"));
    onglets_->setDocumentMode(true);
    setCentralWidget(onglets_);
    garnir();
    suivre();
    onglets_->currentWidget()->setFocus();
    const auto place = screen()->availableGeometry().size() * 19 / 20;
    resize(std::min(place.width(), fontMetrics().averageCharWidth() * largeur),
           std::min(place.height(), fontMetrics().lineSpacing() * hauteur));
}

void Fenetrecarnet::garnir() {
    auto* carnet = menuBar()->addMenu(QStringLiteral("&Carnet"));
    int rang = 0;
    for (const auto& page : pages()) {
        const auto titre = QString::fromUtf8(page.titre);
        auto* contenu = page.faire(seance_, onglets_);
        const int onglet = onglets_->addTab(contenu, titre);
        auto* aller = carnet->addAction(titre, this, [this, onglet] {
            onglets_->setCurrentIndex(onglet);
            onglets_->currentWidget()->setFocus();
        });
        aller->setShortcut(QKeySequence(Qt::CTRL | static_cast<Qt::Key>(Qt::Key_1 + rang++)));
        if (!contenu->actions().empty())
            menuBar()->addMenu(titre)->addActions(contenu->actions());
    }
    carnet->addSeparator();
    carnet->addAction(QStringLiteral("&Quitter"), QKeySequence(QKeySequence::Quit), this,
                      &QWidget::close);
}

void Fenetrecarnet::suivre() {
    avance_->setRange(0, millemes);
    avance_->setAccessibleName(QStringLiteral("Avancement"));
    annuler_->setShortcut(Qt::Key_Escape);
    statusBar()->addPermanentWidget(avance_);
    statusBar()->addPermanentWidget(annuler_);
    auto& tache = seance_.tache();
    const auto montrer = [this] {
        const bool encours = seance_.tache().encours();
        avance_->setVisible(encours);
        annuler_->setVisible(encours);
        if (!encours)
            statusBar()->clearMessage();
    };
    montrer();
    connect(&tache, &Tache::change, this, montrer);
    connect(&tache, &Tache::avancee, this, [this](int faits, const QString& quoi) {
        avance_->setValue(faits);
        if (seance_.tache().encours())
            statusBar()->showMessage(quoi);
    });
    connect(annuler_, &QPushButton::clicked, this, [this] { seance_.tache().arreter(); });
}

}  // namespace carnet
