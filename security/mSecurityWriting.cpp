#include "basics/RuntimeError.h"
#include "security/mSecurity.h"
#include "shell/mRecycleBin.h"

namespace zy {
namespace {

// The table is always written under this name, whatever it was called when it was read, which is meant.
constexpr std::string_view kTable = "ZYSECURE.DBF";
constexpr std::string_view kTemporary = "ZYSECURE.TMP";
constexpr std::string_view kIndex = "ZYSECURE.NDX";

} // namespace

void mSecurity::Save_Security() {
    Start("Save_Security");
    const auto& grid = controls_.grdSecurity;
    for (int row = 1; row < grid.Rows(); ++row) {
        auto& user = zySecure.at(static_cast<std::size_t>(row) - 1);
        user.USERID = grid.Text(row, kUserName);
        user.PASSWORD = grid.Text(row, kPassword);
        user.STATUS = grid.Text(row, kStatus);
        user.EXPDATE = grid.Text(row, kExpiryDate);
        user.IDENTIFIER = grid.Text(row, kIdentification);
    }
}

void mSecurity::Write_Security() {
    constexpr std::string_view kProcedure = "Write_Security";
    Start(kProcedure);
    try {
        OpenDatabase();
        CreateTemporary();
        InsertUsers(ColumnList());
        database_->Flush(); // before the old table goes
        ReplaceTable();
        database_->Close();
    } catch (const RuntimeError& error) {
        database_.reset();
        RaiseWithHint(error);
    }
    database_.reset();
    Trace(kProcedure, "Security File Write Success");
}

/// The file that is left behind makes the next attempt fail, which is meant: a person has to look at it. When
/// the old table has gone already, nobody may be told to remove it.
void mSecurity::RaiseWithHint(const RuntimeError& error) {
    const std::string temporary = SecurityFolder() + std::string(kTemporary);
    const std::string table = SecurityFolder() + std::string(kTable);
    if (!world_.files.Exists(temporary)) {
        throw RuntimeError(error);
    }
    throw RuntimeError(
        error.Number(),
        error.Description() + "\n\nThe file " + temporary + " stands in the way of the next save. " +
            (world_.files.Exists(table)
                 ? "It may be removed."
                 : "There is no " + table + ", so it may be all that holds the users: give it that name."));
}

void mSecurity::CreateTemporary() {
    database_->Execute("CREATE TABLE [ZYSECURE.TMP] (USERID TEXT (10), PASSWORD TEXT (20), "
                       "IDENTIFIER TEXT(20),EXPDATE TEXT (8), STATUS TEXT(1));");
    const std::string table = SecurityFolder() + std::string(kTable);
    if (world_.files.Exists(table)) {
        world_.files.CopyPermissions(table, SecurityFolder() + std::string(kTemporary));
    }
}

std::string mSecurity::ColumnList() {
    const auto records = database_->OpenRecordset(kTemporary, dbase::RecordsetType::Dynaset);
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
    const std::string front = "INSERT INTO [ZYSECURE.TMP] " + columns + ") VALUES ('";
    std::string statement;
    for (const auto& user : zySecure) {
        statement = front;
        // Values are put in as they are: a single quote in one breaks the statement, which is meant.
        statement.append(user.USERID).append("', '").append(user.PASSWORD).append("', '");
        statement.append(user.IDENTIFIER).append("', '").append(user.EXPDATE).append("', '");
        statement.append(user.STATUS).append("');");
        engine_.BeginTrans();
        database_->Execute(statement, dbase::ExecuteOptions::FailOnError);
        engine_.CommitTrans();
    }
}

void mSecurity::ReplaceTable() {
    const std::string table = SecurityFolder() + std::string(kTable);
    RecycleIfThere(world_.files, world_.recycleBin, table);
    const auto error = world_.files.Rename(SecurityFolder() + std::string(kTemporary), table);
    if (error != FileError::None) {
        throw RuntimeError(75, "Path/File access error: " + table + " could not be replaced, " +
                                   std::string(Describe(error)));
    }
}

void mSecurity::WriteDBIndex() {
    Start("WriteDBIndex");
    OpenDatabase();
    const auto records = database_->OpenRecordset(kTable, dbase::RecordsetType::Dynaset);
    const std::string field(records->Fields().Item(0).Name());
    records->Close();
    RecycleIfThere(world_.files, world_.recycleBin, SecurityFolder() + std::string(kIndex));
    database_->Execute("CREATE INDEX [ZYSECURE] ON [ZYSECURE.DBF] (" + field + ");");
}

} // namespace zy
