#pragma once

#include <cstddef>
#include <memory>
#include <string_view>

#include "platform/FileSystem.h"

namespace zy {

/// The text of a loaded file, one character a byte.
///
/// Around it there is a margin, which scans may read and write back: they look at a block of characters at a
/// time, and back at the character before. The characters keep their place when the object is moved.
class FileText {
  public:
    /// The number of characters on either side.
    static constexpr std::size_t kMargin = 16;

    FileText() = default;
    /// Reads a file from its position to its end, or to where reading fails. Of a file of 4 GB or more as
    /// much is read as the low 32 bits of its size say.
    explicit FileText(FileHandle& file);

    char* Begin() const { return begin_; }
    std::string_view View() const { return {begin_, size_}; }

  private:
    std::unique_ptr<char[]> characters_;
    char* begin_ = nullptr;
    std::size_t size_ = 0;
};

} // namespace zy
