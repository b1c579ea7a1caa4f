#include "catalogue.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include "tableau.h"

namespace menu {
namespace {

constexpr auto chere = Insigne::chere;
constexpr auto verbe = Insigne::verbe;
constexpr auto aucun = Insigne::aucun;
constexpr auto form1 = Ecran::form1;
constexpr auto multi = Ecran::multi;

constexpr std::array bt{
    Rangee{"Lettre Chère 3L", "3lc.txt", 0, chere, form1},
    Rangee{"Mots 3L", "3lt.txt", 0, aucun, form1},
    Rangee{"Verbes 4-5L", "vb45.txt", 0, verbe, form1},
    Rangee{"Verbes 6L", "vb6.txt", 3, verbe, form1},
    Rangee{"Lettre Chère 4L", "4lc.txt", 0, chere, form1},
    Rangee{"Lettre Chère 5L", "5lc.txt", 3, chere, form1},
};

constexpr std::array ta{
    Rangee{"Lettre chère 6L", "6lc.txt", 4, chere, form1},
    Rangee{"Verbes 7L", "vb7.txt", 4, verbe, form1},
    Rangee{"Verbes 8L", "vb8.txt", 4, verbe, form1},
    Rangee{"Verbes 9L", "vb9.txt", 4, verbe, form1},
    Rangee{"Mots 4L", "4lt.txt", 2, aucun, form1},
    Rangee{"Mots 5L", "5lt.txt", 4, aucun, form1},
};

constexpr std::array conja{
    Rangee{"Défectifs 7-8L", "78d.txt", 0, verbe, form1},
    Rangee{"Atypiques 7L", "7at.txt", 0, verbe, form1},
    Rangee{"Atypiques 8L", "8at.txt", 2, verbe, form1},
    Rangee{"Uniques 7L", "conj7u.txt", 0, verbe, form1},
    Rangee{"Uniques 8L", "conj8u.txt", 0, verbe, form1},
    Rangee{"1 nonconj 7L", "z7.txt", 0, aucun, form1},
    Rangee{"1 nonconj 8L", "z8.txt", 0, aucun, form1},
    Rangee{"1 nonconj sél.", "z78_sel.txt", 0, aucun, form1},
};

constexpr std::array six{
    Rangee{"6L poids >6", "6up.txt", 0, aucun, form1},
    Rangee{"6L poids 6", "6v6.txt", 0, aucun, form1},
    Rangee{"6L poids 0", "6v0.txt", 0, aucun, form1},
    Rangee{"6L poids 5", "6v5.txt", 0, aucun, form1},
    Rangee{"6L poids 1", "6v1.txt", 0, aucun, form1},
    Rangee{"6L poids 4", "6v4.txt", 0, aucun, form1},
    Rangee{"6L poids 2", "6v2.txt", 2, aucun, form1},
    Rangee{"6L poids 3", "6v3.txt", 2, aucun, form1},
};

constexpr std::array sept{
    Rangee{"7L poids >6", "7up.txt", 0, aucun, form1},
    Rangee{"7L poids 6", "7v6.txt", 0, aucun, form1},
    Rangee{"7L poids 0", "7v0.txt", 0, aucun, form1},
    Rangee{"7L poids 5", "7v5.txt", 2, aucun, form1},
    Rangee{"7L poids 1", "7v1.txt", 2, aucun, form1},
    Rangee{"7L poids 4", "7v4.txt", 3, aucun, form1},
    Rangee{"7L poids 2", "7v2.txt", 4, aucun, form1},
    Rangee{"7L poids 3", "7v3.txt", 4, aucun, form1},
};

constexpr std::array huit{
    Rangee{"8L poids >6", "8up.txt", 2, aucun, form1},
    Rangee{"8L poids 6", "8v6.txt", 2, aucun, form1},
    Rangee{"8L poids 0", "8v0.txt", 2, aucun, form1},
    Rangee{"8L poids 5", "8v5.txt", 3, aucun, form1},
    Rangee{"8L poids 1", "8v1.txt", 3, aucun, form1},
    Rangee{"8L poids 4", "8v4.txt", 4, aucun, form1},
    Rangee{"8L poids 2", "8v2.txt", 4, aucun, form1},
    Rangee{"8L poids 3", "8v3.txt", 4, aucun, form1},
};

constexpr std::array lc78a{
    Rangee{"7et8L poids 7", "78v7.txt", 0, chere, form1},
    Rangee{"7et8L poids 8", "78v8.txt", 0, chere, form1},
    Rangee{"7L poids 9", "7v9.txt", 0, chere, form1},
    Rangee{"8L poids 9", "8v9.txt", 0, chere, form1},
    Rangee{"7L poids 10", "7vd.txt", 0, chere, form1},
    Rangee{"8L poids 10", "8vd.txt", 0, chere, form1},
    Rangee{"7L poids 11", "7vo.txt", 0, chere, form1},
    Rangee{"8L poids 11", "8vo.txt", 0, chere, form1},
};

constexpr std::array lc78b{
    Rangee{"7L poids 12", "7vu.txt", 0, chere, form1},
    Rangee{"8L poids 12", "8vu.txt", 0, chere, form1},
    Rangee{"7et8L poids 13", "78v13.txt", 0, chere, form1},
    Rangee{"7et8L poids 14-15", "78v145.txt", 0, chere, form1},
    Rangee{"7et8L poids >15", "78vup.txt", 0, chere, form1},
    Rangee{"7et8L tout", "78tout.txt", 0, chere, form1},
    Rangee{"7et8L sél-durs", "ch78rev.txt", 0, chere, form1},
    Rangee{"7et8L ODS 5-6-7", "78ods5-6-7.txt", 0, chere, form1},
};

constexpr std::array duos7{
    Rangee{"Duos 7L purs", "7l_duos_purs.txt", 0, aucun, multi},
    Rangee{"Duos 7L impurs", "7l_duos_impurs.txt", 4, aucun, multi},
    Rangee{"Duos 7L purs sél", "7l_duos_purs_sel.txt", 0, aucun, multi},
    Rangee{"Duos 7L purs p567", "7l_duos_purs567.txt", 3, aucun, multi},
    Rangee{"Duos 7L purs p014", "7l_duos_purs014.txt", 4, aucun, multi},
    Rangee{"Duos 7L purs p23", "7l_duos_purs23.txt", 4, aucun, multi},
    Rangee{"Duos 7L sans tirage", "7l_duos_sanstirage.txt", 0, aucun, form1},
};

constexpr std::array duos8{
    Rangee{"Duos 8L purs", "8l_duos_purs.txt", 0, aucun, multi},
    Rangee{"Duos 8L impurs", "8l_duos_impurs.txt", 4, aucun, multi},
    Rangee{"Duos 8L purs sél", "8l_duos_purs_sel.txt", 0, aucun, multi},
    Rangee{"Duos 8L purs p567", "8l_duos_purs567.txt", 3, aucun, multi},
    Rangee{"Duos 8L purs p014", "8l_duos_purs014.txt", 4, aucun, multi},
    Rangee{"Duos 8L purs p23", "8l_duos_purs23.txt", 4, aucun, multi},
    Rangee{"Duos 8L sans tirage", "8l_duos_sanstirage.txt", 0, aucun, form1},
};

constexpr std::array trios{
    Rangee{"Trios 7L purs", "7l_trios_purs.txt", 4, aucun, multi},
    Rangee{"Trios 7L impurs", "7l_trios_impurs.txt", 3, aucun, multi},
    Rangee{"Trios 8L purs", "8l_trios_purs.txt", 4, aucun, multi},
    Rangee{"Trios 8L impurs", "8l_trios_impurs.txt", 3, aucun, multi},
};

constexpr std::array quatquin{
    Rangee{"Quatuors 7L purs", "7l_quatuors_purs.txt", 2, aucun, multi},
    Rangee{"Quatuors 7L impurs", "7l_quatuors_impurs.txt", 0, aucun, multi},
    Rangee{"Quatuors 8L purs", "8l_quatuors_purs.txt", 0, aucun, multi},
    Rangee{"Quatuors 8L impurs", "8l_quatuors_impurs.txt", 0, aucun, multi},
    Rangee{"Quintets 7L purs", "7l_quintets_purs.txt", 0, aucun, multi},
    Rangee{"Quintets 7L impurs", "7l_quintets_impurs.txt", 0, aucun, multi},
    Rangee{"Quintets 8L", "8l_quintets.txt", 0, aucun, multi},
};

constexpr std::array conjm{
    Rangee{"Duos conjugués 7L", "conj7_duos.txt", 0, aucun, multi},
    Rangee{"Duos conjugués 8L", "conj8_duos.txt", 0, aucun, multi},
    Rangee{"Trios conjugués 7L", "conj7_trios.txt", 0, aucun, multi},
    Rangee{"Trios conjugués 8L", "conj8_trios.txt", 0, aucun, multi},
    Rangee{"Quatuors conj. 7L", "conj7_quatuors.txt", 0, aucun, multi},
    Rangee{"Quatuors conj. 8L", "conj8_quatuors.txt", 0, aucun, multi},
    Rangee{"Quintets conj. 7-8l", "conj78_quintets.txt", 0, aucun, multi},
};

constexpr std::array formdif{
    Rangee{"Courants 6L", "courant_6L.txt", 0, aucun, form1},
    Rangee{"Courants 7L", "courant_7L.txt", 0, aucun, form1},
    Rangee{"Courants 8L", "courant_8L.txt", 0, aucun, form1},
    Rangee{"Courants 9L", "courant_9L.txt", 0, aucun, form1},
    Rangee{"Formations atyp. 6L", "durs_kvd_6L.txt", 0, aucun, form1},
    Rangee{"Formations atyp. 7L", "durs_kvd_7L.txt", 0, aucun, form1},
    Rangee{"Formations atyp. 8L", "durs_kvd_8L.txt", 0, aucun, form1},
    Rangee{"Formations atyp. 9L", "durs_kvd_9L.txt", 0, aucun, form1},
};

constexpr std::array rallong{
    Rangee{"Rallonges avant 7-8", "rallonge_av_7a8L.txt", 0, aucun, form1},
    Rangee{"Rallonges arrière 7-8", "rallonge_ar_7a8L.txt", 0, aucun, form1},
    Rangee{"Rallonges avant 8-9", "rallonge_av_8a9L.txt", 0, aucun, form1},
    Rangee{"Rallonges arrière 8-9", "rallonge_ar_8a9L.txt", 0, aucun, form1},
    Rangee{"Rallonges avant 6-7", "rallonge_av_6a7L.txt", 0, aucun, form1},
    Rangee{"Rallonges arrière 6-7", "rallonge_ar_6a7L.txt", 0, aucun, form1},
    Rangee{"Rallonges avant 5-6", "rallonge_av_5a6L.txt", 0, aucun, form1},
    Rangee{"Rallonges arrière 5-6", "rallonge_ar_5a6L.txt", 0, aucun, form1},
};

constexpr std::array autres{
    Rangee{"Mots invariables", "invar.txt", 0, aucun, form1},
    Rangee{"Déséquilibre C-V", "deseq_cons_voy.txt", 0, aucun, form1},
    Rangee{"Anaverbes", "anaverbes.txt", 0, verbe, multi},
    Rangee{"Fausses transitivités", "transifausses.txt", 0, aucun, form1},
    Rangee{"S final obligatoire", "s_final.txt", 0, aucun, form1},
    Rangee{"Benjamins uniques", "benj_uni.txt", 0, aucun, form1},
    Rangee{"Verbe+1=Verbe", "vbavb.txt", 0, verbe, form1},
};

constexpr std::array lespanneaux{
    Panneau{"bt", bt, false},           Panneau{"ta", ta, false},
    Panneau{"conja", conja, false},     Panneau{"6", six, true},
    Panneau{"7", sept, true},           Panneau{"8", huit, true},
    Panneau{"78lca", lc78a, true},      Panneau{"78lcb", lc78b, true},
    Panneau{"duos7", duos7, true},      Panneau{"duos8", duos8, true},
    Panneau{"trios", trios, true},      Panneau{"quatquin", quatquin, true},
    Panneau{"conjm", conjm, true},      Panneau{"formdif", formdif, false},
    Panneau{"rallong", rallong, false}, Panneau{"autres", autres, false},
};

/// Most rows of a panel that have a badge.
constexpr std::size_t insignes(Insigne insigne) {
    std::size_t plus = 0;
    for (const auto& p : lespanneaux) {
        const auto nombre = std::count_if(p.rangees.begin(), p.rangees.end(),
                                          [&](const Rangee& r) { return r.insigne == insigne; });
        plus = std::max(plus, static_cast<std::size_t>(nombre));
    }
    return plus;
}

constexpr bool tient() {
    for (const auto& p : lespanneaux) {
        const bool bon = std::all_of(p.rangees.begin(), p.rangees.end(), [](const Rangee& rangee) {
            return rangee.parties <= nbparties && rangee.parties != 1;
        });
        if (!bon || p.rangees.size() > nblignes)
            return false;
    }
    return true;
}

static_assert(insignes(Insigne::verbe) <= nbverbes, "a panel has more verb rows than badges");
static_assert(insignes(Insigne::chere) <= nbcheres,
              "a panel has more dear-letter rows than badges");
static_assert(tient(), "a panel has more rows, or a row other parts, than the menu can show");

}  // namespace

std::span<const Panneau> panneaux() {
    return lespanneaux;
}

const Panneau* panneau(std::string_view cle) {
    const auto* trouve = std::find_if(lespanneaux.begin(), lespanneaux.end(),
                                      [&](const Panneau& p) { return p.cle == cle; });
    return trouve == lespanneaux.end() ? nullptr : trouve;
}

char lettredepartie(std::size_t partie) {
    return "abcd"[partie];
}

std::string fichierdepartie(std::string_view fichier, std::size_t partie) {
    const auto point = fichier.rfind('.');
    return std::string(fichier.substr(0, point)) + '_' + lettredepartie(partie) +
           std::string(fichier.substr(point));
}

std::vector<std::string> fichiersfixes() {
    std::vector<std::string> noms;
    for (const auto& p : lespanneaux) {
        for (const auto& rangee : p.rangees) {
            noms.emplace_back(rangee.fichier);
            for (std::size_t i = 0; i < rangee.parties; ++i)
                noms.push_back(fichierdepartie(rangee.fichier, i));
        }
    }
    return noms;
}

}  // namespace menu
