#include "security/UserFiles.h"

#include "basics/RuntimeError.h"

namespace zy {

void RequireCertain(FileSystem& files, std::string_view path) {
    const auto error = files.Locate(path);
    if (error == FileError::None) {
        return;
    }
    const std::string_view help = error == FileError::Ambiguous
                                      ? "Rename or remove all of them but one."
                                      : "Get the right to list the folders on the way to it.";
    RaisePathRefused(files.DisplayPath(path) + " was not touched, " + std::string(Describe(error)) + ". " +
                     std::string(help));
}

} // namespace zy
