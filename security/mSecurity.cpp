#include "security/mSecurity.h"

#include <algorithm>

#include "basics/Int16.h"
#include "basics/RuntimeError.h"
#include "basics/Text.h"
#include "dbase/ErrorNumbers.h"
#include "security/TableLosses.h"
#include "security/UserChecks.h"
#include "security/UserFiles.h"
#include "security/frmLogin.h"
#include "shell/SaveTurn.h"
#include "shell/StatusTexts.h"
#include "shell/mZYGlobal.h"

namespace zy {
namespace {

constexpr std::string_view kConnect = "dBase III";

/// The engine would raise the same error, without a word about the table.
void RequireFields(const dbase::Fields& fields, const std::string& table) {
    const int expected = static_cast<int>(kUserFields.size());
    if (fields.Count() < expected) {
        throw RuntimeError(dbase::kNoSuchItem, "Item not found in this collection: the table of users '" +
                                                   table + "' has " + std::to_string(fields.Count()) +
                                                   " of the " + std::to_string(expected) +
                                                   " fields of a user.");
    }
}

/// The first columns of a table, whatever they are called.
UserRecord UserIn(const dbase::Fields& fields) {
    return UserOf([&, column = 0](const UserField&) mutable { return fields.Item(column++).Value(); });
}

} // namespace

mSecurity::mSecurity(SecurityControls& controls, SettingsForm& form, SharedState& state, TraceChannel& trace,
                     FileSystem& files, RecycleBin& recycleBin, SystemInfo& system, Dialogs& dialogs,
                     const CodePage& codePage)
    : controls_(controls), form_(form), state_(state), trace_(trace), files_(files), recycleBin_(recycleBin),
      system_(system), dialogs_(dialogs), codePage_(codePage),
      engine_(files, [&system] { return system.Today(); }) {}

void mSecurity::Start(std::string_view procedure) {
    Trace(procedure, "Start");
}

void mSecurity::Trace(std::string_view procedure, std::string_view message) {
    trace_.DebugTrace(kSecurityModule, procedure, message);
}

std::string mSecurity::TablePath() const {
    auto path = state_.gsSecurityFile;
    std::replace(path.begin(), path.end(), '/', '\\');
    return path;
}

std::string mSecurity::SecurityFolder() const {
    return std::string(FolderOf(TablePath()));
}

std::string mSecurity::TableName() const {
    const std::string name(FileNameOf(TablePath()));
    return !Contains(name, '.') || name.ends_with('.') ? name + '.' : name;
}

Bool16 mSecurity::LoadSecurityData() {
    constexpr std::string_view kProcedure = "LoadSecurityData";
    Start(kProcedure);
    RequireCertain(files_, state_.gsSystemDir + std::string(kSecurityLocationFile));
    RequireCertain(files_, TablePath());
    if (!files_.Exists(TablePath())) {
        StartNewList();
        Report("");
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
    // The engine would look in the root of the drive.
    if (SecurityFolder().empty()) {
        throw RuntimeError(dbase::kBadPath,
                           "'" + state_.gsSecurityFile +
                               "' isn't a valid path for the table of users: it names no "
                               "folder. " +
                               files_.DisplayPath(state_.gsSystemDir + std::string(kSecurityLocationFile)) +
                               " names the table.");
    }
    database_ = engine_.OpenDatabase(SecurityFolder(), false, false, kConnect);
}

bool mSecurity::ReadTable() {
    OpenDatabase();
    const auto records = database_->OpenRecordset(TableName(), dbase::RecordsetType::Dynaset);
    zySecure = {UserRecord()};
    bool hasAdmin = false;
    records->MoveFirst();
    if (!records->Eof()) {
        RequireFields(records->Fields(), files_.DisplayPath(state_.gsSecurityFile));
    }
    for (Int16 i = 0; !records->Eof(); i = i + 1) {
        zySecure.resize(static_cast<std::size_t>(i) + 1);
        auto& user = zySecure.back();
        user = UserIn(records->Fields());
        if (codePage_.UCase(Trim(user.USERID)) == "ADMIN") {
            // Of several administrators the last one counts.
            adminPassword_ = codePage_.UCase(user.PASSWORD);
            hasAdmin = true;
        }
        records->MoveNext();
    }
    Report(TableLosses(*records));
    records->Close();
    return hasAdmin;
}

void mSecurity::Report(std::string_view losses) {
    std::string report;
    if (const auto folder = SecurityFolder(); !folder.empty()) {
        const UserFiles files(folder);
        report = UnfinishedSave(files_, files).Notice();
        Join(report, "; ", Obstacle(files.table, files_.MayReplace(files.table)));
    }
    Join(report, "; ", losses);
    reported.Raise(report);
}

Bool16 mSecurity::LogIn() {
    frmLogin login(adminPassword_, trace_, dialogs_, codePage_);
    form_.SetEnabled(!form_.Visible()); // behind the login nothing can be done
    login.Form_Load();
    login.SetVisible(true);
    dialogs_.ShowForm(login);
    form_.SetEnabled(true);

    if (!login.LoginSucceeded && login.CancelClicked) {
        loginCancelled.Raise();
        return false;
    }
    Trace("LoadSecurityData", "Load Complete");
    return login.LoginSucceeded;
}

bool mSecurity::Add_User() {
    Start("Add_User");
    auto& grid = controls_.grdSecurity;
    if (grid.Rows() > kMaxItems) {
        return false;
    }
    const int row = grid.Rows();
    zySecure.resize(static_cast<std::size_t>(row));
    zySecure.back() = NewUser();
    grid.AddItem(GridRow(zySecure.back()));
    grid.Select(row, kUserName);
    return true;
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
    const auto failure = UserChecks(grid, dialogs_, codePage_).FirstFailure();
    if (failure) {
        grid.Select(failure->row, failure->column);
    }
    return !failure;
}

} // namespace zy
