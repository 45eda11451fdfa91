#include "shell/SaveTurn.h"

namespace zy {

SaveTurn::SaveTurn(FileSystem& files, std::string_view path)
    : folder_(files.LockFolderOf(path)), isMine_(folder_.error != FileError::InUse) {}

} // namespace zy
