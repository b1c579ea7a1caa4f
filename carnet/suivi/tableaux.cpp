#include "tableaux.h"

#include <algorithm>

#include "nombre.h"
#include "texte.h"

namespace carnet {
namespace {

constexpr double cent = 100;

std::string part(std::size_t trouves, std::size_t vus) {
    return pourcentage(vus == 0 ? 0
                                : cent * static_cast<double>(trouves) / static_cast<double>(vus));
}

std::string cellule(std::string texte) {
    if (!texte.empty() && std::string_view("=+-@\t").find(texte.front()) != std::string_view::npos)
        texte.insert(0, 1, '\'');
    if (texte.find_first_of("\";\r\n") == std::string::npos)
        return texte;
    std::string entre = "\"";
    for (const char c : texte)
        entre.append(c == '"' ? 2 : 1, c);
    return entre + '"';
}

void ligne(std::string& octets, const std::vector<std::string>& cellules) {
    for (std::size_t i = 0; i < cellules.size(); ++i)
        octets.append(i == 0 ? "" : ";").append(cellule(cellules[i]));
    octets.append(common::findeligne);
}

std::string jours(std::size_t nombre) {
    return std::to_string(nombre) + (nombre > 1 ? " jours" : " jour");
}

}  // namespace

std::string encsv(const Tableau& tableau) {
    std::string octets(common::marqueutf8);
    ligne(octets, tableau.titres);
    for (const auto& rangee : tableau.rangees)
        ligne(octets, rangee);
    return octets;
}

std::string pourcentage(double pourcent) {
    auto texte = common::textenombre(common::valeur(common::decimales(pourcent, 1)));
    std::replace(texte.begin(), texte.end(), '.', ',');
    return texte + " %";
}

std::string nomdemode(char mode) {
    switch (mode) {
        case modetout:
            return "Toute la liste";
        case modeechantillon:
            return "Échantillon";
        case moderevision:
            return "Révision";
        default:
            return "Partie";
    }
}

Tableau tableaujournees(const std::map<Jour, Journee>& journees, Jour debut, Jour fin) {
    Tableau tableau{{"Jour", "Tirages", "Trouvés", "Part"}, {}};
    for (auto i = journees.lower_bound(debut); i != journees.end() && i->first < fin; ++i)
        tableau.rangees.push_back({datefrancaise(i->first), std::to_string(i->second.juges),
                                   std::to_string(i->second.trouves),
                                   part(i->second.trouves, i->second.juges)});
    return tableau;
}

Tableau tableauprevision(std::span<const std::size_t> nombres, Jour jour) {
    Tableau tableau{{"Jour", "Tirages à revoir"}, {}};
    for (std::size_t i = 0; i < nombres.size(); ++i)
        tableau.rangees.push_back(
            {i == 0 ? "Aujourd'hui" : datefrancaise(jour + static_cast<Jour>(i)),
             std::to_string(nombres[i])});
    return tableau;
}

Tableau tableaupaliers(std::span<const std::size_t> nombres) {
    Tableau tableau{{"Palier", "Revu après", "Tirages"}, {}};
    for (std::size_t i = 0; i < nombres.size(); ++i)
        tableau.rangees.push_back({std::to_string(i + 1),
                                   jours(static_cast<std::size_t>(paliers.at(i))),
                                   std::to_string(nombres[i])});
    return tableau;
}

Tableau tableaulistes(const Bilans& bilans, Jour jour) {
    Tableau tableau{{"Liste", "Passages", "Dernier", "Meilleur", "Le", "Il y a"}, {}};
    for (const auto& [nom, bilan] : bilans) {
        const auto le = lirejour(bilan.derniereon);
        tableau.rangees.push_back(
            {nom, std::to_string(bilan.passages), pourcentage(common::valeur(bilan.dernier)),
             pourcentage(common::valeur(bilan.meilleur)), le ? datefrancaise(*le) : "",
             le ? jours(static_cast<std::size_t>(std::max(0, jour - *le))) : ""});
    }
    return tableau;
}

Tableau tableaupassages(std::span<const Passage> points) {
    Tableau tableau{{"Le", "Résultat", "Mode"}, {}};
    for (auto point = points.rbegin(); point != points.rend(); ++point)
        tableau.rangees.push_back(
            {datefrancaise(point->jour), pourcentage(point->pourcent), nomdemode(point->mode)});
    return tableau;
}

Tableau tableaudurs(std::span<const Tiragedur> durs) {
    Tableau tableau{{"Tirage", "Solutions", "Manqué", "Trouvé", "Vu le", "Liste"}, {}};
    for (const auto& dur : durs) {
        const auto tirage = dur.identifiant.substr(0, dur.identifiant.find(';'));
        auto solutions = common::depuis1252(dur.identifiant.substr(tirage.size() + 1));
        std::replace(solutions.begin(), solutions.end(), ',', ' ');
        tableau.rangees.push_back({common::depuis1252(tirage), solutions,
                                   std::to_string(dur.manques) + " fois",
                                   part(dur.vus - dur.manques, dur.vus), datefrancaise(dur.dernier),
                                   common::depuis1252(dur.liste)});
    }
    return tableau;
}

}  // namespace carnet
