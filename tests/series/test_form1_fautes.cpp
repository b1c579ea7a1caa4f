// The faults of a list that Form1 cannot work with: what the report says, and what is left on disk.

#include <deque>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "form1dessai.h"

namespace test_form1_fautes {
namespace {

using testing::HasSubstr;

class Form1fautes : public essai::Form1dessai {
  protected:
    /// The report names the list, with a line ("ligne 2") or without one, and the limit, and the
    /// program has ended.
    void attendrefaute(const std::string& ligne, const std::string& limite) const {
        EXPECT_EQ(machine.plateforme.statut(), 1);
        EXPECT_THAT(rapport(), HasSubstr("fichier « listes\\x.txt »" +
                                         (ligne.empty() ? " : " : ", " + ligne + " : ")));
        EXPECT_THAT(rapport(), HasSubstr(limite));
    }

    /// A sample of so many rows cannot be drawn from a list; nothing on disk changes.
    void refuserechantillon(const std::string& lignes, std::int16_t taille,
                            const std::string& limite) {
        machine.ecrire(liste, lignes);
        v.form3.toue = "E";
        v.dialog2.nbechuni = taille;
        const auto avant = fichiers();
        commencer(lignes);
        attendrefaute("", limite);
        EXPECT_THAT(rapport(), HasSubstr(std::to_string(taille) + " mots"));
        EXPECT_EQ(fichiers(), avant);
    }
};

// A draw of 0 each time puts the second row of three in the third place.

TEST_F(Form1fautes, un_tirage_de_16_lettres) {
    machine.plateforme.hasard().donner({0.0});
    commencer("AB;BA\r\nABCDEFGHIJKLMNOP;ABC\r\nCD;DC\r\n");
    entrer();
    const auto avant = fichiers();
    EXPECT_FALSE(machine.plateforme.fini());
    entrer();
    attendrefaute("ligne 2", "la limite est de 15.");
    EXPECT_THAT(rapport(), HasSubstr("« ABCDEFGHIJKLMNOP »"));
    EXPECT_EQ(fichiers(), avant);
}

TEST_F(Form1fautes, une_solution_de_27_lettres_sous_un_joker) {
    v.form3.typ = "rallong";
    v.form3.nombase = "Rallonges avant";
    machine.plateforme.hasard().donner({0.0});
    commencer("?AB;C\r\n?RAT;ABCDEFGHIJKLMNOPQRSTUVWXYZA\r\n?CD;E\r\n");
    const auto avant = fichiers();
    EXPECT_FALSE(machine.plateforme.fini());
    cliquer("corriger");
    attendrefaute("ligne 2", "la limite est de 26.");
    EXPECT_EQ(fichiers(), avant);
}

TEST_F(Form1fautes, un_echantillon_de_901_mots) {
    std::string lignes;
    for (int i = 0; i < 1000; ++i)
        lignes += "AB;BA\r\n";
    refuserechantillon(lignes, 901, "la limite est de 900.");
}

TEST_F(Form1fautes, un_echantillon_plus_grand_que_la_liste) {
    refuserechantillon("AB;BA\r\nCD;DC\r\n", 3, "la liste n'en compte que 2.");
}

/// Numbers that draw, from a list of so many rows, 30 of them from this one downwards.
std::deque<double> tirerdepuis(int rang, int total) {
    std::deque<double> nombres;
    for (int i = 0; i < 30; ++i)
        nombres.push_back((rang - i + 0.5) / (total - i));
    return nombres;
}

std::string rangee(int numero) {
    const auto lettre = [](int n) { return static_cast<char>('A' + n % 26); };
    const std::string mot{lettre(numero / 676), lettre(numero / 26), lettre(numero)};
    return mot + ";" + mot;
}

/// A revision run: the wrong rows go nowhere.
TEST_F(Form1fautes, la_5002e_rangee_fausse) {
    constexpr int total = 5002;
    constexpr int parserie = 30;
    v.form3.toue = "R";
    std::string lignes;
    for (int i = 0; i < total; ++i)
        lignes += rangee(i) + "\r\n";
    auto& hasard = machine.plateforme.hasard();
    int fausses = 0;
    for (; fausses + parserie <= total; fausses += parserie) {
        hasard.donner(tirerdepuis(fausses + parserie - 1, total));
        if (fausses == 0)
            commencer(lignes);
        else
            cliquer("restart");
        cliquer("corriger");
    }
    EXPECT_EQ(controle("nbftot").texte(), std::to_string(fausses));
    hasard.donner(tirerdepuis(total - 1, total));
    cliquer("restart");
    ASSERT_EQ(rapport(), "aucun");
    const auto avant = fichiers();
    EXPECT_EQ(machine.lire(liste), lignes);
    cliquer("corriger");
    // Of the rows not yet wrong the first of the file was drawn last: it is the one too many.
    attendrefaute("ligne " + std::to_string(fausses + 1), "la limite est de 5001.");
    EXPECT_EQ(fichiers(), avant);
}

}  // namespace
}  // namespace test_form1_fautes
