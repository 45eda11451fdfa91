#include "platform/posix/Links.h"

#include <filesystem>

namespace zy {

LinkEnd FollowLinks(std::string path) {
    constexpr int kMostLinks = 40; // as many as the system follows itself
    for (int links = 0; links <= kMostLinks; ++links) {
        std::error_code noLink;
        const auto target = std::filesystem::read_symlink(path, noLink).string();
        if (noLink) {
            return {.path = std::move(path), .error = FileError::None};
        }
        path = target.starts_with('/') ? target : FolderOfPath(path).append(target);
    }
    return {.path = "", .error = FileError::LinkLoop};
}

std::string FolderOfPath(const std::string& path) {
    return path.substr(0, path.rfind('/') + 1);
}

} // namespace zy
