// The system's font settings, read on another thread than Qt's.

#include <cstdlib>
#include <dlfcn.h>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "fontessysteme.h"

namespace test_fontessysteme_posix {
namespace {

template <class Operation>
Operation* fc(const char* nom) {
    return reinterpret_cast<Operation*>(dlsym(RTLD_DEFAULT, nom));
}

/// All that the settings in force say of the font that stands for a name.
std::string reponse(const char* nom) {
    void* demande = fc<void*(const char*)>("FcNameParse")(nom);
    fc<int(void*, void*, int)>("FcConfigSubstitute")(nullptr, demande, 0);
    fc<void(void*)>("FcDefaultSubstitute")(demande);
    int etat = 0;
    void* trouvee = fc<void*(void*, void*, int*)>("FcFontMatch")(nullptr, demande, &etat);
    char* texte = fc<char*(void*)>("FcNameUnparse")(trouvee);
    std::string resultat = texte == nullptr ? "" : texte;
    std::free(texte);
    for (auto* motif : {demande, trouvee})
        fc<void(void*)>("FcPatternDestroy")(motif);
    return resultat;
}

std::vector<std::string> reponses() {
    std::vector<std::string> resultat;
    for (const auto* nom : {"Liberation Sans", "Arial:bold", "Segoe UI:pixelsize=11", "Georgia",
                            "serif", "sans:italic", "mono", "Inconnue"})
        resultat.push_back(reponse(nom));
    return resultat;
}

TEST(FontesSysteme, les_reglages_lus_a_part_sont_ceux_que_qt_lit) {
    const auto enforce = fc<void*()>("FcConfigGetCurrent");
    ASSERT_NE(enforce, nullptr);
    const auto* avant = enforce();
    const auto attendues = reponses();
    EXPECT_NE(attendues.front(), "");
    ui::qt::lirefontes();
    ui::qt::attendrefontes();
    EXPECT_NE(enforce(), avant);
    EXPECT_EQ(reponses(), attendues);
}

}  // namespace
}  // namespace test_fontessysteme_posix
