#include "security/SecurityPage.h"

#include <string>

#include "security/SecurityLayout.h"
#include "security/UserQuotes.h"
#include "security/frmDatePicker.h"
#include "shell/StatusTexts.h"

namespace zy {
namespace {

constexpr std::string_view kCalendarButton = "...";

} // namespace

SecurityPage::SecurityPage(SettingsForm& form, SharedState& state, TraceChannel& trace, FileSystem& files,
                           RecycleBin& recycleBin, SystemInfo& system, Dialogs& dialogs,
                           const CodePage& codePage)
    : controls(form.fraSecurity), database_(state, files, system), reader_(database_, files, codePage),
      writer_(database_, files, recycleBin), checks_(controls.grdSecurity.cells, dialogs, codePage),
      login_(form, trace, dialogs, codePage),
      users(controls.grdSecurity, reader_, writer_, checks_, login_, trace), form_(form), state_(state),
      trace_(trace), system_(system), dialogs_(dialogs), steps_("User", controls.grdSecurity),
      records_(controls.grdSecurity.cells, codePage) {
    Connect();
}

void SecurityPage::Connect() {
    auto& grid = controls.grdSecurity;
    controls.cmdAddUser.click.Connect([this] { cmdAddUser_Click(); });
    controls.cmdDeleteUser.click.Connect([this] { cmdDeleteUser_Click(); });
    controls.cmdSaveUsers.click.Connect([this] { cmdSaveUsers_Click(); });
    form_.menu.mnuAddUser.click.Connect([this] { mnuAddUser_Click(); });
    form_.menu.mnuDeleteUser.click.Connect([this] { mnuDeleteUser_Click(); });
    grid.editor.beforeEdit.Connect([this](int, int column) { grdSecurity_BeforeEdit(column); });
    grid.editor.afterEdit.Connect([this](int row, int) { grdSecurity_AfterEdit(row); });
    grid.block.pasted.Connect([this](const PasteReport& paste) { grdSecurity_Pasted(paste); });
    grid.editor.buttonClick.Connect(
        [this](int row, int column) { grdSecurity_CellButtonClick(row, column); });
    grid.keyDown.Connect(
        [this](const KeyPress& press, bool& handled) { grdSecurity_KeyDown(press, handled); });
    grid.mouseDown.Connect([this](MouseButton button, int row, int) { grdSecurity_MouseDown(button, row); });
    users.reported.Connect([this](const std::string& report) { form_.zyStatusBar.SetText(report); });
    steps_.moved.Connect([this](bool isSaved, const std::string& report) { ShowMoved(isSaved, report); });
}

void SecurityPage::Trace(std::string_view procedure, std::string_view message) {
    trace_.DebugTrace(kMainForm, procedure, message);
}

void SecurityPage::LoadSecurity() {
    auto& grid = controls.grdSecurity;
    LayOutSecurity(controls, form_);
    steps_.Stop();
    grid.cells.SetRedraw(false);
    grid.cells.SetRows(1);
    grid.cells.AddItems(users.zySecure.size(), [this](std::size_t user, std::string& text) {
        AppendGridRow(users.zySecure[user], text);
    });
    grid.cells.SetRedraw(true);
    steps_.Start();
    grid.columns.Fit(0); // the designed width is too narrow for most headers
    controls.cmdSaveUsers.SetEnabled(false);
    EnableDelete(users.HasUsers());
    ShowStatus();
    Trace("LoadSecurity", "Finished");
}

void SecurityPage::ShowStatus(int row) {
    std::string text = Counted(static_cast<std::size_t>(controls.grdSecurity.cells.Rows() - 1), "user");
    Join(text, "; ", DescribeQuotes(controls.grdSecurity.cells, row));
    Join(text, "; ", users.Dangers());
    form_.zyStatusBar.SetText(text);
}

void SecurityPage::EnableDelete(bool enabled) {
    controls.cmdDeleteUser.SetEnabled(enabled);
    form_.menu.mnuDeleteUser.SetEnabled(enabled);
}

void SecurityPage::MarkChanged(int row) {
    state_.gbChanged = true;
    ShowStatus(row);
}

void SecurityPage::MarkChangedAndEnableSave(int row) {
    MarkChanged(row);
    controls.cmdSaveUsers.SetEnabled(true);
}

void SecurityPage::cmdAddUser_Click() {
    Trace("cmdAddUser_Click", "Start");
    if (!AddUser()) {
        return;
    }
    controls.grdSecurity.SetFocus(); // what is typed next is the user's name
    EnableDelete(true);
    MarkChangedAndEnableSave();
}

void SecurityPage::mnuAddUser_Click() {
    if (AddUser()) {
        MarkChanged();
    }
}

bool SecurityPage::AddUser() {
    const bool added = users.Add_User();
    if (!added) {
        ShowStatus();
        AddHint(form_.zyStatusBar, kListFull);
    }
    return added;
}

void SecurityPage::cmdDeleteUser_Click() {
    Trace("cmdDeleteUser_Click", "Start");
    if (dialogs_.AskYesNo("Are you sure you wish to delete this User?", "Confirm Delete",
                          Escape::AnswersNo)) {
        DeleteCurrentUser();
    }
    Trace("cmdDeleteUser_Click", "User deleted"); // after No as well: the step ends with this line either way
}

void SecurityPage::DeleteCurrentUser() {
    if (HasCurrentUser()) {
        users.DeleteUser(controls.grdSecurity.selection.Row());
        MarkChangedAndEnableSave();
    }
    if (users.HasUsers()) {
        controls.grdSecurity.selection.Select(1, controls.grdSecurity.selection.Column());
    }
    EnableDelete(users.HasUsers());
}

void SecurityPage::mnuDeleteUser_Click() {
    if (HasCurrentUser()) {
        users.DeleteUser(controls.grdSecurity.selection.Row());
        MarkChanged();
    }
}

void SecurityPage::cmdSaveUsers_Click() {
    Trace("cmdSaveUsers_Click", "Start");
    // Without users the files in the table's own folder go, unlike with File > Save.
    if (CheckAndWrite(users.SecurityFolder())) {
        form_.ChangeFlag = false;
        ShowSaved();
    }
}

void SecurityPage::Save() {
    if (SaveAtClosing()) {
        state_.gbChanged = false;
        ShowSaved();
    }
}

bool SecurityPage::SaveAtClosing() {
    // Kept from the first version on: without users the two files of the system directory go, even when the
    // table that is edited lies in another folder.
    return CheckAndWrite(state_.gsSystemDir);
}

bool SecurityPage::CheckAndWrite(std::string_view folderWithoutUsers) {
    if (!steps_.MayBeSaved() || !AreUsersValid()) {
        return false;
    }
    users.Save_Security();
    steps_.BeginSave();
    const bool written = users.WriteAll(folderWithoutUsers); // whatever else fails is raised
    steps_.EndSave(written ? SaveEnd::Whole : SaveEnd::Refused);
    return written;
}

/// The checks fill in or empty fields by themselves.
bool SecurityPage::AreUsersValid() {
    bool valid = false;
    controls.grdSecurity.cells.Together("Correct Fields", [&] { valid = bool(users.Validate_Security()); });
    return valid;
}

void SecurityPage::ShowMoved(bool isSaved, const std::string& report) {
    users.MatchRows();
    state_.gbChanged = !isSaved;
    controls.cmdSaveUsers.SetEnabled(!isSaved);
    EnableDelete(users.HasUsers());
    ShowStatus();
    AddHint(form_.zyStatusBar, report);
}

void SecurityPage::ShowSaved() {
    steps_.MarkSaved(true); // whatever fails is raised
    controls.cmdSaveUsers.SetEnabled(false);
    form_.zyStatusBar.SetText(kListSaved);
}

void SecurityPage::grdSecurity_AfterEdit(int row) {
    Trace("grdSecurity_AfterEdit", "Start");
    MarkChangedAndEnableSave(row);
}

void SecurityPage::grdSecurity_Pasted(const PasteReport& paste) {
    ShowStatus();
    AddHint(form_.zyStatusBar, DescribeLeftOut(paste, controls.grdSecurity.cells));
}

void SecurityPage::grdSecurity_BeforeEdit(int column) {
    Trace("grdSecurity_BeforeEdit", "Start");
    if (column == kExpiryDate) {
        controls.grdSecurity.editor.SetList(CellList(kCalendarButton));
    }
}

void SecurityPage::grdSecurity_CellButtonClick(int row, int column) {
    Trace("grdSecurity_CellButtonClick", "Start");
    if (column != kExpiryDate) {
        return;
    }
    CloseCell(row, column);
    frmDatePicker picker(trace_, system_);
    picker.picked.Connect([this, row](const std::string& text) { SetDate(row, text); });
    picker.SetBounds(PlaceBelow(row, column));
    picker.Form_Load(controls.grdSecurity.cells.Text(row, column));
    picker.SetVisible(true);
    dialogs_.ShowForm(picker);
}

void SecurityPage::CloseCell(int row, int column) {
    auto& grid = controls.grdSecurity;
    // What was typed is kept, as wherever an edit is left; a mere look at the calendar is no edit.
    if (grid.editor.Text() != grid.cells.Text(row, column)) {
        grid.editor.Commit();
    }
    grid.editor.Cancel();
}

Rect SecurityPage::PlaceBelow(int row, int column) const {
    const auto& frame = form_.fraSecurity.Bounds();
    const auto& grid = controls.grdSecurity;
    const auto cell = grid.CellPlace(row, column);
    return {frame.left + grid.Bounds().left + cell.left,
            frame.top + grid.Bounds().top + cell.top + cell.height, 0, 0};
}

void SecurityPage::SetDate(int row, const std::string& text) {
    controls.grdSecurity.cells.SetText(row, kExpiryDate, text);
    MarkChangedAndEnableSave(row);
}

void SecurityPage::grdSecurity_KeyDown(const KeyPress& press, bool& handled) {
    Trace("grdSecurity_KeyDown", "Start");
    auto& grid = controls.grdSecurity;
    const bool shiftTab = press.key == Key::Tab && press.shift && !press.ctrl && !press.alt;
    if (shiftTab && grid.selection.Current() == Cell{1, 0}) {
        grid.selection.Select(grid.cells.Rows() - 1, grid.cells.Columns() - 1);
        controls.cmdHelpSecurity.SetFocus();
        handled = true;
    }
}

void SecurityPage::grdSecurity_MouseDown(MouseButton button, int row) {
    Trace("grdSecurity_MouseDown", "Start");
    if (row >= 0) {
        controls.grdSecurity.selection.Select(row, controls.grdSecurity.selection.Column());
    }
    if (button == MouseButton::Right) {
        form_.menu.mnuDeleteUser.SetEnabled(row >= 1);
        form_.menu.mnuSecuritypopMenu.PopUp();
    }
}

void SecurityPage::ResizeSecurity() {
    LayOutSecurity(controls, form_);
}

Size SecurityPage::LeastInnerSize() {
    return LeastInnerSizeForSecurity(controls, form_);
}

} // namespace zy
