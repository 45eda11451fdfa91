#include "dbase/DBEngine.h"

#include <utility>

#include "basics/Text.h"
#include "dbase/Errors.h"

namespace zy::dbase {

DBEngine::DBEngine(FileSystem& files, Clock today)
    : workspace_(std::make_shared<Workspace>(files, std::move(today))) {}

std::unique_ptr<Database> DBEngine::OpenDatabase(std::string_view folder, [[maybe_unused]] bool exclusive,
                                                 bool readOnly, std::string_view connect) {
    if (!IsSameName(connect, "dBase III")) {
        Raise(kNoSuchKind, {"Could not find installable ISAM: there are only databases of the kind "
                            "\"dBase III\"."});
    }
    return std::make_unique<Database>(workspace_, folder, readOnly);
}

void DBEngine::BeginTrans() {
    workspace_->Begin();
}

void DBEngine::CommitTrans() {
    workspace_->Commit();
}

} // namespace zy::dbase
