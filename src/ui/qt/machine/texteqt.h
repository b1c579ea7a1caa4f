#pragma once

// Texts of the model are UTF-8 and count characters; Qt's are UTF-16 and count code units.

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

/// Where the character of a position (0 is the first) begins in a text of Qt.
[[nodiscard]] inline int placeqt(const QString& texte, std::size_t position) {
    int place = 0;
    const int bout = static_cast<int>(texte.size());
    for (; position > 0 && place < bout; --position)
        place += texte.at(place).isHighSurrogate() && place + 1 < bout ? 2 : 1;
    return place;
}

/// The position of the character (0 is the first) that begins at a place of a text of Qt.
[[nodiscard]] inline std::size_t positiondeqt(const QString& texte, qsizetype place) {
    std::size_t position = 0;
    for (qsizetype i = 0; i < place && i < texte.size(); ++position)
        i += texte.at(i).isHighSurrogate() && i + 1 < texte.size() ? 2 : 1;
    return position;
}

}  // namespace ui::qt
