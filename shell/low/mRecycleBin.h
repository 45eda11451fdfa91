#pragma once

#include <span>
#include <string>
#include <string_view>

#include "platform/FileSystem.h"
#include "platform/RecycleBin.h"

namespace zy {

/// Sends files to the recycle bin. True when the shell reports success; errors are reported in no other way.
bool RecycleFiles(RecycleBin& bin, std::span<const std::string> paths);

/// Sends one file to the recycle bin. True when the shell reports success.
bool RecycleFile(RecycleBin& bin, std::string_view path);

/// What became of a file that was to be recycled.
enum class Recycling { NoFile, Done, Refused };

/// Recycles a file that may be missing: then the bin is not asked.
Recycling RecycleIfThere(FileSystem& files, RecycleBin& bin, std::string_view path);

} // namespace zy
