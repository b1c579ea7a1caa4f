// Fonts of a system whose settings are those of fontconfig.

#include "fontessysteme.h"

#include <clocale>
#include <dlfcn.h>
#include <future>
#include <system_error>
#ifdef __SANITIZE_ADDRESS__
#include <sanitizer/lsan_interface.h>
#endif

namespace ui::qt {
namespace {

/// An operation of the fontconfig that Qt has loaded; null if it has none.
template <class Operation>
Operation* operation(const char* nom) {
    return reinterpret_cast<Operation*>(dlsym(RTLD_DEFAULT, nom));
}

/// The settings as `FcInit` makes them, but for the descriptions of all settings that there might
/// be, which take it twice as long and which nobody asks for. Null if they cannot be read.
void* lirereglages() {
#ifdef __SANITIZE_ADDRESS__
    // fontconfig keeps distances in the place of addresses: all that it holds would seem lost.
    const __lsan::ScopedDisabler sansfuites;
#endif
    auto* creer = operation<void*()>("FcConfigCreate");
    auto* lire = operation<int(void*, const unsigned char*, int)>("FcConfigParseAndLoad");
    auto* dossiers = operation<void*(const void*)>("FcConfigGetCacheDirs");
    auto* premier = operation<unsigned char*(void*)>("FcStrListNext");
    auto* fermer = operation<void(void*)>("FcStrListDone");
    auto* batir = operation<int(void*)>("FcConfigBuildFonts");
    auto* detruire = operation<void(void*)>("FcConfigDestroy");
    if (creer == nullptr || lire == nullptr || dossiers == nullptr || premier == nullptr ||
        fermer == nullptr || batir == nullptr || detruire == nullptr)
        return nullptr;
    auto* reglages = creer();
    if (reglages == nullptr)
        return nullptr;
    bool complets = lire(reglages, nullptr, 1) != 0;
    if (complets) {
        auto* caches = dossiers(reglages);
        complets = caches != nullptr && premier(caches) != nullptr;
        if (caches != nullptr)
            fermer(caches);
    }
    if (complets && batir(reglages) != 0)
        return reglages;
    detruire(reglages);  // `FcInit` has a way out of each of these
    return nullptr;
}

std::future<void*>& lecture() {
    static std::future<void*> encours;
    return encours;
}

}  // namespace

void lirefontes() {
    // As Qt is about to do: numbers must not be read while the language changes.
    std::setlocale(LC_ALL, "");
    try {
        lecture() = std::async(std::launch::async, lirereglages);
    } catch (const std::system_error&) {
        return;  // no thread to be had: Qt reads them
    }
}

void attendrefontes() {
    if (!lecture().valid())
        return;
    auto* reglages = lecture().get();
    auto* choisir = operation<int(void*)>("FcConfigSetCurrent");
    if (reglages != nullptr && choisir != nullptr)
        static_cast<void>(choisir(reglages));  // they stay until the program ends
}

}  // namespace ui::qt
