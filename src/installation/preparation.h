#pragma once

#include "appels.h"
#include "lieux.h"

namespace installation {

/// Chooses the play folder of a program that is starting, creates it or brings it up to date if it
/// is that of an installed program, and returns it. Throws `common::Faute`.
[[nodiscard]] Lieu preparer(common::Appels& appels, const Environs& environs);

/// Does the same for this program and makes that folder its working folder. `programme` is the
/// folder of the executable.
Lieu sinstaller(const std::filesystem::path& programme);

}  // namespace installation
