#include "pagedonnees.h"

#include <algorithm>

#include <QAction>
#include <QDir>
#include <QFileDialog>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "boites.h"
#include "chemin.h"
#include "faute.h"
#include "seance.h"
#include "textesqt.h"
#include "utilisateurs.h"

namespace carnet {
namespace {

QLabel* explication(const QString& texte, QWidget* parent) {
    auto* label = new QLabel(texte, parent);
    label->setWordWrap(true);
    return label;
}

QString chemin(const std::filesystem::path& dossier) {
    return QDir::toNativeSeparators(qt(dossier.string()));
}

QString jusqua(const std::string& date) {
    return date.empty() ? QStringLiteral("sans résultat") : QStringLiteral("jusqu'au ") + qt(date);
}

}  // namespace

Pagedonnees::Pagedonnees(Seance& seance, QWidget* parent)
    : QWidget(parent),
      seance_(seance),
      joueur_(explication({}, this)),
      copier_(new QPushButton(QStringLiteral("Co&pier mes données…"), this)),
      remettre_(new QPushButton(QStringLiteral("&Remettre une copie…"), this)),
      message_(explication({}, this)) {
    joueur_->setObjectName(QStringLiteral("aquisont"));
    message_->setObjectName(QStringLiteral("donnees"));
    message_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto* sauver = new QGroupBox(QStringLiteral("Copier"), this);
    auto* dedans = new QVBoxLayout(sauver);
    dedans->addWidget(explication(
        QStringLiteral("Résultats, journal, révisions et options vont dans un dossier « Orvane » "
                       "daté du jour, là où vous voulez : une clé, un autre disque."),
        sauver));
    dedans->addWidget(copier_, 0, Qt::AlignLeft);
    auto* rendre = new QGroupBox(QStringLiteral("Remettre"), this);
    auto* autre = new QVBoxLayout(rendre);
    autre->addWidget(explication(
        QStringLiteral("Choisissez, dans un dossier « Orvane » daté, celui qui porte le nom du "
                       "joueur. Il prend la place de celui du jeu, qui reste à côté sous un autre "
                       "nom. Fermez Orvane d'abord."),
        rendre));
    autre->addWidget(remettre_, 0, Qt::AlignLeft);
    auto* mise = new QVBoxLayout(this);
    mise->addWidget(joueur_);
    mise->addWidget(sauver);
    mise->addWidget(rendre);
    mise->addWidget(message_);
    mise->addStretch();
    setFocusProxy(copier_);
    connect(copier_, &QPushButton::clicked, this, &Pagedonnees::copier);
    connect(remettre_, &QPushButton::clicked, this, &Pagedonnees::remettre);
    connect(&seance_, &Seance::joueurschanges, this, &Pagedonnees::accorder);
    connect(&seance_.tache(), &Tache::change, this, &Pagedonnees::accorder);
    for (auto* bouton : {copier_, remettre_}) {
        auto* action = new QAction(bouton->text(), this);
        action->setShortcut(bouton == copier_ ? QKeySequence::Save : QKeySequence::Open);
        action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
        connect(action, &QAction::triggered, bouton, &QPushButton::click);
        addAction(action);
    }
    const auto attendent = Sauvegarde(seance_.dossier()).achever();
    for (const auto& util : attendent)
        message_->setText(message_->text() +
                          QStringLiteral("Un retour n'a pas été achevé : la copie attend dans « ") +
                          qt(dossierenattente(util)) +
                          QStringLiteral(" » du dossier de jeu. Refaites-le. "));
    accorder();
}

void Pagedonnees::accorder() {
    const bool libre = !seance_.tache().encours();
    copier_->setEnabled(libre && !seance_.joueur().isEmpty());
    remettre_->setEnabled(libre);
    joueur_->setText(
        seance_.joueur().isEmpty()
            ? QStringLiteral("Pas encore de joueur : rien à copier. Une copie faite "
                             "ailleurs peut être remise ici.")
            : QStringLiteral("Les données de ") + seance_.joueur() + QStringLiteral(" sont dans ") +
                  chemin(std::filesystem::absolute(seance_.dossier() /
                                                   common::chemin(utf8(seance_.joueur())))
                             .lexically_normal()) +
                  QLatin1Char('.'));
}

void Pagedonnees::lancer(std::function<Issue(const Avancecopie&)> travail, bool retour) {
    const auto issue = std::make_shared<Issue>();
    message_->setText(retour ? QStringLiteral("La copie revient…")
                             : QStringLiteral("La copie se fait…"));
    seance_.tache().lancer(
        [issue, travail = std::move(travail)](const Avance& avance) {
            *issue = travail([&](int millemes) { return avance(millemes, "Copie"); });
        },
        [this, issue, retour](const QString& faute) {
            if (!faute.isEmpty())
                issue->ennui = utf8(faute);
            dire(*issue, retour);
        });
}

void Pagedonnees::dire(const Issue& issue, bool retour) {
    if (issue.etat == Issue::Etat::arrete) {
        message_->setText(QStringLiteral("Annulé : rien n'a changé."));
        return;
    }
    if (issue.etat == Issue::Etat::refuse) {
        message_->setText(QStringLiteral("Rien n'a changé. ") + qt(issue.ennui));
        return;
    }
    auto dit =
        compte(issue.fichiers, QStringLiteral("fichier copié"), QStringLiteral("fichiers copiés")) +
        QStringLiteral(" dans ") + chemin(issue.dossier) + QStringLiteral(". ");
    if (!issue.laisses.empty()) {
        QStringList noms;
        for (const auto& nom : issue.laisses)
            noms << qt(nom);
        dit += QStringLiteral("Laissés, ce ne sont pas de simples fichiers : ") +
               noms.join(QStringLiteral(", ")) + QStringLiteral(". ");
    }
    if (!issue.ancien.empty())
        dit += QStringLiteral("Ce qui y était est dans ") + chemin(issue.ancien) +
               QStringLiteral(" ; ôtez-le quand vous n'en aurez plus besoin.");
    message_->setText(dit);
    if (retour)
        inscrire(issue.dossier.filename().string());
}

/// Puts a player who came back on the list of players, and shows them.
void Pagedonnees::inscrire(const std::string& util) {
    const auto noms = seance_.joueurs();
    try {
        if (!noms.contains(qt(util)))
            profiles::ecrireusers(seance_.disque(), {}, util);
    } catch (const common::Faute& faute) {
        message_->setText(message_->text() +
                          QStringLiteral(" Donnez ce nom à Orvane pour le retrouver : ") +
                          qt(faute.what()));
    }
    seance_.relirejoueurs();
    seance_.choisirjoueur(qt(util));
}

void Pagedonnees::copier() {
    const auto destination = QFileDialog::getExistingDirectory(
        this, QStringLiteral("Où copier vos données"), QDir::homePath());
    if (destination.isEmpty())
        return;
    lancer(
        [jeu = seance_.dossier(), util = utf8(seance_.joueur()),
         ou = common::chemin(utf8(destination)), jour = seance_.jour()](const Avancecopie& avance) {
            return Sauvegarde(jeu).copier(util, ou, jour, avance);
        },
        false);
}

bool Pagedonnees::accord(const Sauvegarde::Retour& retour) {
    if (!retour.ennui.empty()) {
        avertir(this, qt(retour.ennui));
        return false;
    }
    if (retour.identique) {
        message_->setText(
            QStringLiteral("Cette copie est celle qui est en place : rien à "
                           "remettre."));
        return false;
    }
    return !retour.risque ||
           confirmer(this,
                     QStringLiteral("Les données de ") + qt(retour.util) +
                         QStringLiteral(" dans le jeu (") + jusqua(retour.icijusqua) +
                         QStringLiteral(") ont ce que la copie (") + jusqua(retour.copiejusqua) +
                         QStringLiteral(") n'a pas. Remettre la copie à leur place ? Elles "
                                        "resteront à côté, sous un autre nom."),
                     QStringLiteral("Remettre"));
}

void Pagedonnees::remettre() {
    const auto choisi = QFileDialog::getExistingDirectory(
        this, QStringLiteral("La copie à remettre"), QDir::homePath());
    if (choisi.isEmpty())
        return;
    const auto retour = std::make_shared<Sauvegarde::Retour>();
    const auto copie = common::chemin(utf8(choisi));
    message_->setText(QStringLiteral("La copie est regardée…"));
    seance_.tache().lancer(
        [jeu = seance_.dossier(), copie, retour](const Avance& avance) {
            avance(0, "Lecture de la copie");
            *retour = Sauvegarde(jeu).examiner(copie);
        },
        [this, copie, retour](const QString& faute) {
            if (!faute.isEmpty())
                retour->ennui = utf8(faute);
            // The reading is over before the question.
            QMetaObject::invokeMethod(
                this, [this, copie, retour] { revenir(copie, *retour); }, Qt::QueuedConnection);
        });
}

void Pagedonnees::revenir(const std::filesystem::path& copie, const Sauvegarde::Retour& retour) {
    message_->clear();
    if (!accord(retour))
        return;
    lancer([jeu = seance_.dossier(), copie, jour = seance_.jour()](
               const Avancecopie& avance) { return Sauvegarde(jeu).remettre(copie, jour, avance); },
           true);
}

}  // namespace carnet
