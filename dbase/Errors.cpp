#include "dbase/Errors.h"

#include "basics/RuntimeError.h"

namespace zy::dbase {
namespace {

ErrorNumber NumberOf(FileError error, ErrorNumber ifNotFound, ErrorNumber ifDenied) {
    switch (error) {
    case FileError::NotFound:
        return ifNotFound;
    case FileError::Exists:
        return kTableExists;
    case FileError::AccessDenied:
        return ifDenied;
    case FileError::ReadOnly:
        return kReadOnly;
    case FileError::InUse:
        return kInUse;
    case FileError::DiskFull:
        return kDiskFull;
    case FileError::IsFolder:
    case FileError::Ambiguous:
    case FileError::LinkLoop:
        return kCannotOpen;
    case FileError::None:
    case FileError::Other:
        break;
    }
    return kDiskFailed;
}

} // namespace

void Raise(ErrorNumber number, std::initializer_list<std::string_view> parts) {
    std::string text;
    for (const auto part : parts) {
        text += part;
    }
    throw RuntimeError(number, std::move(text));
}

void RaiseBadFormat(std::string_view path, std::string_view why) {
    Raise(kBadFormat, {"'", path, "' cannot be read: ", why, "."});
}

void RaiseReadError(std::string_view path, FileError error) {
    Raise(NumberOf(error, kNoSuchTable, kCannotOpen),
          {"'", path, "' cannot be opened: ", Describe(error), "."});
}

void RaiseWriteError(std::string_view path, FileError error) {
    Raise(NumberOf(error, kBadPath, kReadOnly), {"'", path, "' cannot be written: ", Describe(error), "."});
}

} // namespace zy::dbase
