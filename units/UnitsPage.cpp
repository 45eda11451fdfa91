#include "units/UnitsPage.h"

#include <string>

#include "basics/Int16.h"
#include "shell/StatusTexts.h"
#include "units/UnitsFileText.h"
#include "units/UnitsLayout.h"

namespace zy {
namespace {

/// The character that a key types into a unit together with Ctrl; none for most keys.
std::string_view SpecialCharacter(Key key) {
    switch (key) {
    case Key::Digit0:
        return "\xB0"; // degree sign
    case Key::Digit2:
        return "\xB2"; // superscript two
    case Key::Digit3:
        return "\xB3"; // superscript three
    default:
        return {};
    }
}

} // namespace

UnitsPage::UnitsPage(SettingsForm& form, SharedState& state, TraceChannel& trace, FileSystem& files,
                     Dialogs& dialogs)
    : controls(form.FraUnits), units(controls.grdUnits, state, trace, files, dialogs), form_(form),
      trace_(trace), dialogs_(dialogs), steps_("Unit", controls.grdUnits), records_(controls.grdUnits.cells) {
    Connect();
}

void UnitsPage::Connect() {
    auto& grid = controls.grdUnits;
    controls.cmdAddUNit.click.Connect([this] { cmdAddUNit_Click(); });
    controls.cmdDeleteUnit.click.Connect([this] { cmdDeleteUnit_Click(); });
    controls.cmdSaveUnits.click.Connect([this] { cmdSaveUnits_Click(); });
    controls.UpDownUnits.upClick.Connect([this] { UpDownUnits_UpClick(); });
    controls.UpDownUnits.downClick.Connect([this] { UpDownUnits_DownClick(); });
    grid.editor.afterEdit.Connect([this](int row, int) { grdUnits_AfterEdit(row); });
    grid.block.pasted.Connect([this](const PasteReport& paste) { grdUnits_Pasted(paste); });
    grid.selection.currentCellChanged.Connect(
        [this] { controls.cmdDeleteUnit.SetEnabled(controls.grdUnits.selection.IsInData()); });
    grid.editor.keyDown.Connect([this](const KeyPress& press) { grdUnits_KeyDownEdit(press); });
    grid.keyDown.Connect([this](const KeyPress& press, bool& handled) { grdUnits_KeyDown(press, handled); });
    units.loaded.Connect([this](bool found) { LetSaveAfterLoading(found); });
    units.reported.Connect([this](const std::string& report) { form_.zyStatusBar.SetText(report); });
    steps_.moved.Connect([this](bool isSaved, const std::string& report) { ShowMoved(isSaved, report); });
}

void UnitsPage::Show() {
    steps_.Stop(); // to copy the list would take longer than to load it
    units.LoadUnitsData();
    controls.grdUnits.SetFocus(); // on an arrow, the first key would mark the list as changed
}

void UnitsPage::Trace(std::string_view procedure, std::string_view message) {
    trace_.DebugTrace(kMainForm, procedure, message);
}

void UnitsPage::LetSaveAfterLoading(bool found) {
    steps_.Start();
    hasFile_ = found;
    controls.cmdSaveUnits.SetEnabled(!found);
    if (!found) {
        controls.cmdDeleteUnit.SetEnabled(false);
    }
    ShowStatus();
}

void UnitsPage::ShowStatus() {
    auto text = Counted(static_cast<std::size_t>(controls.grdUnits.cells.Rows() - 1), "unit");
    Join(text, "; ", units.Dangers());
    form_.zyStatusBar.SetText(text);
}

void UnitsPage::MarkUnitsChanged() {
    form_.ChangeFlag = true;
    controls.cmdSaveUnits.SetEnabled(true);
    ShowStatus();
}

void UnitsPage::grdUnits_AfterEdit(int row) {
    MarkUnitsChanged();
    AddHint(form_.zyStatusBar, DescribeMisreading(controls.grdUnits.cells, row));
}

void UnitsPage::grdUnits_Pasted(const PasteReport& paste) {
    ShowStatus();
    AddHint(form_.zyStatusBar, DescribeLeftOut(paste, controls.grdUnits.cells));
    if (!paste.tooLong && controls.grdUnits.selection.IsInData()) {
        AddHint(form_.zyStatusBar, DescribeMisreadings());
    }
}

std::string UnitsPage::DescribeMisreadings() const {
    const auto& grid = controls.grdUnits;
    std::string first;
    std::size_t more = 0;
    for (int row = grid.selection.Row(); row <= grid.selection.BlockEnd().row; ++row) {
        const auto misreading = DescribeMisreading(grid.cells, row);
        more += !first.empty() && !misreading.empty() ? 1U : 0U;
        first = first.empty() ? misreading : first;
    }
    return more == 0 ? first : first + "; commas in " + Counted(more, "more row");
}

void UnitsPage::cmdAddUNit_Click() {
    Trace("cmdAddUnit_Click", "Start");
    auto& grid = controls.grdUnits;
    const int row = grid.cells.Rows();
    if (row > kMaxItems) {
        ShowStatus();
        AddHint(form_.zyStatusBar, kListFull);
        return;
    }
    grid.cells.SetRows(row + 1);
    grid.selection.Select(row, kUnit);
    grid.SetFocus();
    grid.editor.Open();
    MarkUnitsChanged();
    controls.cmdDeleteUnit.SetEnabled(true);
}

void UnitsPage::cmdDeleteUnit_Click() {
    Trace("cmdDeleteUnit_Click", "Start");
    if (dialogs_.AskYesNo("Are you sure you wish to delete this Unit of Measure?", "Confirm Delete",
                          Escape::AnswersNo)) {
        DeleteCurrentRow();
    }
    // After No as well. Kept: people who know the program are used to it.
    MarkUnitsChanged();
    Trace("cmdDeleteUnit_Click", "Unit Deleted");
}

void UnitsPage::DeleteCurrentRow() {
    auto& grid = controls.grdUnits;
    grid.cells.RemoveItem(grid.selection.Row());
    const bool any = grid.cells.Rows() >= 2;
    if (any) {
        grid.selection.Select(1, grid.selection.Column());
    }
    controls.cmdDeleteUnit.SetEnabled(any);
}

void UnitsPage::cmdSaveUnits_Click() {
    Trace("cmdSaveUnits_Click", "Start");
    Save();
}

void UnitsPage::Save() {
    if (SaveAtClosing()) {
        form_.ChangeFlag = false;
        controls.cmdSaveUnits.SetEnabled(false);
        hasFile_ = true;
        steps_.MarkSaved(!units.LastSaveFailed());
    }
}

void UnitsPage::ShowMoved(bool isSaved, const std::string& report) {
    form_.ChangeFlag = !isSaved;
    controls.cmdSaveUnits.SetEnabled(!isSaved || !hasFile_);
    controls.cmdDeleteUnit.SetEnabled(controls.grdUnits.selection.IsInData());
    ShowStatus();
    AddHint(form_.zyStatusBar, report);
}

bool UnitsPage::SaveAtClosing() {
    if (!steps_.MayBeSaved() || !units.ValidateUnits()) {
        return false;
    }
    steps_.BeginSave();
    const bool written = units.Write_Units();
    steps_.EndSave(!written ? SaveEnd::Refused : units.LastSaveFailed() ? SaveEnd::Failed : SaveEnd::Whole);
    return written;
}

void UnitsPage::UpDownUnits_UpClick() {
    if (controls.grdUnits.selection.Row() > 1) {
        MoveTo(controls.grdUnits.selection.Row() - 1);
    }
    MarkUnitsChanged();
}

void UnitsPage::UpDownUnits_DownClick() {
    const auto& grid = controls.grdUnits;
    if (grid.selection.IsInData() && grid.selection.Row() < grid.cells.Rows() - 1) {
        MoveTo(grid.selection.Row() + 1);
    }
    MarkUnitsChanged();
}

void UnitsPage::MoveTo(int neighbour) {
    auto& grid = controls.grdUnits;
    grid.cells.Together(
        "Move Unit " + std::string(grid.cells.Text(grid.selection.Row(), kUnit)),
        [&] { SwapWith(neighbour); }, GridCells::Repeats::Yes);
}

void UnitsPage::SwapWith(int neighbour) {
    auto& grid = controls.grdUnits;
    const int row = grid.selection.Row();
    const auto description = grid.cells.Text(row, kUnitDescription);
    const auto unit = grid.cells.Text(row, kUnit);
    for (const int column : {kUnitDescription, kUnit}) {
        grid.cells.SetText(row, column, grid.cells.Text(neighbour, column));
    }
    grid.cells.SetText(neighbour, kUnitDescription, description);
    grid.cells.SetText(neighbour, kUnit, unit);
    grid.selection.Select(neighbour, grid.selection.Column());
}

void UnitsPage::grdUnits_KeyDownEdit(const KeyPress& press) {
    auto& grid = controls.grdUnits;
    const bool ctrlAlone = press.ctrl && !press.alt && !press.shift;
    const auto character = SpecialCharacter(press.key);
    if (ctrlAlone && grid.selection.Column() == kUnit && !character.empty()) {
        grid.editor.ReplaceSelection(character);
    }
}

void UnitsPage::grdUnits_KeyDown(const KeyPress& press, bool& handled) {
    const bool altAlone = press.alt && !press.ctrl && !press.shift;
    if (press.key == Key::Tab && !press.ctrl && !press.alt) {
        handled = press.shift ? LeaveBackwards() : LeaveForwards();
    } else if (altAlone && press.key == Key::Up) {
        UpDownUnits_UpClick();
        handled = true;
    } else if (altAlone && press.key == Key::Down) {
        UpDownUnits_DownClick();
        handled = true;
    }
}

bool UnitsPage::LeaveForwards() {
    auto& grid = controls.grdUnits;
    const Cell last{grid.cells.Rows() - 1, grid.cells.Columns() - 1};
    if (!grid.selection.IsInData() || grid.selection.Current() != last) {
        return false;
    }
    grid.selection.Select(1, 0);
    controls.cmdAddUNit.SetFocus();
    return true;
}

bool UnitsPage::LeaveBackwards() {
    auto& grid = controls.grdUnits;
    if (grid.selection.Current() != Cell{1, 0}) {
        return false;
    }
    grid.selection.Select(grid.cells.Rows() - 1, grid.cells.Columns() - 1);
    controls.cmdHelpUnits.SetFocus();
    return true;
}

void UnitsPage::ResizeUnits() {
    LayOutUnits(controls, form_);
}

Size UnitsPage::LeastInnerSize() {
    return LeastInnerSizeForUnits(controls, form_);
}

} // namespace zy
