#pragma once

#include <string>
#include <string_view>

#include "basics/SharedText.h"
#include "controls/Event.h"
#include "controls/Grid.h"
#include "platform/Dialogs.h"
#include "platform/FileSystem.h"
#include "shell/SaveTurn.h"
#include "shell/TraceChannel.h"
#include "shell/mZYGlobal.h"

// units: the units editor. mUnits holds the units file (UnitsFileText) and the checks, UnitsPage is the page
// with its grid and handlers. It calls the low part of the shell and what lies below that.

namespace zy {

/// The units: the list, its file, and the checks.
///
/// The rows of the grid are the only copy of the list, so that it is all the module knows of the page. The
/// file has one unit a line, its description first, then a comma, then the unit; the grid shows them the
/// other way round. The order in the file stays as it is: the product's files have it.
class mUnits {
  public:
    mUnits(Grid& grdUnits, const SharedState& state, TraceChannel& trace, FileSystem& files,
           Dialogs& dialogs);

    /// Empties the grid and fills it from the units file. Without a file the list is empty; of a file that
    /// cannot be read, the part that could be is taken. `loaded` is raised at the end.
    ///
    /// A line without a second field is run-time error 9, more than 32,767 lines are run-time error 6. What
    /// stands behind the last line end is not read.
    void LoadUnitsData();

    /// Puts a file with the rows of the grid in place of the units file. The old file goes first; whatever
    /// fails then is said by `reported` alone. More than 32,767 rows are run-time error 6, and the file
    /// stays.
    ///
    /// False when the save is refused before its first step, as `reported` says: somebody else is saving
    /// in the folder, or it is not certain which file the units file is.
    bool Write_Units();

    /// Checks every row from the first one on and shows the first failure. The current cell does not move to
    /// it.
    bool ValidateUnits();
    /// Whether a unit may be saved; shows why not. An empty one may not, nor one with a double quote or a
    /// pipe character.
    bool Validate_Unit(std::string_view unit);
    /// Whether a description may be saved; shows why not. One with a double quote may not, an empty one may.
    bool Validate_Desc(std::string_view description);

    /// What a save would drop of the file that was loaded, or find in its way, or that the last save failed;
    /// for the status bar. A save that goes well ends it.
    const std::string& Dangers() const { return dangers_; }

    /// Whether the last save got as far as the file and failed there.
    bool LastSaveFailed() const { return lastSaveFailed_; }

    /// LoadUnitsData is done: whether there was a file.
    Event<bool> loaded;
    /// The whole text of the file, which the grid holds on to.
    Event<const SharedText&> taken;
    /// Short texts for the status bar: how a save ended.
    Event<const std::string&> reported;
    SaveHooks saveHooks;

  private:
    void ResetGrid();
    void ReadUnits();
    void LookForDangers();
    void ReplaceFile();
    bool Refuse(std::string_view message);
    void Start(std::string_view procedure);
    std::string FileName() const;
    std::string DescribeUncertainty();
    /// Why a save could neither replace the file nor write over it.
    FileError ObstacleToSave();

    Grid& grdUnits_;
    const SharedState& state_;
    TraceChannel& trace_;
    FileSystem& files_;
    Dialogs& dialogs_;
    std::string dangers_;
    bool lastSaveFailed_ = false;
};

} // namespace zy
