#include "UsersTest.h"

namespace zy::test {
namespace {

using ::testing::HasSubstr;

/// Saves over a disk whose first, second, third ... operation fails.
class FailingUsersDisk : public UsersTest {
  protected:
    static UserRecord Changed() {
        auto user = User("Ann");
        user.PASSWORD = "new";
        return user;
    }

    /// Saves with one operation that fails; afterwards the disk works again. Returns the error's number, 0
    /// when the save went well.
    int SaveOver(FaultPlan plan) {
        for (const auto path : {kUsersTable, kUsersTemporary, kUsersIndex}) {
            world.files.Take(path);
        }
        StartOver({User("Ann"), User("Bob")});
        Edit(1, kPassword, "new");
        world.files.Plan(plan);
        const int error = RaisedBy([&] { Save(); }).Number();
        faults = world.files.Operations().Faults();
        world.files.Plan({});
        return error;
    }

    /// After every failing operation the old users or the new ones stand whole in a file.
    void ExpectNothingLost(FaultPlan plan) {
        const Users before{User("Ann"), User("Bob")};
        const Users after{Changed(), User("Bob")};
        for (plan.operation = 1;; ++plan.operation) {
            SCOPED_TRACE("operation " + std::to_string(plan.operation));
            const int error = SaveOver(plan);
            if (faults == 0) {
                EXPECT_EQ(error, 0);
                EXPECT_EQ(TableUsers(), after);
                break;
            }
            if (const auto users = TableUsers()) {
                EXPECT_TRUE(users == before || users == after);
                EXPECT_TRUE(error != 0 || users == after) << "a save that says nothing must have saved";
            } else {
                EXPECT_NE(error, 0);
                ASSERT_EQ(world.files.Rename(kUsersTemporary, kUsersTable), FileError::None);
                EXPECT_EQ(TableUsers(), after) << "the new table stands in the temporary file";
            }
        }
        EXPECT_GT(plan.operation, 10U);
    }

    std::size_t faults = 0;
};

TEST_F(FailingUsersDisk, ASingleFailureLosesNoUser) {
    ExpectNothingLost({.lasting = false});
}

TEST_F(FailingUsersDisk, ALastingFailureLosesNoUser) {
    ExpectNothingLost({.lasting = true});
}

TEST_F(FailingUsersDisk, ADiskThatIsFullLeavesTheOldTable) {
    StartOver({User("Ann")});
    for (int i = 0; i < 100; ++i) {
        controls().cmdAddUser.Click();
        const int row = grid().cells.Rows() - 1;
        Edit(row, kUserName, "u" + std::to_string(i));
        Edit(row, kPassword, "p");
        Edit(row, kIdentification, "i");
    }
    const auto before = world.files.Get(kUsersTable);
    world.files.SetCapacity(before->size() + 3000);
    const auto error = RaisedBy([&] { Save(); });
    EXPECT_EQ(error.Number(), 3026);
    EXPECT_EQ(world.files.Get(kUsersTable), before);
}

TEST_F(FailingUsersDisk, AFolderThatIsReadOnlyIsARunTimeErrorAndChangesNothing) {
    StartOver({User("Ann")});
    Edit(1, kPassword, "new");
    const auto before = world.files.Get(kUsersTable);
    world.files.SetFolderReadOnly(R"(C:\SYS)");
    EXPECT_EQ(RaisedBy([&] { Save(); }).Number(), 3027);
    EXPECT_EQ(world.files.Get(kUsersTable), before);
}

TEST_F(FailingUsersDisk, ATableThatCannotBeRecycledIsNotReplacedAndTheNewOneIsNamed) {
    StartOver({User("Ann")});
    Edit(1, kPassword, "new");
    world.recycleBin.SetResult(1);
    const auto error = RaisedBy([&] { Save(); });
    EXPECT_EQ(error.Number(), 75);
    EXPECT_THAT(error.Description(), HasSubstr("ZYSECURE.TMP stands in the way of the next save"));
    EXPECT_EQ(TableUsers(), Users{User("Ann")});
    world.files.Take(kUsersTable);
    ASSERT_EQ(world.files.Rename(kUsersTemporary, kUsersTable), FileError::None);
    EXPECT_EQ(TableUsers(), Users{Changed()});
}

} // namespace
} // namespace zy::test
