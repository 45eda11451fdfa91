#pragma once

#include <cstddef>
#include <memory>

#include "platform/FileSystem.h"

namespace zy {

/// The text of a loaded file, one character a byte.
///
/// Behind the text stand a CR LF and then room for a word, so that it can be taken apart in place by searches
/// that look for no other end. The characters keep their place when the object is moved.
class FileText {
  public:
    FileText() = default;
    /// Reads a file from its position to its end, or to where reading fails. Of a file of 4 GB or more as
    /// much is read as the low 32 bits of its size say.
    explicit FileText(FileHandle& file);

    char* Begin() const { return bytes_.get(); }
    char* End() const { return bytes_.get() + size_; }

  private:
    std::unique_ptr<char[]> bytes_;
    std::size_t size_ = 0;
};

} // namespace zy
