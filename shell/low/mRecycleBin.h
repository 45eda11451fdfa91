#pragma once

#include <span>
#include <string>
#include <string_view>

#include "platform/FileSystem.h"
#include "platform/RecycleBin.h"

namespace zy {

/// Sends files to the recycle bin. True when the shell reports success; errors are not told any other way.
bool RecycleFiles(RecycleBin& bin, std::span<const std::string> paths);

/// Sends one file to the recycle bin, whether that succeeds or not.
void RecycleFile(RecycleBin& bin, std::string_view path);

/// The same for a file that may be missing: then the bin is not asked.
void RecycleIfThere(FileSystem& files, RecycleBin& bin, std::string_view path);

} // namespace zy
