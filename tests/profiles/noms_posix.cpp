#include "noms.h"

namespace essai {

std::vector<Nom> nomsadmis() {
    return {
        {"avec_des_blancs", " Zoe "}, {"avec_des_guillemets", "\"Zoe\""}, {"d_appareil", "NUL"}};
}

std::vector<Nom> nomsrefuses() {
    return {{"avec_un_dossier_absent_au_milieu", "Paul\\Zoe\\Luc"}};
}

}  // namespace essai
