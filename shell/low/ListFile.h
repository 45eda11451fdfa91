#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/FileSystem.h"

namespace zy {

/// The file of a list, and what it held when the list was loaded from it or saved to it last.
///
/// Only its bytes tell whether it was changed: the time of a file on another computer says little, and a file
/// may be written anew with what it held.
class ListFile {
  public:
    /// What a file holds; nothing where there is none, where it cannot be read, and where it is not certain
    /// which one it is.
    using Bytes = std::optional<std::string>;

    /// The file system must outlive it.
    ListFile(FileSystem& files, std::string path);

    const std::string& Path() const { return path_; }
    std::string_view Name() const;
    /// What it holds now.
    Bytes Read() const;
    /// What it held then.
    const Bytes& Known() const { return known_; }
    /// The list is what the file holds now, or will be when it is saved over it.
    void TakeUp(Bytes bytes) { known_ = std::move(bytes); }
    /// Whether another program put these bytes there. A file that is gone or cannot be read is not a changed
    /// one: it may be just on its way to its place.
    bool IsChange(const Bytes& bytes) const { return bytes && bytes != known_; }

  private:
    FileSystem& files_;
    std::string path_;
    Bytes known_;
};

} // namespace zy
