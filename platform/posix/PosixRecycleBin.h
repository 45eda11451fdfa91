#pragma once

#include <utility>
#include <vector>

#include "platform/RecycleBin.h"
#include "platform/posix/PathResolver.h"

namespace zy {

/// The desktop's trash, from which a file manager can restore files. Files on a disk that has none go into
/// the folder "zysetup/Trash" in the folder for the user's data. Of a symbolic link the file goes that it
/// leads to, and the link stays.
class PosixRecycleBin final : public RecycleBin {
  public:
    explicit PosixRecycleBin(const CodePage& codePage, std::vector<KnownFolder> known = {})
        : paths_(codePage, std::move(known)) {}

    /// Goes on behind a file that does not go, such as a missing one or a folder.
    int Delete(std::string_view nulSeparatedPaths) override;

  private:
    bool Recycle(std::string_view path) const;

    PathResolver paths_;
};

} // namespace zy
