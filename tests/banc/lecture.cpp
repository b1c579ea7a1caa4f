#include "lecture.h"

#include <algorithm>
#include <charconv>
#include <utility>

namespace banc {
namespace {

constexpr char marque = '|';
constexpr char commentaire = '#';

void remplacer(std::string& texte, std::string_view trou, std::string_view valeur) {
    for (auto place = texte.find(trou); place != std::string::npos;
         place = texte.find(trou, place + valeur.size()))
        texte.replace(place, trou.size(), valeur);
}

bool sansordre(std::string_view ligne) {
    return ligne.empty() || ligne.front() == commentaire ||
           ligne.find_first_not_of(" \t") == std::string_view::npos;
}

}  // namespace

Ordre decouper(std::string_view ligne) {
    Ordre ordre;
    const auto blanc = ligne.find(' ');
    ordre.nom = ligne.substr(0, blanc);
    if (blanc != std::string_view::npos)
        ordre.suite = ligne.substr(blanc + 1);
    return ordre;
}

std::string enlettres(std::size_t nombre) {
    constexpr std::size_t alphabet = 26;
    std::string lettres;
    for (; nombre > 0; nombre = (nombre - 1) / alphabet)
        lettres.insert(lettres.begin(), static_cast<char>('A' + (nombre - 1) % alphabet));
    return lettres;
}

bool prendlignes(const Ordre& ordre) {
    if (ordre.nom == "refus")
        return prendlignes(decouper(ordre.suite));
    return ordre.nom == "fichier" || ordre.nom == "contenu";
}

Lecteur::Lecteur(std::istream& flux) : flux_(flux) {
    gardee_ = avancer();
    if (ligne_ == "# modele seulement")
        destination_ = Destination::Modele;
    else if (ligne_ == "# qt seulement")
        destination_ = Destination::Qt;
}

/// Goes to the next line; false at the end of the scenario.
bool Lecteur::avancer() {
    if (std::exchange(gardee_, false))
        return true;
    ligne_.clear();
    if (!std::getline(flux_, ligne_))
        return false;
    ++numero_;
    if (!ligne_.empty() && ligne_.back() == '\r')
        ligne_.pop_back();
    return true;
}

bool Lecteur::suivant(Ordre& ordre) {
    do {
        if (!avancer())
            return false;
    } while (sansordre(ligne_));
    ordre = decouper(ligne_);
    ordre.numero = numero_;
    while (prendlignes(ordre) && avancer()) {
        if (sansordre(ligne_))
            continue;
        gardee_ = ligne_.front() != marque;
        if (gardee_)
            break;
        ajouter(ordre, std::string_view(ligne_).substr(1));
    }
    return true;
}

/// Adds what stands behind the mark: a line, or "*N TEXT" for N lines.
void Lecteur::ajouter(Ordre& ordre, std::string_view ligne) {
    if (ligne.empty() || ligne.front() == ' ') {
        ordre.lignes.emplace_back(ligne.substr(std::min<std::size_t>(1, ligne.size())));
        return;
    }
    const auto blanc = std::min(ligne.find(' '), ligne.size());
    std::size_t fois = 0;
    const auto* fin = ligne.data() + blanc;
    const auto lu = std::from_chars(ligne.data() + 1, fin, fois);
    if (ligne.front() != '*' || lu.ec != std::errc{} || lu.ptr != fin) {
        ordre.defaut = "ligne mal formée : |" + std::string(ligne);
        return;
    }
    const std::string modele(ligne.substr(std::min(blanc + 1, ligne.size())));
    for (std::size_t n = 1; n <= fois; ++n) {
        auto& texte = ordre.lignes.emplace_back(modele);
        remplacer(texte, "{n}", std::to_string(n));
        remplacer(texte, "{m}", enlettres(n));
    }
}

}  // namespace banc
