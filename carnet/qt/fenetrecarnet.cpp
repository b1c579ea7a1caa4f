#include "fenetrecarnet.h"

#include <algorithm>
#include <array>

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenuBar>
#include <QProgressBar>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QStatusBar>
#include <QTabWidget>

#include "pages.h"

namespace carnet {
namespace {

constexpr int millemes = 1000;
/// Wanted size, in characters and lines of the system's font.
constexpr int largeur = 180;
constexpr int hauteur = 40;

/// A page scrolls where the screen is too small for it.
QScrollArea* defilant(QWidget* contenu, QWidget* parent) {
    auto* vue = new QScrollArea(parent);
    vue->setWidget(contenu);
    vue->setWidgetResizable(true);
    vue->setFrameShape(QFrame::NoFrame);
    vue->setFocusPolicy(Qt::NoFocus);
    return vue;
}

/// Scrolls to what took the focus, by a letter of Alt too.
void devoiler(QWidget* vise) {
    for (auto* autour = vise; autour != nullptr; autour = autour->parentWidget()) {
        if (auto* vue = qobject_cast<QScrollArea*>(autour))
            vue->ensureWidgetVisible(vise);
    }
}

/// To the first field of the page in front.
void viser(const QTabWidget& onglets) {
    static_cast<QScrollArea*>(onglets.currentWidget())->widget()->setFocus();
}

}  // namespace

Fenetrecarnet::Fenetrecarnet(Seance& seance)
    : seance_(seance),
      onglets_(new QTabWidget(this)),
      joueurs_(new QComboBox(this)),
      avance_(new QProgressBar(this)),
      annuler_(new QPushButton(QStringLiteral("Annuler"), this)) {
    setWindowTitle(QStringLiteral("Carnet d'Orvane"));
    onglets_->setAccessibleName(QStringLiteral("Pages"));
    onglets_->setDocumentMode(true);
    setCentralWidget(onglets_);
    garnir();
    choisirjoueur();
    suivre();
    connect(qApp, &QApplication::focusChanged, this,
            [](const QWidget* /*avant*/, QWidget* vise) { devoiler(vise); });
    viser(*onglets_);
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
        const int onglet = onglets_->addTab(defilant(contenu, onglets_), titre);
        auto* aller = carnet->addAction(titre, this, [this, onglet] {
            onglets_->setCurrentIndex(onglet);
            viser(*onglets_);
        });
        aller->setShortcut(QKeySequence(Qt::CTRL | static_cast<Qt::Key>(Qt::Key_1 + rang++)));
        if (!contenu->actions().empty())
            menuBar()->addMenu(titre)->addActions(contenu->actions());
    }
    carnet->addSeparator();
    carnet->addAction(QStringLiteral("&Quitter"), QKeySequence(QKeySequence::Quit), this,
                      &QWidget::close);
}

void Fenetrecarnet::choisirjoueur() {
    auto* coin = new QWidget(this);
    auto* mise = new QHBoxLayout(coin);
    mise->setContentsMargins(0, 0, 0, 0);
    auto* titre = new QLabel(QStringLiteral("&Joueur :"), coin);
    titre->setBuddy(joueurs_);
    joueurs_->setAccessibleName(QStringLiteral("Joueur"));
    joueurs_->setObjectName(QStringLiteral("joueur"));
    joueurs_->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    mise->addWidget(titre);
    mise->addWidget(joueurs_);
    onglets_->setCornerWidget(coin);
    const auto garnir = [this] {
        const QSignalBlocker silence(joueurs_);
        joueurs_->clear();
        joueurs_->addItems(seance_.joueurs());
        joueurs_->setCurrentText(seance_.joueur());
        joueurs_->setEnabled(joueurs_->count() > 0);
    };
    garnir();
    connect(&seance_, &Seance::joueurschanges, this, garnir);
    connect(joueurs_, &QComboBox::currentTextChanged, &seance_, &Seance::choisirjoueur);
}

void Fenetrecarnet::changeEvent(QEvent* evenement) {
    QMainWindow::changeEvent(evenement);
    if (evenement->type() == QEvent::ActivationChange && isActiveWindow())
        seance_.relirejoueurs();
}

void Fenetrecarnet::suivre() {
    avance_->setRange(0, millemes);
    avance_->setAccessibleName(QStringLiteral("Avancement"));
    annuler_->setShortcut(Qt::Key_Escape);
    statusBar()->addPermanentWidget(avance_);
    statusBar()->addPermanentWidget(annuler_);
    const std::array taches{&seance_.tache(), &seance_.lecture()};
    const auto montrer = [this, taches] {
        const bool encours = std::any_of(taches.begin(), taches.end(),
                                         [](const Tache* tache) { return tache->encours(); });
        avance_->setVisible(encours);
        annuler_->setVisible(encours);
        if (!encours)
            statusBar()->clearMessage();
    };
    montrer();
    for (auto* tache : taches) {
        connect(tache, &Tache::change, this, montrer);
        connect(tache, &Tache::avancee, this, [this, tache](int faits, const QString& quoi) {
            avance_->setValue(faits);
            if (tache->encours())
                statusBar()->showMessage(quoi);
        });
        connect(annuler_, &QPushButton::clicked, tache, &Tache::arreter);
    }
}

}  // namespace carnet
