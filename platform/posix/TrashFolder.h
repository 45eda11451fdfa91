#pragma once

#include <string>

#include "platform/FileError.h"

namespace zy {

/// A folder that files are moved into instead of being deleted, for places without a recycle bin.
class TrashFolder {
  public:
    /// The folder is made when the first file comes.
    explicit TrashFolder(std::string folder) : folder_(std::move(folder)) {}

    /// Moves a file of the system into the folder, also from another disk. When its name is taken it gets a
    /// number: "A.DBF" becomes "A.2.DBF". On failure the file is where it was.
    FileError Add(const std::string& path) const;

  private:
    std::string folder_;
};

} // namespace zy
