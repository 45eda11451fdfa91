#pragma once

#include <algorithm>
#include <string_view>

#include "platform/FileSystem.h"

namespace zy::fuzz {

/// A file of these bytes, open for reading, without a disk around it. It hands out at most `piece` bytes at a
/// time, as a slow medium does.
class BytesFile final : public FileHandle {
  public:
    explicit BytesFile(std::string_view bytes) : BytesFile(bytes, bytes.size()) {}
    BytesFile(std::string_view bytes, std::size_t piece) : bytes_(bytes), piece_(piece) {}

    std::uint64_t Size() const override { return bytes_.size(); }

    std::size_t Read(std::span<char> buffer) override {
        const auto read = bytes_.substr(at_, std::min(piece_, buffer.size()));
        std::copy(read.begin(), read.end(), buffer.begin());
        at_ += read.size();
        return read.size();
    }

    FileError Write(std::string_view) override { return FileError::AccessDenied; }
    FileError Flush() override { return FileError::None; }
    FileError Close() override { return FileError::None; }

  private:
    std::string_view bytes_;
    std::size_t piece_;
    std::size_t at_ = 0;
};

} // namespace zy::fuzz
