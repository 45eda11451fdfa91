#pragma once

#include "platform/RecycleBin.h"

namespace zy {

/// The shell's recycle bin. What a disk without one holds is deleted for good: the shell's own way.
class WindowsRecycleBin final : public RecycleBin {
  public:
    /// One operation of the shell for all files of the list. What is no file, such as a missing one, a folder
    /// or a pattern for names, is kept from the shell, which would stop at the first, and recycle the others
    /// whole.
    int Delete(std::string_view nulSeparatedPaths) override;
};

} // namespace zy
