#include "horloge.h"

#include <windows.h>

namespace common {

Instant instantlocal() {
    SYSTEMTIME t{};
    ::GetLocalTime(&t);
    return {t.wYear, t.wMonth, t.wDay, t.wHour, t.wMinute, t.wSecond};
}

}  // namespace common
