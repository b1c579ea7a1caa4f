// The calls of the real disk on Windows. Files are opened so that others may read, write, rename
// and delete them: what keeps programs apart are the locks.

#include <windows.h>
#include <algorithm>
#include <chrono>
#include <thread>

#include "appels.h"
#include "chemins_windows.h"
#include "disque.h"
#include "erreurs_windows.h"
#include "remplacement_windows.h"

namespace common {
namespace {

constexpr DWORD partage = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
constexpr std::size_t bouchee = 1UL << 30;  // a call counts its bytes in 32 bits
constexpr std::uint32_t droitsdetous = 0666;
constexpr int essaisdesuppression = 100;
constexpr auto pas = std::chrono::milliseconds(10);

/// The outcome of a call that answers 0 when it failed.
std::error_code issue(BOOL reponse) {
    return reponse != 0 ? std::error_code() : erreurwindows();
}

Ouvert& ouvert(Poignee poignee) {
    return *reinterpret_cast<Ouvert*>(poignee);
}

std::uint64_t assembler(DWORD haut, DWORD bas) {
    return (std::uint64_t{haut} << 32U) | bas;
}

std::error_code etatde(void* fichier, Etat& etat) {
    if (::GetFileType(fichier) != FILE_TYPE_DISK) {
        etat = {};
        return {};
    }
    BY_HANDLE_FILE_INFORMATION lu{};
    if (::GetFileInformationByHandle(fichier, &lu) == 0)
        return erreurwindows();
    etat.genre =
        (lu.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0 ? Genre::Dossier : Genre::Fichier;
    etat.disque = lu.dwVolumeSerialNumber;
    etat.numero = assembler(lu.nFileIndexHigh, lu.nFileIndexLow);
    etat.taille = assembler(lu.nFileSizeHigh, lu.nFileSizeLow);
    etat.droits = droitsdetous;
    return {};
}

/// The answer to an opening that failed, for a file of that path.
std::error_code refus(const std::wstring& chemin, Ouverture mode) {
    const auto erreur = erreurwindows();
    if (erreur != std::errc::permission_denied)
        return erreur;
    if (nomquipart())
        return std::make_error_code(mode == Ouverture::Creation
                                        ? std::errc::operation_would_block
                                        : std::errc::no_such_file_or_directory);
    const DWORD attributs = ::GetFileAttributesW(chemin.c_str());
    const bool dossier =
        attributs != INVALID_FILE_ATTRIBUTES && (attributs & FILE_ATTRIBUTE_DIRECTORY) != 0;
    if (!dossier)
        return erreur;
    return std::make_error_code(mode == Ouverture::Creation ? std::errc::file_exists
                                                            : std::errc::is_a_directory);
}

/// The target of a symbolic link; empty for any other file.
std::error_code suivre(const std::wstring& chemin, std::filesystem::path& cible) {
    WIN32_FIND_DATAW lu{};
    void* const recherche = ::FindFirstFileW(chemin.c_str(), &lu);
    if (recherche == INVALID_HANDLE_VALUE)
        return erreurwindows();
    ::FindClose(recherche);
    // Files of other marks, such as those kept elsewhere until they are read, are no links.
    if ((lu.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) == 0 ||
        lu.dwReserved0 != IO_REPARSE_TAG_SYMLINK)
        return {};
    const Poigneewindows fichier(::CreateFileW(chemin.c_str(), 0, partage, nullptr, OPEN_EXISTING,
                                               FILE_FLAG_BACKUP_SEMANTICS, nullptr));
    if (!fichier.ouverte())
        return erreurwindows();
    cible = sansmarque(cheminfinal(fichier.valeur()));
    return cible.empty() ? erreurwindows() : std::error_code();
}

class AppelsWindows : public Appels {
  public:
    std::error_code ouvrir(const Chemin& chemin, Ouverture mode, Poignee& poignee) override {
        std::wstring large;
        if (const auto erreur = cheminlarge(chemin, large))
            return erreur;
        const DWORD acces =
            mode == Ouverture::Lecture ? GENERIC_READ : GENERIC_READ | GENERIC_WRITE;
        void* const fichier =
            ::CreateFileW(large.c_str(), acces, partage, nullptr,
                          mode == Ouverture::Creation ? CREATE_NEW : OPEN_EXISTING,
                          FILE_ATTRIBUTE_NORMAL, nullptr);
        if (fichier == INVALID_HANDLE_VALUE)
            return refus(large, mode);
        poignee = reinterpret_cast<Poignee>(new Ouvert(fichier, large, mode));
        return {};
    }

    void fermer(Poignee poignee) override { delete &ouvert(poignee); }

    std::error_code lire(Poignee poignee, std::span<char> tampon, std::size_t& lus) override {
        DWORD n = 0;
        const auto taille = static_cast<DWORD>(std::min(tampon.size(), bouchee));
        const auto erreur =
            issue(::ReadFile(ouvert(poignee).fichier(), tampon.data(), taille, &n, nullptr));
        lus = n;
        return erreur;
    }

    std::error_code ecrire(Poignee poignee, std::string_view octets, std::size_t& ecrits) override {
        DWORD n = 0;
        OVERLAPPED fin{};
        fin.Offset = fin.OffsetHigh = 0xFFFFFFFF;  // the end, as it is by then
        const auto taille = static_cast<DWORD>(std::min(octets.size(), bouchee));
        const auto erreur = issue(::WriteFile(ouvert(poignee).fichier(), octets.data(), taille, &n,
                                              ouvert(poignee).enfin() ? &fin : nullptr));
        ecrits = n;
        return erreur;
    }

    std::error_code placer(Poignee poignee, std::uint64_t place) override {
        LARGE_INTEGER ou{};
        ou.QuadPart = static_cast<LONGLONG>(place);
        return issue(::SetFilePointerEx(ouvert(poignee).fichier(), ou, nullptr, FILE_BEGIN));
    }

    std::error_code couper(Poignee poignee, std::uint64_t taille) override {
        FILE_END_OF_FILE_INFO fin{};
        fin.EndOfFile.QuadPart = static_cast<LONGLONG>(taille);
        return issue(::SetFileInformationByHandle(ouvert(poignee).fichier(), FileEndOfFileInfo,
                                                  &fin, sizeof(fin)));
    }

    std::error_code synchroniser(Poignee poignee) override {
        return issue(::FlushFileBuffers(ouvert(poignee).fichier()));
    }

    /// Renaming does not return before the name is on the disk.
    std::error_code synchroniserdossier(const Chemin& /*dossier*/) override { return {}; }

    std::error_code etat(Poignee poignee, Etat& etat) override {
        return etatde(ouvert(poignee).fichier(), etat);
    }

    std::error_code etat(const Chemin& chemin, Etat& etat) override {
        std::wstring large;
        if (const auto erreur = cheminlarge(chemin, large))
            return erreur;
        const Poigneewindows fichier(::CreateFileW(large.c_str(), 0, partage, nullptr,
                                                   OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS,
                                                   nullptr));
        return fichier.ouverte() ? etatde(fichier.valeur(), etat)
                                 : refus(large, Ouverture::Lecture);
    }

    std::error_code lien(const Chemin& chemin, Chemin& cible) override {
        cible.clear();
        std::wstring large;
        auto erreur = cheminlarge(chemin, large);
        if (!erreur)
            erreur = suivre(large, cible);
        return erreur == std::errc::no_such_file_or_directory ? std::error_code() : erreur;
    }

    /// A file belongs to whoever has made it, with the rights of its folder.
    std::error_code leguer(const Chemin& /*modele*/, Poignee /*neuf*/) override { return {}; }

    std::error_code changerdroits(Poignee /*poignee*/, std::uint32_t /*droits*/) override {
        return {};
    }

    std::error_code renommer(const Chemin& ancien, const Chemin& nouveau) override {
        return surdeux(ancien, nouveau, remplacer);
    }

    std::error_code echanger(const Chemin& /*un*/, const Chemin& /*autre*/) override {
        return std::make_error_code(std::errc::function_not_supported);
    }

    std::error_code nommer(const Chemin& ancien, const Chemin& nouveau) override {
        return surdeux(ancien, nouveau, [](const std::wstring& a, const std::wstring& n) {
            return issue(::MoveFileExW(a.c_str(), n.c_str(), MOVEFILE_WRITE_THROUGH));
        });
    }

    std::error_code doubler(const Chemin& ancien, const Chemin& nouveau) override {
        return surdeux(ancien, nouveau, [](const std::wstring& a, const std::wstring& n) {
            return issue(::CreateHardLinkW(n.c_str(), a.c_str(), nullptr));
        });
    }

    std::error_code supprimer(const Chemin& chemin) override {
        std::wstring large;
        if (const auto erreur = cheminlarge(chemin, large))
            return erreur;
        auto erreur = supprimer(large);
        for (int n = 1; n < essaisdesuppression && erreur == std::errc::operation_would_block;
             ++n) {
            std::this_thread::sleep_for(pas);
            erreur = supprimer(large);
        }
        return erreur;
    }

    std::error_code creerdossier(const Chemin& chemin) override {
        std::wstring large;
        const auto erreur = cheminlarge(chemin, large);
        return erreur ? erreur : issue(::CreateDirectoryW(large.c_str(), nullptr));
    }

    std::error_code lister(const Chemin& dossier, std::vector<Chemin>& noms) override {
        std::wstring large;
        if (const auto erreur = cheminlarge(dossier, large))
            return erreur;
        WIN32_FIND_DATAW lu{};
        void* const recherche = ::FindFirstFileW((large + L"\\*").c_str(), &lu);
        if (recherche == INVALID_HANDLE_VALUE)
            return erreurwindows();
        BOOL encore = TRUE;
        for (; encore != 0; encore = ::FindNextFileW(recherche, &lu)) {
            const Chemin nom(lu.cFileName);
            if (nom != "." && nom != "..")
                noms.push_back(nom);
        }
        const auto fin = ::GetLastError();
        ::FindClose(recherche);
        return erreurwindows(fin == ERROR_NO_MORE_FILES ? ERROR_SUCCESS : fin);
    }

    std::error_code verrouiller(Poignee poignee, bool& pris) override {
        return ouvert(poignee).verrouiller(pris);
    }

    std::int64_t programme() override { return ::GetCurrentProcessId(); }

    std::int64_t maintenant() override {
        using namespace std::chrono;
        return duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count();
    }

    void attendre(std::int64_t millisecondes) override {
        std::this_thread::sleep_for(std::chrono::milliseconds(millisecondes));
    }

  private:
    template <class Appel>
    static std::error_code surdeux(const Chemin& ancien, const Chemin& nouveau,
                                   const Appel& appel) {
        std::wstring a;
        std::wstring n;
        auto erreur = cheminlarge(ancien, a);
        if (!erreur)
            erreur = cheminlarge(nouveau, n);
        return erreur ? erreur : appel(a, n);
    }

    static std::error_code supprimer(const std::wstring& large) {
        const DWORD attributs = ::GetFileAttributesW(large.c_str());
        if (attributs == INVALID_FILE_ATTRIBUTES)
            return refus(large, Ouverture::Lecture);
        const bool dossier = (attributs & FILE_ATTRIBUTE_DIRECTORY) != 0;
        return issue(dossier ? ::RemoveDirectoryW(large.c_str()) : ::DeleteFileW(large.c_str()));
    }
};

}  // namespace

Appels& appelsdusysteme() {
    static AppelsWindows appels;
    return appels;
}

}  // namespace common
