#pragma once

#include "controls/Geometry.h"
#include "shell/EditSteps.h"
#include "shell/ListRecords.h"
#include "shell/SaveTurn.h"

namespace zy {

/// One of the three editors, as the main window knows it: a page of the window with its controls, over a list
/// and the file that the list comes from.
class Editor {
  public:
    virtual ~Editor() = default;

    /// Fills the page from the list and shows it as it was loaded.
    virtual void Show() = 0;
    /// Lays the page out in the window's present size.
    virtual void Resize() = 0;
    /// The least inner size of the window in which the page's controls have what they need.
    virtual Size LeastInnerSize() = 0;
    /// Takes over the text of a cell that is being edited; nothing when none is.
    virtual void CommitOpenCell() = 0;
    /// Whether closing has to ask about changes first.
    virtual bool HasUnsavedChanges() const = 0;
    /// The Save of the menu: checks, stores and writes, as far as the checks let it, and then takes the marks
    /// of unsaved changes away.
    virtual void Save() = 0;
    /// Saves because the window closes. The marks stay. False when a failed check or a refused save is to
    /// keep the window open.
    virtual bool SaveAtClosing() = 0;
    /// What can be taken back and done again.
    virtual EditSteps& Steps() = 0;
    /// The records of the list.
    virtual const ListRecords& Records() const = 0;
    /// What else is to be done when the list is saved.
    virtual SaveHooks& Hooks() = 0;
};

} // namespace zy
