#include "chemins_windows.h"

#include <windows.h>

#include "erreurs_windows.h"
#include "nomwindows.h"

namespace common {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t longueurlimite = 240;  // a folder must have room for a name of 12 in its path
constexpr std::wstring_view marque = L"\\\\?\\";
constexpr std::wstring_view marquereseau = L"\\\\?\\UNC\\";
constexpr std::wstring_view reseau = L"\\\\";

std::error_code verifiernoms(const fs::path& chemin) {
    for (const auto& nom : chemin.relative_path()) {
        const auto texte = nom.u8string();
        if (const auto erreur = nompourwindows(std::string(texte.begin(), texte.end())))
            return erreur;
    }
    return {};
}

/// The answer of a call that fills a buffer and says how long it should be; empty on failure.
template <class Appel>
std::wstring remplir(const Appel& appel) {
    std::wstring texte(MAX_PATH, L'\0');
    DWORD taille = appel(texte.data(), static_cast<DWORD>(texte.size()));
    while (taille > texte.size()) {
        texte.resize(taille);
        taille = appel(texte.data(), static_cast<DWORD>(texte.size()));
    }
    texte.resize(taille);
    return texte;
}

}  // namespace

std::wstring sansmarque(const std::wstring& large) {
    if (large.starts_with(marquereseau))
        return std::wstring(reseau) + large.substr(marquereseau.size());
    return large.starts_with(marque) ? large.substr(marque.size()) : large;
}

std::error_code cheminlarge(const fs::path& chemin, std::wstring& large) {
    auto demande = fs::path(sansmarque(chemin.native()));
    if (const auto erreur = verifiernoms(demande))
        return erreur;
    demande.make_preferred();
    if (demande.empty())
        demande = L".";
    large = remplir([&](wchar_t* place, DWORD taille) {
        return ::GetFullPathNameW(demande.c_str(), taille, place, nullptr);
    });
    if (large.empty())
        return erreurwindows();
    if (large.size() >= longueurlimite)
        large = large.starts_with(reseau) ? std::wstring(marquereseau) + large.substr(reseau.size())
                                          : std::wstring(marque) + large;
    return {};
}

std::wstring cheminfinal(void* fichier) {
    return remplir([&](wchar_t* place, DWORD taille) {
        return ::GetFinalPathNameByHandleW(fichier, place, taille, FILE_NAME_NORMALIZED);
    });
}

}  // namespace common
