#include "security/UserChecks.h"

#include <bit>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "basics/Date.h"
#include "basics/Int16.h"
#include "basics/Text.h"
#include "security/UserRecord.h"
#include "shell/Application.h"

namespace zy {
namespace {

/// Finds the first of several rows that bear the same name. What is held of a row are eight bytes, so that
/// tens of thousands of names take no more time each than some hundred do.
class FirstRows {
  public:
    explicit FirstRows(std::size_t rows) : rowAt_(std::bit_ceil(rows + rows / 3 + 1)), hashes_(rows) {}

    /// The first of the rows that were taken with that name; this one where there is none. `bears` tells
    /// whether a row has it.
    template <typename Bears>
    int Take(int row, const std::string& name, const Bears& bears) {
        const auto hash = std::hash<std::string>()(name);
        const auto mask = rowAt_.size() - 1;
        auto at = hash & mask;
        const auto isOther = [&](int taken) {
            return taken != 0 && (HashOf(taken) != static_cast<std::uint32_t>(hash) || !bears(taken));
        };
        while (isOther(rowAt_[at])) {
            at = (at + 1) & mask;
        }
        if (rowAt_[at] == 0) {
            rowAt_[at] = row;
            HashOf(row) = static_cast<std::uint32_t>(hash);
        }
        return rowAt_[at];
    }

  private:
    std::uint32_t& HashOf(int row) { return hashes_[static_cast<std::size_t>(row)]; }

    std::vector<int> rowAt_; ///< where the name's hash points to, or behind that; 0 for none
    std::vector<std::uint32_t> hashes_;
};

} // namespace

UserChecks::UserChecks(GridCells& grid, Dialogs& dialogs, const CodePage& codePage)
    : grid_(grid), dialogs_(dialogs), codePage_(codePage) {}

std::optional<Cell> UserChecks::FirstFailure() {
    const auto sameNames = RowsOfSameName();
    const int last = ToInt16(grid_.Rows() - 1);
    for (int row = 1; row <= last; ++row) {
        if (const auto failure = CheckRow(row, sameNames[static_cast<std::size_t>(row)])) {
            return failure;
        }
    }
    return std::nullopt;
}

std::vector<int> UserChecks::RowsOfSameName() const {
    std::vector<int> others(static_cast<std::size_t>(grid_.Rows()));
    FirstRows firstRows(others.size());
    for (int row = 1; row < grid_.Rows(); ++row) {
        const auto name = codePage_.UCase(grid_.Text(row, kUserName));
        const int first = firstRows.Take(
            row, name, [&](int taken) { return codePage_.UCase(grid_.Text(taken, kUserName)) == name; });
        if (first != row) {
            auto& ofFirst = others[static_cast<std::size_t>(first)];
            ofFirst = ofFirst == 0 ? row : ofFirst;
        }
    }
    return others;
}

std::optional<Cell> UserChecks::CheckRow(int row, int sameName) {
    if (!CheckName(row)) {
        return Cell{row, kUserName};
    }
    if (FailsIf(sameName != 0, "Invalid User Name. User Name must be unique.")) {
        return Cell{sameName, kUserName}; // the cursor goes to the other user of that name
    }
    if (!CheckPassword(row)) {
        return Cell{row, kPassword};
    }
    SetStatus(row);
    if (!CheckIdentification(row)) {
        return Cell{row, kIdentification};
    }
    DropUnfilledDate(row);
    if (!CheckDate(row)) {
        return Cell{row, kExpiryDate};
    }
    return std::nullopt;
}

bool UserChecks::CheckName(int row) {
    const auto name = grid_.Text(row, kUserName);
    return !FailsIf(Trim(name).empty(), "Invalid User Name. Cannot be blank") &&
           !FailsIfTooLong(row, kUserName, "Invalid User ID. User ID") &&
           !FailsIf(Contains(name, '"'), "Invalid User Name. User ID cannot contain Double Quotes");
}

// Single quotes pass all checks: two of them are how one gets into the table. What the table engine cannot
// take, it refuses itself.

bool UserChecks::CheckPassword(int row) {
    const auto password = grid_.Text(row, kPassword);
    return !FailsIf(Trim(password).empty(), "Invalid Password. Password Cannot be blank") &&
           !FailsIfTooLong(row, kPassword, "Invalid Password. Password") &&
           !FailsIf(Contains(password, '"'), "Invalid Password. Password cannot contain Double Quotes");
}

void UserChecks::SetStatus(int row) {
    // Any other text is stored as it is: tables may hold more than the two letters of the list.
    if (grid_.Text(row, kStatus).empty()) {
        grid_.SetText(row, kStatus, "I");
    }
}

bool UserChecks::CheckIdentification(int row) {
    const auto text = grid_.Text(row, kIdentification);
    return !FailsIf(Trim(text).empty(), "Invalid User Identifier. User Identifier Cannot be blank") &&
           !FailsIfTooLong(row, kIdentification, "Invalid User Identifier. User Identifier") &&
           !FailsIf(Contains(text, '"'),
                    "Invalid User Identifier. User Identifier cannot contain Double Quotes");
}

void UserChecks::DropUnfilledDate(int row) {
    if (codePage_.UCase(grid_.Text(row, kExpiryDate)) == kNoDateYet) {
        grid_.SetText(row, kExpiryDate, "");
    }
}

bool UserChecks::CheckDate(int row) {
    const auto date = grid_.Text(row, kExpiryDate);
    return !FailsIfTooLong(row, kExpiryDate, "Invalid Expiry Date. Expiry Date") &&
           !FailsIf(!date.empty() && !ParseDate(date),
                    "Invalid Expiry Date. Must Use Format YY-MM-DD or blank for no Expiry Date");
}

bool UserChecks::FailsIfTooLong(int row, UsersColumn column, std::string_view front) {
    const auto most = FieldIn(column).width;
    return grid_.Text(row, column).size() > most &&
           FailsIf(true,
                   std::string(front) + " must not be longer than " + std::to_string(most) + " characters");
}

bool UserChecks::FailsIf(bool condition, std::string_view message) {
    if (condition) {
        dialogs_.ShowMessage(message, kApplicationTitle);
    }
    return condition;
}

} // namespace zy
