#pragma once

#include <string>
#include <string_view>

#include "controls/Event.h"
#include "platform/Dialogs.h"
#include "platform/FileSystem.h"
#include "shell/TraceChannel.h"
#include "shell/mZYGlobal.h"
#include "units/UnitsControls.h"

// The units editor: the units file and the checks (mUnits), and the page with its grid and handlers
// (UnitsPage). The rows of the grid are the only copy of the list. It calls the low part of the shell and
// what lies below that.

namespace zy {

/// The units file: one unit a line, its description first, then a comma, then the unit. The grid shows them
/// the other way round, which is meant.
class mUnits {
  public:
    mUnits(UnitsControls& controls, SharedState& state, TraceChannel& trace, FileSystem& files,
           Dialogs& dialogs);

    /// Empties the grid and fills it from the units file. Without a file the list is empty and can be saved
    /// at once; of a file that cannot be read, the part that could be is taken.
    ///
    /// Whatever of the file a save would drop is told by ReportCount until a save went well.
    ///
    /// A line without a second field is run-time error 9, more than 32,767 lines are run-time error 6. What
    /// stands behind the last line end is not read.
    void LoadUnitsData();

    /// Puts a file with the rows of the grid in place of the units file. The old file goes first; whatever
    /// fails then is told by `reported` alone. More than 32,767 rows are run-time error 6, and the file
    /// stays.
    ///
    /// False when the save is refused before its first step, which `reported` tells: somebody else is saving
    /// in the folder, or it is not certain which file the units file is.
    bool Write_Units();

    /// Checks every row and shows the first failure. The current cell does not move to it.
    bool ValidateUnits();
    bool Validate_Unit(std::string_view unit);
    bool Validate_Desc(std::string_view description);

    /// Reports how many units there are, and what a save would drop.
    void ReportCount();

    /// Short texts for the status bar: how many units there are, how a load or a save ended.
    Event<const std::string&> reported;

  private:
    void ResetGrid();
    void ReadUnits();
    void ReplaceFile();
    bool Refuse(std::string_view message);
    void Start(std::string_view procedure);
    std::string FileName() const;
    std::string DescribeUncertainty();
    /// Why a save could neither replace the file nor write over it.
    FileError ObstacleToSave();

    UnitsControls& controls_;
    SharedState& state_;
    TraceChannel& trace_;
    FileSystem& files_;
    Dialogs& dialogs_;
    std::string leftOut_; ///< what a save would drop
};

} // namespace zy
