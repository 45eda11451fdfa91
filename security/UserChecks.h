#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "controls/GridCells.h"
#include "platform/CodePage.h"
#include "platform/Dialogs.h"
#include "security/UserRecord.h"

namespace zy {

/// The checks of the users grid.
///
/// Each failure shows its own message in a box titled by the program and names the cell to be mended. An
/// empty status and a date that was never filled in are no failures: they are set right in the grid.
class UserChecks {
  public:
    UserChecks(GridCells& grid, Dialogs& dialogs, const CodePage& codePage);

    /// Checks the rows from the first to the last, in time linear in their number. Returns the cell of the
    /// first failure; nothing when all rows pass.
    std::optional<Cell> FirstFailure();

  private:
    /// For the first row of each name the next row with that name, capitals or not. 0 where there is none,
    /// and for the rows behind the first one, which is refused before they are looked at.
    std::vector<int> RowsOfSameName() const;
    /// `sameName` is another row with the row's name; 0 when there is none.
    std::optional<Cell> CheckRow(int row, int sameName);
    bool CheckName(int row);
    bool CheckPassword(int row);
    bool CheckIdentification(int row);
    bool CheckDate(int row);
    void SetStatus(int row);
    void DropUnfilledDate(int row);
    /// Fails when a cell holds more than the table takes; the message begins with `front`.
    bool FailsIfTooLong(int row, UsersColumn column, std::string_view front);
    /// Shows the message when the condition holds. Returns the condition.
    bool FailsIf(bool condition, std::string_view message);

    GridCells& grid_;
    Dialogs& dialogs_;
    const CodePage& codePage_;
};

} // namespace zy
