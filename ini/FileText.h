#pragma once

#include <cstddef>
#include <memory>
#include <string_view>

#include "platform/FileSystem.h"

namespace zy {

/// The text of a loaded file, one character a byte.
///
/// Behind it there is room for a block of characters, which scans may read and write back: they look at a
/// block at a time. The characters keep their place when the object is moved.
class FileText {
  public:
    FileText() = default;
    /// Reads a file from its position to its end, or to where reading fails. Of a file of 4 GB or more as
    /// much is read as the low 32 bits of its size say.
    explicit FileText(FileHandle& file);

    char* Begin() const { return characters_.get(); }
    std::string_view View() const { return {characters_.get(), size_}; }

  private:
    std::unique_ptr<char[]> characters_;
    std::size_t size_ = 0;
};

} // namespace zy
