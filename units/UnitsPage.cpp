#include "units/UnitsPage.h"

#include <string>

#include "basics/RuntimeError.h"
#include "units/UnitsLayout.h"

namespace zy {

UnitsPage::UnitsPage(SettingsForm& form, SharedState& state, TraceChannel& trace, const World& world)
    : controls(form.FraUnits), form_(form), trace_(trace), world_(world),
      units_(controls, state, trace, world) {
    Connect();
}

void UnitsPage::Connect() {
    auto& grid = controls.grdUnits;
    controls.cmdAddUNit.click.Connect([this] { cmdAddUNit_Click(); });
    controls.cmdDeleteUnit.click.Connect([this] { cmdDeleteUnit_Click(); });
    controls.cmdSaveUnits.click.Connect([this] { cmdSaveUnits_Click(); });
    controls.UpDownUnits.upClick.Connect([this] { UpDownUnits_UpClick(); });
    controls.UpDownUnits.downClick.Connect([this] { UpDownUnits_DownClick(); });
    grid.afterEdit.Connect([this](int, int) { MarkUnitsChanged(); });
    grid.currentCellChanged.Connect(
        [this] { controls.cmdDeleteUnit.SetEnabled(controls.grdUnits.Row() >= 1); });
    grid.keyDownEdit.Connect([this](const KeyPress& press) { grdUnits_KeyDownEdit(press); });
    grid.keyDown.Connect([this](const KeyPress& press, bool& handled) { grdUnits_KeyDown(press, handled); });
    units_.reported.Connect([this](const std::string& report) { form_.zyStatusBar.SetText(report); });
}

void UnitsPage::Trace(std::string_view procedure, std::string_view message) {
    trace_.DebugTrace("frmGlobalSettings", procedure, message);
}

void UnitsPage::LoadUnitsData() {
    ShowCount();
    units_.LoadUnitsData();
}

void UnitsPage::ShowCount() {
    form_.zyStatusBar.SetText("");
}

void UnitsPage::MarkUnitsChanged() {
    form_.ChangeFlag = true;
    controls.cmdSaveUnits.SetEnabled(true);
}

void UnitsPage::cmdAddUNit_Click() {
    Trace("cmdAddUnit_Click", "Start");
    auto& grid = controls.grdUnits;
    const Int16 row = grid.Rows(); // one row more than a counter holds is refused here
    grid.SetRows(row + 1);
    grid.Select(row, kUnit);
    grid.SetFocus();
    grid.EditCell();
    MarkUnitsChanged();
    controls.cmdDeleteUnit.SetEnabled(true);
}

void UnitsPage::cmdDeleteUnit_Click() {
    Trace("cmdDeleteUnit_Click", "Start");
    if (world_.dialogs.AskYesNo("Are you sure you wish to delete this Unit of Measure?", "Confirm Delete",
                                Escape::AnswersNo)) {
        DeleteCurrentRow();
    }
    // After No as well, which is meant.
    MarkUnitsChanged();
    Trace("cmdDeleteUnit_Click", "Unit Deleted");
}

void UnitsPage::DeleteCurrentRow() {
    auto& grid = controls.grdUnits;
    grid.RemoveItem(grid.Row());
    const bool any = grid.Rows() >= 2;
    if (any) {
        grid.Select(1, grid.Column());
    }
    controls.cmdDeleteUnit.SetEnabled(any);
}

void UnitsPage::cmdSaveUnits_Click() {
    Trace("cmdSaveUnits_Click", "Start");
    if (units_.ValidateUnits()) {
        units_.Write_Units();
        form_.ChangeFlag = false;
        controls.cmdSaveUnits.SetEnabled(false);
    }
}

// Either arrow marks the list as changed even when nothing moved, which is meant.

void UnitsPage::UpDownUnits_UpClick() {
    if (controls.grdUnits.Row() > 1) {
        SwapWith(controls.grdUnits.Row() - 1);
    }
    MarkUnitsChanged();
}

void UnitsPage::UpDownUnits_DownClick() {
    const auto& grid = controls.grdUnits;
    if (grid.Row() >= 1 && grid.Row() < grid.Rows() - 1) {
        SwapWith(grid.Row() + 1);
    }
    MarkUnitsChanged();
}

void UnitsPage::SwapWith(int neighbour) {
    auto& grid = controls.grdUnits;
    const int row = grid.Row();
    for (const int column : {kUnitDescription, kUnit}) {
        const std::string saved = grid.Text(row, column);
        grid.SetText(row, column, std::string(grid.Text(neighbour, column)));
        grid.SetText(neighbour, column, saved);
    }
    grid.Select(neighbour, grid.Column());
}

void UnitsPage::grdUnits_KeyDownEdit(const KeyPress& press) {
    if (!press.ctrl || press.alt || press.shift || controls.grdUnits.Column() != kUnit) {
        return;
    }
    if (press.key == Key::Digit0) {
        controls.grdUnits.ReplaceEditSelection("\xB0");
    } else if (press.key == Key::Digit2) {
        controls.grdUnits.ReplaceEditSelection("\xB2");
    } else if (press.key == Key::Digit3) {
        controls.grdUnits.ReplaceEditSelection("\xB3");
    }
}

void UnitsPage::grdUnits_KeyDown(const KeyPress& press, bool& handled) {
    auto& grid = controls.grdUnits;
    if (press.key != Key::Tab || press.ctrl || press.alt) {
        return;
    }
    const int lastRow = grid.Rows() - 1;
    const int lastColumn = grid.Columns() - 1;
    if (!press.shift && grid.Row() == lastRow && grid.Row() >= 1 && grid.Column() == lastColumn) {
        grid.Select(1, 0);
        controls.cmdAddUNit.SetFocus();
        handled = true;
    } else if (press.shift && grid.Row() == 1 && grid.Column() == 0) {
        grid.Select(lastRow, lastColumn);
        controls.cmdHelpUnits.SetFocus();
        handled = true;
    }
}

void UnitsPage::ResizeUnits() {
    const auto& inner = form_.InnerSize();
    const int width = inner.width - 100;
    const int height = inner.height - 100 - form_.zyStatusBar.Preferred().height;
    if (width > 0 && height > 0) {
        form_.FraUnits.SetBounds({50, 50, width, height});
    }
    LayOutUnits(controls, form_.FraUnits);
}

} // namespace zy
