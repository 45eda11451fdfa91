#pragma once

#include <string>
#include <vector>

#include "platform/RecycleBin.h"
#include "platform/memory/MemoryFileSystem.h"

namespace zy {

struct RecycledFile {
    std::string path;
    std::string bytes;

    bool operator==(const RecycledFile&) const = default;
};

/// A recycle bin for the files of a disk in memory. Each file that goes is recorded among the disk's
/// operations as "Recycle <path>", without being counted as one.
class MemoryRecycleBin final : public RecycleBin {
  public:
    explicit MemoryRecycleBin(MemoryFileSystem& files) : files_(files) {}

    /// Goes on behind a file that is missing, and then returns a number that is not 0.
    int Delete(std::string_view nulSeparatedPaths) override;

    /// Makes every later Delete return this number; when it is not 0, no file goes.
    void SetResult(int result) { result_ = result; }
    /// What lies in the bin, in the order it came.
    const std::vector<RecycledFile>& Recycled() const { return recycled_; }

  private:
    bool Recycle(std::string_view path);

    MemoryFileSystem& files_;
    int result_ = 0;
    std::vector<RecycledFile> recycled_;
};

} // namespace zy
