#include "dbase/FileBytes.h"

#include "dbase/Errors.h"

namespace zy::dbase {

std::string ReadFile(FileSystem& files, std::string_view path) {
    const auto opened = files.OpenForReading(path);
    if (!opened.handle) {
        RaiseReadError(files.DisplayPath(path), opened.error);
    }
    const auto size = opened.handle->Size();
    if (size > kLargestFile) {
        RaiseBadFormat(files.DisplayPath(path), "it is larger than 2 GB");
    }
    std::string bytes(static_cast<std::size_t>(size), '\0');
    if (const auto read = opened.handle->Read(bytes); read != size) {
        Raise(kReadFailed, {"'", files.DisplayPath(path), "' could be read up to byte ", std::to_string(read),
                            " of ", std::to_string(size), " only."});
    }
    return bytes;
}

FileError WriteNewFile(FileSystem& files, std::string_view path, std::string_view bytes) {
    auto created = files.CreatePrivate(path);
    if (!created.handle) {
        return created.error;
    }
    const auto error = WriteAndClose(*created.handle, bytes);
    created.handle.reset();
    if (error != FileError::None) {
        static_cast<void>(files.Delete(path)); // the first error is the one that is reported
    }
    return error;
}

FileError WriteOverFile(FileSystem& files, std::string_view path, std::string_view bytes) {
    // Creating would make a file that is missing, with the wrong permissions.
    if (!files.Exists(path)) {
        return FileError::NotFound;
    }
    const auto created = files.Create(path);
    return created.handle ? WriteAndClose(*created.handle, bytes) : created.error;
}

} // namespace zy::dbase
