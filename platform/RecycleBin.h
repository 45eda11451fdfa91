#pragma once

#include <string_view>
#include <vector>

namespace zy {

/// The shell's delete operation, with undo: files go to the recycle bin, without a question and without
/// progress.
class RecycleBin {
  public:
    virtual ~RecycleBin() = default;

    /// Recycles every file of a list in which each path is followed by a NUL and the last one by two. Returns
    /// 0 when all of them went, else another number.
    virtual int Delete(std::string_view nulSeparatedPaths) = 0;
};

/// The paths of such a list. It ends at the first empty path, and at the text's end when the closing NULs are
/// missing. They refer to the text.
std::vector<std::string_view> SplitPathList(std::string_view nulSeparatedPaths);

} // namespace zy
