#include "security/UsersWriter.h"

#include "basics/RuntimeError.h"
#include "dbase/ErrorNumbers.h"
#include "security/UserFiles.h"
#include "security/UserStatement.h"
#include "shell/StatusTexts.h"
#include "shell/mRecycleBin.h"

namespace zy {

UsersWriter::UsersWriter(UsersDatabase& database, FileSystem& files, RecycleBin& recycleBin)
    : database_(database), files_(files), recycleBin_(recycleBin) {}

SaveTurn UsersWriter::TakeTurn(std::string_view folder) {
    return {files_, UserFiles(folder).table};
}

std::string UsersWriter::Obstacles() {
    const auto folder = database_.Folder();
    if (folder.empty()) {
        return "";
    }
    const UserFiles files(folder);
    std::string obstacles = UnfinishedSave(files_, files).Notice();
    Join(obstacles, "; ", Obstacle(files.table, files_.MayReplace(files.table)));
    return obstacles;
}

void UsersWriter::Write(const std::vector<UserRecord>& users) {
    const UserFiles files(database_.Folder());
    for (const auto& path : {database_.TablePath(), files.table, files.temporary, files.index}) {
        RequireCertain(files_, path);
    }
    FailedSave save{.users = users.size()};
    try {
        WriteAndReplace(users, save);
    } catch (const RuntimeError& error) {
        // The file that is left behind is not removed, though it makes the next attempt fail: it may hold the
        // only copy of the users, so that somebody has to look at it first.
        save.foundTemporary = error.Number() == dbase::kTableExists;
        throw RuntimeError(error.Number(), error.Description() + UnfinishedSave(files_, files).Account(save));
    }
}

void UsersWriter::WriteAndReplace(const std::vector<UserRecord>& users, FailedSave& save) {
    auto& database = database_.Open();
    CreateTemporary();
    InsertUsers(users);
    database.Flush(); // before the old table goes
    ReplaceTable(save);
    database_.Close();
}

void UsersWriter::CreateTemporary() {
    database_.Get().Execute(CreateStatement());
    const UserFiles files(database_.Folder());
    if (files_.Exists(files.table)) {
        // Where the permissions cannot be given on, the new table stays what it was made as, its owner's
        // alone: nobody gets to read passwords who could not before, and the users are saved.
        static_cast<void>(files_.CopyPermissions(files.table, files.temporary));
    }
}

std::string UsersWriter::ColumnList() {
    const auto records = database_.Get().OpenRecordset(kUsersTemporaryName, dbase::RecordsetType::Dynaset);
    const auto& fields = records->Fields();
    std::string list;
    for (int column = 0; column < fields.Count(); ++column) {
        list += column == 0 ? "(" : ", ";
        list += fields.Item(column).Name();
    }
    records->Close();
    return list;
}

void UsersWriter::InsertUsers(const std::vector<UserRecord>& users) {
    const auto front = InsertFront(ColumnList());
    std::string statement;
    for (const auto& user : users) {
        statement = front;
        AppendValues(statement, user);
        database_.Insert(statement);
    }
}

void UsersWriter::ReplaceTable(FailedSave& save) {
    const UserFiles files(database_.Folder());
    const auto recycling = RecycleIfThere(files_, recycleBin_, files.table);
    save.tableIsRecycled = recycling == Recycling::Done;
    const auto error = files_.Rename(files.temporary, files.table);
    if (error != FileError::None) {
        const std::string_view refused =
            recycling == Recycling::Refused ? " could not be moved to the recycle bin and" : "";
        RaisePathRefused(files_.DisplayPath(files.table) + std::string(refused) + " could not be replaced, " +
                         std::string(Describe(error)));
    }
}

void UsersWriter::WriteIndex() {
    auto& database = database_.Open();
    const auto records = database.OpenRecordset(kUsersTableName, dbase::RecordsetType::Dynaset);
    const std::string field(records->Fields().Item(0).Name());
    records->Close();
    // An old index that the bin refuses needs no word here: it makes the statement fail, which says so.
    static_cast<void>(RecycleIfThere(files_, recycleBin_, UserFiles(database_.Folder()).index));
    database.Execute(IndexStatement(field));
}

void UsersWriter::Recycle(std::string_view folder) {
    const std::string table = UserFiles(folder).table;
    const std::string index = std::string(folder).append(kRecycledIndexName);
    RequireCertain(files_, table);
    RequireCertain(files_, index);
    // A file that the bin refuses stays, and nothing is said of it: at the next start its users are there.
    static_cast<void>(RecycleIfThere(files_, recycleBin_, table));
    static_cast<void>(RecycleIfThere(files_, recycleBin_, index));
}

} // namespace zy
