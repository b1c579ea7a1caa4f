// Sound: reading of wave files, and silence where nothing can be played.

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QtEndian>
#include <gtest/gtest.h>

#include "hautparleur.h"
#include "minuteur.h"

namespace test_hautparleur {
namespace {

QByteArray mot(quint16 valeur) {
    QByteArray octets(2, 0);
    qToLittleEndian(valeur, octets.data());
    return octets;
}

QByteArray long4(quint32 valeur) {
    QByteArray octets(4, 0);
    qToLittleEndian(valeur, octets.data());
    return octets;
}

struct Entete {
    quint16 codage = 1;
    quint16 voies = 1;
    quint32 frequence = 8000;
    quint16 bits = 16;
};

QByteArray onde(const Entete& e, const QByteArray& echantillons, const QByteArray& avant = {}) {
    const auto format = mot(e.codage) + mot(e.voies) + long4(e.frequence) +
                        long4(e.frequence * e.voies * e.bits / 8) +
                        mot(static_cast<quint16>(e.voies * e.bits / 8)) + mot(e.bits);
    const auto corps = "WAVE" + avant + "fmt " + long4(static_cast<quint32>(format.size())) +
                       format + "data" + long4(static_cast<quint32>(echantillons.size())) +
                       echantillons;
    return "RIFF" + long4(static_cast<quint32>(corps.size())) + corps;
}

TEST(Ondes, une_onde_dit_sa_duree_et_ses_echantillons) {
    const QByteArray echantillons(8000, 'x');
    const auto lue = ui::qt::lireonde(onde({}, echantillons));
    ASSERT_TRUE(lue);
    EXPECT_EQ(lue->duree(), 500);
    EXPECT_EQ(lue->echantillons, echantillons);
}

TEST(Ondes, un_morceau_inconnu_de_longueur_impaire_est_saute) {
    const auto lue =
        ui::qt::lireonde(onde({}, "abcd", "LIST" + long4(3) + "xyz" + QByteArray(1, 0)));
    ASSERT_TRUE(lue);
    EXPECT_EQ(lue->echantillons, "abcd");
}

TEST(Ondes, un_fichier_coupe_donne_ce_qu_il_a) {
    const auto lue = ui::qt::lireonde(onde({}, QByteArray(100, 'x')).chopped(40));
    ASSERT_TRUE(lue);
    EXPECT_EQ(lue->echantillons.size(), 60);
}

TEST(Ondes, ce_qui_n_est_pas_une_onde_est_refuse) {
    EXPECT_FALSE(ui::qt::lireonde(""));
    EXPECT_FALSE(ui::qt::lireonde("RIFF"));
    EXPECT_FALSE(ui::qt::lireonde("RIFFxxxxWAVEfmt "));
    EXPECT_FALSE(ui::qt::lireonde(onde({.codage = 85}, "abcd")));
    EXPECT_FALSE(ui::qt::lireonde(onde({.voies = 6}, "abcd")));
    EXPECT_FALSE(ui::qt::lireonde(onde({.frequence = 0}, "abcd")));
    EXPECT_FALSE(ui::qt::lireonde(onde({.bits = 24}, "abcd")));
}

class HautParleur : public testing::Test {
  protected:
    HautParleur() : dossier(QDir::tempPath() + "/sons d'été XXXXXX") {}
    /// Milliseconds that playing a file of these bytes takes.
    qint64 jouer(const QByteArray& octets) {
        const auto chemin = dossier.filePath("APP05.WAV");
        QFile fichier(chemin);
        EXPECT_TRUE(fichier.open(QIODevice::WriteOnly));
        fichier.write(octets);
        fichier.close();
        QElapsedTimer montre;
        montre.start();
        ui::qt::jouer(minuteur, chemin);
        return montre.elapsed();
    }
    QTemporaryDir dossier;
    ui::qt::Minuteur minuteur{[](const auto& evenement) { evenement(); }};
};

TEST_F(HautParleur, sans_fichier_il_n_attend_pas) {
    ui::qt::jouer(minuteur, dossier.filePath("absent.wav"));
    SUCCEED();
}

TEST_F(HautParleur, ne_retient_jamais_plus_que_la_duree_du_son_et_sa_marge) {
    constexpr qint64 duree = 100;
    constexpr qint64 marge = 500;
    constexpr qint64 lenteurdelamachine = 3000;  // first touch of the sound system
    EXPECT_LT(jouer(onde({}, QByteArray(1600, 0))), duree + marge + lenteurdelamachine);
}

}  // namespace
}  // namespace test_hautparleur
