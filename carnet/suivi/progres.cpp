#include "progres.h"

#include "hist.h"
#include "nombre.h"
#include "texte.h"

namespace carnet {
namespace {

constexpr std::string_view separateur = " - ";

bool estmode(char signe) {
    return signe == modetout || signe == modeechantillon || signe == moderevision;
}

/// The name behind the percent and the mode, which parts do not have.
std::string_view nomdeliste(std::string_view suite) {
    if (!suite.starts_with(separateur))
        return {};
    suite.remove_prefix(separateur.size());
    if (!suite.empty() && estmode(suite.front()) && suite.substr(1).starts_with(separateur))
        suite.remove_prefix(1 + separateur.size());
    return suite;
}

/// yyyy-mm-dd of dd/mm/yyyy; empty if it is none.
std::string dateiso(std::string_view record) {
    constexpr std::string_view forme = "00/00/0000";
    if (record.size() < forme.size())
        return {};
    for (std::size_t i = 0; i < forme.size(); ++i) {
        const bool chiffre = record[i] >= '0' && record[i] <= '9';
        if (forme[i] == '/' ? record[i] != '/' : !chiffre)
            return {};
    }
    std::string date(record.substr(6, 4));
    return date.append("-").append(record.substr(3, 2)).append("-").append(record.substr(0, 2));
}

}  // namespace

bool prendrerecord(std::string_view record, Bilans& bilans) {
    const auto lu = profiles::balayer(record);
    auto date = dateiso(record);
    if (!lu || lu->pourcentage.empty() || date.empty())
        return false;
    const auto pourcent =
        static_cast<std::size_t>(lu->pourcentage.data() - record.data()) + lu->pourcentage.size();
    const auto nom = nomdeliste(record.substr(pourcent + 1));
    if (nom.empty())
        return false;
    auto& bilan = bilans[common::depuis1252(nom)];
    bilan.dernier = common::depuis1252(lu->pourcentage);
    bilan.derniereon = std::move(date);
    if (bilan.passages == 0 || common::valeur(bilan.dernier) > common::valeur(bilan.meilleur))
        bilan.meilleur = bilan.dernier;
    ++bilan.passages;
    if (const auto jour = lirejour(bilan.derniereon)) {
        const bool mode = nom.data() != record.data() + pourcent + 1 + separateur.size();
        bilan.points.push_back(
            {*jour, common::valeur(bilan.dernier), mode ? lu->mode.front() : modepartie});
    }
    return true;
}

Bilans lirebilans(common::Disque& disque, std::string_view util) {
    Bilans bilans;
    if (disque.existe(profiles::cheminhist(util))) {
        profiles::parcourirhist(
            disque, util, [&](std::string_view record) { return prendrerecord(record, bilans); });
    }
    return bilans;
}

}  // namespace carnet
