#include "liste.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <iterator>
#include <set>

#include "texte.h"

namespace endurance {
namespace {

std::vector<std::string> couper(std::string_view texte) {
    std::vector<std::string> morceaux;
    std::size_t debut = 0;
    for (auto fin = texte.find(';'); fin != std::string_view::npos; fin = texte.find(';', debut)) {
        morceaux.emplace_back(texte.substr(debut, fin - debut));
        debut = fin + 1;
    }
    if (debut < texte.size())
        morceaux.emplace_back(texte.substr(debut));
    return morceaux;
}

}  // namespace

std::vector<std::string> Rangee::solutions() const {
    auto mots = couper(suite);
    mots.erase(std::find(mots.begin(), mots.end(), ""), mots.end());
    return mots;
}

std::size_t Rangee::nombre() const {
    return couper(suite).size();
}

std::string net(std::string_view tirage) {
    const auto tiret = tirage.find('-');
    if (tiret != std::string_view::npos)
        return std::string(tirage.substr(0, tiret));
    std::string lettres;
    for (const char c : tirage)
        if (std::string_view("+()12345678").find(c) == std::string_view::npos)
            lettres += c;
    return lettres;
}

bool tirede(std::string_view lettres, std::string_view tirage) {
    std::array<int, 256> reste{};
    for (const char c : tirage)
        ++reste.at(static_cast<unsigned char>(c));
    return std::all_of(lettres.begin(), lettres.end(),
                       [&](char c) { return --reste.at(static_cast<unsigned char>(c)) >= 0; });
}

std::vector<std::string> leslignes(const std::filesystem::path& fichier) {
    std::ifstream flux(fichier, std::ios::binary);
    const std::string octets(std::istreambuf_iterator<char>(flux), {});
    std::vector<std::string> lignes;
    for (std::size_t debut = 0; debut < octets.size();) {
        const auto fin = std::min(octets.find("\r\n", debut), octets.size());
        lignes.push_back(common::depuis1252(octets.substr(debut, fin - debut)));
        debut = fin + 2;
    }
    return lignes;
}

std::vector<Rangee> lesrangees(const std::vector<std::string>& lignes) {
    std::vector<Rangee> rangees;
    for (const auto& ligne : lignes) {
        const auto place = ligne.find(';');
        if (place != std::string::npos)
            rangees.push_back({ligne.substr(0, place), ligne.substr(place + 1)});
    }
    return rangees;
}

std::size_t nbsolutions(const std::vector<Rangee>& rangees) {
    std::size_t plus = 2;
    for (const auto& rangee : rangees)
        plus = std::max(plus, rangee.nombre());
    return plus;
}

bool distinctes(const std::vector<Rangee>& rangees) {
    std::set<std::string> vus;
    return std::all_of(rangees.begin(), rangees.end(),
                       [&](const Rangee& rangee) { return vus.insert(net(rangee.tirage)).second; });
}

std::vector<std::string> formes(const Rangee& rangee, bool multi, std::size_t nbsolutions) {
    if (!multi)
        return {rangee.ligne()};
    std::string courte;
    for (const auto& mot : rangee.solutions())
        courte += ";" + mot;
    std::string pleine;
    const auto mots = couper(rangee.suite);
    for (std::size_t i = 0; i < nbsolutions; ++i)
        pleine += ";" + (i < mots.size() ? mots[i] : std::string());
    const auto lettres = net(rangee.tirage);
    return {rangee.tirage + courte, lettres + courte, rangee.tirage + pleine};
}

}  // namespace endurance
