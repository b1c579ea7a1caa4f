#include "horloge.h"

#include <ctime>

namespace common {

Instant instantlocal() {
    constexpr int an1900 = 1900;
    const auto maintenant = std::time(nullptr);
    std::tm t{};
    ::localtime_r(&maintenant, &t);
    return {t.tm_year + an1900, t.tm_mon + 1, t.tm_mday, t.tm_hour, t.tm_min, t.tm_sec};
}

}  // namespace common
