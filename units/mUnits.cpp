#include "units/mUnits.h"

#include <cstdint>
#include <utility>

#include "basics/Int16.h"
#include "basics/Text.h"
#include "shell/ListFile.h"
#include "shell/SaveTurn.h"
#include "shell/StatusTexts.h"
#include "shell/mZYGlobal.h"
#include "units/UnitsFileText.h"

namespace zy {
namespace {

/// What the old file held is gone by then.
constexpr auto kLastSaveFailed = "the last save failed, save again";

} // namespace

mUnits::mUnits(Grid& grdUnits, const SharedState& state, TraceChannel& trace, FileSystem& files,
               Dialogs& dialogs)
    : grdUnits_(grdUnits), state_(state), trace_(trace), files_(files), dialogs_(dialogs) {}

void mUnits::Start(std::string_view procedure) {
    trace_.DebugTrace("mUnits", procedure, "Start");
}

void mUnits::LoadUnitsData() {
    Start("LoadUnitsData");
    const SaveTurn turn(files_, state_.gsUnitsFile); // what somebody else saves is read whole
    grdUnits_.cells.SetRedraw(false);
    ResetGrid();
    const bool found = files_.Exists(state_.gsUnitsFile);
    if (found) {
        ReadUnits();
    } else {
        dangers_ = DescribeMissed(files_, state_.gsUnitsFile);
    }
    LookForDangers();
    grdUnits_.cells.SetRedraw(true);
    grdUnits_.columns.Fit(0);
    loaded.Raise(found);
}

void mUnits::LookForDangers() {
    Join(dangers_, "; ", DescribeUncertainty());
    Join(dangers_, "; ", Obstacle(state_.gsUnitsFile, ObstacleToSave()));
}

void mUnits::ResetGrid() {
    grdUnits_.cells.SetRows(0);
    grdUnits_.cells.AddItem("Unit\tUnit Description");
}

void mUnits::ReadUnits() {
    const auto opened = files_.OpenAlwaysForReading(state_.gsUnitsFile);
    if (!opened.handle) {
        dangers_ = FileName() + " could not be read: " + std::string(Describe(opened.error)) +
                   "; saving replaces all that it holds";
        return;
    }
    const auto size = static_cast<std::uint32_t>(opened.handle->Size());
    const auto text = ShareFileText(*opened.handle, size);
    static_cast<void>(opened.handle->Close()); // nothing was written that it could lose
    const bool whole = text->size() == size;
    const auto path = files_.DisplayPath(state_.gsUnitsFile);
    grdUnits_.cells.AddRowsOf(
        text, [&](auto lines, auto& cells) { dangers_ = Describe(AppendUnitCells(lines, path, cells)); });
    if (!whole) {
        dangers_ = FileName() + " could not be read to its end: " + std::string(Describe(FileError::Other)) +
                   "; saving drops the rest";
    } else {
        taken.Raise(text);
    }
}

std::string mUnits::DescribeUncertainty() {
    const auto uncertainty = Uncertainty(files_, state_.gsUnitsFile);
    return uncertainty.empty() ? uncertainty : "saving is refused, " + uncertainty;
}

FileError mUnits::ObstacleToSave() {
    const auto error = files_.MayReplace(state_.gsUnitsFile);
    return error == FileError::None ? error : files_.MayOverwrite(state_.gsUnitsFile);
}

bool mUnits::Write_Units() {
    const SaveTurn turn(files_, state_.gsUnitsFile);
    return SaveInTurn(WhyNotToSave(files_, state_.gsUnitsFile, turn), saveHooks, reported,
                      [this] { ReplaceFile(); });
}

void mUnits::ReplaceFile() {
    Start("Write_Units");
    const UnitsFileText text(grdUnits_.cells); // an error here leaves the file as it is
    const auto& path = state_.gsUnitsFile;
    const bool deleted = files_.Exists(path) && files_.Delete(path) == FileError::None;
    const auto created = files_.Create(path);
    lastSaveFailed_ = !created.handle;
    if (lastSaveFailed_) {
        dangers_ = deleted ? kLastSaveFailed : dangers_;
        reported.Raise(Failure("Not saved, " + FileName() + " could not be created", created.error));
        return;
    }
    const auto error = WriteAndClose(*created.handle, text.Get());
    lastSaveFailed_ = error != FileError::None;
    dangers_ = lastSaveFailed_ ? kLastSaveFailed : "";
    if (lastSaveFailed_) {
        reported.Raise(Failure("Not saved, " + FileName() + " could not be written", error));
    } else {
        reported.Raise(std::string(kListSaved));
    }
}

std::string mUnits::FileName() const {
    return std::string(FileNameOf(state_.gsUnitsFile));
}

bool mUnits::ValidateUnits() {
    Start("ValidateUnits");
    const int last = ToInt16(grdUnits_.cells.Rows() - 1);
    for (int row = 1; row <= last; ++row) {
        if (!Validate_Unit(grdUnits_.cells.Text(row, kUnit)) ||
            !Validate_Desc(grdUnits_.cells.Text(row, kUnitDescription))) {
            return false;
        }
    }
    return true;
}

bool mUnits::Refuse(std::string_view message) {
    dialogs_.ShowMessage(message, "Invalid Unit");
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
    // The words are the unit's: people who know the program know them for both columns.
    return !Contains(description, '"') || Refuse("Unit cannot contain double quotes");
}

} // namespace zy
