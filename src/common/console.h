#pragma once

// What a program without a window asks of the system: its arguments, and a console for its text.

#include <string>
#include <vector>

namespace common {

/// The arguments of the program, without its name, in UTF-8.
[[nodiscard]] std::vector<std::string> arguments(int nombre, char** mots);

/// Makes what is written to the standard streams arrive as it was written: bytes in a file, UTF-8
/// on a console.
void preparerconsole();

/// The stream of errors is a terminal, which obeys the sequences of ANSI.
[[nodiscard]] bool erreurssurterminal();

}  // namespace common
