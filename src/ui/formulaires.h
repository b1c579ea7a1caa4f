#pragma once

// The faces of the forms under the name that the series forms know them by.

#include "faces.h"

namespace common {
using ui::Voisins;
}  // namespace common
