// The fonts of Windows: nothing to be read beforehand.

#include "fontessysteme.h"

namespace ui::qt {

void lirefontes() {}

void attendrefontes() {}

}  // namespace ui::qt
