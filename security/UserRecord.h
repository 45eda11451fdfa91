#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <string>
#include <string_view>

#include "controls/GridCells.h"

namespace zy {

/// A user, as the table holds one.
struct UserRecord {
    std::string USERID;     ///< the name
    std::string PASSWORD;   ///< as typed
    std::string IDENTIFIER; ///< free text
    std::string EXPDATE;    ///< "YY-MM-DD"; empty when the user does not expire
    std::string STATUS;     ///< "A" is active, "I" is inactive

    friend bool operator==(const UserRecord&, const UserRecord&) = default;
};

/// The columns of the users grid. Their order is not that of the table's.
enum UsersColumn { kUserName, kPassword, kStatus, kExpiryDate, kIdentification, kUsersColumns };

/// A field of a user: where it is held, in the table and in the grid.
struct UserField {
    std::string UserRecord::*member;
    std::string_view column; ///< its name in the table
    std::size_t width;       ///< the most characters that it takes
    UsersColumn gridColumn;
    // How the statement that makes the table spells the column: kept to the character, blanks or not.
    std::string_view separator; ///< in front of the name
    std::string_view type;      ///< between the name and the width
};

/// The fields in the order of the table's columns.
inline constexpr std::array<UserField, kUsersColumns> kUserFields{
    {{&UserRecord::USERID, "USERID", 10, kUserName, "", " TEXT ("},
     {&UserRecord::PASSWORD, "PASSWORD", 20, kPassword, ", ", " TEXT ("},
     {&UserRecord::IDENTIFIER, "IDENTIFIER", 20, kIdentification, ", ", " TEXT("},
     {&UserRecord::EXPDATE, "EXPDATE", 8, kExpiryDate, ",", " TEXT ("},
     {&UserRecord::STATUS, "STATUS", 1, kStatus, ", ", " TEXT("}}};

/// The field that stands in a column of the grid.
constexpr const UserField& FieldIn(UsersColumn column) {
    return *std::find_if(kUserFields.begin(), kUserFields.end(),
                         [column](const auto& field) { return field.gridColumn == column; });
}

/// What a new user has in place of an expiry date until the checks empty it.
inline constexpr auto kNoDateYet = "YY-MM-DD";

/// A user as the editor makes one.
inline UserRecord NewUser() {
    return {.USERID = "NewUser", .PASSWORD = "", .IDENTIFIER = "", .EXPDATE = kNoDateYet, .STATUS = "A"};
}

/// A user whose texts are what a function gives for each field.
template <typename TextOf>
UserRecord UserOf(TextOf textOf) {
    UserRecord user;
    for (const auto& field : kUserFields) {
        user.*field.member = textOf(field);
    }
    return user;
}

/// The user in a row of the grid. Run-time error 9 when there is no such row.
inline UserRecord UserInRow(const GridCells& grid, int row) {
    return UserOf([&](const auto& field) { return grid.Text(row, field.gridColumn); });
}

/// Appends the cells of a user's row in the grid, joined by TAB.
inline void AppendGridRow(const UserRecord& user, std::string& text) {
    std::array<std::string_view, kUsersColumns> cells;
    for (const auto& field : kUserFields) {
        cells[field.gridColumn] = user.*field.member;
    }
    text.append(cells.front());
    for (auto cell = cells.begin() + 1; cell != cells.end(); ++cell) {
        text.append(1, '\t').append(*cell);
    }
}

/// The same as a text of its own.
inline std::string GridRow(const UserRecord& user) {
    std::string row;
    AppendGridRow(user, row);
    return row;
}

} // namespace zy
