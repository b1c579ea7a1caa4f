#include "pagelistes.h"

#include <QAction>
#include <QClipboard>
#include <QDir>
#include <QFileDialog>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QInputDialog>
#include <QLabel>
#include <QPrintDialog>
#include <QPrinter>
#include <QScrollArea>
#include <QSplitter>
#include <QTableView>
#include <QToolButton>
#include <QVBoxLayout>

#include "boites.h"
#include "constats.h"
#include "criteresqt.h"
#include "impression.h"
#include "listes.h"
#include "maliste.h"
#include "modelemots.h"
#include "seance.h"
#include "textesqt.h"

namespace carnet {
namespace {

/// On each printed page.
QString titre() {
    return QStringLiteral("Orvane – ma liste");
}

/// What a list leaves out, a sentence each.
QString laisses(const recherche::Liste& liste) {
    QString dit;
    for (const auto& laisse : liste.laisses)
        dit += qt(laisse) + QLatin1Char(' ');
    return dit;
}

}  // namespace

Pagelistes::Pagelistes(Seance& seance, QWidget* parent)
    : QWidget(parent),
      seance_(seance),
      criteres_(new Criteres(this)),
      modele_(new Modelemots(this)),
      table_(new QTableView(this)),
      compte_(new QLabel(this)),
      message_(new QLabel(this)) {
    // Before a layout takes the fields: this sets the page's place in the order of Tab.
    setFocusProxy(criteres_->findChild<QWidget*>(QStringLiteral("longueur")));
    auto* gauche = new QScrollArea(this);
    gauche->setWidget(criteres_);
    gauche->setWidgetResizable(true);
    gauche->setFrameShape(QFrame::NoFrame);
    gauche->setFocusPolicy(Qt::NoFocus);
    gauche->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    gauche->setMinimumWidth(criteres_->minimumSizeHint().width() +
                            fontMetrics().averageCharWidth() * 4);
    auto* partage = new QSplitter(this);
    agir();
    partage->addWidget(gauche);
    partage->addWidget(resultats());
    partage->setStretchFactor(1, 1);
    partage->setChildrenCollapsible(false);
    auto* mise = new QVBoxLayout(this);
    mise->addWidget(partage);
    connect(criteres_, &Criteres::change, this, &Pagelistes::chercher);
    connect(&seance_, &Seance::motschanges, this, [this] {
        proposer();
        chercher();
    });
    chercher();
}

void Pagelistes::action(const char* libelle, const QKeySequence& raccourci,
                        void (Pagelistes::*faire)(), bool surliste) {
    auto* nouvelle = new QAction(QString::fromUtf8(libelle), this);
    nouvelle->setShortcut(raccourci);
    nouvelle->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    nouvelle->setToolTip(nouvelle->toolTip() + QStringLiteral(" (") +
                         nouvelle->shortcut().toString(QKeySequence::NativeText) +
                         QLatin1Char(')'));
    connect(nouvelle, &QAction::triggered, this, faire);
    addAction(nouvelle);
    if (surliste)
        surliste_.push_back(nouvelle);
}

void Pagelistes::agir() {
    action("&Enregistrer la liste…", QKeySequence::Save, &Pagelistes::enregistrer, true);
    action("&Imprimer…", QKeySequence::Print, &Pagelistes::imprimer, true);
    action("En &PDF…", Qt::CTRL | Qt::SHIFT | Qt::Key_P, &Pagelistes::enpdf, true);
    action("&Copier", Qt::CTRL | Qt::SHIFT | Qt::Key_C, &Pagelistes::copier, true);
    action("&Vérifier une liste…", QKeySequence::Open, &Pagelistes::verifier, false);
    connect(&seance_.tache(), &Tache::change, actions().constLast(),
            [this, une = actions().constLast()] { une->setEnabled(!seance_.tache().encours()); });
    auto* effacer = new QAction(QStringLiteral("E&ffacer les critères"), this);
    effacer->setShortcut(Qt::CTRL | Qt::SHIFT | Qt::Key_N);
    effacer->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    connect(effacer, &QAction::triggered, criteres_, &Criteres::effacer);
    addAction(effacer);
}

QWidget* Pagelistes::resultats() {
    auto* droite = new QWidget(this);
    auto* mise = new QVBoxLayout(droite);
    compte_->setObjectName(QStringLiteral("compte"));
    auto fonte = compte_->font();
    fonte.setBold(true);
    compte_->setFont(fonte);
    message_->setObjectName(QStringLiteral("message"));
    message_->setWordWrap(true);
    message_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    table_->setModel(modele_);
    table_->setAccessibleName(QStringLiteral("Mots trouvés"));
    table_->setSelectionBehavior(QAbstractItemView::SelectRows);
    table_->setTabKeyNavigation(false);
    table_->setAlternatingRowColors(true);
    table_->setWordWrap(false);
    const int lettre = fontMetrics().averageCharWidth();
    constexpr std::array largeurs{19, 19, 24, 8, 12, 12};
    for (int i = 0; i < Modelemots::colonnes; ++i)
        table_->setColumnWidth(i, largeurs.at(static_cast<std::size_t>(i)) * lettre);
    table_->horizontalHeader()->setStretchLastSection(true);
    table_->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    table_->verticalHeader()->setDefaultSectionSize(fontMetrics().lineSpacing() * 3 / 2);
    auto* boutons = new QHBoxLayout;
    for (auto* une : actions()) {
        auto* bouton = new QToolButton(droite);
        bouton->setDefaultAction(une);
        bouton->setFocusPolicy(Qt::StrongFocus);
        boutons->addWidget(bouton);
    }
    boutons->addStretch();
    mise->addWidget(compte_);
    mise->addWidget(message_);
    mise->addWidget(table_, 1);
    mise->addLayout(boutons);
    return droite;
}

void Pagelistes::proposer() {
    const QDir dossier(
        QString::fromStdString((seance_.dossier() / common::dossierlistes).string()));
    criteres_->proposerlistes(
        dossier.entryList({QStringLiteral("*.txt")}, QDir::Files, QDir::Name | QDir::IgnoreCase));
}

void Pagelistes::chercher() {
    criteres_->dire({});
    const auto& glossaire = seance_.glossaire();
    std::optional<recherche::Demande> demande;
    if (!glossaire) {
        compte_->setText(seance_.ennui().isEmpty() ? QStringLiteral("Lecture des mots…")
                                                   : QStringLiteral("Pas de mots"));
        message_->setText(seance_.ennui());
    } else {
        const recherche::Contexte contexte{*glossaire, [this](std::string_view fichier) {
                                               return recherche::motsdeliste(seance_.disque(),
                                                                             fichier);
                                           }};
        auto lue = recherche::liredemande(utf8(criteres_->texte()), contexte);
        if (auto* refus = std::get_if<recherche::Refus>(&lue)) {
            criteres_->dire(*refus);
            compte_->setText(QStringLiteral("Critère à corriger"));
            message_->setText(qt(refus->texte()));
        } else {
            demande = std::move(std::get<recherche::Demande>(lue));
        }
    }
    if (demande)
        montrer(*demande);
    else
        modele_->montrer(glossaire, {});
    message_->setVisible(!message_->text().isEmpty());
    for (auto* une : surliste_)
        une->setEnabled(!modele_->places().empty());
}

void Pagelistes::montrer(const recherche::Demande& demande) {
    const auto& glossaire = seance_.glossaire();
    auto places = recherche::chercher(*glossaire, demande, 0);
    QString dit;
    for (const auto& remarque : demande.remarques)
        dit += qt(remarque) + QLatin1Char(' ');
    compte_->setText(compte(places.size(), QStringLiteral("mot"), QStringLiteral("mots")));
    if (places.empty())
        dit += QStringLiteral("Aucun mot ne répond à ces critères : ôtez-en un, ou élargissez-le.");
    else if (criteres_->texte().isEmpty())
        dit += QStringLiteral(
            "Tous les mots. Remplissez un critère : les résultats suivent à mesure.");
    message_->setText(dit.trimmed());
    modele_->montrer(glossaire, std::move(places));
    table_->scrollToTop();
}

std::optional<recherche::Liste> Pagelistes::liste() {
    auto faite = recherche::enliste(*seance_.glossaire(), modele_->places());
    if (const auto* refus = std::get_if<recherche::Refus>(&faite)) {
        criteres_->dire({refus->critere, "choisissez « un seul » ou « de 2 à 5 »"});
        avertir(this, QStringLiteral(
                          "Ces mots mêlent des tirages à une solution et à plusieurs, qui ne se "
                          "jouent pas ensemble. Choisissez « un seul » ou « de 2 à 5 » dans « Mots "
                          "par tirage »."));
        return std::nullopt;
    }
    return remplie(std::move(std::get<recherche::Liste>(faite)));
}

std::optional<recherche::Liste> Pagelistes::papier() {
    return remplie(recherche::surpapier(*seance_.glossaire(), modele_->places()));
}

std::optional<recherche::Liste> Pagelistes::remplie(recherche::Liste liste) {
    if (!liste.rangees.empty())
        return liste;
    avertir(this,
            (QStringLiteral("Il n'y a rien à mettre dans une liste. ") + laisses(liste)).trimmed());
    return std::nullopt;
}

void Pagelistes::enregistrer() {
    if (!liste())
        return;
    QInputDialog boite(this);
    boite.setWindowTitle(QStringLiteral("Enregistrer la liste"));
    boite.setLabelText(QStringLiteral("Nom de la liste, dans le dossier listes :"));
    boite.setTextValue(QStringLiteral("perso.txt"));
    boite.setOkButtonText(QStringLiteral("Enregistrer"));
    boite.setCancelButtonText(QStringLiteral("Annuler"));
    while (boite.exec() == QDialog::Accepted) {
        const auto fichier = fichierdenom(utf8(boite.textValue()));
        if (const auto refus = refusdunom(fichier); !refus.empty()) {
            avertir(this, qt(refus));
            continue;
        }
        if (existeliste(seance_.disque(), fichier) &&
            !confirmer(this,
                       QStringLiteral("La liste ") + qt(fichier) +
                           QStringLiteral(" existe déjà. La remplacer ?"),
                       QStringLiteral("Remplacer")))
            continue;
        ecrire(qt(fichier));
        return;
    }
}

void Pagelistes::ecrire(const QString& nom) {
    const auto fichier = utf8(nom);
    const auto faite = liste();
    if (!faite)
        return;
    if (const auto erreur = carnet::enregistrer(seance_.disque(), fichier, faite->rangees)) {
        avertir(this, QStringLiteral("La liste n'a pas été enregistrée. ") +
                          qt(common::rapportfichier("Écriture", common::cheminliste(fichier),
                                                    common::raison(erreur))));
        return;
    }
    message_->setText(nom + QStringLiteral(" : ") +
                      compte(faite->rangees.size(), QStringLiteral("tirage enregistré. "),
                             QStringLiteral("tirages enregistrés. ")) +
                      laisses(*faite) + qt(commentjouer(fichier)));
    message_->show();
    proposer();
}

void Pagelistes::imprimer() {
    const auto faite = papier();
    if (!faite)
        return;
    QPrinter imprimante(QPrinter::HighResolution);
    imprimante.setDuplex(QPrinter::DuplexLongSide);
    QPrintDialog boite(&imprimante, this);
    boite.setWindowTitle(QStringLiteral("Imprimer la liste"));
    if (boite.exec() != QDialog::Accepted)
        return;
    if (!carnet::imprimer(imprimante, faite->rangees, titre())) {
        avertir(this, QStringLiteral("L'imprimante n'a pas pris la liste."));
        return;
    }
    message_->setText(
        QStringLiteral("La liste est imprimée : tirages au recto, réponses au verso. ") +
        laisses(*faite));
    message_->show();
}

void Pagelistes::enpdf() {
    const auto faite = papier();
    if (!faite)
        return;
    const auto chemin = ouenregistrer(this, QStringLiteral("Enregistrer en PDF"),
                                      QStringLiteral("liste.pdf"), QStringLiteral("PDF (*.pdf)"));
    if (chemin.isEmpty())
        return;
    if (!ecrirefichier(this, chemin, carnet::enpdf(faite->rangees, titre())))
        return;
    message_->setText(chemin +
                      QStringLiteral(" est écrit : tirages au recto, réponses au verso. ") +
                      laisses(*faite));
    message_->show();
}

void Pagelistes::copier() {
    QString texte;
    for (const auto place : modele_->places())
        texte += qt(seance_.glossaire()->fiches()[place].texte()) + QLatin1Char('\n');
    QGuiApplication::clipboard()->setText(texte);
    message_->setText(compte(modele_->places().size(), QStringLiteral("mot copié."),
                             QStringLiteral("mots copiés.")));
    message_->show();
}

void Pagelistes::verifier() {
    const auto dossier =
        QString::fromStdString((seance_.dossier() / common::dossierlistes).string());
    const auto chemin =
        QFileDialog::getOpenFileName(this, QStringLiteral("Vérifier une liste"), dossier,
                                     QStringLiteral("Listes (*.txt);;Tous les fichiers (*)"));
    if (chemin.isEmpty())
        return;
    const auto constats = std::make_shared<std::vector<atelier::Constat>>();
    seance_.tache().lancer(
        [constats, chemin](const Avance& avance) {
            avance(0, "Vérification");
            *constats = atelier::verifierfichier(utf8(chemin));
        },
        [this, constats, chemin](const QString& faute) {
            const auto dire = [this, constats, chemin, faute] {
                if (faute.isEmpty())
                    montrerconstats(this, chemin, *constats);
                else
                    avertir(this, faute);
            };
            // The reading is over before the box.
            QMetaObject::invokeMethod(this, dire, Qt::QueuedConnection);
        });
}

}  // namespace carnet
