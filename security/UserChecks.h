#pragma once

#include <optional>
#include <string>
#include <unordered_map>

#include "controls/Grid.h"
#include "platform/World.h"

namespace zy {

/// The checks of the users grid.
///
/// Each failure shows its own message in a box titled by the program and tells the cell to be mended. An
/// empty status and a date that was never filled in are no failures: they are set right in the grid.
class UserChecks {
  public:
    UserChecks(Grid& grid, const World& world);

    /// Checks the rows from the first to the last, in time linear in their number. Returns the cell of the
    /// first failure; nothing when all rows pass.
    std::optional<Cell> FirstFailure();

  private:
    /// The first two rows of a name.
    struct RowsOfName {
        int first = 0;
        int second = 0; ///< 0 when the name is used once
    };

    void FindNames();
    std::optional<Cell> CheckRow(int row);
    bool CheckName(int row);
    bool CheckPassword(int row);
    bool CheckIdentification(int row);
    bool CheckDate(int row);
    void SetStatus(int row);
    void DropUnfilledDate(int row);
    /// Another row with the same name, the first one there is; 0 when there is none.
    int RowOfSameName(int row) const;
    std::string ComparedName(int row) const;
    /// Shows the message when the condition holds. Returns the condition.
    bool FailsIf(bool condition, std::string_view message);

    Grid& grid_;
    World world_;
    std::unordered_map<std::string, RowsOfName> names_;
};

} // namespace zy
