#pragma once

#include <string>
#include <string_view>

#include "platform/FileSystem.h"

namespace zy {

/// Says for the status bar what stands in the temporary file of a save that did not come to its end, and what
/// to do with it; empty when there is none.
std::string DescribeUnfinishedSave(FileSystem& files, std::string_view temporary, std::string_view rulesFile);

} // namespace zy
