#pragma once

// Texts are UTF-8 in memory and Windows-1252 on disk. Positions and lengths count characters, never
// bytes.

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace common {

/// The end of a line in the files that are written.
inline constexpr std::string_view findeligne = "\r\n";
/// What begins a file of UTF-8 that says so.
inline constexpr std::string_view marqueutf8 = "\xEF\xBB\xBF";

/// Number of characters of a UTF-8 text.
[[nodiscard]] std::size_t longueur(std::string_view texte);

/// `nombre` characters from `position` on (1 is the first); fewer if the text is too short.
[[nodiscard]] std::string milieu(std::string_view texte, std::size_t position,
                                 std::size_t nombre = std::string::npos);
/// The first `nombre` characters, or the whole text if it is shorter.
[[nodiscard]] std::string debut(std::string_view texte, std::size_t nombre);
/// The last `nombre` characters, or the whole text if it is shorter.
[[nodiscard]] std::string fin(std::string_view texte, std::size_t nombre);
/// The text without its last `nombre` characters.
[[nodiscard]] std::string sansfin(std::string_view texte, std::size_t nombre);
/// The characters of the text, each as a text of its own.
[[nodiscard]] std::vector<std::string> caracteres(std::string_view texte);

/// The text in lower case, including the accented letters of Windows-1252.
[[nodiscard]] std::string minuscules(std::string_view texte);

/// The text without the blanks and tabulations at its ends.
[[nodiscard]] std::string_view sansblancs(std::string_view texte);

/// The first character of a UTF-8 text, 0 for an empty one; a malformed byte stands for itself.
[[nodiscard]] char32_t premier(std::string_view texte);
/// One character as UTF-8.
[[nodiscard]] std::string utf8(char32_t caractere);

/// The code of a character in Windows-1252; nothing if the code page lacks it. The five undefined
/// codes stand for U+0081, U+008D, U+008F, U+0090 and U+009D.
[[nodiscard]] std::optional<unsigned char> code1252(char32_t caractere);
/// The character of a code in Windows-1252.
[[nodiscard]] char32_t caractere1252(unsigned char code);

/// Bytes of Windows-1252 to UTF-8, without loss.
[[nodiscard]] std::string depuis1252(std::string_view octets);
/// UTF-8 to bytes of Windows-1252; nothing if the code page lacks a character.
[[nodiscard]] std::optional<std::string> essayervers1252(std::string_view texte);
/// UTF-8 to bytes of Windows-1252. Throws `Faute`, naming the character, if the code page lacks
/// one.
[[nodiscard]] std::string vers1252(std::string_view texte);

}  // namespace common
