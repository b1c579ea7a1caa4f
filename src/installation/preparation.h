#pragma once

#include "appels.h"
#include "lieux.h"

namespace installation {

/// Makes and brings up to date the play folder of a program that starts, if that is to be done, and
/// says which it is. Throws `common::Faute`.
[[nodiscard]] Lieu preparer(common::Appels& appels, const Environs& environs);

/// The same for this program, which then works in that folder. `programme` is the folder of the
/// executable.
Lieu sinstaller(const std::filesystem::path& programme);

}  // namespace installation
