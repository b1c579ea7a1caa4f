#pragma once

#include <functional>
#include <memory>

#include "faces.h"
#include "plateforme.h"

namespace banc {

/// The program under test, as the bench sees it.
class Programme {
  public:
    Programme() = default;
    Programme(const Programme&) = delete;
    Programme& operator=(const Programme&) = delete;
    virtual ~Programme() = default;
    virtual void demarrer() = 0;
    [[nodiscard]] virtual ui::Voisins& voisins() = 0;
};

/// Creates the program on a platform.
using Fabrique = std::function<std::unique_ptr<Programme>(ui::Plateforme&)>;

}  // namespace banc
