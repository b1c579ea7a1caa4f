// Where Windows keeps what is a player's.

#include "lieux.h"

#include <memory>
#include <shlobj.h>

namespace installation {
namespace {

std::filesystem::path donneeslocales() {
    wchar_t* lu = nullptr;
    const auto reponse =
        ::SHGetKnownFolderPath(FOLDERID_LocalAppData, KF_FLAG_DONT_VERIFY, nullptr, &lu);
    const std::unique_ptr<wchar_t, decltype(&::CoTaskMemFree)> texte(lu, ::CoTaskMemFree);
    if (SUCCEEDED(reponse) && lu != nullptr)
        return lu;
    const auto* dites = ::_wgetenv(L"LOCALAPPDATA");
    return dites == nullptr ? std::filesystem::path() : std::filesystem::path(dites);
}

}  // namespace

Environs environs(const std::filesystem::path& programme) {
    const auto locales = donneeslocales();
    return {programme, locales.is_absolute() ? locales / "Orvane" : std::filesystem::path(),
            "LOCALAPPDATA n'est pas un dossier"};
}

}  // namespace installation
