#include "shell/ListFile.h"

#include <algorithm>
#include <cstdint>
#include <span>
#include <utility>

#include "shell/mZYGlobal.h"

namespace zy {

ListFile::ListFile(FileSystem& files, std::string path) : files_(files), path_(std::move(path)) {}

std::string_view ListFile::Name() const {
    return FileNameOf(path_);
}

OpenedFile ListFile::Open() const {
    const bool isThere = files_.Locate(path_) == FileError::None && files_.Exists(path_);
    return isThere ? files_.OpenForReading(path_) : OpenedFile{};
}

SharedText ListFile::Read() const {
    const auto opened = Open();
    if (!opened.handle) {
        return nullptr;
    }
    const auto size = static_cast<std::uint32_t>(opened.handle->Size());
    const auto bytes = ShareFileText(*opened.handle, size);
    return bytes->size() == size ? bytes : nullptr;
}

bool ListFile::IsChanged() const {
    constexpr std::size_t kBlockSize = std::size_t{64} * 1024;
    const auto opened = Open();
    if (!opened.handle) {
        return false;
    }
    const auto size = opened.handle->Size();
    if (!known_ || size != known_->size()) {
        return static_cast<bool>(Read());
    }
    std::string block(std::min(known_->size(), kBlockSize), '\0');
    bool differs = false;
    for (auto rest = KnownText(); !rest.empty();) {
        const auto wanted = rest.substr(0, block.size());
        if (opened.handle->Read(std::span(block).first(wanted.size())) != wanted.size()) {
            return false;
        }
        differs = differs || wanted != std::string_view(block).substr(0, wanted.size());
        rest.remove_prefix(wanted.size());
    }
    return differs;
}

} // namespace zy
