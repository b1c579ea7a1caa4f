#include "sujets.h"

#include "nombre.h"
#include "tableaux.h"
#include "texte.h"
#include "textesqt.h"

namespace carnet {
namespace {

QString nombre(std::size_t valeur) {
    return QString::number(valeur);
}

}  // namespace

Barres barresdesjours(std::span<const std::size_t> nombres, Jour jour) {
    constexpr std::size_t jourmois = 5;  // of dd/mm/yyyy
    Barres barres;
    for (std::size_t i = 0; i < nombres.size(); ++i) {
        const auto date = datefrancaise(jour + static_cast<Jour>(i)).substr(0, jourmois);
        barres.barres.push_back({i == 0 ? QStringLiteral("Aujourd'hui") : qt(date),
                                 static_cast<double>(nombres[i]), nombre(nombres[i]), -1});
    }
    return barres;
}

Barres barresdespaliers(std::span<const std::size_t> nombres) {
    Barres barres;
    for (std::size_t i = 0; i < nombres.size(); ++i)
        barres.barres.push_back({compte(static_cast<std::size_t>(paliers.at(i)),
                                        QStringLiteral("jour"), QStringLiteral("jours")),
                                 static_cast<double>(nombres[i]), nombre(nombres[i]), -1});
    return barres;
}

Barres barresdeslistes(const Bilans& bilans) {
    Barres barres;
    barres.couchees = true;
    barres.legende = QStringLiteral("La barre : le dernier résultat. Le trait : le meilleur.");
    for (const auto& [nom, bilan] : bilans) {
        const auto dernier = common::valeur(bilan.dernier);
        barres.barres.push_back(
            {qt(nom), dernier, qt(pourcentage(dernier)), common::valeur(bilan.meilleur)});
    }
    return barres;
}

Barres barresdesdurs(std::span<const Tiragedur> durs) {
    Barres barres;
    barres.couchees = true;
    barres.legende = QStringLiteral("Le nombre de fois où il a été manqué.");
    for (const auto& dur : durs)
        barres.barres.push_back(
            {qt(common::depuis1252(dur.identifiant.substr(0, dur.identifiant.find(';')))),
             static_cast<double>(dur.manques), nombre(dur.manques), -1});
    return barres;
}

}  // namespace carnet
