#include "UsersTest.h"

namespace zy::test {
namespace {

/// What keeps a save from going well is told before anything is edited.
class UsersObstacles : public UsersTest {
  protected:
    static constexpr auto kFolder = R"(C:\SYS)";
    static constexpr auto kTold =
        "1 user; ZYSECURE.DBF cannot be written now: access is denied; open the editor as its "
        "owner or an administrator";
};

TEST_F(UsersObstacles, AFolderThatMayNotBeWrittenIsToldUntilASaveGoesWell) {
    PutTable({User("Ann")});
    world.files.SetFolderReadOnly(kFolder);
    Start("@SECURITY");
    EXPECT_EQ(Status(), kTold);
    Edit(1, kPassword, "new");
    EXPECT_EQ(Status(), kTold);
    world.files.SetFolderReadOnly(kFolder, false);
    Save();
    Edit(1, kPassword, "newer");
    EXPECT_EQ(Status(), "1 user");
}

TEST_F(UsersObstacles, AreToldWithoutATableToo) {
    world.files.SetFolderReadOnly(kFolder);
    Start("@SECURITY");
    EXPECT_EQ(Status(), kTold);
}

} // namespace
} // namespace zy::test
