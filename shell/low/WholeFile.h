#pragma once

#include <string>
#include <string_view>

#include "platform/FileSystem.h"

namespace zy {

/// Writes a file whole, in place of one that may be there, by way of one beside it whose name ends in ".tmp".
/// Until the new bytes stand on the disk the earlier file is not touched; where only the last step fails,
/// they stand in the file beside. Returns what is to be told: that it was saved, or what went wrong.
std::string WriteWholeFile(FileSystem& files, const std::string& path, std::string_view bytes);

} // namespace zy
