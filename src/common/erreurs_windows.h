#pragma once

#include <system_error>

namespace common {

/// An error of Windows as one of POSIX or an `Ennui`: the rules know these. What has no like is an
/// error of the disk.
[[nodiscard]] std::error_code erreurwindows(unsigned long code);

/// The same for the call that has just failed.
[[nodiscard]] std::error_code erreurwindows();

/// The call that has just failed met a file that was deleted while somebody has it open: its name
/// is neither free nor anything's.
[[nodiscard]] bool nomquipart();

}  // namespace common
