#pragma once

// Which forms of a verb hold no surprise.

#include <string_view>

namespace atelier {

/// A form that a player who knows the infinitive would write down without thinking. Both in
/// capitals; `groupe` is that of the verb, '0' to '3'.
[[nodiscard]] bool ordinaire(std::string_view forme, std::string_view verbe, char groupe);

}  // namespace atelier
