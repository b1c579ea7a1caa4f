// What every reader stands on: the code page, lines, items, numbers.

#include <algorithm>
#include <cmath>

#include "essai.h"
#include "faute.h"
#include "fichier.h"
#include "nombre.h"
#include "texte.h"

namespace test_commun {
namespace {

using fuzz::Essai;

constexpr std::string_view action = "Essai";

/// A line, and whether it has a line end.
using Ligne = std::pair<std::string, bool>;

/// The lines of bytes, the plain way.
std::vector<Ligne> leslignes(std::string_view octets) {
    std::vector<Ligne> lignes;
    while (!octets.empty()) {
        const auto saut = octets.find('\n');
        const bool finie = saut != std::string_view::npos;
        auto ligne = octets.substr(0, saut);
        octets.remove_prefix(finie ? saut + 1 : octets.size());
        const bool retour = ligne.ends_with('\r');
        if (retour)
            ligne.remove_suffix(1);
        lignes.emplace_back(ligne, finie || retour);
    }
    return lignes;
}

std::vector<Ligne> lire(common::Lignes lecture) {
    std::vector<Ligne> lignes;
    std::string_view ligne;
    while (lecture.suivante(ligne)) {
        lignes.emplace_back(ligne, lecture.terminee());
        EXPECT_EQ(lecture.numero(), lignes.size());
    }
    EXPECT_FALSE(lecture.suivante(ligne));
    return lignes;
}

/// The items of bytes, character by character.
class Articles {
  public:
    explicit Articles(std::string_view octets) : octets_(octets) {}

    std::vector<std::string> tous() {
        std::vector<std::string> articles;
        while (place_ < octets_.size()) {
            passerblancs();
            articles.push_back(ici() == '"' ? guillemets() : simple());
        }
        return articles;
    }

  private:
    [[nodiscard]] char ici() const { return place_ < octets_.size() ? octets_[place_] : '\0'; }
    /// Length of the line end that stands here, 0 for none.
    [[nodiscard]] std::size_t fin() const {
        if (ici() == '\n')
            return 1;
        const auto deux = octets_.substr(place_, 2);
        return deux == "\r\n" || deux == "\r" ? deux.size() : 0;
    }
    void passerblancs() {
        while (ici() == ' ' || ici() == '\t')
            ++place_;
    }
    std::string simple() {
        std::string article;
        while (place_ < octets_.size() && ici() != ',' && fin() == 0)
            article += octets_[place_++];
        place_ += std::max<std::size_t>(fin(), 1);
        return article;
    }
    std::string guillemets() {
        std::string article;
        ++place_;
        while (place_ < octets_.size() && ici() != '"') {
            const auto saut = fin();
            article += saut == 0 ? std::string(1, ici()) : "\r\n";
            place_ += std::max<std::size_t>(saut, 1);
        }
        if (place_ >= octets_.size()) {  // never closed: the last line end is none of it
            const bool saut =
                (octets_.ends_with('\n') || octets_.ends_with('\r')) && article.ends_with("\r\n");
            return saut ? article.substr(0, article.size() - 2) : article;
        }
        ++place_;
        passerblancs();
        place_ += fin() > 0 ? fin() : ici() == ',' ? 1 : 0;
        return article;
    }

