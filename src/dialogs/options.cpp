#include "options.h"

#include <algorithm>
#include <span>

#include "listes.h"
#include "nombre.h"

namespace dialogs::options {
namespace {

bool contient(const Bornes& bornes, double v) {
    return v >= bornes.bas && v <= bornes.haut;
}
/// Less than one beyond a bound, or within them.
bool frole(const Bornes& bornes, double v) {
    return v > bornes.bas - 1 && v < bornes.haut + 1;
}

constexpr std::string_view rien;
constexpr std::string_view ordrevert = "Le 1er % doit être supérieur à celui d'en dessous !";
constexpr std::string_view ordrerouge = "Le 2ème % doit être inférieur à celui d'au dessus !";

using Texte = std::string Saisie::*;

/// A box: where its text stands, its bounds, and how its messages word them.
struct Regle {
    Texte texte;
    Bornes bornes;
    int unites;              ///< how many of the messages' unit make one of the box's
    std::string_view unite;  ///< of the messages
    std::string_view ordre;  ///< message on the order of the thresholds, empty for the other boxes
    [[nodiscard]] bool seuil() const { return !ordre.empty(); }
    [[nodiscard]] std::string refus(std::string_view debut, int borne) const {
        return std::string(debut) + std::to_string(borne * unites) + std::string(unite) + " !";
    }
    [[nodiscard]] std::string trop() const { return refus("Pas plus de ", bornes.haut); }
    [[nodiscard]] std::string troppeu() const { return refus("Pas moins de ", bornes.bas); }
};

/// By `Champ`.
constexpr std::array<Regle, 4> regles{{
    {&Saisie::vert, bornesvert, 1, "%", ordrevert},
    {&Saisie::rouge, bornesrouge, 1, "%", ordrerouge},
    {&Saisie::temps, bornestemps, 1, " secondes par mot", rien},
    {&Saisie::base, bornesbase, common::tiragesform1, " mots par échantillon", rien},
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

std::optional<std::string> message(Champ champ, const Saisie& saisie) {
    const auto& r = regle(champ);
    const double v = lue(r, saisie);
    std::optional<std::string> dit;
    if (r.seuil())
        dit = rien;
    if (v > r.bornes.haut)
        dit = r.trop();
    if (v < r.bornes.bas && !(saisie.*r.texte).empty())
        dit = r.troppeu();
    if (r.seuil() && ordrerompu(saisie))
        dit = r.ordre;
    if (repercute(champ, saisie))
        dit = rien;
    return dit;
}

bool repercute(Champ champ, const Saisie& saisie) {
    const auto& r = regle(champ);
    return !r.seuil() && frole(r.bornes, lue(r, saisie));
}

Verdict valider(const Saisie& saisie) {
    Verdict verdict;
    // Both boxes would complain about the order; the message of the second one stays.
    if (ordrerompu(saisie))
        verdict = {false, ordrerouge};
    const bool dansbornes = std::all_of(regles.begin(), regles.end(), [&](const Regle& r) {
        return contient(r.bornes, lue(r, saisie));
    });
    verdict.accepte = verdict.accepte && dansbornes;
    return verdict;
}

std::string tempsdeserie(double secondesparmot) {
    const auto quoi = "Temps d'une série de " + std::to_string(common::tiragesform1) + " mots, à " +
                      std::to_string(common::plusgrand16 / common::tiragesform1) +
                      " secondes par mot au plus (options, ligne 3 de « settings.dat »)";
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
