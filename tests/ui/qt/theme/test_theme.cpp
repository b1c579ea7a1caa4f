// Colours, palette and fonts of the program.

#include <QApplication>
#include <QFontMetricsF>
#include <QPixmap>
#include <QStyle>
#include <gtest/gtest.h>

#include "fonte.h"
#include "theme.h"

namespace test_theme {
namespace {

using ui::Couleur;

TEST(Theme, les_couleurs_des_regles_sont_rendues_telles_quelles) {
    EXPECT_EQ(ui::qt::couleurqt(Couleur(0x80FFFF)).rgb(), 0xFF80FFFFU);
    EXPECT_EQ(ui::qt::couleurqt(Couleur::fenetre()), QColor(Qt::white));
    EXPECT_GT(ui::qt::couleurqt(Couleur::bouton()).lightness(), 225);
    EXPECT_EQ(ui::qt::encreqt(Couleur(0xFF0000)).rgb(), 0xFFFF0000U);
}

double luminance(const QColor& couleur) {
    const auto canal = [](double c) {
        return c <= .03928 ? c / 12.92 : std::pow((c + .055) / 1.055, 2.4);
    };
    return .2126 * canal(couleur.redF()) + .7152 * canal(couleur.greenF()) +
           .0722 * canal(couleur.blueF());
}

double contraste(const QColor& une, const QColor& autre) {
    const double a = luminance(une);
    const double b = luminance(autre);
    return (std::max(a, b) + .05) / (std::min(a, b) + .05);
}

TEST(Theme, l_encre_et_l_encre_pale_se_lisent_sur_tous_les_fonds) {
    const auto encre = QColor::fromRgb(ui::qt::teintes::encre);
    const auto pale = QColor::fromRgb(ui::qt::teintes::encrepale);
    for (const unsigned fond : {0xFFE0C0U, 0xFFFF80U, 0xFFC080U, 0x80FF80U, 0xC0C0FFU, 0xE0E0E0U,
                                0xFF8080U, 0x80FFFFU, 0xFFFFFFU}) {
        EXPECT_GE(contraste(encre, QColor::fromRgb(fond)), 4.5) << std::hex << fond;
    }
    EXPECT_GE(contraste(pale, QColor::fromRgb(ui::qt::teintes::face)), 4.5);
    EXPECT_GE(contraste(QColor(Qt::white), QColor::fromRgb(ui::qt::teintes::accent)), 4.5);
}

TEST(Theme, l_anneau_du_focus_tranche_sur_tous_les_fonds) {
    const auto anneau = QColor::fromRgb(ui::qt::teintes::anneau);
    for (const unsigned fond :
         {0xFFE0C0U, 0xFFFF80U, 0xFFC080U, 0x80FF80U, 0xC0C0FFU, 0xE0E0E0U, 0x80FFFFU, 0xFFFFFFU})
        EXPECT_GE(contraste(anneau, QColor::fromRgb(fond)), 3) << std::hex << fond;
}

TEST(Theme, la_palette_est_la_sienne_pour_chaque_role) {
    const auto palette = ui::qt::palette();
    for (int role = 0; role < QPalette::NColorRoles; ++role) {
        if (role == QPalette::NoRole)
            continue;
        const auto r = static_cast<QPalette::ColorRole>(role);
        EXPECT_EQ(QApplication::palette().color(QPalette::Active, r),
                  palette.color(QPalette::Active, r))
            << role;
    }
    EXPECT_FALSE(QApplication::desktopSettingsAware());
}

TEST(Theme, les_mnemoniques_ne_sont_pas_soulignes) {
    EXPECT_EQ(QApplication::style()->styleHint(QStyle::SH_UnderlineShortcut), 0);
}

TEST(Fontes, la_hauteur_garde_ses_fractions) {
    const QPixmap support(10, 10);
    const auto grande = ui::qt::fonte("", 20.5, support);
    EXPECT_NEAR(grande.pointSizeF() * support.logicalDpiY() / 72, 20.5, .01);
}

struct CasAjustement {
    const char* nom;
    const char* texte;
    QSizeF place;
};

void PrintTo(const CasAjustement& cas, std::ostream* flux) {
    *flux << cas.nom;
}

class Ajustements : public testing::TestWithParam<CasAjustement> {};

TEST_P(Ajustements, le_texte_ajuste_tient_dans_sa_place) {
    const auto& cas = GetParam();
    const QPixmap support(10, 10);
    const auto texte = QString::fromUtf8(cas.texte);
    const auto fonte = ui::qt::ajuster(ui::qt::fonte("", 24, support), texte, cas.place, support);
    const auto tour = QFontMetricsF(fonte, &support)
                          .boundingRect(QRectF(QPointF(), QSizeF(cas.place.width(), 1e6)),
                                        Qt::TextWordWrap, texte);
    EXPECT_LE(tour.width(), cas.place.width());
    EXPECT_LE(tour.height(), cas.place.height());
}

TEST_P(Ajustements, un_cran_de_plus_ne_tiendrait_pas) {
    const auto& cas = GetParam();
    const QPixmap support(10, 10);
    const auto texte = QString::fromUtf8(cas.texte);
    const auto entiere = ui::qt::fonte("", 24, support);
    auto fonte = ui::qt::ajuster(entiere, texte, cas.place, support);
    constexpr double cran = .6 / 24;  // of the font's size, down to .4 of it
    fonte.setPointSizeF(fonte.pointSizeF() + cran * entiere.pointSizeF());
    if (fonte.pointSizeF() > entiere.pointSizeF())
        return;  // it fits as it is
    const auto tour = QFontMetricsF(fonte, &support)
                          .boundingRect(QRectF(QPointF(), QSizeF(cas.place.width(), 1e6)),
                                        Qt::TextWordWrap, texte);
    EXPECT_TRUE(tour.width() > cas.place.width() || tour.height() > cas.place.height());
}

INSTANTIATE_TEST_SUITE_P(
    tous, Ajustements,
    testing::Values(CasAjustement{"court", "OK", {200, 40}},
                    CasAjustement{"un_mot_trop_large", "ANTICONSTITUTIONNELLEMENT", {250, 40}},
                    CasAjustement{"plusieurs_lignes", "Vérifier la mise à jour", {140, 70}},
                    CasAjustement{"une_seule_ligne", "Eliminer un tirage trouvé en", {220, 30}}),
    [](const auto& cas) { return cas.param.nom; });

TEST(Fontes, un_texte_qui_tient_garde_sa_taille) {
    const QPixmap support(10, 10);
    const auto fonte = ui::qt::fonte("", 24, support);
    EXPECT_EQ(ui::qt::ajuster(fonte, "OK", {200, 40}, support), fonte);
}

}  // namespace
}  // namespace test_theme
