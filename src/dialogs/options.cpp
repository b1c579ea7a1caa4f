#include "options.h"

#include <algorithm>
#include <span>

#include "listes.h"
#include "nombre.h"

namespace dialogs::options {
namespace {

struct Bornes {
    double bas;
    double haut;
    [[nodiscard]] bool contient(double v) const { return v >= bas && v <= haut; }
    /// Between the bounds stretched by one, these left out.
    [[nodiscard]] bool frole(double v) const { return v > bas - 1 && v < haut + 1; }
};

constexpr std::string_view rien;
constexpr std::string_view ordrevert = "Le 1er % doit être supérieur à celui d'en dessous !";
constexpr std::string_view ordrerouge = "Le 2ème % doit être inférieur à celui d'au dessus !";

using Texte = std::string Saisie::*;

/// A box: where its text stands, its bounds, and what it says outside them.
struct Regle {
    Texte texte;
    Bornes bornes;
    std::string_view trop;
    std::string_view troppeu;
    std::string_view ordre;  ///< message on the order of the thresholds, empty for the other boxes
    [[nodiscard]] bool seuil() const { return !ordre.empty(); }
};

/// By `Champ`.
constexpr std::array<Regle, 4> regles{{
    {&Saisie::vert, {10, 100}, "Pas plus de 100% !", "Pas moins de 10% !", ordrevert},
    {&Saisie::rouge, {5, 100}, "Pas plus de 100% !", "Pas moins de 5% !", ordrerouge},
    {&Saisie::temps,
     {2, 15},
     "Pas plus de 15 secondes par mot !",
     "Pas moins de 2 secondes par mot !",
     rien},
    {&Saisie::base,
     {1, 30},
     "Pas plus de 900 mots par échantillon !",
     "Pas moins de 30 mots par échantillon !",
     rien},
}};

const Regle& regle(Champ champ) {
    return regles[static_cast<std::size_t>(champ)];
}

double lue(const Regle& r, const Saisie& saisie) {
    return common::valeur(saisie.*r.texte);
}

bool ordrerompu(const Saisie& saisie) {
    return common::valeur(saisie.rouge) > common::valeur(saisie.vert);
}

}  // namespace

std::optional<std::string_view> message(Champ champ, const Saisie& saisie) {
    const auto& r = regle(champ);
    const double v = lue(r, saisie);
    std::optional<std::string_view> dit;
    if (r.seuil())
        dit = rien;
    if (v > r.bornes.haut)
        dit = r.trop;
    if (v < r.bornes.bas && !(saisie.*r.texte).empty())
        dit = r.troppeu;
    if (r.seuil() && ordrerompu(saisie))
        dit = r.ordre;
    if (repercute(champ, saisie))
        dit = rien;
    return dit;
}

bool repercute(Champ champ, const Saisie& saisie) {
    const auto& r = regle(champ);
    return !r.seuil() && r.bornes.frole(lue(r, saisie));
}

Verdict valider(const Saisie& saisie) {
    Verdict verdict;
    // The order is tested twice, once in the words of each box; the second message stays.
    if (ordrerompu(saisie))
        verdict = {false, ordrerouge};
    const bool dansbornes = std::all_of(regles.begin(), regles.end(), [&](const Regle& r) {
        return r.bornes.contient(lue(r, saisie));
    });
    verdict.accepte = verdict.accepte && dansbornes;
    return verdict;
}

std::string tempsdeserie(double secondesparmot) {
    // 32767 seconds for 30 words.
    constexpr std::string_view quoi =
        "Temps d'une série de 30 mots, à 1092 secondes par mot au plus (options, ligne 3 de "
        "« settings.dat »)";
    return common::CalcDuree(common::entier16(secondesparmot * common::tiragesform1, quoi));
}

std::array<std::string, nbtailles> tailles(common::VariablesDialog2& variables,
                                           std::int16_t nbser) {
    variables.affecterechantillons(nbser);
    const auto mots = [](std::int64_t nombre, int solutions) {
        return std::to_string(
            common::entier16(nombre * solutions, "Taille d'un échantillon, en mots (options)"));
    };
    const auto groupes = [&](std::int16_t nombre, int solutions, std::string_view quoi) {
        return mots(nombre, solutions) + " (" + std::to_string(nombre) + " " + std::string(quoi) +
               ")";
    };
    return {mots(nbser, common::tiragesform1), groupes(variables.nbechduo, 2, "duos"),
            groupes(variables.nbechtri, 3, "trios"), groupes(variables.nbechqua, 4, "quatuors"),
            groupes(variables.nbechqui, 5, "quintets")};
}

}  // namespace dialogs::options
