#pragma once

#include <cstdint>
#include <optional>

#include <QByteArray>
#include <QString>

namespace ui::qt {

class Minuteur;

/// The sound of a wave file.
struct Onde {
    int voies = 0;      ///< 1 or 2
    int frequence = 0;  ///< samples a second
    int bits = 0;       ///< of a sample: 8 or 16
    QByteArray echantillons;

    /// Milliseconds.
    [[nodiscard]] std::int64_t duree() const;
};

/// Reads the bytes of a wave file of plain samples; nothing if they are none.
[[nodiscard]] std::optional<Onde> lireonde(const QByteArray& octets);

/// Milliseconds after which a sound is cut.
inline constexpr std::int64_t dureelimite = 20'000;

/// Plays a wave file to its end, or to that limit, in the middle of an event. Silent, at once,
/// without such a file or without a device; a device that sticks holds the program up by half a
/// second at the most.
void jouer(Minuteur& minuteur, const QString& chemin);

}  // namespace ui::qt
