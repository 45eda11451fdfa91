#include "shell/mRecycleBin.h"

#include <array>
#include <exception>

namespace zy {

bool RecycleFiles(RecycleBin& bin, std::span<const std::string> paths) {
    std::string list;
    for (const auto& path : paths) {
        list += path;
        list += '\0';
    }
    list += '\0';
    try {
        return bin.Delete(list) == 0;
    } catch (const std::exception&) {
        return false;
    }
}

bool RecycleFile(RecycleBin& bin, std::string_view path) {
    return RecycleFiles(bin, std::array{std::string(path)});
}

Recycling RecycleIfThere(FileSystem& files, RecycleBin& bin, std::string_view path) {
    if (!files.Exists(path)) {
        return Recycling::NoFile;
    }
    return RecycleFile(bin, path) ? Recycling::Done : Recycling::Refused;
}

} // namespace zy
