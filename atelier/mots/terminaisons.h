#pragma once

// Which forms of a verb are predictable.

#include <string_view>

namespace atelier {

/// A player who knows the infinitive `verbe` would form `forme` without thinking. Both are in
/// capitals; `groupe` is the group of the verb, '0' to '3'.
[[nodiscard]] bool ordinaire(std::string_view forme, std::string_view verbe, char groupe);

}  // namespace atelier
