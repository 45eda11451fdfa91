#include "platform/FileSystem.h"

namespace zy {

FileError WriteAndClose(FileHandle& file, std::string_view text) {
    auto error = file.Write(text);
    if (error == FileError::None) {
        error = file.Flush();
    }
    const auto closed = file.Close();
    return error == FileError::None ? closed : error;
}

} // namespace zy
