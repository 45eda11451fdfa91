#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

#include "platform/FileSystem.h"

namespace zy {

/// What makes a file of bytes unlike one that lies at rest on a fast disk.
struct ReadingOddities {
    /// The most bytes that it hands out at a time, as a slow medium does.
    std::size_t piece = std::string_view::npos;
    /// The size that it gives, where that is not the number of its bytes: another program is writing it.
    std::optional<std::uint64_t> size = std::nullopt;
};

/// A file of these bytes, open for reading, without a disk around it. The bytes must outlive it.
class BytesFile final : public FileHandle {
  public:
    explicit BytesFile(std::string_view bytes, const ReadingOddities& oddities = {})
        : bytes_(bytes), oddities_(oddities) {}

    std::uint64_t Size() const override { return oddities_.size.value_or(bytes_.size()); }

    std::size_t Read(std::span<char> buffer) override {
        const auto read = bytes_.substr(at_, std::min(oddities_.piece, buffer.size()));
        std::copy(read.begin(), read.end(), buffer.begin());
        at_ += read.size();
        return read.size();
    }

    FileError Write(std::string_view /*text*/) override { return FileError::AccessDenied; }
    FileError Flush() override { return FileError::None; }
    FileError Close() override { return FileError::None; }

  private:
    std::string_view bytes_;
    ReadingOddities oddities_;
    std::size_t at_ = 0;
};

} // namespace zy
