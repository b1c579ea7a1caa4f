// The modules of a program that holds them all, as it does on Windows.

#include "modules.h"

#include <string_view>

#include <QDebug>

#include "module_reseau.h"
#include "module_son.h"

namespace ui::qt {

QObject* module(const char* nom) {
    static ModuleReseau reseau;
    static ModuleSon son;
    if (std::string_view(nom) == modulereseau)
        return &reseau;
    if (std::string_view(nom) == moduleson)
        return &son;
    qInfo().noquote() << nom << ": introuvable";
    return nullptr;
}

}  // namespace ui::qt
