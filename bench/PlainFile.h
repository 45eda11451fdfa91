#pragma once

#include <cstddef>
#include <string>

namespace zy::bench {

// The least that can be done with a file. Each throws std::system_error when the system refuses.

/// Open, read, close. Reads up to `size` bytes.
std::string ReadWhole(const std::string& path, std::size_t size);
/// Write under another name and rename, without waiting for the disk.
void WriteAndRename(const std::string& bytes, const std::string& path);

/// Looks at every character once.
std::size_t CountLines(const std::string& text);

} // namespace zy::bench
