#pragma once

#include <string>

namespace zy {

/// A user, as the table holds one: the fields in the order of its columns.
struct UserRecord {
    std::string USERID;     ///< the name, at most 10 characters
    std::string PASSWORD;   ///< at most 20 characters, as typed
    std::string IDENTIFIER; ///< free text, at most 20 characters
    std::string EXPDATE;    ///< "YY-MM-DD"; empty when the user does not expire
    std::string STATUS;     ///< "A" is active, "I" is inactive

    friend bool operator==(const UserRecord&, const UserRecord&) = default;
};

/// The fields of a user.
inline constexpr int kUserFields = 5;

/// What a new user has in place of an expiry date until the checks empty it.
inline constexpr auto kNoDateYet = "YY-MM-DD";

/// A user as the editor makes one.
inline UserRecord NewUser() {
    return {.USERID = "NewUser", .PASSWORD = "", .IDENTIFIER = "", .EXPDATE = kNoDateYet, .STATUS = "A"};
}

/// The cells of a user's row in the grid, joined by TAB.
inline std::string GridRow(const UserRecord& user) {
    return user.USERID + '\t' + user.PASSWORD + '\t' + user.STATUS + '\t' + user.EXPDATE + '\t' +
           user.IDENTIFIER;
}

} // namespace zy
