#include "erreurs_windows.h"

#include <windows.h>
#include <algorithm>
#include <array>

#include "disque.h"

// Of the same library as the calls below, and in no header of the compiler.
extern "C" __declspec(dllimport) LONG NTAPI RtlGetLastNtStatus();

namespace common {
namespace {

constexpr LONG suppressionencours = static_cast<LONG>(0xC0000056);

constexpr DWORD partdepassee = 1295;  // ERROR_DISK_QUOTA_EXCEEDED, of no header either

struct Cas {
    DWORD windows;
    std::errc posix;
};
constexpr std::array table{
    Cas{ERROR_FILE_NOT_FOUND, std::errc::no_such_file_or_directory},
    Cas{ERROR_PATH_NOT_FOUND, std::errc::no_such_file_or_directory},
    Cas{ERROR_INVALID_DRIVE, std::errc::no_such_file_or_directory},
    Cas{ERROR_BAD_PATHNAME, std::errc::no_such_file_or_directory},
    Cas{ERROR_BAD_NETPATH, std::errc::no_such_file_or_directory},
    Cas{ERROR_BAD_NET_NAME, std::errc::no_such_file_or_directory},
    Cas{ERROR_NO_MORE_FILES, std::errc::no_such_file_or_directory},
    Cas{ERROR_TOO_MANY_OPEN_FILES, std::errc::too_many_files_open},
    Cas{ERROR_ACCESS_DENIED, std::errc::permission_denied},
    Cas{ERROR_CURRENT_DIRECTORY, std::errc::permission_denied},
    Cas{ERROR_PRIVILEGE_NOT_HELD, std::errc::operation_not_permitted},
    Cas{ERROR_INVALID_HANDLE, std::errc::bad_file_descriptor},
    Cas{ERROR_NOT_ENOUGH_MEMORY, std::errc::not_enough_memory},
    Cas{ERROR_OUTOFMEMORY, std::errc::not_enough_memory},
    Cas{ERROR_NOT_SAME_DEVICE, std::errc::cross_device_link},
    Cas{ERROR_WRITE_PROTECT, std::errc::read_only_file_system},
    Cas{ERROR_SHARING_VIOLATION, std::errc::operation_would_block},
    Cas{ERROR_LOCK_VIOLATION, std::errc::operation_would_block},
    Cas{ERROR_USER_MAPPED_FILE, std::errc::operation_would_block},
    Cas{ERROR_PIPE_BUSY, std::errc::no_such_device_or_address},
    Cas{ERROR_HANDLE_DISK_FULL, std::errc::no_space_on_device},
    Cas{ERROR_DISK_FULL, std::errc::no_space_on_device},
    Cas{ERROR_FILE_TOO_LARGE, std::errc::file_too_large},
    Cas{ERROR_FILE_EXISTS, std::errc::file_exists},
    Cas{ERROR_ALREADY_EXISTS, std::errc::file_exists},
    Cas{ERROR_DIR_NOT_EMPTY, std::errc::directory_not_empty},
    Cas{ERROR_DIRECTORY, std::errc::not_a_directory},
    Cas{ERROR_INVALID_NAME, std::errc::invalid_argument},
    Cas{ERROR_FILENAME_EXCED_RANGE, std::errc::filename_too_long},
    Cas{ERROR_BUFFER_OVERFLOW, std::errc::filename_too_long},
    Cas{ERROR_CANT_RESOLVE_FILENAME, std::errc::too_many_symbolic_link_levels},
    Cas{ERROR_NOT_SUPPORTED, std::errc::not_supported},
    Cas{ERROR_INVALID_FUNCTION, std::errc::not_supported},
    Cas{ERROR_CALL_NOT_IMPLEMENTED, std::errc::not_supported},
    Cas{ERROR_INVALID_PARAMETER, std::errc::not_supported},
    Cas{ERROR_INVALID_LEVEL, std::errc::not_supported},
    Cas{ERROR_NO_SYSTEM_RESOURCES, std::errc::not_enough_memory},
};

}  // namespace

std::error_code erreurwindows(unsigned long code) {
    if (code == ERROR_SUCCESS)
        return {};
    if (code == partdepassee || code == ERROR_NOT_ENOUGH_QUOTA)
        return Ennui::PartPleine;
    const auto* trouve = std::find_if(table.begin(), table.end(),
                                      [&](const Cas& cas) { return cas.windows == code; });
    return std::make_error_code(trouve == table.end() ? std::errc::io_error : trouve->posix);
}

std::error_code erreurwindows() {
    return erreurwindows(::GetLastError());
}

bool nomquipart() {
    return ::RtlGetLastNtStatus() == suppressionencours;
}

}  // namespace common
