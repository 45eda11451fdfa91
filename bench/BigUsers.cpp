#include <chrono>

#include "BigFile.h"
#include "dbase/DBEngine.h"
#include "platform/memory/MemoryWorld.h"

namespace zy::bench {

std::string UsersTableOf(int users) {
    using namespace std::chrono_literals;
    MemoryWorld world;
    world.files.AddFolder(R"(C:\SYS)");
    dbase::DBEngine engine(world.files, [] { return 2026y / 11 / 20; });
    const auto database = engine.OpenDatabase(R"(C:\SYS\)", false, false, "dBase III");
    database->Execute("CREATE TABLE U (USERID TEXT (10), PASSWORD TEXT (20), IDENTIFIER TEXT(20), "
                      "EXPDATE TEXT (8), STATUS TEXT(1))");
    for (int i = 0; i < users; ++i) {
        const auto number = std::to_string(i);
        database->Execute("INSERT INTO U (USERID, PASSWORD, IDENTIFIER, EXPDATE, STATUS) VALUES ('U" +
                          number + "', 'secret" + number + "', 'The user " + number + "', '27-01-31', 'A')");
    }
    database->Close();
    return *world.files.Get(R"(C:\SYS\U.DBF)");
}

} // namespace zy::bench
