#include "criteresqt.h"

#include <array>

#include <QComboBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QLineEdit>
#include <QSignalBlocker>

#include "textesqt.h"

namespace carnet {
namespace {

/// Label and key of each nature.
constexpr std::array<std::pair<const char*, const char*>, recherche::natures.size()> lesnatures{{
    {"Nom", "nom"},
    {"Infinitif", "infinitif"},
    {"Participe", "participe"},
    {"Conjugué", "conjugue"},
    {"Pluriel", "pluriel"},
    {"Invariable", "invariable"},
    {"Entrée", "entree"},
}};

QString francais(const char* texte) {
    return QString::fromUtf8(texte);
}

}  // namespace

Criteres::Criteres(QWidget* parent) : QWidget(parent) {
    auto* mise = new QFormLayout(this);
    mise->setRowWrapPolicy(QFormLayout::WrapLongRows);
    mise->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
    ajouter("longueur", "&Longueur", ligne("7 ou 2-8"), "Nombre de lettres");
    ajouter("lettres", "L&ettres exactes", ligne("AEINRST?"),
            "Le mot est fait de ces lettres ; ? est n'importe laquelle");
    ajouter("parmi", "&Parmi les lettres", ligne("AEINRSTU"),
            "Le mot peut se faire avec ces lettres, sans les prendre toutes");
    ajouter("motif", "&Motif", ligne("B?N*E"),
            "? une lettre, * des lettres ou aucune, [AE] l'une d'elles, [^AE] aucune d'elles");
    ajouter("debut", "Comme&nce par", ligne("RE"), "Premières lettres");
    ajouter("fin", "&Finit par", ligne("ENT"), "Dernières lettres");
    ajouter("contient", "C&ontient", ligne("QU,K"), "Chacune de ces suites de lettres");
    ajouter("sans", "&Sans", ligne("E,A"), "Aucune de ces suites de lettres");
    ajouter("poids", "Poi&ds", ligne("0 ou 5-9"),
            "Somme des points des lettres, moins une par lettre");
    ajouter("voyelles", "&Voyelles", ligne("2-3"), "Nombre de voyelles, Y compris");
    ajouter("anagrammes", "&Anagrammes", ligne("1"),
            "Nombre de mots sur les mêmes lettres, lui compris");
    ajouter("devant", "Rallon&ge devant", ligne("oui, non ou lettres"),
            "Une lettre devant fait un mot");
    ajouter("derriere", "Rallonge de&rrière", ligne("oui, non ou lettres"),
            "Une lettre derrière fait un mot");
    ajouter("nature", "Nature", natures(), "Ce que le mot est, ou n'est pas");
    ajouter("commun", "Mot co&urant", choix({{"indifférent", ""}, {"oui", "oui"}, {"non", "non"}}),
            "Le thésaurus connaît le mot");
    ajouter("dans", "Dans la l&iste", listes(), "Le mot est une solution de cette liste");
    ajouter("pasdans", "Pas dans la lis&te", listes(),
            "Le mot n'est pas une solution de cette liste");
    ajouter("nouveau", "Nouveau en",
            choix({{"indifférent", ""}, {"2008", "2008"}, {"2012", "2012"}, {"2016", "2016"}}),
            "Entré avec cette édition, d'après vos éditions");
    ajouter("par", "Mots par tirage",
            choix({{"indifférent", ""},
                   {"un seul", "1"},
                   {"de 2 à 5", "2-5"},
                   {"2", "2"},
                   {"3", "3"},
                   {"4", "4"},
                   {"5", "5"}}),
            "Nombre de mots trouvés sur les mêmes lettres");
    ajouter("ordre", "Ordre",
            choix({{"alphabétique", ""},
                   {"les plus difficiles", "difficulte"},
                   {"les plus probables", "probabilite"},
                   {"les plus lourds", "poids"},
                   {"au hasard", "hasard"}}),
            "Les premiers de cet ordre sont gardés ; « au hasard » choisi de nouveau en donne "
            "d'autres");
    auto* ordre = findChild<QComboBox*>(QStringLiteral("ordre"));
    connect(ordre, &QComboBox::activated, this, [this, ordre] {
        if (ordre->currentData() != QLatin1String("hasard"))
            return;
        graine_ = QRandomGenerator::global()->generate();
        emit change();
    });
    ajouter("max", "Au plus", ligne("500"), "Nombre de mots gardés");
}

QWidget* Criteres::ligne(const char* indication) {
    auto* saisie = new QLineEdit(this);
    saisie->setPlaceholderText(francais(indication));
    saisie->setClearButtonEnabled(true);
    connect(saisie, &QLineEdit::textChanged, this, &Criteres::change);
    return saisie;
}

QWidget* Criteres::choix(const std::vector<std::pair<const char*, const char*>>& choix) {
    auto* saisie = new QComboBox(this);
    for (const auto& [libelle, valeur] : choix)
        saisie->addItem(francais(libelle), francais(valeur));
    connect(saisie, &QComboBox::currentIndexChanged, this, &Criteres::change);
    return saisie;
}

QWidget* Criteres::listes() {
    auto* saisie = new QComboBox(this);
    saisie->setEditable(true);
    saisie->setInsertPolicy(QComboBox::NoInsert);
    saisie->setMinimumContentsLength(8);
    connect(saisie, &QComboBox::currentTextChanged, this, &Criteres::change);
    return saisie;
}

QWidget* Criteres::natures() {
    auto* cadre = new QWidget(this);
    auto* grille = new QGridLayout(cadre);
    grille->setContentsMargins({});
    for (std::size_t i = 0; i < lesnatures.size(); ++i) {
        auto* saisie = new QComboBox(cadre);
        saisie->addItems({francais("–"), francais("oui"), francais("non")});
        saisie->setAccessibleName(francais(lesnatures.at(i).first));
        saisie->setObjectName(QStringLiteral("nature_") + francais(lesnatures.at(i).second));
        connect(saisie, &QComboBox::currentIndexChanged, this, &Criteres::change);
        auto* libelle = new QLabel(francais(lesnatures.at(i).first), cadre);
        libelle->setBuddy(saisie);
        const auto rang = static_cast<int>(i / 2);
        const auto colonne = static_cast<int>(i % 2) * 2;
        grille->addWidget(libelle, rang, colonne);
        grille->addWidget(saisie, rang, colonne + 1);
        natures_.push_back(saisie);
    }
    return cadre;
}

QWidget* Criteres::ajouter(const char* cle, const char* libelle, QWidget* saisie,
                           const char* aide) {
    auto* mise = static_cast<QFormLayout*>(layout());
    auto nom = francais(libelle);
    mise->addRow(nom, saisie);
    saisie->setObjectName(francais(cle));
    saisie->setAccessibleName(nom.remove(QLatin1Char('&')));
    saisie->setAccessibleDescription(francais(aide));
    saisie->setToolTip(francais(aide));
    auto* ennui = new QLabel(this);
    ennui->setWordWrap(true);
    ennui->setObjectName(francais(cle) + QStringLiteral("_ennui"));
    ennui->hide();
    mise->addRow(ennui);
    champs_.push_back({francais(cle), saisie, ennui});
    return saisie;
}

QString Criteres::valeurnatures() const {
    QStringList dites;
    for (std::size_t i = 0; i < natures_.size(); ++i) {
        const auto cle = francais(lesnatures.at(i).second);
        if (natures_[i]->currentIndex() == 1)
            dites << cle;
        else if (natures_[i]->currentIndex() == 2)
            dites << QLatin1Char('!') + cle;
    }
    return dites.join(QLatin1Char(','));
}

QString Criteres::valeur(const Champ& champ) const {
    if (champ.cle == QLatin1String("nature"))
        return valeurnatures();
    if (const auto* saisie = qobject_cast<QLineEdit*>(champ.saisie))
        return saisie->text().trimmed();
    const auto* saisie = static_cast<QComboBox*>(champ.saisie);
    return saisie->isEditable() ? saisie->currentText().trimmed()
                                : saisie->currentData().toString();
}

QString Criteres::texte() const {
    QStringList criteres;
    for (const auto& champ : champs_) {
        auto v = valeur(champ);
        if (v.isEmpty())
            continue;
        v.remove(QLatin1Char('"'));
        criteres << champ.cle + QLatin1Char('=') +
                        (v.contains(QLatin1Char(' ')) ? QLatin1Char('"') + v + QLatin1Char('"')
                                                      : v);
        if (champ.cle == QLatin1String("ordre") && v == QLatin1String("hasard"))
            criteres << QStringLiteral("graine=%1").arg(graine_);
    }
    return criteres.join(QLatin1Char(' '));
}

void Criteres::proposerlistes(const QStringList& fichiers) {
    for (const auto& champ : champs_) {
        auto* saisie = qobject_cast<QComboBox*>(champ.saisie);
        if (saisie == nullptr || !saisie->isEditable())
            continue;
        const QSignalBlocker muet(saisie);
        const auto texte = saisie->currentText();
        saisie->clear();
        saisie->addItem({});
        saisie->addItems(fichiers);
        saisie->setCurrentText(texte);
    }
}

void Criteres::dire(const recherche::Refus& refus) {
    for (const auto& champ : champs_) {
        const bool vise = champ.cle == qt(refus.critere);
        champ.ennui->setVisible(vise);
        champ.ennui->setText(vise ? qt(refus.ennui) : QString());
    }
}

void Criteres::effacer() {
    {
        const QSignalBlocker muet(this);
        for (const auto& champ : champs_) {
            if (auto* ligne = qobject_cast<QLineEdit*>(champ.saisie))
                ligne->clear();
            else if (auto* liste = qobject_cast<QComboBox*>(champ.saisie)) {
                liste->setCurrentIndex(0);
                if (liste->isEditable())
                    liste->clearEditText();
            }
        }
        for (auto* nature : natures_)
            nature->setCurrentIndex(0);
    }
    emit change();
}

}  // namespace carnet
