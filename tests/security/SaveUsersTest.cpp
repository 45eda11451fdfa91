#include "UsersTest.h"

namespace zy::test {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;

class SaveUsers : public UsersTest {};

TEST_F(SaveUsers, TheTableHoldsTheGridsRows) {
    StartOver({User("Ann"), User("Bob")});
    Edit(2, kExpiryDate, "30-01-02");
    Save();
    auto bob = User("Bob");
    bob.EXPDATE = "30-01-02";
    EXPECT_EQ(TableUsers(), (Users{User("Ann"), bob}));
    EXPECT_EQ(world.files.Names(R"(C:\SYS)"), (std::vector<std::string>{"ZYSECURE.DBF", "ZYSECURE.NDX"}));
    EXPECT_EQ(Status(), "Saved");
}

TEST_F(SaveUsers, ANewUserIsStoredWithoutAnExpiryDate) {
    Start("@SECURITY");
    Edit(1, kPassword, "p");
    Edit(1, kIdentification, "i");
    Edit(1, kStatus, "");
    Save();
    EXPECT_EQ(
        TableUsers(),
        (Users{{.USERID = "NewUser", .PASSWORD = "p", .IDENTIFIER = "i", .EXPDATE = "", .STATUS = "I"}}));
}

TEST_F(SaveUsers, TracesItsStepsInTheirOrder) {
    StartOver({User("Ann")});
    Edit(1, kPassword, "p");
    Traces();
    Save();
    EXPECT_THAT(Traces(),
                ElementsAre("frmGlobalSettings cmdSaveUsers_Click Start", "mSecurity Validate_Security Start",
                            "mSecurity Save_Security Start", "mSecurity Write_Security Start",
                            "mSecurity Write_Security Security File Write Success",
                            "mSecurity WriteDBIndex Start"));
}

TEST_F(SaveUsers, ThePagesButtonClearsTheWindowsMarkAndTheMenuTheUsersMark) {
    StartOver({User("Ann")});
    Edit(1, kPassword, "p");
    form().ChangeFlag = true;
    Save();
    ExpectMarks(false, true);
    ExpectSaveEnabled(false);
    Edit(1, kPassword, "q");
    ChooseSave();
    ExpectMarks(false, false);
    ExpectSaveEnabled(false);
}

TEST_F(SaveUsers, AFailedCheckWritesNothing) {
    StartOver({User("Ann")});
    const auto before = world.files.Get(kUsersTable);
    Edit(1, kPassword, "");
    world.dialogs.ExpectMessage("Invalid Password. Password Cannot be blank", "ZY Setup");
    Save();
    EXPECT_EQ(world.files.Get(kUsersTable), before);
    ExpectSaveEnabled(true);
    ExpectMarks(false, true);
}

TEST_F(SaveUsers, AnOpenEditIsCommittedFirst) {
    StartOver({User("Ann"), User("Bob")});
    grid().Pick(1, kPassword);
    grid().TypeOver("by button");
    controls().cmdSaveUsers.SetEnabled(true);
    Save();
    EXPECT_EQ(TableUsers()->front().PASSWORD, "by button");
    grid().Pick(1, kPassword);
    grid().TypeOver("by menu");
    ChooseSave();
    EXPECT_EQ(TableUsers()->front().PASSWORD, "by menu");
    grid().Pick(1, kPassword);
    grid().TypeOver("by closing");
    ExpectWishToSave(Answer::Yes);
    window().Unload();
    EXPECT_EQ(TableUsers()->front().PASSWORD, "by closing");
}

TEST_F(SaveUsers, TheIndexListsTheUsersByName) {
    StartOver({User("Cid"), User("Ann"), User("Bob")});
    Edit(1, kPassword, "p");
    Save();
    const auto index = *world.files.Get(kUsersIndex);
    ASSERT_EQ(index.size(), 1024U);
    EXPECT_EQ(index.substr(24, 6), "USERID");
    constexpr std::size_t kFirstEntry = 512 + 4;
    constexpr std::size_t kEntrySize = 20;
    std::vector<std::string> keys;
    for (std::size_t entry = 0; entry < 3; ++entry) {
        keys.push_back(index.substr(kFirstEntry + entry * kEntrySize + 8, 10));
    }
    EXPECT_THAT(keys, ElementsAre("Ann       ", "Bob       ", "Cid       "));
}

TEST_F(SaveUsers, TheOldTableAndItsIndexGoToTheRecycleBin) {
    StartOver({User("Ann")});
    world.files.Put(kUsersIndex, "old index");
    Edit(1, kPassword, "p");
    Save();
    ASSERT_EQ(world.recycleBin.Recycled().size(), 2U);
    EXPECT_EQ(world.recycleBin.Recycled()[0].path, kUsersTable);
    EXPECT_EQ(world.recycleBin.Recycled()[1].path, kUsersIndex);
}

TEST_F(SaveUsers, WithoutUsersTheTableAndItsIndexGoInsteadOfBeingWritten) {
    StartOver({User("Ann")});
    world.files.Put(kUsersIndex, "index");
    grid().Pick(1, 0);
    Delete(Answer::Yes);
    Save();
    EXPECT_THAT(world.files.Names(R"(C:\SYS)"), IsEmpty());
    ExpectSaveEnabled(false);
    EXPECT_THAT(Traces(), Not(Contains("mSecurity Write_Security Start")));
}

TEST_F(SaveUsers, TheTableIsWrittenUnderItsNameInTheFolderThatTheLocationNames) {
    PutTable({User("Ann")}, R"(C:\ELSE\)");
    ASSERT_EQ(world.files.Rename(R"(C:\ELSE\ZYSECURE.DBF)", R"(C:\ELSE\PEOPLE.DBF)"), FileError::None);
    world.files.Put(R"(C:\SYS\ZYSECURE.ZYX)", "ZYSECURE.SECURITYFILE=C:\\ELSE\\PEOPLE.DBF\r\n");
    Start("@SECURITY");
    Edit(1, kPassword, "p");
    Save();
    EXPECT_EQ(world.files.Names(R"(C:\ELSE)"),
              (std::vector<std::string>{"PEOPLE.DBF", "ZYSECURE.DBF", "ZYSECURE.NDX"}));
    EXPECT_EQ(TableUsers(R"(C:\ELSE\)")->front().PASSWORD, "p");
}

TEST_F(SaveUsers, WithoutUsersTheButtonRecyclesInTheTablesFolderAndTheMenuInTheSystemFolder) {
    PutTable({User("Ann")}, R"(C:\ELSE\)");
    PutTable({User("Old")});
    world.files.Put(R"(C:\SYS\ZYSECURE.ZYX)", "ZYSECURE.SECURITYFILE=C:\\ELSE\\ZYSECURE.DBF\r\n");
    Start("@SECURITY");
    grid().Pick(1, 0);
    Delete(Answer::Yes);
    ChooseSave();
    EXPECT_FALSE(world.files.Exists(kUsersTable)) << "meant: the menu knows the system folder alone";
    EXPECT_TRUE(world.files.Exists(R"(C:\ELSE\ZYSECURE.DBF)"));
    controls().cmdSaveUsers.SetEnabled(true);
    Save();
    EXPECT_FALSE(world.files.Exists(R"(C:\ELSE\ZYSECURE.DBF)"));
}

TEST_F(SaveUsers, WithoutUsersEachOfTheTwoFilesGoesWhereItExists) {
    StartOver({User("Ann")});
    LeaveTableUnwatched();
    world.files.Put(kUsersIndex, "index");
    grid().Pick(1, 0);
    Delete(Answer::Yes);
    world.files.Take(kUsersTable);
    ChooseSave();
    ASSERT_EQ(world.recycleBin.Recycled().size(), 1U);
    EXPECT_EQ(world.recycleBin.Recycled()[0].path, R"(C:\SYS\ZYSECURE.ndx)");
    ChooseSave();
    EXPECT_EQ(world.recycleBin.Recycled().size(), 1U);
    world.files.Put(kUsersTable, "again");
    ChooseSave();
    ASSERT_EQ(world.recycleBin.Recycled().size(), 2U);
    EXPECT_EQ(world.recycleBin.Recycled()[1].path, kUsersTable);
}

TEST_F(SaveUsers, WithoutUsersTheSaveGoesOnWhenTheRecycleBinFails) {
    StartOver({User("Ann")});
    grid().Pick(1, 0);
    Delete(Answer::Yes);
    world.recycleBin.SetResult(5);
    ChooseSave();
    EXPECT_TRUE(world.files.Exists(kUsersTable));
    ExpectSaveEnabled(false);
    ExpectMarks(false, false);
}

TEST_F(SaveUsers, ClosingWithoutUsersMovesTheTableToTheRecycleBin) {
    StartOver({User("Ann")});
    grid().Pick(1, 0);
    Delete(Answer::Yes);
    ExpectWishToSave(Answer::Yes);
    EXPECT_TRUE(window().Unload());
    EXPECT_THAT(world.files.Names(R"(C:\SYS)"), IsEmpty());
    EXPECT_EQ(world.recycleBin.Recycled().size(), 1U);
}

TEST_F(SaveUsers, ASingleQuoteBreaksTheStatementAndTheOldTableSurvives) {
    StartOver({User("Ann"), User("Bob")});
    const auto before = world.files.Get(kUsersTable);
    Edit(2, kUserName, "O'Neil");
    const auto error = RaisedBy([&] { Save(); });
    EXPECT_EQ(error.Number(), 3134);
    EXPECT_THAT(error.Description(),
                HasSubstr("The file C:\\SYS\\ZYSECURE.TMP stands in the way of the next save"));
    EXPECT_THAT(error.Description(), Not(HasSubstr("secret")));
    EXPECT_EQ(world.files.Get(kUsersTable), before);
    EXPECT_TRUE(world.files.Exists(kUsersTemporary));
    EXPECT_EQ(RaisedBy([&] { Save(); }).Number(), 3010) << "the next save finds it in the way";
    EXPECT_EQ(world.files.Get(kUsersTable), before);
}

TEST_F(SaveUsers, ANewTableIsItsOwnersAloneAndALaterOneKeepsThePermissions) {
    Start("@SECURITY");
    Edit(1, kPassword, "p");
    Edit(1, kIdentification, "i");
    Save();
    EXPECT_EQ(world.files.Permissions(kUsersTable), MemoryFileSystem::kPrivatePermissions);
    world.files.SetPermissions(kUsersTable, 0640);
    Edit(1, kPassword, "q");
    Save();
    EXPECT_EQ(world.files.Permissions(kUsersTable), 0640U);
    EXPECT_EQ(world.files.Permissions(kUsersIndex), 0640U);
}

TEST_F(SaveUsers, ClosingWithAFailedCheckKeepsTheWindow) {
    StartOver({User("Ann")});
    Edit(1, kPassword, "");
    ExpectWishToSave(Answer::Yes);
    world.dialogs.ExpectMessage("Invalid Password. Password Cannot be blank", "ZY Setup");
    EXPECT_FALSE(window().Unload());
    EXPECT_TRUE(form().Visible());
    ExpectWishToSave(Answer::No);
    EXPECT_TRUE(window().Unload());
    EXPECT_EQ(TableUsers(), Users{User("Ann")});
}

TEST_F(SaveUsers, AccentsAreStoredAsTyped) {
    StartOver({User("Ann")});
    Edit(1, kUserName, "Ren\xE9");
    Save();
    EXPECT_EQ(TableUsers()->front().USERID, "Ren\xE9");
    EXPECT_EQ(static_cast<unsigned char>((*world.files.Get(kUsersTable))[29]), 0x03)
        << "the code page is named";
}

} // namespace
} // namespace zy::test
