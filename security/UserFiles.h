#pragma once

#include <string>
#include <string_view>

namespace zy {

// The names of the users' files. The table is always written under this one, also where the location file
// names another one that it was read from.
inline constexpr std::string_view kUsersTableName = "ZYSECURE.DBF";
inline constexpr std::string_view kUsersTemporaryName = "ZYSECURE.TMP";
inline constexpr std::string_view kUsersIndexName = "ZYSECURE.NDX";
/// As the table engine names the index, whose file it is.
inline constexpr std::string_view kUsersIndex = kUsersIndexName.substr(0, kUsersIndexName.rfind('.'));
/// The spelling in which the index is looked for that goes with the last user.
inline constexpr std::string_view kRecycledIndexName = "ZYSECURE.ndx";
/// The settings file in the system directory that may name the place of the table.
inline constexpr std::string_view kSecurityLocationFile = "ZYSECURE.ZYX";

/// The paths of the users' files in a folder, which ends with "\".
struct UserFiles {
    explicit UserFiles(std::string_view folder)
        : table(std::string(folder).append(kUsersTableName)),
          temporary(std::string(folder).append(kUsersTemporaryName)),
          index(std::string(folder).append(kUsersIndexName)) {}

    std::string table;
    std::string temporary; ///< the new table until it takes the place of the old one
    std::string index;
};

} // namespace zy
