#include "shell/ListFile.h"

#include <cstdint>
#include <utility>

#include "shell/mZYGlobal.h"

namespace zy {

ListFile::ListFile(FileSystem& files, std::string path) : files_(files), path_(std::move(path)) {}

std::string_view ListFile::Name() const {
    return FileNameOf(path_);
}

ListFile::Bytes ListFile::Read() const {
    const bool isThere = files_.Locate(path_) == FileError::None && files_.Exists(path_);
    const auto opened = isThere ? files_.OpenForReading(path_) : OpenedFile{};
    if (!opened.handle) {
        return std::nullopt;
    }
    const auto size = static_cast<std::uint32_t>(opened.handle->Size());
    auto bytes = ReadFileText(*opened.handle, size);
    return bytes.size() == size ? Bytes(std::move(bytes)) : std::nullopt;
}

} // namespace zy
