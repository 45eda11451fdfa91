#include "security/mSecurity.h"

#include "basics/Int16.h"
#include "basics/RuntimeError.h"
#include "basics/Text.h"
#include "security/UserChecks.h"
#include "security/frmLogin.h"
#include "shell/Utilities.h"
#include "shell/mRecycleBin.h"

namespace zy {
namespace {

constexpr std::string_view kModule = "mSecurity";
constexpr std::string_view kConnect = "dBase III";
constexpr std::string_view kTable = "ZYSECURE.DBF";
constexpr std::string_view kTemporary = "ZYSECURE.TMP";
constexpr std::string_view kIndex = "ZYSECURE.NDX";

/// The first five columns of a table, whatever they are called.
UserRecord UserIn(const dbase::Fields& fields) {
    const auto value = [&](int column) { return std::string(fields.Item(column).Value()); };
    return {.USERID = value(0),
            .PASSWORD = value(1),
            .IDENTIFIER = value(2),
            .EXPDATE = value(3),
            .STATUS = value(4)};
}

} // namespace

mSecurity::mSecurity(SecurityControls& controls, SettingsForm& form, SharedState& state, TraceChannel& trace,
                     const World& world)
    : controls_(controls), form_(form), state_(state), trace_(trace), world_(world),
      engine_(world.files, [&system = world.system] { return system.Today(); }) {}

void mSecurity::Start(std::string_view procedure) {
    Trace(procedure, "Start");
}

void mSecurity::Trace(std::string_view procedure, std::string_view message) {
    trace_.DebugTrace(kModule, procedure, message);
}

std::string mSecurity::SecurityFolder() const {
    return std::string(FolderOf(state_.gsSecurityFile));
}

Bool16 mSecurity::LoadSecurityData() {
    constexpr std::string_view kProcedure = "LoadSecurityData";
    Start(kProcedure);
    if (!world_.files.Exists(state_.gsSecurityFile)) {
        StartNewList();
        Trace(kProcedure, "Load New Sec FIle Complete"); // spelled so
        return true;
    }
    newSecurityFile = false;
    if (ReadTable()) {
        return LogIn();
    }
    Trace(kProcedure, "Load Complete");
    return true;
}

void mSecurity::StartNewList() {
    zySecure = {NewUser()};
    newSecurityFile = true;
}

void mSecurity::OpenDatabase() {
    database_ = engine_.OpenDatabase(SecurityFolder(), false, false, kConnect);
}

bool mSecurity::ReadTable() {
    OpenDatabase();
    const auto records =
        database_->OpenRecordset(FileNameOf(state_.gsSecurityFile), dbase::RecordsetType::Dynaset);
    zySecure = {UserRecord()};
    bool hasAdmin = false;
    records->MoveFirst();
    for (Int16 i = 0; !records->Eof(); i = i + 1) {
        zySecure.resize(static_cast<std::size_t>(i) + 1);
        auto& user = zySecure.back();
        user = UserIn(records->Fields());
        if (world_.codePage.UCase(Trim(user.USERID)) == "ADMIN") {
            // Of several administrators the last one counts.
            adminPassword_ = world_.codePage.UCase(user.PASSWORD);
            hasAdmin = true;
        }
        records->MoveNext();
    }
    if (const auto missing = records->MissingRecords(); missing != 0) {
        reported.Raise(std::string(FileNameOf(state_.gsSecurityFile)) +
                       " is cut short: " + std::to_string(missing) + " of its users are missing");
    }
    records->Close();
    return hasAdmin;
}

Bool16 mSecurity::LogIn() {
    frmLogin login(adminPassword_, trace_, world_);
    form_.SetEnabled(!form_.Visible()); // behind the login nothing can be done
    login.Form_Load();
    login.SetVisible(true);
    world_.dialogs.ShowForm(login);
    form_.SetEnabled(true);

    if (!login.LoginSucceeded && login.CancelClicked) {
        loginCancelled.Raise();
        return false;
    }
    Trace("LoadSecurityData", "Load Complete");
    return login.LoginSucceeded;
}

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

/// The file that is left behind makes the next attempt fail, which is meant: a person has to look at it.
void mSecurity::RaiseWithHint(const RuntimeError& error) {
    const std::string temporary = SecurityFolder() + std::string(kTemporary);
    if (!world_.files.Exists(temporary)) {
        throw RuntimeError(error);
    }
    throw RuntimeError(error.Number(), error.Description() + "\n\nThe file " + temporary +
                                           " stands in the way of the next save. It may be removed.");
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
    RecycleIfThere(table);
    const auto error = world_.files.Rename(SecurityFolder() + std::string(kTemporary), table);
    if (error != FileError::None) {
        throw RuntimeError(75, "Path/File access error: " + table + " could not be replaced, " +
                                   std::string(Describe(error)));
    }
}

void mSecurity::RecycleIfThere(const std::string& path) {
    if (world_.files.Exists(path)) {
        RecycleFile(world_.recycleBin, path);
    }
}

void mSecurity::WriteDBIndex() {
    Start("WriteDBIndex");
    OpenDatabase();
    const auto records = database_->OpenRecordset(kTable, dbase::RecordsetType::Dynaset);
    const std::string field(records->Fields().Item(0).Name());
    records->Close();
    RecycleIfThere(SecurityFolder() + std::string(kIndex));
    database_->Execute("CREATE INDEX [ZYSECURE] ON [ZYSECURE.DBF] (" + field + ");");
}

void mSecurity::Add_User() {
    Start("Add_User");
    auto& grid = controls_.grdSecurity;
    const Int16 row = grid.Rows(); // one row more than a counter holds is refused here
    zySecure.resize(static_cast<std::size_t>(row));
    zySecure.back() = NewUser();
    grid.AddItem(GridRow(zySecure.back()));
    grid.Select(row, kUserName);
}

void mSecurity::DeleteUser(int row) {
    Trace("DeleteUser", "Start item: zySecure(index).UserID"); // the text itself, which is meant
    controls_.grdSecurity.RemoveItem(row);
    if (zySecure.size() > 1) {
        zySecure.erase(zySecure.begin() + row - 1);
    }
}

Bool16 mSecurity::Validate_Security() {
    Start("Validate_Security");
    auto& grid = controls_.grdSecurity;
    const auto failure = UserChecks(grid, world_).FirstFailure();
    if (failure) {
        grid.Select(failure->row, failure->column);
    }
    return !failure;
}

} // namespace zy
