// What a person is told about the files that a failed save leaves behind.

#include <utility>

#include "UsersTest.h"
#include "support/TableBytes.h"

namespace zy::test {
namespace {

using dbase::test::TableBytes;
using ::testing::EndsWith;
using ::testing::HasSubstr;

class SaveHints : public UsersTest {
  protected:
    SaveHints() {
        StartOver({User("Ann")});
        LeaveTableUnwatched();
        Edit(1, kPassword, "new");
    }
    /// Saves, with this operation failing once.
    RuntimeError RaisedBySave(std::size_t failing = 0) {
        world.files.Plan({.operation = failing});
        const auto error = RaisedBy([&] { Save(); });
        world.files.Plan({});
        return error;
    }

    /// What the box says when nothing fails but that a temporary table of these bytes is there.
    std::string SaidOf(std::string_view temporary) {
        world.files.Put(kUsersTemporary, temporary);
        const auto error = RaisedBySave();
        EXPECT_EQ(error.Number(), 3010);
        constexpr std::string_view kFront =
            "Table 'ZYSECURE.TMP' already exists: the file 'C:\\SYS\\ZYSECURE.TMP' stands in the way."
            "\n\nAnother program may be saving at this moment."
            "\n\nThe file C:\\SYS\\ZYSECURE.TMP stands in the way of the next save. ";
        EXPECT_THAT(error.Description(), ::testing::StartsWith(kFront));
        EXPECT_EQ(world.files.Get(kUsersTemporary), temporary);
        return error.Description().substr(kFront.size());
    }
    static TableBytes TwoUsersAndADeletedOne() {
        return dbase::test::UserTable()
            .Add(' ', {"Ann", "pw", "id", "", "A"})
            .Add('*', {"Cid", "pw", "id", "", "A"})
            .Add(' ', {"Bob", "pw", "id", "", "A"});
    }

