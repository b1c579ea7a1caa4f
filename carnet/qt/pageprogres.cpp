#include "pageprogres.h"

#include <algorithm>
#include <array>
#include <functional>
#include <set>

#include <QAction>
#include <QBuffer>
#include <QComboBox>
#include <QHBoxLayout>
#include <QImage>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTableView>
#include <QVBoxLayout>

#include "boites.h"
#include "echelle.h"
#include "listedujour.h"
#include "planche.h"
#include "seance.h"
#include "sujets.h"
#include "tableaux.h"
#include "textesqt.h"

namespace carnet {
namespace {

constexpr std::size_t plusdurs = 60;
constexpr int moisparan = 12;

struct Libelle {
    const char* titre;
    const char* vide;  ///< what is said where there is nothing to show
};
/// In the order of `Vue`.
constexpr std::array libellesdesvues{
    Libelle{
        "Le calendrier",
        "Rien de corrigé dans ces douze mois. Jouez une série dans Orvane, F12 la corrige : elle "
        "sera ici."},
    Libelle{"Les trente jours qui viennent",
            "Rien à revoir dans les trente jours. Un tirage manqué revient le lendemain."},
    Libelle{"Les paliers",
            "Aucun tirage sur l'échelle : elle se remplit de ceux que vous manquez."},
    Libelle{"Toutes les listes",
            "Aucune liste finie. Allez jusqu'à « BRAVO! » : le résultat sera ici."},
    Libelle{"Une liste", "Aucune liste finie. Allez jusqu'à « BRAVO! » : le résultat sera ici."},
    Libelle{"Les tirages les plus durs",
            "Aucun tirage manqué. Ceux que vous manquerez le plus souvent seront ici."}};

}  // namespace

Pageprogres::Pageprogres(Seance& seance, QWidget* parent)
    : QWidget(parent),
      seance_(seance),
      vues_(new QComboBox(this)),
      titredequoi_(new QLabel(this)),
      dequoi_(new QComboBox(this)),
      vide_(new QLabel(this)),
      planche_(new Planche(QString::fromUtf8(libellesdesvues.front().titre), this)),
      surlesdurs_(nullptr),
      message_(new QLabel(this)) {
    // Before a layout takes the choice: this sets the page's place in the order of Tab.
    setFocusProxy(vues_);
    vide_->setObjectName(QStringLiteral("vide"));
    vide_->setWordWrap(true);
    message_->setObjectName(QStringLiteral("fait"));
    message_->setWordWrap(true);
    message_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto* mise = new QVBoxLayout(this);
    mise->addWidget(choix());
    mise->addWidget(vide_);
    mise->addWidget(planche_, 1);
    mise->addStretch();
    mise->addWidget(message_);
    mise->addWidget(boutons());
    dire({});
    connect(vues_, &QComboBox::currentIndexChanged, this, [this] {
        dire({});
        proposer();
        montrer();
    });
    connect(dequoi_, &QComboBox::currentIndexChanged, this, &Pageprogres::montrer);
    connect(&seance_, &Seance::suivichange, this, [this] {
        proposer();
        montrer();
    });
    proposer();
    montrer();
}

QWidget* Pageprogres::choix() {
    auto* haut = new QWidget(this);
    for (const auto& libelle : libellesdesvues)
        vues_->addItem(QString::fromUtf8(libelle.titre));
    vues_->setAccessibleName(QStringLiteral("Voir"));
    vues_->setObjectName(QStringLiteral("voir"));
    dequoi_->setObjectName(QStringLiteral("dequoi"));
    dequoi_->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    titredequoi_->setBuddy(dequoi_);
    auto* voir = new QLabel(QStringLiteral("&Voir :"), haut);
    voir->setBuddy(vues_);
    auto* mise = new QHBoxLayout(haut);
    mise->setContentsMargins(0, 0, 0, 0);
    mise->addWidget(voir);
    mise->addWidget(vues_);
    mise->addWidget(titredequoi_);
    mise->addWidget(dequoi_);
    mise->addStretch();
    return haut;
}

QAction* Pageprogres::action(const char* libelle, const QKeySequence& raccourci,
                             void (Pageprogres::*faire)()) {
    auto* nouvelle = new QAction(QString::fromUtf8(libelle), this);
    nouvelle->setShortcut(raccourci);
    nouvelle->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    connect(nouvelle, &QAction::triggered, this, faire);
    addAction(nouvelle);
    return nouvelle;
}

QWidget* Pageprogres::boutons() {
    surimage_ = {action("Enregistrer l'&image (PNG)…", QKeySequence::Save, &Pageprogres::enimage),
                 action("Enregistrer le &tableau (CSV)…", Qt::CTRL | Qt::SHIFT | Qt::Key_S,
                        &Pageprogres::encsv)};
    surlesdurs_ =
        action("&Faire une liste des plus durs", Qt::CTRL | Qt::Key_L, &Pageprogres::faireliste);
    auto* bas = new QWidget(this);
    auto* mise = new QHBoxLayout(bas);
    mise->setContentsMargins(0, 0, 0, 0);
    for (auto* une : actions()) {
        auto* bouton = new QPushButton(une->text(), bas);  // a tool button has no mnemonic
        mise->addWidget(bouton);
        connect(bouton, &QPushButton::clicked, une, &QAction::trigger);
        connect(une, &QAction::changed, bouton, [une, bouton] {
            bouton->setEnabled(une->isEnabled());
            bouton->setVisible(une->isVisible());
        });
    }
    mise->addStretch();
    return bas;
}

Pageprogres::Vue Pageprogres::vue() const {
    return static_cast<Vue>(vues_->currentIndex());
}

void Pageprogres::showEvent(QShowEvent* evenement) {
    QWidget::showEvent(evenement);
    seance_.relirejoueurs();
}

/// The years, or the lists, that the second choice offers; it keeps what was chosen.
void Pageprogres::proposer() {
    const QSignalBlocker silence(dequoi_);
    const auto avant = dequoi_->currentText();
    dequoi_->clear();
    const auto& suivi = seance_.suivi();
    const bool annees = vue() == Vue::calendrier;
    if (annees)
        dequoi_->addItem(QStringLiteral("Les douze derniers mois"), 0);
    if (suivi && annees) {
        std::set<int, std::greater<>> vues;
        for (const auto& [jour, journee] : suivi->travail.journees())
            vues.insert(annee(jour));
        for (const int une : vues)
            dequoi_->addItem(QString::number(une), une);
    } else if (suivi && vue() == Vue::liste) {
        for (const auto& [nom, bilan] : suivi->bilans) {
            if (!bilan.points.empty())
                dequoi_->addItem(qt(nom));
        }
    }
    dequoi_->setCurrentIndex(std::max(0, dequoi_->findText(avant)));
    const bool sert = annees || vue() == Vue::liste;
    titredequoi_->setText(annees ? QStringLiteral("&Période :") : QStringLiteral("&Liste :"));
    dequoi_->setAccessibleName(annees ? QStringLiteral("Période") : QStringLiteral("Liste"));
    titredequoi_->setVisible(sert);
    dequoi_->setVisible(sert);
}

void Pageprogres::montrer() {
    const auto& suivi = seance_.suivi();
    QString vide;
    if (suivi)
        montrervue(vue());
    else if (seance_.joueur().isEmpty())
        vide = QStringLiteral(
            "Pas encore de joueur. Lancez Orvane dans ce dossier de jeu, donnez "
            "votre nom et jouez une liste.");
    else
        vide = seance_.lecture().encours() ? QStringLiteral("Lecture du journal…")
                                           : QStringLiteral("Le journal n'a pas été lu.");
    if (suivi && planche_->tableau().rangees.empty())
        vide = QString::fromUtf8(libellesdesvues.at(static_cast<std::size_t>(vue())).vide);
    if (suivi && !suivi->ennui.empty())
        vide += QLatin1Char(' ') + qt(suivi->ennui);
    const bool image = suivi && !planche_->tableau().rangees.empty();
    vide_->setText(vide.trimmed());
    vide_->setVisible(!vide_->text().isEmpty());
    planche_->setVisible(image);
    for (auto* une : surimage_)
        une->setEnabled(image);
    surlesdurs_->setVisible(vue() == Vue::durs);
    surlesdurs_->setEnabled(image);
}

void Pageprogres::montrervue(Vue vue) {
    const auto& suivi = *seance_.suivi();
    const auto titre = QString::fromUtf8(libellesdesvues.at(static_cast<std::size_t>(vue)).titre);
    const auto prevus = suivi.echelle.prevoir(suivi.jour, joursprevus);
    const auto parpalier = suivi.echelle.parpalier();
    const auto& bilans = suivi.bilans;
    switch (vue) {
        case Vue::calendrier:
            montrerannee();
            break;
        case Vue::jours:
            planche_->montrer(titre, barresdesjours(prevus, suivi.jour),
                              tableauprevision(prevus, suivi.jour));
            break;
        case Vue::echelle:
            planche_->montrer(titre, barresdespaliers(parpalier), tableaupaliers(parpalier));
            break;
        case Vue::listes:
            planche_->montrer(titre, barresdeslistes(bilans), tableaulistes(bilans, suivi.jour));
            break;
        case Vue::liste: {
            const auto trouve = bilans.find(utf8(dequoi_->currentText()));
            const auto points =
                trouve == bilans.end() ? std::vector<Passage>() : trouve->second.points;
            planche_->montrer(dequoi_->currentText(), Nuage{points}, tableaupassages(points));
            break;
        }
        case Vue::durs: {
            const auto lus = suivi.travail.durs(plusdurs);
            planche_->montrer(titre, barresdesdurs(lus), tableaudurs(lus));
            break;
        }
    }
}

void Pageprogres::montrerannee() {
    const auto& suivi = *seance_.suivi();
    const int choisie = dequoi_->currentData().toInt();
    Annee image;
    image.annee = choisie > 0 ? choisie : annee(suivi.jour);
    if (choisie == 0) {  // the eleven months before this one, and this one
        image.mois = mois(suivi.jour) % moisparan + 1;
        image.annee -= image.mois > 1 ? 1 : 0;
    }
    const auto debut = profiles::jourdu(image.annee, image.mois, 1).value_or(0);
    const auto fin = profiles::jourdu(image.annee + 1, image.mois, 1).value_or(debut);
    const auto& journees = suivi.travail.journees();
    image.journees = {journees.lower_bound(debut), journees.lower_bound(fin)};
    auto tableau = tableaujournees(journees, debut, fin);
    planche_->montrer(QStringLiteral("Tirages corrigés, par jour"), std::move(image),
                      std::move(tableau));
}

void Pageprogres::ecrire(const QString& chemin, const std::string& octets) {
    if (ecrirefichier(this, chemin, octets))
        dire(chemin + QStringLiteral(" est écrit."));
}

void Pageprogres::dire(const QString& texte) {
    message_->setText(texte);
    message_->setVisible(!texte.isEmpty());
}

void Pageprogres::enimage() {
    const auto chemin =
        ouenregistrer(this, QStringLiteral("Enregistrer l'image"), QStringLiteral("progres.png"),
                      QStringLiteral("Image (*.png)"));
    if (chemin.isEmpty())
        return;
    QBuffer octets;
    octets.open(QIODevice::WriteOnly);
    planche_->dessin()->image().save(&octets, "PNG");
    ecrire(chemin, octets.data().toStdString());
}

void Pageprogres::encsv() {
    const auto chemin =
        ouenregistrer(this, QStringLiteral("Enregistrer le tableau"), QStringLiteral("progres.csv"),
                      QStringLiteral("Tableau (*.csv)"));
    if (!chemin.isEmpty())
        ecrire(chemin, carnet::encsv(planche_->tableau()));
}

void Pageprogres::faireliste() {
    const auto paire = listedesdurs(seance_.suivi()->travail.durs(plusdurs));
    if (const auto ennui = ecrirepaire(seance_.disque(), paire, nomsdesdurs); !ennui.empty()) {
        avertir(this, QStringLiteral("La liste n'a pas été faite. ") + qt(ennui));
        return;
    }
    auto dit = compte(paire.taille(), QStringLiteral("tirage mis en liste. "),
                      QStringLiteral("tirages mis en liste. "));
    if (paire.laisses > 0)
        dit += compte(paire.laisses, QStringLiteral("laissé de côté"),
                      QStringLiteral("laissés de côté")) +
               QStringLiteral(" (rallonges, benjamins, plus de cinq solutions). ");
    dire(dit + qt(commentjouerpaire(paire, nomsdesdurs)));
}

}  // namespace carnet
