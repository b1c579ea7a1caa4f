#include "pagedictionnaire.h"

#include <QAction>
#include <QFileDialog>
#include <QFileInfo>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "boites.h"
#include "editions.h"
#include "seance.h"
#include "textesqt.h"

namespace carnet {
namespace {

QString liste(const std::vector<std::string>& mots, std::size_t nombre) {
    if (mots.empty())
        return {};
    QStringList textes;
    for (const auto& mot : mots)
        textes << qt(mot);
    return QStringLiteral(" : ") + textes.join(QStringLiteral(", ")) +
           (nombre > mots.size() ? QStringLiteral("…") : QString());
}

QString motsde(std::size_t nombre) {
    return compte(nombre, QStringLiteral("mot"), QStringLiteral("mots"));
}

/// The report of a file, line by line.
QString rapport(const Motslus& lus, const Ecart& ecart) {
    QStringList lignes;
    lignes << motsde(lus.mots.size()) + QStringLiteral(", lus comme un texte ") +
                  qt(nom(lus.encodage)) + QLatin1Char('.');
    const auto pourcent = [&](std::size_t n) {
        return QLocale(QLocale::French, QLocale::France)
                   .toString(100.0 * static_cast<double>(n) / static_cast<double>(lus.mots.size()),
                             'f', 1) +
               QStringLiteral(" %");
    };
    lignes << QStringLiteral("Inconnus du lexique libre : ") + motsde(ecart.inconnus) +
                  QStringLiteral(" (") + pourcent(ecart.inconnus) + QLatin1Char(')') +
                  liste(ecart.exemplesinconnus, ecart.inconnus);
    lignes << QStringLiteral("Mots du lexique libre qui manquent : ") + motsde(ecart.manquants) +
                  liste(ecart.exemplesmanquants, ecart.manquants);
    if (lus.doubles > 0)
        lignes << QStringLiteral("Donnés plus d'une fois : ") + motsde(lus.doubles);
    for (std::size_t taille = 2; taille < lus.parlongueur.size(); ++taille) {
        if (lus.parlongueur.at(taille) > 0)
            lignes << QStringLiteral("%1 lettres : ").arg(taille) +
                          motsde(lus.parlongueur.at(taille));
    }
    if (lus.refusees > 0)
        lignes << compte(lus.refusees, QStringLiteral("ligne refusée :"),
                         QStringLiteral("lignes refusées :"));
    for (const auto& refusee : lus.montrees)
        lignes << QStringLiteral("  ligne %1, « %2 » : %3")
                      .arg(refusee.numero)
                      .arg(qt(refusee.extrait), qt(refusee.ennui));
    if (lus.refusees > lus.montrees.size())
        lignes << QStringLiteral("  …");
    return lignes.join(QLatin1Char('\n'));
}

}  // namespace

Pagedictionnaire::Pagedictionnaire(Seance& seance, QWidget* parent)
    : QWidget(parent),
      seance_(seance),
      envigueur_(new QLabel(this)),
      choisir_(new QPushButton(QStringLiteral("C&hoisir un fichier de mots…"), this)),
      examen_(new QPlainTextEdit(this)),
      editions_(new Editions(this)),
      faire_(new QPushButton(QStringLiteral("&Faire les listes"), this)),
      revenir_(new QPushButton(QStringLiteral("&Revenir au lexique libre"), this)),
      message_(new QLabel(this)) {
    auto* mise = new QVBoxLayout(this);
    envigueur_->setWordWrap(true);
    envigueur_->setObjectName(QStringLiteral("envigueur"));
    message_->setWordWrap(true);
    message_->setObjectName(QStringLiteral("etat"));
    examen_->setReadOnly(true);
    examen_->setTabChangesFocus(true);
    examen_->setAccessibleName(QStringLiteral("Ce qui a été lu"));
    examen_->setPlaceholderText(QStringLiteral(
        "Choisissez un fichier que vous possédez : un mot par ligne, accents ou non, majuscules ou "
        "minuscules. Ce qui y est lu se montre ici ; rien ne change avant « Faire les listes »."));
    auto* haut = new QHBoxLayout;
    haut->addWidget(envigueur_, 1);
    haut->addWidget(revenir_);
    auto* cadre = new QGroupBox(QStringLiteral("Votre fichier de mots"), this);
    auto* dedans = new QVBoxLayout(cadre);
    dedans->addWidget(choisir_, 0, Qt::AlignLeft);
    dedans->addWidget(examen_, 1);
    auto* marques =
        new QGroupBox(QStringLiteral("Vos éditions, pour les marques des nouveaux mots"), this);
    (new QVBoxLayout(marques))->addWidget(editions_);
    auto* bas = new QHBoxLayout;
    bas->addWidget(message_, 1);
    bas->addWidget(faire_);
    mise->addLayout(haut);
    mise->addWidget(cadre, 1);
    mise->addWidget(marques);
    mise->addLayout(bas);
    setFocusProxy(choisir_);

    connect(choisir_, &QPushButton::clicked, this, &Pagedictionnaire::choisir);
    connect(faire_, &QPushButton::clicked, this, &Pagedictionnaire::faire);
    connect(revenir_, &QPushButton::clicked, this, &Pagedictionnaire::revenir);
    connect(editions_, &Editions::change, this, &Pagedictionnaire::accorder);
    connect(&seance_.tache(), &Tache::change, this, &Pagedictionnaire::accorder);
    connect(&seance_, &Seance::motschanges, this, &Pagedictionnaire::direenvigueur);
    auto* ouvrir = new QAction(QStringLiteral("C&hoisir un fichier de mots…"), this);
    ouvrir->setShortcut(QKeySequence::Open);
    ouvrir->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    connect(ouvrir, &QAction::triggered, choisir_, &QPushButton::click);
    addAction(ouvrir);
    direenvigueur();
}

void Pagedictionnaire::direenvigueur() {
    const auto& e = seance_.envigueur();
    if (!seance_.glossaire())
        envigueur_->setText(seance_.ennui().isEmpty() ? QStringLiteral("Lecture des mots…")
                                                      : seance_.ennui());
    else if (e.libre())
        envigueur_->setText(QStringLiteral("En vigueur : le lexique libre, ") + motsde(e.mots) +
                            QLatin1Char('.'));
    else
        envigueur_->setText(QStringLiteral("En vigueur : votre dictionnaire ") + qt(e.fichier) +
                            QStringLiteral(", ") + motsde(e.mots) + QLatin1Char('.'));
    QStringList marques;
    for (std::size_t i = 0; i < atelier::editions.size(); ++i) {
        if (!e.comparaisons.at(i).empty())
            marques << qt(atelier::editions.at(i).annee) + QStringLiteral(" (") +
                           qt(e.comparaisons.at(i)) + QLatin1Char(')');
    }
    if (!marques.empty())
        envigueur_->setText(envigueur_->text() + QStringLiteral(" Marques : ") +
                            marques.join(QStringLiteral(", ")) + QLatin1Char('.'));
    accorder();
}

void Pagedictionnaire::accorder() {
    const bool libre = !seance_.tache().encours();
    const auto fichiers = editions_->fichiers();
    bool editions = false;
    for (std::size_t i = 0; i + 1 < fichiers.size(); ++i)
        editions = editions || (!fichiers.at(i).empty() && !fichiers.at(i + 1).empty());
    choisir_->setEnabled(libre);
    const auto& e = seance_.envigueur();
    const bool connus = e.libre() || seance_.glossaire() != nullptr;
    faire_->setEnabled(libre && (mots_ != nullptr || (editions && connus)));
    revenir_->setEnabled(libre &&
                         (!seance_.glossaire() || e != recherche::Envigueur{{}, e.mots, {}}));
}

void Pagedictionnaire::choisir() {
    const auto chemin = QFileDialog::getOpenFileName(
        this, QStringLiteral("Votre fichier de mots"), QDir::homePath(),
        QStringLiteral("Textes (*.txt);;Tous les fichiers (*)"));
    if (!chemin.isEmpty())
        examiner(chemin);
}

void Pagedictionnaire::examiner(const QString& chemin) {
    const auto vu = std::make_shared<Examen>();
    mots_ = nullptr;
    examen_->clear();
    message_->clear();
    seance_.tache().lancer(
        [this, vu, chemin](const Avance& avance) {
            avance(0, "Lecture de votre fichier");
            vu->lus = lirefichierdemots(seance_.disque(), utf8(chemin));
            if (!std::holds_alternative<Motslus>(vu->lus))
                return;
            avance(300, "Comparaison avec le lexique libre");
            const auto lexique = seance_.envigueur().libre() && seance_.glossaire()
                                     ? seance_.glossaire()
                                     : lexiquelibre(seance_.chemins());
            avance(900, "Comparaison avec le lexique libre");
            vu->ecart = comparer(std::get<Motslus>(vu->lus).mots, *lexique);
        },
        [this, vu, chemin](const QString& faute) {
            if (!faute.isEmpty())
                vu->lus = utf8(faute);
            montrer(chemin, *vu);
        });
}

void Pagedictionnaire::montrer(const QString& chemin, Examen& examen) {
    if (const auto* ennui = std::get_if<std::string>(&examen.lus)) {
        examen_->setPlainText(QStringLiteral("Ce fichier ne convient pas. ") + qt(*ennui));
    } else {
        fichier_ = QFileInfo(chemin).fileName();
        mots_ = std::make_shared<Motslus>(std::move(std::get<Motslus>(examen.lus)));
        examen_->setPlainText(fichier_ + QStringLiteral(" : ") + rapport(*mots_, examen.ecart));
    }
    accorder();
    (mots_ != nullptr ? static_cast<QWidget*>(faire_) : examen_)->setFocus();
}

void Pagedictionnaire::faire() {
    if (const auto perdues = editionsperdues();
        perdues.isEmpty() ||
        confirmer(this,
                  QStringLiteral("Les éditions d'où viennent les nouveautés de %1 ne sont pas "
                                 "données : ces marques et listes de référence seront vides.")
                      .arg(perdues),
                  QStringLiteral("Faire les listes sans")))
        fabriquerlistes(false);
}

QString Pagedictionnaire::editionsperdues() const {
    const auto fichiers = editions_->fichiers();
    QStringList annees;
    for (std::size_t i = 0; i < atelier::editions.size(); ++i) {
        const bool donnee = !fichiers.at(i).empty() && !fichiers.at(i + 1).empty();
        if (!donnee && !seance_.envigueur().comparaisons.at(i).empty())
            annees << qt(atelier::editions.at(i).annee);
    }
    return annees.join(QStringLiteral(", "));
}

void Pagedictionnaire::revenir() {
    fabriquerlistes(true);
}

void Pagedictionnaire::fabriquerlistes(bool libre) {
    const auto commande = std::make_shared<Commande>();
    if (!libre && mots_ != nullptr) {
        commande->dictionnaire = mots_->mots;
        commande->envigueur.fichier = utf8(fichier_);
    } else if (!libre && !seance_.envigueur().libre() && seance_.glossaire()) {
        // Editions alone change the marks, not the words.
        auto& mots = commande->dictionnaire.emplace();
        for (const auto& fiche : seance_.glossaire()->fiches())
            mots.push_back(fiche.mot);
        commande->envigueur.fichier = seance_.envigueur().fichier;
    }
    const auto fichiers = libre ? Fichiersdeditions{} : editions_->fichiers();
    const auto faites = std::make_shared<bool>(false);
    message_->setText(QStringLiteral("Les listes se font…"));
    seance_.tache().lancer(
        [this, commande, fichiers, faites](const Avance& avance) {
            comparereditions(seance_.disque(), fichiers, *commande);
            *faites = fabriquer(seance_.chemins(), *commande, seance_.dossier(), avance);
        },
        [this, faites](const QString& faute) {
            if (!faute.isEmpty())
                message_->setText(QStringLiteral("Rien n'a changé. ") + faute);
            else if (!*faites)
                message_->setText(QStringLiteral("Annulé : rien n'a changé."));
            else
                message_->setText(
                    QStringLiteral("Les listes sont faites. Vos propres listes sont restées."));
            if (*faites)
                seance_.relire();
        });
}

}  // namespace carnet
