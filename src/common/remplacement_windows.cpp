#include "remplacement_windows.h"

#include <windows.h>
#include <chrono>
#include <cstring>
#include <mutex>
#include <set>
#include <thread>
#include <utility>
#include <vector>

#include "disque.h"
#include "erreurs_windows.h"

namespace common {
namespace {

using Horloge = std::chrono::steady_clock;

constexpr auto attente = std::chrono::milliseconds(attentelimite);
constexpr auto pas = std::chrono::milliseconds(2);
/// FileRenameInfoEx; the compiler's header numbers it for no Windows.
constexpr auto renommagelarge = static_cast<FILE_INFO_BY_HANDLE_CLASS>(22);
constexpr DWORD partage = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
/// The byte that stands for the whole file in a lock. Windows keeps others from locked bytes: it
/// lies where no file has any.
constexpr DWORD octetduverrou = 0x40000000;

std::mutex& barriere() {
    static std::mutex seule;
    return seule;
}
std::set<Ouvert*>& ouverts() {
    static std::set<Ouvert*> tous;
    return tous;
}

OVERLAPPED placeduverrou() {
    OVERLAPPED place{};
    place.OffsetHigh = octetduverrou;
    return place;
}

/// The name of the system's object for a file. It may have no backslash, and a limited length.
std::wstring nomdegarde(const std::wstring& cle) {
    constexpr std::uint64_t depart = 14695981039346656037ULL;  // FNV-1a
    constexpr std::uint64_t facteur = 1099511628211ULL;
    std::uint64_t somme = depart;
    for (const wchar_t c : cle)
        somme = (somme ^ c) * facteur;
    return L"Global\\Orvane-" + std::to_wstring(somme);
}

bool regarder(const std::wstring& chemin, BY_HANDLE_FILE_INFORMATION& lu) {
    const Poigneewindows fichier(::CreateFileW(chemin.c_str(), 0, partage, nullptr, OPEN_EXISTING,
                                               FILE_FLAG_BACKUP_SEMANTICS, nullptr));
    return fichier.ouverte() && ::GetFileInformationByHandle(fichier.valeur(), &lu) != 0;
}

/// What tells whether a file is still the same, unchanged.
struct Identite {
    DWORD volume = 0;
    DWORD numerohaut = 0;
    DWORD numerobas = 0;
    FILETIME ecriture{};
    DWORD taillebasse = 0;
};

Identite identite(const std::wstring& chemin) {
    BY_HANDLE_FILE_INFORMATION lu{};
    if (!regarder(chemin, lu))
        return {};
    return {lu.dwVolumeSerialNumber, lu.nFileIndexHigh, lu.nFileIndexLow, lu.ftLastWriteTime,
            lu.nFileSizeLow};
}

bool memes(const Identite& a, const Identite& b) {
    return a.volume == b.volume && a.numerohaut == b.numerohaut && a.numerobas == b.numerobas &&
           a.taillebasse == b.taillebasse && ::CompareFileTime(&a.ecriture, &b.ecriture) == 0;
}

enum class Issue : std::uint8_t { Faite, Retenue, Inconnue, Refusee };

/// Renames as POSIX does: whoever has the old file open goes on reading it. Not every disk can, nor
/// every Windows: `Inconnue`.
Issue renommerenposix(const std::wstring& ancien, const std::wstring& nouveau) {
    const Poigneewindows source(::CreateFileW(
        ancien.c_str(), DELETE | SYNCHRONIZE, partage, nullptr, OPEN_EXISTING,
        FILE_FLAG_BACKUP_SEMANTICS | FILE_FLAG_OPEN_REPARSE_POINT | FILE_FLAG_WRITE_THROUGH,
        nullptr));
    if (!source.ouverte())
        return ::GetLastError() == ERROR_SHARING_VIOLATION ? Issue::Retenue : Issue::Refusee;
    const auto octets = nouveau.size() * sizeof(wchar_t);
    // The name stands at the end of the structure, in place of its last member.
    std::vector<std::max_align_t> place(
        (sizeof(FILE_RENAME_INFO) + octets) / sizeof(std::max_align_t) + 1);
    auto* demande = reinterpret_cast<FILE_RENAME_INFO*>(place.data());
    demande->Flags = FILE_RENAME_FLAG_REPLACE_IF_EXISTS | FILE_RENAME_FLAG_POSIX_SEMANTICS;
    demande->FileNameLength = static_cast<DWORD>(octets);
    std::memcpy(demande->FileName, nouveau.data(), octets);
    const auto taille = static_cast<DWORD>(sizeof(FILE_RENAME_INFO) + octets);
    if (::SetFileInformationByHandle(source.valeur(), renommagelarge, demande, taille) != 0)
        return Issue::Faite;
    switch (::GetLastError()) {
        case ERROR_INVALID_PARAMETER:
        case ERROR_INVALID_FUNCTION:
        case ERROR_INVALID_LEVEL:
        case ERROR_NOT_SUPPORTED:
        case ERROR_CALL_NOT_IMPLEMENTED:
            return Issue::Inconnue;
        case ERROR_ACCESS_DENIED:
        case ERROR_SHARING_VIOLATION:
        case ERROR_USER_MAPPED_FILE:
            return Issue::Retenue;
        default:
            return Issue::Refusee;
    }
}

/// Renames as every disk does: refused as long as anybody has the old file open.
Issue renommersimplement(const std::wstring& ancien, const std::wstring& nouveau) {
    if (::MoveFileExW(ancien.c_str(), nouveau.c_str(),
                      MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != 0)
        return Issue::Faite;
    const auto erreur = ::GetLastError();
    return erreur == ERROR_ACCESS_DENIED || erreur == ERROR_SHARING_VIOLATION ? Issue::Retenue
                                                                              : Issue::Refusee;
}

/// A file that its owner has marked; the mark means nothing on a folder.
bool enlectureseule(DWORD attributs) {
    return attributs != INVALID_FILE_ATTRIBUTES && (attributs & FILE_ATTRIBUTE_READONLY) != 0 &&
           (attributs & FILE_ATTRIBUTE_DIRECTORY) == 0;
}

/// The system refuses that file to this program, whoever has it open.
bool refuse(const std::wstring& chemin) {
    const Poigneewindows essai(::CreateFileW(chemin.c_str(), DELETE, partage, nullptr,
                                             OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr));
    return !essai.ouverte() && ::GetLastError() == ERROR_ACCESS_DENIED && !nomquipart();
}

/// Why waiting will not help; nothing if it may.
std::error_code empechement(const std::wstring& ancien, const std::wstring& nouveau) {
    const DWORD source = ::GetFileAttributesW(ancien.c_str());
    const DWORD cible = ::GetFileAttributesW(nouveau.c_str());
    const bool libre = cible == INVALID_FILE_ATTRIBUTES;
    if (!libre && (cible & FILE_ATTRIBUTE_DIRECTORY) != 0)
        return std::make_error_code((source & FILE_ATTRIBUTE_DIRECTORY) != 0
                                        ? std::errc::directory_not_empty
                                        : std::errc::is_a_directory);
    return refuse(libre ? ancien : nouveau) ? std::make_error_code(std::errc::permission_denied)
                                            : std::error_code();
}

/// One try, without and with the way of POSIX.
Issue essayer(const std::wstring& ancien, const std::wstring& nouveau, bool& enposix) {
    if (enposix) {
        const auto issue = renommerenposix(ancien, nouveau);
        if (issue != Issue::Inconnue)
            return issue;
        enposix = false;
    }
    return renommersimplement(ancien, nouveau);
}

/// Closes what this program has opened of the file to change it; the locks stay.
void ceder(const std::wstring& chemin) {
    const auto cle = cledefichier(chemin);
    const std::lock_guard seul(barriere());
    for (auto* ouvert : ouverts())
        ouvert->ceder(cle);
}

}  // namespace

void Poigneewindows::fermer() {
    if (ouverte())
        ::CloseHandle(valeur_);
    valeur_ = nullptr;
}

bool Poigneewindows::ouverte() const {
    return valeur_ != nullptr && valeur_ != INVALID_HANDLE_VALUE;
}

std::wstring cledefichier(const std::wstring& chemin) {
    const auto coupe = chemin.rfind(L'\\') + 1;
    BY_HANDLE_FILE_INFORMATION dossier{};
    if (!regarder(chemin.substr(0, coupe), dossier))
        return {};
    auto nom = chemin.substr(coupe);
    ::CharLowerBuffW(nom.data(), static_cast<DWORD>(nom.size()));
    std::wstring cle;
    for (const DWORD nombre :
         {dossier.dwVolumeSerialNumber, dossier.nFileIndexHigh, dossier.nFileIndexLow})
        cle += std::to_wstring(nombre) + L"-";
    return cle + nom;
}

Garde::Garde(const std::wstring& cle)
    : objet_(::CreateEventW(nullptr, TRUE, FALSE, nomdegarde(cle).c_str())) {}

bool Garde::tenue(const std::wstring& cle) {
    if (cle.empty())
        return false;
    const Poigneewindows objet(::OpenEventW(SYNCHRONIZE, FALSE, nomdegarde(cle).c_str()));
    return objet.ouverte() || ::GetLastError() == ERROR_ACCESS_DENIED;
}

Ouvert::Ouvert(void* fichier, std::wstring chemin, Ouverture mode)
    : fichier_(fichier), chemin_(std::move(chemin)), mode_(mode) {
    const std::lock_guard seul(barriere());
    ouverts().insert(this);
}

Ouvert::~Ouvert() {
    const std::lock_guard seul(barriere());
    ouverts().erase(this);
    deverrouiller();
}

std::error_code Ouvert::verrouiller(bool& pris) {
    pris = false;
    auto place = placeduverrou();
    if (::LockFileEx(fichier(), LOCKFILE_EXCLUSIVE_LOCK | LOCKFILE_FAIL_IMMEDIATELY, 0, 1, 0,
                     &place) == 0) {
        const auto erreur = ::GetLastError();
        if (erreur == ERROR_LOCK_VIOLATION || erreur == ERROR_IO_PENDING)
            return {};
        return std::make_error_code(std::errc::no_lock_available);
    }
    verrouille_ = true;
    cle_ = cledefichier(chemin_);
    pris = !Garde::tenue(cle_);
    if (!pris)
        deverrouiller();
    return {};
}

void Ouvert::deverrouiller() {
    // Closing would do it too, at a moment of the system's choice.
    auto place = placeduverrou();
    if (verrouille_ && fichier_.ouverte())
        ::UnlockFileEx(fichier(), 0, 1, 0, &place);
    verrouille_ = false;
}

void Ouvert::ceder(const std::wstring& cle) {
    if (cle.empty() || mode_ == Ouverture::Lecture || !fichier_.ouverte() ||
        (cle_.empty() ? cledefichier(chemin_) : cle_) != cle)
        return;
    if (verrouille_)  // some disks have no locks
        garde_ = std::make_unique<Garde>(cle);
    deverrouiller();
    fichier_.fermer();
}

std::error_code remplacer(const std::wstring& ancien, const std::wstring& nouveau) {
    const auto limite = Horloge::now() + attente;
    bool enposix = true;
    bool cede = false;
    Identite avant;
    if (enlectureseule(::GetFileAttributesW(nouveau.c_str())))
        return std::make_error_code(std::errc::permission_denied);
    for (;;) {
        const auto issue = essayer(ancien, nouveau, enposix);
        if (issue == Issue::Faite)
            return {};
        if (issue == Issue::Refusee)
            return erreurwindows();
        if (const auto erreur = empechement(ancien, nouveau))
            return erreur;
        if (!enposix && !cede) {
            avant = identite(nouveau);
            ceder(nouveau);
            cede = true;
            continue;
        }
        // A program of another machine may have taken the lock that had to be let go.
        if (Horloge::now() >= limite || (cede && !memes(avant, identite(nouveau))))
            return Ennui::Retenu;
        std::this_thread::sleep_for(pas);
    }
}

}  // namespace common
