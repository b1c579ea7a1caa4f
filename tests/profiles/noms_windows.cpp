#include "noms.h"

namespace essai {

std::vector<Nom> nomsadmis() {
    return {{"avec_un_blanc_devant", " Zoe"}, {"presque_d_appareil", "Connie"}};
}

std::vector<Nom> nomsrefuses() {
    return {{"d_appareil", "NUL"},
            {"d_appareil_avec_extension", "con.txt"},
            {"de_port", "Com1"},
            {"avec_un_flux", "Zoe:1"},
            {"avec_des_guillemets", "\"Zoe\""},
            {"avec_un_blanc_derriere", "Zoe "},
            {"avec_un_point_derriere", "Zoe."}};
}

}  // namespace essai
