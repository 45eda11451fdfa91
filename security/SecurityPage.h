#pragma once

#include "platform/CodePage.h"
#include "platform/Dialogs.h"
#include "platform/FileSystem.h"
#include "platform/RecycleBin.h"
#include "platform/SystemInfo.h"
#include "security/mSecurity.h"
#include "shell/Editor.h"
#include "shell/SettingsForm.h"

namespace zy {

/// The users page: its controls and their handlers.
class SecurityPage : public Editor {
  public:
    SecurityPage(SettingsForm& form, SharedState& state, TraceChannel& trace, FileSystem& files,
                 RecycleBin& recycleBin, SystemInfo& system, Dialogs& dialogs, const CodePage& codePage);

    void cmdAddUser_Click();
    void cmdDeleteUser_Click();
    void cmdSaveUsers_Click();
    void mnuAddUser_Click();
    /// Deletes at once and leaves the buttons alone, unlike the button, which is meant.
    void mnuDeleteUser_Click();
    void grdSecurity_AfterEdit(int row);
    /// Tells what of a paste was left out.
    void grdSecurity_Pasted(const PasteReport& paste);
    /// Gives the cells of dates their button.
    void grdSecurity_BeforeEdit(int column);
    /// Opens the calendar beside the cell.
    void grdSecurity_CellButtonClick(int row, int column);
    /// Shift+Tab at the grid's first cell goes on to the Help button.
    void grdSecurity_KeyDown(const KeyPress& press, bool& handled);
    /// Makes the row current; the right button opens the context menu.
    void grdSecurity_MouseDown(MouseButton button, int row);

    /// Fills the grid from the list of users.
    void LoadSecurity();
    void ResizeSecurity();

    // Editor
    void Show() override { LoadSecurity(); }
    void Resize() override { ResizeSecurity(); }
    void CommitOpenCell() override { controls.grdSecurity.CommitEdit(); }
    Size LeastInnerSize() override;
    bool HasUnsavedChanges() const override { return state_.gbChanged; }
    void Save() override;
    bool SaveAtClosing() override;

    SecurityControls controls;
    mSecurity users;

  private:
    void Connect();
    void Trace(std::string_view procedure, std::string_view message);
    bool HasUsers() const { return controls.grdSecurity.Rows() >= 2; }
    bool HasCurrentUser() const { return controls.grdSecurity.Row() >= 1; }
    void EnableDelete(bool enabled);
    /// `row` is the one that was edited, if one was.
    void MarkChanged(int row = 0);
    void MarkChangedAndEnableSave(int row = 0);
    /// False, and the person is told, when there is no room for one more.
    bool AddUser();
    void DeleteCurrentUser();
    /// Checks the users, takes them over from the grid and writes them. False when a check failed or somebody
    /// else is saving there; the person was told.
    bool CheckAndWrite(std::string_view folderWithoutUsers);
    /// Writes the users to the table and its index; without users both go from this folder to the recycle bin
    /// instead. False when somebody else is saving there: then nothing is written, and the person is told.
    bool WriteUsers(std::string_view folderWithoutUsers);
    void SetDate(int row, const std::string& text);
    void ShowSaved();
    /// Tells the number of users, what becomes of the single quotes in one, the row's before others, and what
    /// loading told.
    void ReportCount(int row = 0);

    SettingsForm& form_;
    SharedState& state_;
    TraceChannel& trace_;
    FileSystem& files_;
    SystemInfo& system_;
    Dialogs& dialogs_;
    std::string report_; ///< what loading told; empty once the users are saved
};

} // namespace zy