    static constexpr std::size_t kWriteUsers = 13;
    static constexpr std::size_t kFlushUsers = 14;
    static constexpr std::size_t kRename = 17;
    static constexpr auto kStands = "\n\nThe file C:\\SYS\\ZYSECURE.TMP stands in the way of the next save. ";
    static constexpr auto kTableStands = " C:\\SYS\\ZYSECURE.DBF is in place.";
    static constexpr auto kMove = " Move the file to another folder before you save again.";
    static constexpr auto kRestore = " Rename the file to ZYSECURE.DBF to have its users back.";
};

TEST_F(SaveHints, ATemporaryTableThatIsThereMayBeThatOfAnotherProgramAndItsUsersAreCounted) {
    const std::string rest = std::string(kTableStands) + " If nobody is saving:" + kMove;
    EXPECT_EQ(SaidOf(TwoUsersAndADeletedOne().Bytes()), "It holds 2 users." + rest);
    EXPECT_EQ(SaidOf(dbase::test::UserTable().Bytes()), "It holds no users." + rest);
    auto cut = TwoUsersAndADeletedOne();
    cut.count = 9;
    EXPECT_EQ(SaidOf(cut.Bytes()), "It holds 2 users and is damaged." + rest);
    EXPECT_EQ(SaidOf("left over"), "'C:\\SYS\\ZYSECURE.TMP' cannot be read: it has 9 bytes, a table at least "
                                   "33." +
                                       rest);
    world.files.SetUnreadable(kUsersTemporary);
    EXPECT_EQ(SaidOf("left over"), "'C:\\SYS\\ZYSECURE.TMP' cannot be opened: access is denied." + rest);
}

TEST_F(SaveHints, WithoutATableTheUsersOfATemporaryOneAreToBeBroughtBackAndOthersAreMovedAway) {
    world.files.Take(kUsersTable);
    const std::string none = " There is no C:\\SYS\\ZYSECURE.DBF. If nobody is saving:";
    EXPECT_EQ(SaidOf(TwoUsersAndADeletedOne().Bytes()), "It holds 2 users." + none + kRestore);
    EXPECT_EQ(SaidOf(dbase::test::UserTable().Bytes()), "It holds no users." + none + kMove);
    EXPECT_EQ(SaidOf(TwoUsersAndADeletedOne().Add('x', {"", "", "", "", ""}).Bytes()),
              "It holds 2 users and is damaged." + none + kMove)
        << "the program would refuse it";
}

TEST_F(SaveHints, ATableThatWasNotWrittenToItsEndSaysHowManyOfItsUsersItHolds) {
    world.files.Take(kUsersTable);
    StartOver(Users(10, User("Ann")));
    LeaveTableUnwatched();
    for (int row = 1; row <= 10; ++row) {
        Edit(row, kUserName, "u" + std::to_string(row));
    }
    for (const auto& [cut, holds] :
         {std::pair(true, "It holds 3 of 10 users and is damaged."),
          std::pair(false, "'C:\\SYS\\ZYSECURE.TMP' cannot be read: it has 0 bytes, a table at least 33.")}) {
        world.files.Take(kUsersTemporary);
        world.files.Plan({.operation = kWriteUsers, .cutShort = cut});
        const auto error = RaisedBy([&] { Save(); });
        world.files.Plan({});
        EXPECT_EQ(error.Number(), 3043);
        EXPECT_EQ(error.Description(),
                  "'C:\\SYS\\ZYSECURE.TMP' cannot be written: the disk reported an error." +
                      std::string(kStands) + holds + kTableStands + kMove);
    }
}

TEST_F(SaveHints, AWholeTableBesideTheOldOneIsNoneToBeRenamed) {
    const auto error = RaisedBySave(kFlushUsers);
    EXPECT_EQ(error.Number(), 3043);
    EXPECT_EQ(error.Description(), "'C:\\SYS\\ZYSECURE.TMP' cannot be written: the disk reported an error." +
                                       std::string(kStands) + "It holds 1 of 1 user." + kTableStands + kMove);
}

TEST_F(SaveHints, AStatementThatFailsLeavesATableWithoutUsersAndTheOldOneInPlace) {
    Edit(1, kPassword, "'");
    const auto error = RaisedBySave();
    EXPECT_EQ(error.Number(), 3134);
    EXPECT_THAT(error.Description(),
                EndsWith(std::string(kStands) + "It holds no users." + kTableStands + kMove));
}

TEST_F(SaveHints, TheOnlyFileThatHoldsTheUsersIsToGetItsNameAndTheOldTableLiesInTheRecycleBin) {
    const auto error = RaisedBySave(kRename);
    EXPECT_EQ(error.Number(), 75);
    EXPECT_EQ(error.Description(), "Path/File access error: C:\\SYS\\ZYSECURE.DBF could not be replaced, "
                                   "the disk reported an error" +
                                       std::string(kStands) +
                                       "It holds 1 of 1 user. There is no C:\\SYS\\ZYSECURE.DBF: the old one "
                                       "is in the recycle bin." +
                                       kRestore);
    EXPECT_FALSE(world.files.Exists(kUsersTable));
    EXPECT_EQ(world.recycleBin.Recycled().back().path, kUsersTable);
}

TEST_F(SaveHints, NameTheFilesAsPeopleNameThem) {
    world.files.SetDisplayed(R"(C:\SYS)", "/home/u");
    EXPECT_THAT(RaisedBySave(kRename).Description(),
                ::testing::AllOf(::testing::StartsWith("Path/File access error: /home/u/ZYSECURE.DBF could"),
                                 ::testing::HasSubstr("The file /home/u/ZYSECURE.TMP stands in the way"),
                                 ::testing::HasSubstr("There is no /home/u/ZYSECURE.DBF: the old one")));
}

TEST_F(SaveHints, NameATableThatIsInPlaceAsPeopleNameIt) {
    world.files.SetDisplayed(R"(C:\SYS)", "/home/u");
    world.recycleBin.SetResult(1);
    EXPECT_THAT(RaisedBySave().Description(), ::testing::HasSubstr(" /home/u/ZYSECURE.DBF is in place."));
}

TEST_F(SaveHints, UsersWhoStandInTheTemporaryTableAreBackWhenItGetsItsName) {
    RaisedBySave(kRename);
    ASSERT_EQ(world.files.Rename(kUsersTemporary, kUsersTable), FileError::None);
    Start("@SECURITY");
    EXPECT_THAT(Rows(), ::testing::ElementsAre("Ann|new|A||id of Ann"));
}

TEST_F(SaveHints, ATableThatCannotBeRecycledStaysAndThatIsNamed) {
    world.recycleBin.SetResult(1);
    const auto before = world.files.Get(kUsersTable);
    const auto error = RaisedBySave();
    EXPECT_EQ(error.Number(), 75);
    EXPECT_EQ(error.Description(),
              "Path/File access error: C:\\SYS\\ZYSECURE.DBF could not be moved to the "
              "recycle bin and could not be replaced, a file of that name is in the way" +
                  std::string(kStands) + "It holds 1 of 1 user." + kTableStands + kMove);
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
