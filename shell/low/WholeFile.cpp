#include "shell/WholeFile.h"

#include "shell/StatusTexts.h"
#include "shell/mZYGlobal.h"

namespace zy {
namespace {

/// Writes a new file down to the disk; one that came out short is removed.
FileError WriteNew(FileSystem& files, const std::string& path, std::string_view bytes) {
    const auto created = files.Create(path);
    if (!created.handle) {
        return created.error;
    }
    const auto error = WriteAndClose(*created.handle, bytes);
    if (error != FileError::None) {
        static_cast<void>(files.Delete(path));
    }
    return error;
}

/// Puts a file in the place of another one.
FileError Replace(FileSystem& files, const std::string& from, const std::string& to) {
    if (files.Exists(to)) {
        static_cast<void>(files.CopyPermissions(to, from));
        if (const auto deleted = files.Delete(to); deleted != FileError::None) {
            return deleted;
        }
    }
    return files.Rename(from, to);
}

} // namespace

std::string WriteWholeFile(FileSystem& files, const std::string& path, std::string_view bytes) {
    const std::string name(FileNameOf(path));
    const std::string beside = path + ".tmp";
    auto error = files.Locate(path);
    if (error == FileError::None && files.PathExists(beside)) {
        return Failure("Not saved, " + name + ".tmp could not be created", FileError::Exists);
    }
    if (error == FileError::None) {
        error = WriteNew(files, beside, bytes);
    }
    if (error != FileError::None) {
        return Failure("Not saved, " + name + " could not be written", error);
    }
    error = Replace(files, beside, path);
    return error == FileError::None
               ? name + " saved"
               : Failure("The pictures stand in " + name + ".tmp, " + name + " could not be replaced", error);
}

} // namespace zy
