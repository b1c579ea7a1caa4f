#include "pages.h"

#include <array>

#include "pagedictionnaire.h"
#include "pagedonnees.h"
#include "pagelistes.h"
#include "pageprogres.h"
#include "pagerevoir.h"

namespace carnet {
namespace {

template <class Contenu>
QWidget* faire(Seance& seance, QWidget* parent) {
    return new Contenu(seance, parent);
}

constexpr std::array lespages{
    Page{"Mes listes", faire<Pagelistes>},   Page{"Mon dictionnaire", faire<Pagedictionnaire>},
    Page{"À revoir", faire<Pagerevoir>},     Page{"Progrès", faire<Pageprogres>},
    Page{"Mes données", faire<Pagedonnees>},
};

}  // namespace

std::span<const Page> pages() {
    return lespages;
}

}  // namespace carnet
