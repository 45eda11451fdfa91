#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "dbase/DBEngine.h"
#include "platform/memory/MemoryWorld.h"
#include "security/UserRecord.h"

namespace zy::test {

using Users = std::vector<UserRecord>;

inline UserRecord User(std::string_view name, std::string_view password = "secret") {
    return {.USERID = std::string(name),
            .PASSWORD = std::string(password),
            .IDENTIFIER = "id of " + std::string(name),
            .EXPDATE = "",
            .STATUS = "A"};
}

/// Puts a table of these users on the disk.
inline void PutUsersTable(MemoryWorld& world, const Users& users, std::string_view folder = R"(C:\SYS\)") {
    dbase::DBEngine engine(world.files, [&world] { return world.system.Today(); });
    const auto database = engine.OpenDatabase(folder, false, false, "dBase III");
    world.files.AddFolder(folder);
    database->Execute("CREATE TABLE [ZYSECURE.DBF] (USERID TEXT (10), PASSWORD TEXT (20), "
                      "IDENTIFIER TEXT(20),EXPDATE TEXT (8), STATUS TEXT(1));");
    for (const auto& user : users) {
        database->Execute("INSERT INTO [ZYSECURE.DBF] (USERID, PASSWORD, IDENTIFIER, EXPDATE, STATUS) "
                          "VALUES ('" +
                          user.USERID + "', '" + user.PASSWORD + "', '" + user.IDENTIFIER + "', '" +
                          user.EXPDATE + "', '" + user.STATUS + "');");
    }
    database->Close();
}

/// The users in a table on the disk; nothing when there is no table.
inline std::optional<Users> UsersInTable(MemoryWorld& world, std::string_view folder = R"(C:\SYS\)") {
    if (!world.files.Exists(std::string(folder) + "ZYSECURE.DBF")) {
        return std::nullopt;
    }
    dbase::DBEngine engine(world.files, [&world] { return world.system.Today(); });
    const auto database = engine.OpenDatabase(folder, false, false, "dBase III");
    const auto records = database->OpenRecordset("ZYSECURE.DBF", dbase::RecordsetType::Dynaset);
    Users users;
    for (; !records->Eof(); records->MoveNext()) {
        const auto value = [&](int column) { return std::string(records->Fields().Item(column).Value()); };
        users.push_back({.USERID = value(0),
                         .PASSWORD = value(1),
                         .IDENTIFIER = value(2),
                         .EXPDATE = value(3),
                         .STATUS = value(4)});
    }
    return users;
}

} // namespace zy::test