    std::string_view octets_;
    std::size_t place_ = 0;
};

std::vector<std::string> lire(common::Items lecture) {
    std::vector<std::string> articles;
    std::string_view article;
    std::size_t numero = 1;
    while (lecture.lireitem(article)) {
        articles.emplace_back(article);
        EXPECT_GE(lecture.numero(), numero);
        numero = lecture.numero();
    }
    EXPECT_FALSE(lecture.lireitem(article));
    return articles;
}

void codepage(Essai& essai) {
    const auto texte = common::depuis1252(essai.octets);
    EXPECT_EQ(common::vers1252(texte), essai.octets);
    EXPECT_EQ(common::longueur(texte), essai.octets.size());
    const auto n = essai.alea.sous(essai.octets.size() + 2);
    EXPECT_EQ(common::debut(texte, n) + common::milieu(texte, n + 1), texte);
    EXPECT_EQ(common::sansfin(texte, n) + common::fin(texte, n), texte);
    EXPECT_EQ(common::longueur(common::minuscules(texte)), essai.octets.size());
}

/// Bytes that are taken for UTF-8, whatever they are.
void fauxutf8(Essai& essai) {
    const auto& texte = essai.octets;
    std::string recolle;
    for (const auto& lettre : common::caracteres(texte)) {
        recolle += lettre;
        static_cast<void>(common::premier(lettre));
    }
    EXPECT_EQ(recolle, texte);
    const auto n = essai.alea.sous(texte.size() + 2);
    EXPECT_EQ(common::debut(texte, n) + common::milieu(texte, n + 1), texte);
    static_cast<void>(common::minuscules(texte));
    const auto octets = common::vers1252(texte);  // or a fault, which names the character
    EXPECT_EQ(octets.size(), common::caracteres(texte).size());
}

void lignes(Essai& essai) {
    const auto attendues = leslignes(essai.octets);
    EXPECT_EQ(lire(common::Lignes(essai.octets)), attendues);
    EXPECT_EQ(lire(common::Lignes(essai.disque, fuzz::chemin, action)), attendues);
}

void articles(Essai& essai) {
    const auto attendus = Articles(essai.octets).tous();
    EXPECT_EQ(lire(common::Items(essai.octets)), attendus);
    EXPECT_EQ(lire(common::Items(essai.disque, fuzz::chemin, action)), attendus);
}

void fichierentier(Essai& essai) {
    std::string contenu;
    if (common::essayerliretexte(essai.disque, fuzz::chemin, contenu))
        EXPECT_TRUE(essai.octets.starts_with(contenu));
    else
        EXPECT_EQ(contenu, essai.octets);
    EXPECT_EQ(common::lirefichier(essai.disque, fuzz::chemin, action), essai.octets);
}

void nombres(Essai& essai) {
    constexpr double exacts = 1e14;  // 15 digits tell them all
    const auto& octets = essai.octets;
    const auto texte = octets.substr(essai.alea.sous(octets.size() + 1), 500);
    const double valeur = common::valeur(texte);
    ASSERT_FALSE(std::isnan(valeur)) << texte;
    if (std::fabs(valeur) < exacts) {
        EXPECT_NEAR(common::valeur(common::decimales(valeur, 3)), valeur, .0005001) << texte;
        if (std::fabs(valeur) >= .001) {
            EXPECT_NEAR(common::valeur(common::textenombre(valeur)) / valeur, 1, 1e-14) << texte;
        }
    }
    const auto entier = common::entier16(valeur, "Essai");
    EXPECT_LE(std::fabs(entier - valeur), .5) << texte;
}

const std::vector<const char*> tous{"octets.bin", "form1.txt",    "infosouris.txt", "reference.txt",
                                    "users.dat",  "settings.dat", "hist.dat",       "vide.txt"};

const fuzz::Lecteur lecteurs[] = {
    {"codepage", tous, codepage},
    {"fauxutf8", {"petit.aff", "petit.dat", "octets.bin"}, fauxutf8},
    {"lignes", tous, lignes, 3000},
    {"articles", tous, articles, 6000},
    {"fichier_entier", tous, fichierentier},
    {"nombres", {"settings.dat", "version.txt", "hist.dat"}, nombres, 4000},
};

class Commun : public fuzz::Lecture {};

TEST_P(Commun, lit_n_importe_quoi) {
    essayer(GetParam());
}

INSTANTIATE_TEST_SUITE_P(, Commun, testing::ValuesIn(lecteurs), fuzz::nommer);

}  // namespace
}  // namespace test_commun
