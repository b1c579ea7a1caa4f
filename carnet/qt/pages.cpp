#include "pages.h"

#include <array>

#include "pagedictionnaire.h"
#include "pagelistes.h"

namespace carnet {
namespace {

template <class Contenu>
QWidget* faire(Seance& seance, QWidget* parent) {
    return new Contenu(seance, parent);
}

constexpr std::array lespages{
    Page{"Mes listes", faire<Pagelistes>},
    Page{"Mon dictionnaire", faire<Pagedictionnaire>},
};

}  // namespace

std::span<const Page> pages() {
    return lespages;
}

}  // namespace carnet
