#pragma once

#include <string_view>
#include <vector>

namespace zy {

/// The paths of a list in which each path is followed by a NUL and the last one by two. The list ends at the
/// first empty path, and at the text's end when the closing NULs are missing.
std::vector<std::string_view> SplitPathList(std::string_view nulSeparatedPaths);

} // namespace zy
