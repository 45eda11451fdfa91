#include "platform/memory/MemoryRecycleBin.h"

namespace zy {

int MemoryRecycleBin::Delete(std::string_view nulSeparatedPaths) {
    if (result_ != 0) {
        return result_;
    }
    bool all = true;
    for (const auto path : SplitPathList(nulSeparatedPaths)) {
        all = Recycle(path) && all;
    }
    return all ? 0 : 1;
}

bool MemoryRecycleBin::Recycle(std::string_view path) {
    auto bytes = files_.Take(path);
    files_.Operations().Record("Recycle " + std::string(path), bytes ? FileError::None : FileError::NotFound);
    if (bytes) {
        recycled_.push_back({.path = std::string(path), .bytes = std::move(*bytes)});
    }
    return bytes.has_value();
}

} // namespace zy
