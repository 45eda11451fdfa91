#pragma once

#include <string>
#include <string_view>

#include "platform/FileSystem.h"

namespace zy::dbase {

// Files as a whole.

/// The largest file that is read: more than any table of a sane program.
inline constexpr std::uint64_t kLargestFile = 0x7FFFFFFF;

/// The bytes of a file. Raises when it cannot be opened or read to its end, and error 3274 when it is larger
/// than kLargestFile.
std::string ReadFile(FileSystem& files, std::string_view path);

/// Makes a file that only its owner may use, with these bytes, and waits until they stand on the disk. A file
/// of that name makes it fail (Exists). A new one that could not be written whole is deleted.
FileError WriteNewFile(FileSystem& files, std::string_view path, std::string_view bytes);

/// Writes these bytes in place of those of a file that exists, keeping its permissions, and waits until they
/// stand on the disk. On failure the file may hold any part of them.
FileError WriteOverFile(FileSystem& files, std::string_view path, std::string_view bytes);

} // namespace zy::dbase
