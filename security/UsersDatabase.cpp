#include "security/UsersDatabase.h"

#include <algorithm>

#include "basics/RuntimeError.h"
#include "basics/Text.h"
#include "dbase/ErrorNumbers.h"
#include "security/UserFiles.h"

namespace zy {
namespace {

constexpr std::string_view kConnect = "dBase III";

} // namespace

UsersDatabase::UsersDatabase(const SharedState& state, FileSystem& files, SystemInfo& system)
    : state_(state), files_(files), engine_(files, [&system] { return system.Today(); }) {}

std::string UsersDatabase::TablePath() const {
    auto path = GivenPath();
    std::replace(path.begin(), path.end(), '/', '\\');
    return path;
}

std::string UsersDatabase::Folder() const {
    return std::string(FolderOf(TablePath()));
}

std::string UsersDatabase::TableName() const {
    const std::string name(FileNameOf(TablePath()));
    return !Contains(name, '.') || name.ends_with('.') ? name + '.' : name;
}

std::string UsersDatabase::LocationFile() const {
    return state_.gsSystemDir + std::string(kSecurityLocationFile);
}

dbase::Database& UsersDatabase::Open() {
    // The engine would look in the root of the drive.
    if (Folder().empty()) {
        throw RuntimeError(dbase::kBadPath, "'" + GivenPath() +
                                                "' isn't a valid path for the table of users: it names no "
                                                "folder. " +
                                                files_.DisplayPath(LocationFile()) + " names the table.");
    }
    database_ = engine_.OpenDatabase(Folder(), false, false, kConnect);
    return *database_;
}

void UsersDatabase::Close() {
    database_->Close();
    database_.reset();
}

void UsersDatabase::Insert(const std::string& statement) {
    engine_.BeginTrans();
    database_->Execute(statement, dbase::ExecuteOptions::FailOnError);
    engine_.CommitTrans();
}

} // namespace zy
