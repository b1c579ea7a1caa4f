#include "clavierqt.h"

#include <algorithm>
#include <array>
#include <utility>

#include <QKeyEvent>
#include <QString>

namespace ui::qt {
namespace {

// Keys without a character of their own, and the virtual codes that the model gives them.
constexpr std::array<std::pair<int, int>, 18> codes{{{Qt::Key_Backspace, touches::retour},
                                                     {Qt::Key_Tab, touches::tab},
                                                     {Qt::Key_Backtab, touches::tab},
                                                     {Qt::Key_Return, touches::entree},
                                                     {Qt::Key_Enter, touches::entree},
                                                     {Qt::Key_Escape, touches::echap},
                                                     {Qt::Key_Space, touches::espace},
                                                     {Qt::Key_PageUp, 33},
                                                     {Qt::Key_PageDown, 34},
                                                     {Qt::Key_End, touches::fin},
                                                     {Qt::Key_Home, touches::origine},
                                                     {Qt::Key_Left, touches::gauche},
                                                     {Qt::Key_Up, touches::haut},
                                                     {Qt::Key_Right, touches::droite},
                                                     {Qt::Key_Down, touches::bas},
                                                     {Qt::Key_Insert, 45},
                                                     {Qt::Key_Delete, touches::suppr},
                                                     {Qt::Key_Pause, 19}}};

constexpr int codedef1 = 112;
constexpr char32_t premiervisible = 32;
constexpr char32_t effacement = 127;

}  // namespace

int codede(char32_t caractere) {
    if (caractere >= U'a' && caractere <= U'z')
        return static_cast<int>(caractere - U'a') + 'A';
    const bool connu = (caractere >= U'A' && caractere <= U'Z') ||
                       (caractere >= U'0' && caractere <= U'9') || caractere == U' ';
    return connu ? static_cast<int>(caractere) : 0;
}

int codede(const QKeyEvent& evenement) {
    const int cle = evenement.key();
    const auto* trouve = std::find_if(codes.begin(), codes.end(),
                                      [cle](const auto& paire) { return paire.first == cle; });
    if (trouve != codes.end())
        return trouve->second;
    if (cle >= Qt::Key_F1 && cle <= Qt::Key_F24)
        return codedef1 + cle - Qt::Key_F1;
    return cle > 0 ? codede(static_cast<char32_t>(cle)) : 0;
}

std::vector<char32_t> caracteres(const QString& texte) {
    const auto liste = texte.toUcs4();
    return {liste.begin(), liste.end()};
}

std::optional<Frappe> frappe(const QKeyEvent& evenement) {
    const auto modificateurs = evenement.modifiers();
    const bool ctrl = modificateurs.testFlag(Qt::ControlModifier);
    const bool alt = modificateurs.testFlag(Qt::AltModifier);
    // On some systems AltGr comes as Ctrl and Alt together, with the character that it makes.
    const bool altgr = ctrl && alt;
    if (modificateurs.testFlag(Qt::MetaModifier) || (alt && !altgr))
        return std::nullopt;
    Frappe f;
    f.touche.code = codede(evenement);
    f.touche.maj = modificateurs.testFlag(Qt::ShiftModifier) || evenement.key() == Qt::Key_Backtab;
    if (!ctrl || altgr)
        f.caracteres = caracteres(evenement.text());
    std::erase_if(f.caracteres, [](char32_t c) { return c < premiervisible || c == effacement; });
    f.touche.ctrl = ctrl && f.caracteres.empty();
    if (altgr && f.caracteres.empty())
        return std::nullopt;
    // A character tells its own code: on a French keyboard the key of "é" also bears a digit.
    if (!f.caracteres.empty())
        f.touche.code = codede(f.caracteres.front());
    if (f.touche.code == 0 && f.caracteres.empty())
        return std::nullopt;
    return f;
}

}  // namespace ui::qt
