#include <windows.h>
#include <cstdio>
#include <fcntl.h>
#include <filesystem>
#include <io.h>
// Behind the header that it stands on.
#include <shellapi.h>

#include "console.h"

namespace common {

std::vector<std::string> arguments(int /*nombre*/, char** /*mots*/) {
    // What `main` is given is in the code page of the system, without what that lacks.
    int nombre = 0;
    wchar_t** larges = ::CommandLineToArgvW(::GetCommandLineW(), &nombre);
    std::vector<std::string> mots;
    for (int i = 1; larges != nullptr && i < nombre; ++i)
        mots.push_back(std::filesystem::path(larges[i]).string());
    ::LocalFree(larges);
    return mots;
}

void preparerconsole() {
    // A program with windows has no console, and takes that of the one which has started it. What
    // leads to a file stays.
    if (::GetStdHandle(STD_OUTPUT_HANDLE) == nullptr && ::AttachConsole(ATTACH_PARENT_PROCESS) != 0)
        for (auto* flux : {stdout, stderr})
            static_cast<void>(std::freopen("CONOUT$", "w", flux));
    for (auto* flux : {stdout, stderr})
        static_cast<void>(::_setmode(::_fileno(flux), _O_BINARY));
    ::SetConsoleOutputCP(CP_UTF8);
}

bool erreurssurterminal() {
    auto* const erreurs = ::GetStdHandle(STD_ERROR_HANDLE);
    DWORD mode = 0;
    return ::GetConsoleMode(erreurs, &mode) != 0 &&
           ::SetConsoleMode(erreurs, mode | ENABLE_VIRTUAL_TERMINAL_PROCESSING) != 0;
}

}  // namespace common
