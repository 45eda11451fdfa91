#pragma once

#include <windows.h>

#include <memory>
#include <string>
#include <type_traits>

namespace zy {

// For sources of this room alone: its other headers stay without the system's.

/// The attributes of an entry that is no regular file.
inline constexpr DWORD kNotRegular =
    FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_REPARSE_POINT | FILE_ATTRIBUTE_DEVICE;

struct CloseSearch {
    void operator()(HANDLE search) const { ::FindClose(search); }
};

/// Calls `see` with what the system says of each entry of a folder, in no order; never where the folder
/// cannot be read.
template <typename See>
void ForEachEntry(const std::wstring& folder, See see) {
    WIN32_FIND_DATAW found{};
    const HANDLE search = ::FindFirstFileW((folder + L"\\*").c_str(), &found);
    if (search == INVALID_HANDLE_VALUE) {
        return;
    }
    const std::unique_ptr<std::remove_pointer_t<HANDLE>, CloseSearch> owned(search);
    do {
        see(found);
    } while (::FindNextFileW(search, &found) != FALSE);
}

} // namespace zy
