#include "basics/RuntimeError.h"
#include "dbase/ErrorNumbers.h"
#include "security/UserFiles.h"
#include "security/UserStatement.h"
#include "security/mSecurity.h"
#include "shell/SaveTurn.h"
#include "shell/mRecycleBin.h"

namespace zy {

void mSecurity::Save_Security() {
    Start("Save_Security");
    for (int row = 1; row < controls_.grdSecurity.Rows(); ++row) {
        zySecure.at(static_cast<std::size_t>(row) - 1) = UserInRow(controls_.grdSecurity, row);
    }
}

void mSecurity::Write_Security() {
    constexpr std::string_view kProcedure = "Write_Security";
    Start(kProcedure);
    const UserFiles files(SecurityFolder());
    for (const auto& path : {TablePath(), files.table, files.temporary, files.index}) {
        RequireCertain(files_, path);
    }
    FailedSave save{.users = zySecure.size()};
    try {
        WriteTable(save);
    } catch (const RuntimeError& error) {
        // The file that is left behind makes the next attempt fail, which is meant: a person has to look at
        // it.
        save.foundTemporary = error.Number() == dbase::kTableExists;
        throw RuntimeError(error.Number(), error.Description() + UnfinishedSave(files_, files).Account(save));
    }
    database_.reset();
    Trace(kProcedure, "Security File Write Success");
}

void mSecurity::WriteTable(FailedSave& save) {
    OpenDatabase();
    CreateTemporary();
    InsertUsers(ColumnList());
    database_->Flush(); // before the old table goes
    ReplaceTable(save);
    database_->Close();
}

void mSecurity::CreateTemporary() {
    database_->Execute(CreateStatement());
    const UserFiles files(SecurityFolder());
    if (files_.Exists(files.table)) {
        files_.CopyPermissions(files.table, files.temporary);
    }
}

std::string mSecurity::ColumnList() {
    const auto records = database_->OpenRecordset(kUsersTemporaryName, dbase::RecordsetType::Dynaset);
    const auto& fields = records->Fields();
    std::string list;
    for (int column = 0; column < fields.Count(); ++column) {
        list += column == 0 ? "(" : ", ";
        list += fields.Item(column).Name();
    }
    records->Close();
    return list;
}

void mSecurity::InsertUsers(const std::string& columns) {
    const auto front = InsertFront(columns);
    std::string statement;
    for (const auto& user : zySecure) {
        statement = front;
        AppendValues(statement, user);
        engine_.BeginTrans();
        database_->Execute(statement, dbase::ExecuteOptions::FailOnError);
        engine_.CommitTrans();
    }
}

void mSecurity::ReplaceTable(FailedSave& save) {
    const UserFiles files(SecurityFolder());
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

void mSecurity::WriteDBIndex() {
    Start("WriteDBIndex");
    OpenDatabase();
    const auto records = database_->OpenRecordset(kUsersTableName, dbase::RecordsetType::Dynaset);
    const std::string field(records->Fields().Item(0).Name());
    records->Close();
    RecycleIfThere(files_, recycleBin_, UserFiles(SecurityFolder()).index);
    database_->Execute(IndexStatement(field));
}

void mSecurity::RecycleTable(std::string_view folder) {
    const std::string index = std::string(folder).append(kRecycledIndexName);
    const UserFiles files(folder);
    RequireCertain(files_, files.table);
    RequireCertain(files_, index);
    RecycleIfThere(files_, recycleBin_, files.table);
    RecycleIfThere(files_, recycleBin_, index);
}

} // namespace zy
