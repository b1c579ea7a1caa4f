#pragma once

// The model's texts are UTF-8, with positions in characters; Qt's are UTF-16, with positions in
// code units.

#include <cstddef>
#include <string>
#include <string_view>

#include <QString>

namespace ui::qt {

[[nodiscard]] inline QString versqt(std::string_view texte) {
    return QString::fromUtf8(texte.data(), static_cast<qsizetype>(texte.size()));
}

[[nodiscard]] inline std::string depuisqt(const QString& texte) {
    return texte.toStdString();
}

/// From a position in characters (0 is the first) to one in code units of Qt; the end of the text
/// if it has fewer characters.
[[nodiscard]] inline int placeqt(const QString& texte, std::size_t position) {
    int place = 0;
    const int bout = static_cast<int>(texte.size());
    for (; position > 0 && place < bout; --position)
        place += texte.at(place).isHighSurrogate() && place + 1 < bout ? 2 : 1;
    return place;
}

/// From a position in code units of Qt to one in characters (0 is the first).
[[nodiscard]] inline std::size_t positiondeqt(const QString& texte, qsizetype place) {
    std::size_t position = 0;
    for (qsizetype i = 0; i < place && i < texte.size(); ++position)
        i += texte.at(i).isHighSurrogate() && i + 1 < texte.size() ? 2 : 1;
    return position;
}

}  // namespace ui::qt
