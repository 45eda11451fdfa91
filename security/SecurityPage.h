#pragma once

#include "platform/CodePage.h"
#include "platform/Dialogs.h"
#include "platform/FileSystem.h"
#include "platform/RecycleBin.h"
#include "platform/SystemInfo.h"
#include "security/SecurityControls.h"
#include "security/UserChecks.h"
#include "security/UserRecords.h"
#include "security/UsersDatabase.h"
#include "security/UsersReader.h"
#include "security/UsersWriter.h"
#include "security/frmLogin.h"
#include "security/mSecurity.h"
#include "shell/Editor.h"
#include "shell/GridSteps.h"
#include "shell/SettingsForm.h"

namespace zy {

/// The users page: its controls and their handlers, and what its module works with.
class SecurityPage : public Editor {
  public:
    SecurityPage(SettingsForm& form, SharedState& state, TraceChannel& trace, FileSystem& files,
                 RecycleBin& recycleBin, SystemInfo& system, Dialogs& dialogs, const CodePage& codePage);

    /// Adds a user and makes its row current; a list that is as long as it can be stays as it is.
    void cmdAddUser_Click();
    /// Asks, and deletes the current row on Yes.
    void cmdDeleteUser_Click();
    /// Checks the users and writes them when all pass. Whatever fails on the disk is a run-time error.
    void cmdSaveUsers_Click();
    /// Adds a user and leaves the buttons alone, unlike the button.
    void mnuAddUser_Click();
    /// Deletes the current row at once and leaves the buttons alone, unlike the button. Kept: people who know
    /// the program are used to both ways.
    void mnuDeleteUser_Click();
    /// Marks the users as changed and lets them be saved.
    void grdSecurity_AfterEdit(int row);
    /// Shows what of a paste was left out.
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
    /// Lays the page out in the window's present size.
    void ResizeSecurity();

    // Editor
    void Show() override { LoadSecurity(); }
    void Resize() override { ResizeSecurity(); }
    void CommitOpenCell() override { controls.grdSecurity.editor.Commit(); }
    Size LeastInnerSize() override;
    bool HasUnsavedChanges() const override { return state_.gbChanged; }
    void Save() override;
    bool SaveAtClosing() override;
    EditSteps& Steps() override { return steps_; }
    const ListRecords& Records() const override { return records_; }
    SaveHooks& Hooks() override { return users.saveHooks; }

    SecurityControls controls;

  private:
    // What the module works with.
    UsersDatabase database_;
    UsersReader reader_;
    UsersWriter writer_;
    UserChecks checks_;
    AdminLogin login_;

  public:
    mSecurity users;

  private:
    void Connect();
    void Trace(std::string_view procedure, std::string_view message);
    bool HasCurrentUser() const { return controls.grdSecurity.selection.IsInData(); }
    void EnableDelete(bool enabled);
    /// `row` is the one that was edited, if one was.
    void MarkChanged(int row = 0);
    void MarkChangedAndEnableSave(int row = 0);
    /// False, and the status bar says so, when there is no room for one more.
    bool AddUser();
    void DeleteCurrentUser();
    /// Checks the users, takes them over from the grid and writes them; without users the table and the index
    /// of this folder go to the recycle bin instead. False when a check failed or somebody else is saving
    /// there, which was shown.
    bool CheckAndWrite(std::string_view folderWithoutUsers);
    /// Ends the edit of the cell whose button was pressed.
    void CloseCell(int row, int column);
    /// The calendar's place below the cell, in twips of the window; its size is its own.
    Rect PlaceBelow(int row, int column) const;
    void SetDate(int row, const std::string& text);
    void ShowSaved();
    /// Sets the marks after a step was taken back or done again, and shows what that was.
    void ShowMoved(bool isSaved, const std::string& report);
    bool AreUsersValid();
    /// Shows the number of users, what becomes of the single quotes in one, the row's before others, and what
    /// a save would drop or find in its way.
    void ShowStatus(int row = 0);

    SettingsForm& form_;
    SharedState& state_;
    TraceChannel& trace_;
    SystemInfo& system_;
    Dialogs& dialogs_;
    GridSteps steps_;
    UserRecords records_;
};

} // namespace zy
