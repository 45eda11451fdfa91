#pragma once

#include <string_view>

namespace zy {

// What the main window asks of the editors that it does not know more closely. They implement it.

/// The users editor.
class SecurityEditor {
  public:
    virtual ~SecurityEditor() = default;

    /// Reads the user table and asks for the login. True when the editor may open.
    virtual bool LoadSecurityData() = 0;
    /// Fills the users grid.
    virtual void LoadSecurity() = 0;
    virtual void ResizeSecurity() = 0;
    /// Takes over the text of a cell that is being edited; nothing when none is.
    virtual void CommitCellEdit() = 0;
    virtual bool Validate_Security() = 0;
    /// Copies the grid into the user list.
    virtual void Save_Security() = 0;
    /// Writes the user list to the table and its index; without users both go from this folder to the recycle
    /// bin instead. False when somebody else is saving there: then nothing is written, and the person is
    /// told.
    virtual bool WriteUsers(std::string_view folderWithoutUsers) = 0;
    virtual void DisableSaveButton() = 0;
};

/// The editor of the units of measure.
class UnitsEditor {
  public:
    virtual ~UnitsEditor() = default;

    /// Reads the units file into the grid.
    virtual void LoadUnitsData() = 0;
    virtual void ResizeUnits() = 0;
    /// Takes over the text of a cell that is being edited; nothing when none is.
    virtual void CommitCellEdit() = 0;
    virtual bool ValidateUnits() = 0;
    /// False when the save is refused before its first step: then nothing is changed, and the window stays
    /// open.
    virtual bool Write_Units() = 0;
    virtual void DisableSaveButton() = 0;
};

/// The main window's place on the screen.
class WindowPlacement {
  public:
    virtual ~WindowPlacement() = default;

    /// Opens the window where it was left; nothing when no place is stored. May load the window.
    virtual void RestoreWindowPlacement() = 0;
    virtual void SaveWindowPlacement() = 0;
};

/// The window procedure that bounds the main window's size.
class MinSizeHook {
  public:
    virtual ~MinSizeHook() = default;

    /// Puts it in place of the window's own, and back.
    virtual void InstallMinSizeHook() = 0;
    virtual void RemoveMinSizeHook() = 0;
};

} // namespace zy
