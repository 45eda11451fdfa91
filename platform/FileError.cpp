#include "platform/FileError.h"

namespace zy {

std::string_view Describe(FileError error) {
    switch (error) {
    case FileError::None:
        return "no error";
    case FileError::NotFound:
        return "the file or folder does not exist";
    case FileError::Exists:
        return "a file of that name is in the way";
    case FileError::AccessDenied:
        return "access is denied";
    case FileError::ReadOnly:
        return "it is read-only";
    case FileError::InUse:
        return "another program is using it";
    case FileError::DiskFull:
        return "the disk is full";
    case FileError::IsFolder:
        return "a folder of that name is in the way";
    case FileError::Ambiguous:
        return "names that differ by case alone stand side by side";
    case FileError::LinkLoop:
        return "symbolic links lead in a circle";
    case FileError::Other:
        break;
    }
    return "the disk reported an error";
}

} // namespace zy
