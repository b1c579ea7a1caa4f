#include "modelemots.h"

#include <array>

#include "textesqt.h"

namespace carnet {
namespace {

/// As the natures of a word are said, in the order of `recherche::natures`.
constexpr std::array<const char*, recherche::natures.size()> libelles{
    "nom", "infinitif", "participe", "conjugué", "pluriel", "invariable", "entrée"};

constexpr std::array<const char*, Modelemots::colonnes> titres{"Tirage", "Mot",    "Nature",
                                                               "Poids",  "Devant", "Derrière"};

QString lettres(std::uint32_t bits) {
    QString texte;
    for (char lettre = 'A'; lettre <= 'Z'; ++lettre) {
        if ((bits & recherche::bitlettre(lettre)) != 0)
            texte += QLatin1Char(lettre);
    }
    return texte;
}

}  // namespace

QString natures(const recherche::Fiche& fiche) {
    QStringList dites;
    for (std::size_t i = 0; i < libelles.size(); ++i) {
        if ((fiche.marques & recherche::natures.at(i).bit) != 0)
            dites << QString::fromUtf8(libelles.at(i));
    }
    return dites.join(QStringLiteral(", "));
}

void Modelemots::montrer(std::shared_ptr<const recherche::Glossaire> glossaire,
                         std::vector<std::uint32_t> places) {
    beginResetModel();
    glossaire_ = std::move(glossaire);
    places_ = std::move(places);
    endResetModel();
}

int Modelemots::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(places_.size());
}

int Modelemots::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : colonnes;
}

QVariant Modelemots::data(const QModelIndex& index, int role) const {
    if (role == Qt::TextAlignmentRole && index.column() == poids)
        return int{Qt::AlignRight | Qt::AlignVCenter};
    if (role != Qt::DisplayRole)
        return {};
    const auto& fiche = glossaire_->fiches()[places_.at(static_cast<std::size_t>(index.row()))];
    switch (index.column()) {
        case tirage:
            return qt(fiche.mot.triees().texte());
        case mot:
            return qt(fiche.texte());
        case nature:
            return natures(fiche);
        case poids:
            return int{fiche.poids};
        case devant:
            return lettres(fiche.devant);
        default:
            return lettres(fiche.derriere);
    }
}

QVariant Modelemots::headerData(int section, Qt::Orientation sens, int role) const {
    if (role != Qt::DisplayRole)
        return {};
    if (sens == Qt::Horizontal)
        return QString::fromUtf8(titres.at(static_cast<std::size_t>(section)));
    return section + 1;
}

}  // namespace carnet
