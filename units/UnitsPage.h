#pragma once

#include "platform/Dialogs.h"
#include "platform/FileSystem.h"
#include "shell/Editor.h"
#include "shell/GridSteps.h"
#include "shell/SettingsForm.h"
#include "units/UnitRecords.h"
#include "units/UnitsControls.h"
#include "units/mUnits.h"

namespace zy {

/// The units page: its controls and their handlers.
class UnitsPage : public Editor {
  public:
    UnitsPage(SettingsForm& form, SharedState& state, TraceChannel& trace, FileSystem& files,
              Dialogs& dialogs);

    /// Marks the list as changed and lets it be saved.
    void MarkUnitsChanged();

    /// Adds a row and opens it; a list that is as long as it can be stays as it is.
    void cmdAddUNit_Click();
    /// Asks, and deletes the current row on Yes. The list counts as changed after No as well.
    void cmdDeleteUnit_Click();
    /// Checks the units and writes them when all pass.
    void cmdSaveUnits_Click();
    /// Swap the current unit with its neighbour and keep it current. The list counts as changed even when
    /// nothing moved.
    void UpDownUnits_UpClick();
    void UpDownUnits_DownClick();
    /// Marks the list as changed, and shows how a row with a comma will be read back.
    void grdUnits_AfterEdit(int row);
    /// Shows what of a paste was left out, and how rows with commas will be read back.
    void grdUnits_Pasted(const PasteReport& paste);
    /// Ctrl with 0, 2 or 3 types a degree sign, a superscript two or three into a unit.
    void grdUnits_KeyDownEdit(const KeyPress& press);
    /// Tab at the grid's last cell goes on to the Add button, Shift+Tab at its first to the Help button. Alt
    /// with Up or Down moves the unit like the arrows do.
    void grdUnits_KeyDown(const KeyPress& press, bool& handled);

    /// Lays the page out in the window's present size.
    void ResizeUnits();

    // Editor
    void Show() override;
    void Resize() override { ResizeUnits(); }
    void CommitOpenCell() override { controls.grdUnits.editor.Commit(); }
    Size LeastInnerSize() override;
    bool HasUnsavedChanges() const override { return form_.ChangeFlag; }
    void Save() override;
    bool SaveAtClosing() override;
    EditSteps& Steps() override { return steps_; }
    const ListRecords& Records() const override { return records_; }
    SaveHooks& Hooks() override { return units.saveHooks; }

    UnitsControls controls;
    mUnits units;

  private:
    void Connect();
    void Trace(std::string_view procedure, std::string_view message);
    /// A list that has no file yet can be saved at once, one that was just loaded only once it is changed.
    void LetSaveAfterLoading(bool found);
    /// Shows how many units there are, and what a save would drop or find in its way.
    void ShowStatus();
    /// The first row of the pasted block that will be read back otherwise, and how many more there are.
    std::string DescribeMisreadings() const;
    void DeleteCurrentRow();
    void MoveTo(int neighbour);
    void SwapWith(int neighbour);
    bool LeaveForwards();
    bool LeaveBackwards();
    /// Sets the marks after a step was taken back or done again, and shows what that was.
    void ShowMoved(bool isSaved, const std::string& report);

    SettingsForm& form_;
    TraceChannel& trace_;
    Dialogs& dialogs_;
    GridSteps steps_;
    UnitRecords records_;
    bool hasFile_ = true; ///< a list that has none can be saved as it is
};

} // namespace zy
