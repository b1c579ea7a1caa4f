#include "chantier.h"

namespace atelier {

Chemins cheminsdorigine() {
    return {ORVANE_LEXIQUE, ORVANE_AFFIXES, ORVANE_THESAURUS};
}

}  // namespace atelier
