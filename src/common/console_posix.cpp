#include "console.h"

#include <unistd.h>

namespace common {

std::vector<std::string> arguments(int nombre, char** mots) {
    return {mots + (nombre > 0 ? 1 : 0), mots + nombre};
}

void preparerconsole() {}

bool erreurssurterminal() {
    return ::isatty(STDERR_FILENO) != 0;
}

}  // namespace common
