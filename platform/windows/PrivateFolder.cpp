#include "platform/windows/PrivateFolder.h"

#include "platform/windows/ErrorCode.h"
#include "platform/windows/FilePermissions.h"
#include "platform/windows/HandleFile.h"
#include "platform/windows/RootedPath.h"

namespace zy {
namespace {

FileError MakeFolder(const std::string& path, SECURITY_ATTRIBUTES* attributes) {
    const auto error =
        ::CreateDirectoryA(path.c_str(), attributes) != FALSE ? ERROR_SUCCESS : ::GetLastError();
    // Most are there already, which the system calls an error.
    return error == ERROR_SUCCESS || IsFolder(path) ? FileError::None : ToFileError(error);
}

/// Makes those above it, too, from the lowest one that exists on: not every part of a path, such as a
/// server's name, is a folder that could be made.
FileError MakeFolders(const std::string& path, SECURITY_ATTRIBUTES* attributes) {
    const auto error = MakeFolder(path, attributes);
    const auto end = path.find_last_of("\\/");
    if (error != FileError::NotFound || end == std::string::npos) {
        return error;
    }
    const auto above = MakeFolders(path.substr(0, end), attributes);
    return above == FileError::None ? MakeFolder(path, attributes) : above;
}

} // namespace

FileError MakePrivateWindowsFolder(const std::string& path) {
    AttributesForTheUserAlone attributes;
    if (attributes.Get() == nullptr) {
        return FileError::Other;
    }
    const auto error = MakeFolders(path, attributes.Get());
    return error == FileError::None ? KeepFolderToTheUser(path) : error;
}

} // namespace zy
