// What a person is told about the files that a failed save leaves behind.

#include "UsersTest.h"

namespace zy::test {
namespace {

using ::testing::EndsWith;
using ::testing::HasSubstr;

class SaveHints : public UsersTest {
  protected:
    SaveHints() {
        StartOver({User("Ann")});
        Edit(1, kPassword, "new");
    }
    /// Saves, with this operation failing once.
    RuntimeError RaisedBySave(std::size_t failing = 0) {
        world.files.Plan({.operation = failing});
        const auto error = RaisedBy([&] { Save(); });
        world.files.Plan({});
        return error;
    }

    static constexpr std::size_t kRename = 17;
    static constexpr auto kMayGo =
        "\n\nThe file C:\\SYS\\ZYSECURE.TMP stands in the way of the next save. It may be removed.";
    static constexpr auto kMustStay =
        "\n\nThe file C:\\SYS\\ZYSECURE.TMP stands in the way of the next save. There is no "
        "C:\\SYS\\ZYSECURE.DBF, so it may be all that holds the users: give it that name.";
};

TEST_F(SaveHints, TheTemporaryTableMayBeRemovedWhileTheOldOneIsThere) {
    world.files.Put(kUsersTemporary, "left over");
    const auto error = RaisedBySave();
    EXPECT_EQ(error.Number(), 3010);
    EXPECT_EQ(error.Description(), "Table 'ZYSECURE.TMP' already exists: the file 'C:\\SYS\\ZYSECURE.TMP' "
                                   "stands in the way." +
                                       std::string(kMayGo));
}

TEST_F(SaveHints, NobodyIsToldToRemoveTheOnlyFileThatHoldsTheUsers) {
    const auto error = RaisedBySave(kRename);
    EXPECT_EQ(error.Number(), 75);
    EXPECT_EQ(error.Description(), "Path/File access error: C:\\SYS\\ZYSECURE.DBF could not be replaced, "
                                   "the disk reported an error" +
                                       std::string(kMustStay));
    EXPECT_FALSE(world.files.Exists(kUsersTable));

    Start("@SECURITY"); // without a table as for the first time
    Edit(1, kPassword, "p");
    Edit(1, kIdentification, "i");
    const auto next = RaisedBySave();
    EXPECT_EQ(next.Number(), 3010);
    EXPECT_THAT(next.Description(), EndsWith(kMustStay));
}

TEST_F(SaveHints, UsersWhoStandInTheTemporaryTableAreBackWhenItGetsItsName) {
    RaisedBySave(kRename);
    ASSERT_EQ(world.files.Rename(kUsersTemporary, kUsersTable), FileError::None);
    Start("@SECURITY");
    EXPECT_THAT(Rows(), ::testing::ElementsAre("Ann|new|A||id of Ann"));
}

TEST_F(SaveHints, ATableThatAnotherProgramHoldsStaysAndTheNewOneIsNamed) {
    world.files.SetHeldOpen(kUsersTable);
    world.recycleBin.SetResult(1);
    const auto before = world.files.Get(kUsersTable);
    const auto error = RaisedBySave();
    EXPECT_EQ(error.Number(), 75);
    EXPECT_THAT(error.Description(), EndsWith(kMayGo));
    EXPECT_EQ(world.files.Get(kUsersTable), before);
}

TEST_F(SaveHints, ATemporaryTableThatIsAFolderIsNamed) {
    world.files.AddFolder(kUsersTemporary);
    const auto error = RaisedBySave();
    EXPECT_EQ(error.Number(), 3051);
    EXPECT_EQ(error.Description(),
              R"('C:\SYS\ZYSECURE.TMP' cannot be written: a folder of that name is in the way.)");
    EXPECT_EQ(TableUsers(), Users{User("Ann")});
}

TEST_F(SaveHints, AnIndexThatIsAFolderIsNamedOnceTheUsersAreSaved) {
    world.files.AddFolder(kUsersIndex);
    const auto error = RaisedBySave();
    EXPECT_EQ(error.Number(), 3051);
    EXPECT_EQ(error.Description(),
              R"('C:\SYS\ZYSECURE.NDX' cannot be written: a folder of that name is in the way.)");
    EXPECT_EQ(TableUsers()->front().PASSWORD, "new");
}

TEST_F(SaveHints, AnIndexThatCannotBeRecycledIsNamedOnceTheUsersAreSaved) {
    world.files.Take(kUsersTable); // so that the bin is asked for the index alone
    world.files.Put(kUsersIndex, "old index");
    world.recycleBin.SetResult(1);
    const auto error = RaisedBySave();
    EXPECT_EQ(error.Number(), 3284);
    EXPECT_THAT(error.Description(), HasSubstr(R"(the file 'C:\SYS\ZYSECURE.NDX' stands in the way)"));
    EXPECT_EQ(TableUsers()->front().PASSWORD, "new");
    EXPECT_EQ(world.files.Get(kUsersIndex), "old index");
}

} // namespace
} // namespace zy::test
