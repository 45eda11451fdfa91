#include "security/mSecurity.h"

#include <algorithm>
#include <utility>

#include "basics/Int16.h"
#include "shell/StatusTexts.h"

namespace zy {

mSecurity::mSecurity(Grid& grdSecurity, UsersReader& reader, UsersWriter& writer, UserChecks& checks,
                     AdminLogin& login, TraceChannel& trace)
    : grdSecurity_(grdSecurity), reader_(reader), writer_(writer), checks_(checks), login_(login),
      trace_(trace) {}

void mSecurity::Start(std::string_view procedure) {
    Trace(procedure, "Start");
}

void mSecurity::Trace(std::string_view procedure, std::string_view message) {
    trace_.DebugTrace(kSecurityModule, procedure, message);
}

Bool16 mSecurity::LoadSecurityData() {
    constexpr std::string_view kProcedure = "LoadSecurityData";
    Start(kProcedure);
    newSecurityFile = !reader_.FindsTable();
    if (newSecurityFile) {
        zySecure = {NewUser()};
        dangers_ = writer_.Obstacles();
        Trace(kProcedure, "Load New Sec FIle Complete"); // spelled so
        return true;
    }
    auto loaded = reader_.Read();
    zySecure = std::move(loaded.users);
    dangers_ = writer_.Obstacles();
    Join(dangers_, "; ", loaded.losses);
    if (loaded.adminPassword) {
        return LogIn(*loaded.adminPassword);
    }
    Trace(kProcedure, "Load Complete");
    return true;
}

Bool16 mSecurity::LogIn(std::string_view adminPassword) {
    const auto end = login_.Ask(adminPassword);
    if (end == LoginEnd::Cancelled) {
        loginCancelled.Raise();
        return false;
    }
    Trace("LoadSecurityData", "Load Complete");
    return end == LoginEnd::Succeeded;
}

void mSecurity::Save_Security() {
    Start("Save_Security");
    for (int row = 1; row < grdSecurity_.cells.Rows(); ++row) {
        zySecure.at(static_cast<std::size_t>(row) - 1) = UserInRow(grdSecurity_.cells, row);
    }
}

bool mSecurity::WriteAll(std::string_view folderWithoutUsers) {
    const std::string folder = HasUsers() ? SecurityFolder() : std::string(folderWithoutUsers);
    const auto turn = writer_.TakeTurn(folder);
    const std::string refusal(turn.IsMine() ? "" : SaveTurn::kRefusal);
    return SaveInTurn(refusal, saveHooks, reported, [&] { WriteInTurn(folder); });
}

void mSecurity::WriteInTurn(const std::string& folder) {
    if (HasUsers()) {
        Write_Security();
        WriteDBIndex();
    } else {
        writer_.Recycle(folder);
    }
    dangers_.clear();
}

void mSecurity::Write_Security() {
    constexpr std::string_view kProcedure = "Write_Security";
    Start(kProcedure);
    writer_.Write(zySecure);
    Trace(kProcedure, "Security File Write Success");
}

void mSecurity::WriteDBIndex() {
    Start("WriteDBIndex");
    writer_.WriteIndex();
}

bool mSecurity::Add_User() {
    Start("Add_User");
    const int row = grdSecurity_.cells.Rows();
    if (row > kMaxItems) {
        return false;
    }
    zySecure.resize(static_cast<std::size_t>(row));
    zySecure.back() = NewUser();
    grdSecurity_.cells.AddItem(GridRow(zySecure.back()));
    grdSecurity_.selection.Select(row, kUserName);
    return true;
}

void mSecurity::DeleteUser(int row) {
    // Spelled so: the text itself, not the user's name, is what people who watch the trace know.
    Trace("DeleteUser", "Start item: zySecure(index).UserID");
    grdSecurity_.cells.RemoveItem(row);
    if (zySecure.size() > 1) {
        zySecure.erase(zySecure.begin() + row - 1);
    }
}

void mSecurity::MatchRows() {
    zySecure.resize(static_cast<std::size_t>(std::max(grdSecurity_.cells.Rows() - 1, 1)));
}

Bool16 mSecurity::Validate_Security() {
    Start("Validate_Security");
    const auto failure = checks_.FirstFailure();
    if (failure) {
        grdSecurity_.selection.Select(failure->row, failure->column);
    }
    return !failure;
}

} // namespace zy
