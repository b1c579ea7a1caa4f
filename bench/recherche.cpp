// What a search costs, over all words: loading them, and typical searches, each beside a plain scan
// of the words by `grep -E` in the same run.

#include "recherche.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <string>
#include <sys/resource.h>

#include "chantier.h"
#include "disquereel.h"
#include "fichier.h"

namespace {

using namespace recherche;

constexpr double chargementmax = 400;  // milliseconds
constexpr double recherchemax = 50;
constexpr int tours = 7;

/// A search, and what `grep -E` can look for of it.
struct Typique {
    const char* criteres;
    const char* expression;
};

constexpr std::array typiques{
    Typique{"", "."},
    Typique{"longueur=7", "^.{7}$"},
    Typique{"longueur=7-8 ordre=probabilite max=500", "^.{7,8}$"},
    Typique{"longueur=8 ordre=difficulte max=500", "^.{8}$"},
    Typique{"ordre=probabilite", "."},
    Typique{"ordre=difficulte", "."},
    Typique{"ordre=hasard graine=1", "."},
    Typique{"ordre=poids max=100", "."},
    Typique{"lettres=AEINRST", "^[AEINRST]{7}$"},
    Typique{"lettres=AEINRST?", "^.{8}$"},
    Typique{"lettres=AEINRS??", "^.{8}$"},
    Typique{"lettres=??????????", "^.{10}$"},
    Typique{"parmi=AEINRSTU", "^[AEINRSTU]{2,8}$"},
    Typique{"parmi=AEINRS??", "^.{2,8}$"},
    Typique{"motif=*QU*E?", "QU.*E.$"},
    Typique{"motif=*A*", "A"},
    Typique{"motif=B?N*E", "^B.N.*E$"},
    Typique{"motif=*AI*ON*", "AI.*ON"},
    Typique{"motif=[AEI]*[^S]", "^[AEI].*[^S]$"},
    Typique{"debut=RE", "^RE"},
    Typique{"fin=ENT", "ENT$"},
    Typique{"debut=DE fin=ER nature=infinitif", "^DE.*ER$"},
    Typique{"contient=QU,K", "QU.*K|K.*QU"},
    Typique{"sans=E,A,I", "^[^EAI]*$"},
    Typique{"poids=20-40", "[JKQWXYZ]"},
    Typique{"poids=0 longueur=7", "^[AEILNORSTU]{7}$"},
    Typique{"voyelles=5-9 longueur=7", "^.{7}$"},
    Typique{"nature=nom,!pluriel longueur=7", "^.{7}$"},
    Typique{"nature=conjugue", "(EZ|ONS|NT|AIS|AIT)$"},
    Typique{"nature=invariable", "[^SXZ]$"},
    Typique{"anagrammes=1 longueur=7 par=1", "^.{7}$"},
    Typique{"anagrammes=4-9 longueur=8", "^.{8}$"},
    Typique{"commun=oui longueur=8", "^.{8}$"},
    Typique{"commun=non nature=entree", "."},
    Typique{"devant=oui longueur=6", "^.{6}$"},
    Typique{"derriere=ZRS longueur=7", "^.{7}$"},
    Typique{"devant=non derriere=non longueur=5", "^.{5}$"},
    Typique{"dans=7v0", "^[AEILNORSTU]{7}$"},
    Typique{"pasdans=7v0 longueur=7", "^.{7}$"},
    Typique{"longueur=7-8 contient=J,K ordre=probabilite", "J.*K|K.*J"},
};

/// Time of the processor, in milliseconds, of this process or of those that it ran.
double processeur(int qui) {
    rusage usage{};
    ::getrusage(qui, &usage);
    const auto ms = [](const timeval& t) {
        return static_cast<double>(t.tv_sec) * 1e3 + static_cast<double>(t.tv_usec) / 1e3;
    };
    return ms(usage.ru_utime) + ms(usage.ru_stime);
}

/// The least of some runs: other work on the machine only adds to it.
double mesurer(int qui, const std::function<void()>& travail) {
    double moindre = 0;
    for (int tour = 0; tour < tours; ++tour) {
        const auto debut = processeur(qui);
        travail();
        const auto duree = processeur(qui) - debut;
        moindre = tour == 0 ? duree : std::min(moindre, duree);
    }
    return moindre;
}

class Dossier {
  public:
    Dossier() {
        auto modele = (std::filesystem::temp_directory_path() / "recherche XXXXXX").string();
        if (::mkdtemp(modele.data()) == nullptr)
            std::abort();
        chemin_ = modele;
    }
    Dossier(const Dossier&) = delete;
    Dossier& operator=(const Dossier&) = delete;
    ~Dossier() { std::filesystem::remove_all(chemin_); }
    [[nodiscard]] const std::filesystem::path& chemin() const { return chemin_; }

  private:
    std::filesystem::path chemin_;
};

/// The words of the lexicon, as a file of the play folder, as lines, and as a list of some of them.
Glossaire preparer(const std::filesystem::path& dossier) {
    const atelier::Chantier sources(atelier::cheminsdorigine(), std::nullopt, {},
                                    [](std::string_view) {});
    Glossaire glossaire(sources.vocabulaire(), sources.difficulte());
    std::filesystem::create_directories(dossier / "listes");
    std::ofstream(dossier / "listes/mots.dat", std::ios::binary) << glossaire.octets();
    std::ofstream lignes(dossier / "mots.txt");
    std::ofstream liste(dossier / "listes/7v0.txt");
    for (const auto& fiche : glossaire.fiches()) {
        lignes << fiche.texte() << '\n';
        if (fiche.mot.taille() == 7 && fiche.poids == 0)
            liste << fiche.mot.triees().texte() << ';' << fiche.texte() << '\n';
    }
    return glossaire;
}

}  // namespace

int main() {
    const Dossier dossier;
    const auto glossaire = preparer(dossier.chemin());
    common::DisqueReel disque(dossier.chemin());
    int trop = 0;
    const auto chargement = mesurer(RUSAGE_SELF, [&] {
        std::string octets;
        if (common::essayerlire(disque, "listes\\mots.dat", octets) || !Glossaire::lire(octets))
            std::abort();
    });
    std::printf("%-52s %8.1f ms  %7zu mots\n", "chargement", chargement, glossaire.fiches().size());
    trop += chargement > chargementmax ? 1 : 0;
    const Contexte contexte{glossaire,
                            [&](std::string_view nom) { return motsdeliste(disque, nom); }};
    for (const auto& typique : typiques) {
        std::size_t mots = 0;
        const auto recherche = mesurer(RUSAGE_SELF, [&] {
            const auto lue = liredemande(typique.criteres, contexte);
            mots = chercher(glossaire, std::get<Demande>(lue), 1).size();
        });
        const auto commande = "grep -Ec '" + std::string(typique.expression) + "' '" +
                              (dossier.chemin() / "mots.txt").string() + "' > '" +
                              (dossier.chemin() / "compte").string() + "'";
        const auto balayage = mesurer(RUSAGE_CHILDREN, [&] {
            if (std::system(commande.c_str()) == -1)
                std::abort();
        });
        std::printf("%-52s %8.1f ms  %7zu mots  grep %8.1f ms  rapport %5.2f\n", typique.criteres,
                    recherche, mots, balayage, recherche / balayage);
        trop += recherche > recherchemax ? 1 : 0;
    }
    std::printf("%d over the bounds (%.0f ms, %.0f ms)\n", trop, chargementmax, recherchemax);
    return trop == 0 ? 0 : 1;
}
