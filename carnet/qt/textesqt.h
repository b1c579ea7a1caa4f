#pragma once

// Texts between the rules (UTF-8) and the window.

#include <string>
#include <string_view>

#include <QLocale>
#include <QString>

namespace carnet {

[[nodiscard]] QString qt(std::string_view texte);
[[nodiscard]] std::string utf8(const QString& texte);
/// A count as the French write it, with its noun: "1 mot", "12 345 mots".
[[nodiscard]] QString compte(std::size_t nombre, const QString& un, const QString& plusieurs);

}  // namespace carnet
