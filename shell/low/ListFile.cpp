#include "shell/ListFile.h"

#include <algorithm>
#include <cstdint>
#include <span>
#include <utility>

#include "shell/mZYGlobal.h"

namespace zy {

bool FindsFile(FileSystem& files, std::string_view path) {
    if (files.Exists(path)) {
        return true;
    }
    switch (files.OpenForReading(path).error) {
    case FileError::NotFound:
    case FileError::IsFolder:
        return false;
    case FileError::None:
        return files.Exists(path); // one that is hidden counts as missing
    default:
        return true;
    }
}

std::string DescribeMissed(FileSystem& files, std::string_view path) {
    if (!FindsFile(files, path)) {
        return {};
    }
    return std::string(FileNameOf(path)) + " could not be read: " + std::string(Describe(FileError::Other)) +
           "; saving replaces all that it holds";
}

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

FileError ListFile::ReasonNotRead() const {
    if (const auto error = files_.Locate(path_); error != FileError::None) {
        return error;
    }
    if (!FindsFile(files_, path_)) {
        return FileError::None;
    }
    const auto error = files_.OpenForReading(path_).error;
    return error == FileError::None ? FileError::Other : error;
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
