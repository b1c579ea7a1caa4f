#include "pagerevoir.h"

#include <algorithm>

#include <QAction>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QVBoxLayout>

#include "boites.h"
#include "echelle.h"
#include "joueurs.h"
#include "listedujour.h"
#include "planche.h"
#include "seance.h"
#include "sujets.h"
#include "textesqt.h"

namespace carnet {
namespace {

QString tirages(std::size_t nombre) {
    return compte(nombre, QStringLiteral("tirage"), QStringLiteral("tirages"));
}

QLabel* etiquette(QWidget* parent, const char* nom) {
    auto* label = new QLabel(parent);
    label->setObjectName(QString::fromUtf8(nom));
    label->setWordWrap(true);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return label;
}

/// When there is nothing today: what comes next.
QString prochains(const Suivi& suivi) {
    const auto nombres = suivi.echelle.prevoir(suivi.jour, joursprevus);
    const auto premier =
        std::find_if(nombres.begin(), nombres.end(), [](std::size_t n) { return n > 0; });
    if (premier == nombres.end())
        return suivi.echelle.taille() > 0
                   ? QStringLiteral("Rien non plus dans les trente jours qui viennent.")
                   : QStringLiteral(
                         "Jouez une liste dans Orvane : chaque tirage manqué revient ici "
                         "le lendemain, puis de plus en plus tard tant que vous le "
                         "trouvez.");
    return QStringLiteral("Prochains : ") + tirages(*premier) + QStringLiteral(" le ") +
           qt(datefrancaise(suivi.jour + static_cast<Jour>(premier - nombres.begin()))) +
           QLatin1Char('.');
}

QString laisses(const Paire& paire) {
    QString dit;
    if (paire.attendent > 0)
        dit += compte(paire.attendent, QStringLiteral("attendra demain. "),
                      QStringLiteral("attendront demain. "));
    if (paire.laisses > 0)
        dit += compte(paire.laisses, QStringLiteral("laissé de côté"),
                      QStringLiteral("laissés de côté")) +
               QStringLiteral(
                   " : rallonges et benjamins, comme ce qui a plus de cinq solutions, ne se "
                   "tapent pas sur la ligne du fichier personnel ; revoyez-les dans leur liste.");
    return dit.trimmed();
}

}  // namespace

Pagerevoir::Pagerevoir(Seance& seance, QWidget* parent)
    : QWidget(parent),
      seance_(seance),
      compte_(etiquette(this, "dus")),
      detail_(etiquette(this, "detail")),
      plafond_(new QSpinBox(this)),
      preparer_(new QPushButton(QStringLiteral("&Préparer la liste"), this)),
      message_(etiquette(this, "commentjouer")),
      jours_(new Planche(QStringLiteral("Tirages à revoir, par jour"), this)),
      paliers_(new Planche(QStringLiteral("Tirages par palier"), this)) {
    auto fonte = compte_->font();
    fonte.setBold(true);
    compte_->setFont(fonte);
    plafond_->setRange(plafondminimum, plafondmaximum);
    plafond_->setValue(plafondordinaire);
    plafond_->setAccessibleName(QStringLiteral("Tirages par jour, au plus"));
    plafond_->findChild<QLineEdit*>()->setAccessibleName(plafond_->accessibleName());
    plafond_->setObjectName(QStringLiteral("plafond"));
    preparer_->setObjectName(QStringLiteral("preparer"));
    auto* titre = new QLabel(QStringLiteral("&Au plus, par jour :"), this);
    titre->setBuddy(plafond_);
    auto* demande = new QHBoxLayout;
    demande->addWidget(titre);
    demande->addWidget(plafond_);
    demande->addWidget(preparer_);
    demande->addStretch();
    auto* mise = new QVBoxLayout(this);
    mise->addWidget(compte_);
    mise->addWidget(detail_);
    mise->addLayout(demande);
    mise->addWidget(message_);
    mise->addWidget(planches(), 1);
    mise->addStretch();
    setFocusProxy(preparer_);
    connect(plafond_, &QSpinBox::valueChanged, this, &Pagerevoir::changerplafond);
    connect(preparer_, &QPushButton::clicked, this, &Pagerevoir::preparer);
    connect(&seance_, &Seance::suivichange, this, &Pagerevoir::montrer);
    connect(&seance_, &Seance::joueurschanges, this, [this] { dire({}); });
    auto* action = new QAction(preparer_->text(), this);
    action->setShortcut(QKeySequence::Save);
    action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    connect(action, &QAction::triggered, preparer_, &QPushButton::click);
    addAction(action);
    dire({});
    montrer();
}

QWidget* Pagerevoir::planches() {
    planches_ = new QWidget(this);
    auto* mise = new QVBoxLayout(planches_);
    mise->setContentsMargins(0, 0, 0, 0);
    mise->addWidget(new QLabel(QStringLiteral("Les trente jours qui viennent"), planches_));
    mise->addWidget(jours_, 1);
    mise->addWidget(
        new QLabel(QStringLiteral("Les paliers : un tirage trouvé monte d'un, manqué il revient au "
                                  "premier"),
                   planches_));
    mise->addWidget(paliers_, 1);
    return planches_;
}

void Pagerevoir::showEvent(QShowEvent* evenement) {
    QWidget::showEvent(evenement);
    seance_.relirejoueurs();
}

void Pagerevoir::montrer() {
    const bool lu = seance_.suivi() != nullptr;
    preparer_->setEnabled(lu);
    plafond_->setEnabled(lu);
    if (lu) {
        const QSignalBlocker silence(plafond_);
        plafond_->setValue(lireplafonddejoueur(seance_.disque(), seance_.suivi()->util));
    }
    compter();
    montrerplanches();
}

void Pagerevoir::compter() {
    const auto& suivi = seance_.suivi();
    if (!suivi) {
        const bool personne = seance_.joueur().isEmpty();
        compte_->setText(personne ? QStringLiteral("Pas encore de joueur")
                         : seance_.lecture().encours()
                             ? QStringLiteral("Lecture du journal…")
                             : QStringLiteral("Le journal n'a pas été lu"));
        detail_->setText(personne
                             ? QStringLiteral("Lancez Orvane dans ce dossier de jeu, donnez votre "
                                              "nom et jouez une liste.")
                             : QString());
        return;
    }
    const auto dues = suivi->echelle.dues(suivi->jour);
    compte_->setText(dues.empty() ? QStringLiteral("Rien à revoir aujourd'hui")
                                  : tirages(dues.size()) + QStringLiteral(" à revoir aujourd'hui"));
    auto dit = dues.empty() ? prochains(*suivi) : laisses(listedujour(dues, plafond_->value()));
    if (!suivi->ennui.empty())
        dit += QLatin1Char(' ') + qt(suivi->ennui);
    if (suivi->lecture.sautees > 0)
        dit += QLatin1Char(' ') + compte(suivi->lecture.sautees,
                                         QStringLiteral("ligne du journal est illisible."),
                                         QStringLiteral("lignes du journal sont illisibles."));
    detail_->setText(dit.trimmed());
    detail_->setVisible(!detail_->text().isEmpty());
}

void Pagerevoir::montrerplanches() {
    const auto& suivi = seance_.suivi();
    planches_->setVisible(suivi && suivi->echelle.taille() > 0);
    if (!suivi)
        return;
    const auto nombres = suivi->echelle.prevoir(suivi->jour, joursprevus);
    jours_->montrer(QStringLiteral("Tirages à revoir, par jour"),
                    barresdesjours(nombres, suivi->jour), tableauprevision(nombres, suivi->jour));
    const auto parpalier = suivi->echelle.parpalier();
    paliers_->montrer(QStringLiteral("Tirages par palier"), barresdespaliers(parpalier),
                      tableaupaliers(parpalier));
}

void Pagerevoir::changerplafond() {
    const auto& suivi = seance_.suivi();
    if (!suivi)
        return;
    if (const auto erreur = ecrireplafonddejoueur(seance_.disque(), suivi->util, plafond_->value()))
        dire(QStringLiteral("Ce nombre n'a pu être retenu : ") + qt(common::raison(erreur)) +
             QLatin1Char('.'));
    compter();
}

void Pagerevoir::dire(const QString& texte) {
    message_->setText(texte);
    message_->setVisible(!texte.isEmpty());
}

void Pagerevoir::preparer() {
    const auto& suivi = seance_.suivi();
    if (!suivi)
        return;
    const auto paire = listedujour(suivi->echelle.dues(suivi->jour), plafond_->value());
    if (const auto ennui = ecrirepaire(seance_.disque(), paire, nomsdujour); !ennui.empty()) {
        avertir(this, QStringLiteral("La liste du jour n'a pas été faite. ") + qt(ennui));
        return;
    }
    if (paire.taille() == 0) {
        dire(QStringLiteral("Rien à jouer aujourd'hui : il n'y a plus de liste du jour."));
        return;
    }
    QStringList faites;
    if (!paire.simple.empty())
        faites << qt(nomsdujour.simple) + QStringLiteral(" : ") + tirages(paire.simple.size());
    if (!paire.multiple.empty())
        faites << qt(nomsdujour.multiple) + QStringLiteral(" : ") + tirages(paire.multiple.size());
    dire(faites.join(QStringLiteral(", ")) + QStringLiteral(". ") +
         qt(commentjouerpaire(paire, nomsdujour)));
}

}  // namespace carnet
