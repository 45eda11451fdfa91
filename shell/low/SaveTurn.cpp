#include "shell/SaveTurn.h"

#include "shell/Utilities.h"

namespace zy {

SaveTurn::SaveTurn(FileSystem& files, std::string_view path)
    : folder_(files.LockFolderOf(path)), isMine_(folder_.error != FileError::InUse) {}

std::string Uncertainty(FileSystem& files, std::string_view path) {
    const auto error = files.Locate(path);
    if (error == FileError::None) {
        return {};
    }
    return "it is not certain which file " + std::string(FileNameOf(path)) +
           " is: " + std::string(Describe(error));
}

std::string WhyNotToSave(FileSystem& files, std::string_view path, const SaveTurn& turn) {
    if (!turn.IsMine()) {
        return std::string(SaveTurn::kRefusal);
    }
    const auto uncertainty = Uncertainty(files, path);
    return uncertainty.empty() ? uncertainty : "Not saved, " + uncertainty;
}

} // namespace zy
