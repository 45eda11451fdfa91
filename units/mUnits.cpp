#include "units/mUnits.h"

#include "basics/Int16.h"
#include "basics/RuntimeError.h"
#include "basics/Text.h"
#include "shell/Utilities.h"

namespace zy {
namespace {

constexpr std::string_view kLineEnd = "\r\n";

} // namespace

mUnits::mUnits(UnitsControls& controls, SharedState& state, TraceChannel& trace, const World& world)
    : controls_(controls), state_(state), trace_(trace), world_(world) {}

void mUnits::Start(std::string_view procedure) {
    trace_.DebugTrace("mUnits", procedure, "Start");
}

void mUnits::ResetGrid() {
    auto& grid = controls_.grdUnits;
    grid.SetRows(0);
    grid.AddItem("Unit\tUnit Description");
}

std::string mUnits::ReadUnitsFile() {
    const auto opened = world_.files.OpenForReading(state_.gsUnitsFile);
    if (!opened.handle) {
        Report(opened.error);
        return {};
    }
    return ReadFileText(*opened.handle, static_cast<std::uint32_t>(opened.handle->Size()));
}

void mUnits::LoadUnitsData() {
    Start("LoadUnitsData");
    auto& grid = controls_.grdUnits;
    grid.SetRedraw(false);
    ResetGrid();
    if (world_.files.Exists(state_.gsUnitsFile)) {
        AppendRows(ReadUnitsFile());
        controls_.cmdSaveUnits.SetEnabled(false);
    } else {
        controls_.cmdSaveUnits.SetEnabled(true);
        controls_.cmdDeleteUnit.SetEnabled(false);
    }
    grid.SetRedraw(true);
    grid.FitColumns(0);
}

void mUnits::AppendRows(std::string_view text) {
    std::string row;
    Int16 line = 0;
    for (auto end = text.find(kLineEnd); end != std::string_view::npos; end = text.find(kLineEnd)) {
        ++line;
        const Fields fields = SplitFields(text.substr(0, end));
        if (fields.Count() < 2) {
            // Such a line ends the program; its place is told so that a person can repair the file.
            throw RuntimeError(9, "Subscript out of range\n\n" + state_.gsUnitsFile + ", line " +
                                      std::to_string(line) + " has no comma or TAB");
        }
        row.assign(fields[2]).append(1, '\t').append(fields[1]);
        controls_.grdUnits.AddItem(row);
        text.remove_prefix(end + kLineEnd.size());
    }
}

std::string mUnits::UnitsText() const {
    const auto& grid = controls_.grdUnits;
    std::size_t size = 0;
    for (int row = 1; row < grid.Rows(); ++row) {
        size += grid.Text(row, kUnit).size() + grid.Text(row, kUnitDescription).size() + 1 + kLineEnd.size();
    }
    std::string text;
    text.reserve(size);
    for (int row = 1; row < grid.Rows(); ++row) {
        text += grid.Text(row, kUnitDescription);
        text += ',';
        text += grid.Text(row, kUnit);
        text += kLineEnd;
    }
    return text;
}

void mUnits::Write_Units() {
    Start("Write_Units");
    const Int16 rows = controls_.grdUnits.Rows() - 1; // raised before the file is touched
    const std::string& path = state_.gsUnitsFile;
    if (world_.files.Exists(path)) {
        world_.files.Delete(path);
    }
    auto created = world_.files.Create(path);
    if (!created.handle) {
        Report(created.error);
        return;
    }
    auto error = created.handle->Write(UnitsText());
    if (error == FileError::None) {
        error = created.handle->Flush();
    }
    const auto closed = created.handle->Close();
    if (error == FileError::None) {
        error = closed;
    }
    if (error == FileError::None) {
        reported.Raise("Saved, " + std::to_string(rows) + (rows == 1 ? " unit" : " units"));
    } else {
        Report(error);
    }
}

void mUnits::Report(FileError error) {
    reported.Raise(std::string(FileNameOf(state_.gsUnitsFile)) + ": " + std::string(Describe(error)));
}

bool mUnits::ValidateUnits() {
    Start("ValidateUnits");
    const auto& grid = controls_.grdUnits;
    for (Int16 row = 1; row < grid.Rows(); ++row) {
        if (!Validate_Unit(grid.Text(row, kUnit)) || !Validate_Desc(grid.Text(row, kUnitDescription))) {
            return false;
        }
    }
    return true;
}

bool mUnits::Refuse(std::string_view message) {
    world_.dialogs.ShowMessage(message, "Invalid Unit");
    return false;
}

bool mUnits::Validate_Unit(std::string_view unit) {
    Start("Validate_Unit");
    if (unit.empty()) {
        return Refuse("Unit cannot be blank");
    }
    if (Contains(unit, '"')) {
        return Refuse("Unit cannot contain double quotes");
    }
    return !Contains(unit, '|') || Refuse("Unit cannot contain pipe character '|'");
}

bool mUnits::Validate_Desc(std::string_view description) {
    Start("Validate_Desc");
    // The words are the unit's, which is meant.
    return !Contains(description, '"') || Refuse("Unit cannot contain double quotes");
}

} // namespace zy
