#include "platform/posix/TrashFolder.h"

#include <filesystem>

#include "platform/posix/Moving.h"
#include "platform/posix/UserFolders.h"

namespace zy {
namespace {

std::string Numbered(const std::filesystem::path& name, int number) {
    return name.stem().string() + '.' + std::to_string(number) + name.extension().string();
}

} // namespace

FileError TrashFolder::Add(const std::string& path) const {
    if (const auto error = MakeFolders(folder_); error != FileError::None) {
        return error;
    }
    const auto name = std::filesystem::path(path).filename();
    auto error = MoveWithoutReplacing(path, folder_ + '/' + name.string());
    for (int number = 2; error == FileError::Exists; ++number) {
        error = MoveWithoutReplacing(path, folder_ + '/' + Numbered(name, number));
    }
    return error;
}

} // namespace zy
