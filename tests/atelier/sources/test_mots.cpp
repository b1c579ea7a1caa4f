// The words of the whole lexicon, as it is changed by hand.

#include <fstream>
#include <iterator>
#include <sstream>
#include <string>
#include <vector>

#include <gmock/gmock.h>

#include "vocabulaire.h"

namespace test_mots {
namespace {

using namespace atelier;

std::string lire(const char* chemin) {
    std::ifstream flux(chemin, std::ios::binary);
    EXPECT_TRUE(flux) << chemin;
    return {std::istreambuf_iterator<char>(flux), {}};
}

std::vector<std::string> mots(const char* texte) {
    std::istringstream flux(texte);
    return {std::istream_iterator<std::string>(flux), {}};
}

struct Groupe {
    const char* nom;
    const char* mots;
};

const char* const deuxlettres =
    "AA AH AI AN AS AU AY BA BE BI BU CA CE CI DA DE DO DU EH EN ES ET EU EX FA FI GO HA HE HI "
    "HO IF IL IN JE KA LA LE LI LU MA ME MI MU NA NE NI NO NU OC OH OM ON OP OR OS OU PI PU QI "
    "RA RE RI RU SA SE SI SU TA TE TO TU UD UN US UT VA VE VS VU WU XI";

const Groupe admis[] = {
    {"trois lettres, noms",
     "AAS ABC ADO AGA ANA API AXE AYS BAO BOA BRU CEP COX CUT DAB DAL DAW DEY DIP DIV DUB ECO EGO "
     "EPO EWE EXO FAQ FEZ FON GEX GIF GOY GUR HUN IBO IDO IPA IVE JAB JAR KID KIP KIR KOB KOI KOP "
     "KWA KYU LAO LED LEK LEM LOS MAG MEL MOA MOX NAC NAN NIT OBI OCA OKA OLA ORE OUD OVE PHO POF "
     "PUY "
     "QAT RAM REX RIF RIO RUZ SAL SAX SKA SOM SPI TAR TEX ULM VIP VOL WOK YAK YOD ZAC ZEF ZEK ZUP"},
    {"trois lettres, le reste",
     "AIE AIT AUX BEE BLA BUS CAF CET CHU CRU DIA DUS ETE EUE EUT FIT FOB FUI GIT HAI HEM HIP HUA "
     "HUE HUI IRA ISO LIT LUE MUA NON NUI OIS OLE ONC ONT OUF OUI OXO PEC PIU PLU PST PUB QUE RIT "
     "SUE TEL TSS TUT UNS USE VAT VIS VOX VUS WEB YEN ZEN ZUT"},
    {"quatre lettres, une chère",
     "ANKH APEX AXEL BOOK BRIK CZAR DESK DOJO EKTA EXAM FIQH FLOW HADJ HAJJ IKAT JACO JAJA JARL "
     "JASS KAON KIFF KINA KIWI KORA KSAR KUNA KURU KYAT LYNX MOXA OKRA ORYX OXER PIKA QUAD RANZ "
     "SKIP TAKA TRAX TZAR WALI WAQF WITZ WRAP YASS YAWL YUZU ZEST ZIST ZOUK"},
    {"cinq lettres, une chère",
     "ALEZE AWELE BENJI BLAZE ESKER GNAWA HAJJS KHOUM JOCKO KAZOO KENAF KOLAS KRAMA MAZER MEZZE "
     "OUIJA "
     "QANUN QIBLA QUICK SKEET TANKA TAYON VOXEL WALIS WENGE ZAIRE"},
    {"rendus au jeu",
     "TELS TELLE TELLES VOLS RETRO RETROS POST POSTS PERENNE PERENNES PSITT PFFT PFF BRRR GRRR "
     "DONA SENOR SENORITA RISORIUS MIRABILIS DEXTRORSUM PANTOCRATOR LANLAIRE"},
    {"conjugaisons",
     "CHANTE FINISSES VAUDRAIT PEIGNIT ASSOIENT CLOSIEZ ECHUT NAQUIRENT JODLE SCRABBLE MAZAIT "
     "RESOLVAIT CUISISSE FORFAIT MOULURENT ACQUIERT"},
    {"pluriels et feminins",
     "BAUX CIEUX OEUFS YEUX SAMURAIS NOUVELLE BELLES BREVE GRECQUE MALIGNE VIEILLE EMAUX KSOUR "
     "GAVOTTE BYRONIENNES LIEDER SCENARII JODHPURS CAYEUX DIZEAUX"},
    {"ligatures et traits effaces", "OEIL AESCHNE COEUR NAEVUS CURRICULUM BYEBYE WEEKEND"},
    {"longs",
     "ABSINTHE AQUARIUM BUNGALOW CARAPACE DJELLABA ECZEMAS FJORDS GYMKHANA HAMMAMS IGUANES "
     "JACQUET KIBBOUTZ LYMPHE MAZURKA NYLONS OUZBEK PYJAMA QUETZAL RUTABAGA SPHINX TAXIWAY "
     "UKULELE VERJUS WALLABY XYLOPHONE YAOURT ZEUGMA KINKAJOU WHISKEY ZYGOTE"},
};

const Groupe refuses[] = {
    {"noms de lettres et symboles", "AE OE KM CM HZ KG DB LN DPI COSH SINH TANH ARCSIN"},
    {"abreviations",
     "AV AVR BIBL CHAP COLL DEC ED ENV ETC FEVR FIG IBID JANV JUIL LITT OCT PT SUPPL CF"},
    {"latin, anglais, italien des locutions",
     "AB AD AC AL AEQUO LIBITUM CLAUSUS OPERANDI VIVENDI CAPPELLA FACTO NIHILO VITRO INFINITUM "
     "FENG SHUI FRANCA LINGUA FRENCH GOOD BIG SMALL"},
    {"bouts de mots", "QU JUSQU LORSQU PUISQU QUOIQU PRESQU"},
    {"nul joueur n'en voudrait",
     "SDCARD ZZZZ QBIT BRAJ CONTRERE CONTREMI CONTRESI CONTRESOL CONTRELA BEPO BICOLOR EXABIT FORK "
     "IMAZAMOX KAPUTT WALL WEYR ZYKLON EXEMA REBONJOUR STAWUG MMM"},
    {"defectifs", "ADISAIS ADIT FORFONT FORFAISONS MALFERA MALFAISAIS MEFASSE MEFEREZ"},
    {"noms propres et marques", "LYON ITALIE OPENBSD MACOS LISBONNE BELGIQUE JEANNE ZURICH"},
    {"fautes et inventions",
     "JEXX QUAZ KAYAKX XYZ AAA BB ZQ WXY CHEVALS BAILS JOLIX ALLERAIS PRENDRES VOUSZ BOCS "
     "MANGERENTS"},
};

Vocabulaire vocabulaire() {
    const Thesaurus thesaurus(lire(ORVANE_THESAURUS), ORVANE_THESAURUS);
    const Affixes affixes(lire(ORVANE_AFFIXES), ORVANE_AFFIXES);
    return {lirelexique(lire(ORVANE_LEXIQUE), ORVANE_LEXIQUE, affixes, thesaurus, retouches()),
            std::nullopt};
}

/// One test, since each would read the lexicon anew.
TEST(Mots, du_jeu_sont_la_et_les_autres_non) {
    const auto v = vocabulaire();
    std::vector<std::string> deux;
    for (const auto& mot : v.mots(2, 2))
        deux.emplace_back(mot.texte());
    EXPECT_EQ(deux, mots(deuxlettres));
    for (const auto& groupe : admis) {
        for (const auto& mot : mots(groupe.mots))
            EXPECT_TRUE(v.existe(mot)) << mot << " : " << groupe.nom;
    }
    for (const auto& groupe : refuses) {
        for (const auto& mot : mots(groupe.mots))
            EXPECT_FALSE(v.existe(mot)) << mot << " : " << groupe.nom;
    }
    for (const auto& ajout : retouches().ajouts()) {
        const auto mot = encapitales(ajout.mot);
        ASSERT_TRUE(mot.has_value()) << ajout.mot;
        EXPECT_TRUE(v.existe(*mot)) << ajout.mot << " : sans modèle ?";
    }
}

}  // namespace
}  // namespace test_mots
