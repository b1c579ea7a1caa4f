// The programs of tests on Windows, and their `main`: the test program, started with an action,
// does that instead of testing.

#include <windows.h>
#include <cstdio>
#include <cstdlib>
#include <utility>

#include <gmock/gmock.h>
// Behind the header that it stands on.
#include <psapi.h>

#include "chemin.h"
#include "console.h"
#include "dossiertemporaire.h"
#include "processus.h"

namespace essais {
namespace {

constexpr const char* ordre = "--essais-action";

bool encopies = false;
bool morts = false;

/// The address of something of this program, as another run of it can find it again.
std::intptr_t base() {
    return reinterpret_cast<std::intptr_t>(::GetModuleHandleW(nullptr));
}

/// An argument as the reading of command lines wants it.
std::wstring entreguillemets(const std::string& mot) {
    std::wstring texte = L"\"";
    std::size_t barres = 0;
    const auto large = common::chemin(mot);
    for (const wchar_t c : large.native()) {
        if (c == L'"')
            texte.append(barres + 1, L'\\');
        barres = c == L'\\' ? barres + 1 : 0;
        texte += c;
    }
    return texte.append(barres, L'\\') + L"\"";
}

void* fichierherite(const std::filesystem::path& chemin) {
    SECURITY_ATTRIBUTES herite{sizeof(SECURITY_ATTRIBUTES), nullptr, TRUE};
    return ::CreateFileW(chemin.c_str(), GENERIC_WRITE, FILE_SHARE_READ, &herite, CREATE_ALWAYS,
                         FILE_ATTRIBUTE_NORMAL, nullptr);
}

void* demarrer(const std::filesystem::path& programme, const Mots& arguments,
               const std::filesystem::path& ici, void* sortie, void* erreurs) {
    auto ligne = entreguillemets(programme.string());
    for (const auto& argument : arguments)
        ligne += L" " + entreguillemets(argument);
    STARTUPINFOW depart{};
    depart.cb = sizeof(depart);
    depart.dwFlags = STARTF_USESTDHANDLES;
    depart.hStdOutput = sortie;
    depart.hStdError = erreurs;
    PROCESS_INFORMATION lance{};
    if (::CreateProcessW(nullptr, ligne.data(), nullptr, nullptr, TRUE, 0, nullptr,
                         ici.empty() ? nullptr : ici.c_str(), &depart, &lance) == 0)
        return nullptr;
    ::CloseHandle(lance.hThread);
    return lance.hProcess;
}

int attendreprogramme(void* programme) {
    DWORD statut = 0;
    ::WaitForSingleObject(programme, INFINITE);
    const bool connu = ::GetExitCodeProcess(programme, &statut) != 0;
    ::CloseHandle(programme);
    return connu ? static_cast<int>(statut) : -1;
}

std::filesystem::path ceprogramme() {
    std::wstring chemin(32768, L'\0');
    chemin.resize(::GetModuleFileNameW(nullptr, chemin.data(), static_cast<DWORD>(chemin.size())));
    return chemin;
}

}  // namespace

Enfant::Enfant(Action action, const Mots& mots) {
    Mots arguments{ordre, std::to_string(reinterpret_cast<std::intptr_t>(action) - base())};
    arguments.insert(arguments.end(), mots.begin(), mots.end());
    programme_ = reinterpret_cast<std::intptr_t>(demarrer(ceprogramme(), arguments, {},
                                                          ::GetStdHandle(STD_OUTPUT_HANDLE),
                                                          ::GetStdHandle(STD_ERROR_HANDLE)));
}

Enfant::~Enfant() {
    if (programme_ != 0)
        static_cast<void>(attendre());
}

int Enfant::attendre() {
    const auto statut =
        programme_ == 0 ? -1 : attendreprogramme(reinterpret_cast<void*>(programme_));
    programme_ = 0;
    return statut;
}

int encopie(const std::function<int()>& action) {
    encopies = true;
    morts = false;
    int statut = -1;
    try {
        statut = action();
    } catch (...) {
        if (!morts)
            throw;
    }
    encopies = false;
    const bool mourut = std::exchange(morts, false);
    return mourut ? tue : statut;
}

bool copiable() {
    return false;
}

void mourir(int statut) {
    morts = true;
    if (!encopies)
        ::TerminateProcess(::GetCurrentProcess(), static_cast<UINT>(statut));
}

bool mort() {
    return morts;
}

std::size_t memoire() {
    PROCESS_MEMORY_COUNTERS lus{};
    ::GetProcessMemoryInfo(::GetCurrentProcess(), &lus, sizeof(lus));
    return lus.PeakWorkingSetSize;
}

Fin lancer(const std::string& programme, const Mots& arguments, const std::filesystem::path& ici) {
    const DossierTemporaire flux;
    auto* const sortie = fichierherite(flux.chemin() / "sortie");
    auto* const erreurs = fichierherite(flux.chemin() / "erreurs");
    auto* const lance = demarrer(common::chemin(programme), arguments, ici, sortie, erreurs);
    ::CloseHandle(sortie);
    ::CloseHandle(erreurs);
    const int etat = lance == nullptr ? -1 : attendreprogramme(lance);
    return {etat, flux.lire("sortie"), flux.lire("erreurs")};
}

}  // namespace essais

int main(int nombre, char** arguments) {
    auto mots = common::arguments(nombre, arguments);
    if (mots.size() >= 2 && mots[0] == essais::ordre) {
        const auto place = std::strtoll(mots[1].c_str(), nullptr, 10);
        const auto action = reinterpret_cast<essais::Action>(essais::base() + place);
        mots.erase(mots.begin(), mots.begin() + 2);
        return action(mots);
    }
    testing::InitGoogleMock(&nombre, arguments);
    return RUN_ALL_TESTS();
}
