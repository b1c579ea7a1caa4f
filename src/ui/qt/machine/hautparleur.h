#pragma once

#include <cstdint>
#include <optional>

#include <QByteArray>
#include <QString>

// Plays wave files. They are decoded here, since the length of a sound has to be known before it is
// played: no device, however it hangs, may hold the program up for longer.

namespace ui::qt {

class Minuteur;

/// The sound of a wave file.
struct Onde {
    int voies = 0;      ///< 1 or 2
    int frequence = 0;  ///< samples per second
    int bits = 0;       ///< per sample: 8 or 16
    QByteArray echantillons;

    /// Length of the sound in milliseconds.
    [[nodiscard]] std::int64_t duree() const;
};

/// Decodes the bytes of a RIFF wave file of uncompressed (PCM) samples; nothing if they are not
/// such a file.
[[nodiscard]] std::optional<Onde> lireonde(const QByteArray& octets);

/// Milliseconds after which a sound is cut off.
inline constexpr std::int64_t dureelimite = 20'000;

/// Plays a wave file and waits for its end, or for that limit, as `attendre` does. Returns at once,
/// without a sound, if the file cannot be read or the machine has no sound device. A device that
/// hangs delays the program by at most half a second beyond the length of the sound.
void jouer(Minuteur& minuteur, const QString& chemin);

}  // namespace ui::qt
