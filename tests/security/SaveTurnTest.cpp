// A save of the users while somebody else saves in the same folder.

#include "UsersTest.h"

namespace zy::test {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class UsersSaveTurn : public UsersTest {
  protected:
    UsersSaveTurn() {
        StartOver({User("Ann")});
        Edit(1, kPassword, "new");
        world.files.SetFolderLocked(R"(C:\SYS)");
    }
    /// Nothing was written, and all waits for the next attempt.
    void ExpectRefused() {
        EXPECT_EQ(Status(), "Not saved: somebody else is saving in this folder at this moment; save again");
        EXPECT_THAT(world.recycleBin.Recycled(), IsEmpty());
        EXPECT_THAT(world.files.Names(R"(C:\SYS)"), ElementsAre("ZYSECURE.DBF"));
        EXPECT_EQ(TableUsers(), Users{User("Ann")});
        ExpectSaveEnabled(true);
        ExpectMarks(false, true);
    }
};

TEST_F(UsersSaveTurn, IsWaitedForByTheButton) {
    Save();
    ExpectRefused();
    world.files.SetFolderLocked(R"(C:\SYS)", false);
    Save();
    EXPECT_EQ(Status(), "Saved");
    EXPECT_EQ(TableUsers()->front().PASSWORD, "new");
}

TEST_F(UsersSaveTurn, IsWaitedForByTheMenu) {
    ChooseSave();
    ExpectRefused();
    world.files.SetFolderLocked(R"(C:\SYS)", false);
    ChooseSave();
    ExpectMarks(false, false);
    EXPECT_EQ(TableUsers()->front().PASSWORD, "new");
}

TEST_F(UsersSaveTurn, KeepsTheWindowFromClosing) {
    ExpectWishToSave(Answer::Yes);
    EXPECT_FALSE(window().Unload());
    EXPECT_TRUE(form().Visible());
    ExpectRefused();
    world.files.SetFolderLocked(R"(C:\SYS)", false);
    ExpectWishToSave(Answer::Yes);
    EXPECT_TRUE(window().Unload());
    EXPECT_EQ(TableUsers()->front().PASSWORD, "new");
}

TEST_F(UsersSaveTurn, IsWaitedForBeforeATableWithoutUsersIsRecycled) {
    grid().Pick(1, 0);
    Delete(Answer::Yes);
    Save();
    ExpectRefused();
    ChooseSave();
    ExpectRefused();
}

/// Notes which folders are held whenever it is asked to take a file, and takes none.
class WatchingBin final : public RecycleBin {
  public:
    explicit WatchingBin(MemoryFileSystem& files) : files_(files) {}
    int Delete(std::string_view) override {
        held.emplace_back(files_.LockedFolders().begin(), files_.LockedFolders().end());
        return 1;
    }
    std::vector<std::vector<std::string>> held;

  private:
    MemoryFileSystem& files_;
};

class HeldUsersFolder : public UsersTest {
  protected:
    World Outside() override { return world.With(bin); }
    const std::vector<std::string> kSystem{R"(C:\SYS)"};
    WatchingBin bin{world.files};
};

TEST_F(HeldUsersFolder, IsThatOfTheTableUntilItsIndexIsWritten) {
    world.files.Put(kUsersIndex, "old index");
    Start("@SECURITY");
    Edit(1, kPassword, "p");
    Edit(1, kIdentification, "i");
    EXPECT_EQ(RaisedBy([&] { Save(); }).Number(), 3284) << "the old index stays where it is";
    EXPECT_THAT(bin.held, ElementsAre(kSystem));
    EXPECT_THAT(world.files.LockedFolders(), IsEmpty()) << "the turn is over, also after an error";
}

TEST_F(HeldUsersFolder, IsTheSystemDirectoryForTheMenuWithoutUsers) {
    PutTable({User("Ann")}, R"(D:\SHARED\)");
    PutTable({User("Old")});
    world.files.Put(R"(C:\SYS\ZYSECURE.ZYX)", "ZYSECURE.SECURITYFILE=D:\\SHARED\\ZYSECURE.DBF\r\n");
    Start("@SECURITY");
    grid().Pick(1, 0);
    Delete(Answer::Yes);
    ChooseSave();
    EXPECT_THAT(bin.held, ElementsAre(kSystem));
    controls().cmdSaveUsers.SetEnabled(true);
    Save();
    EXPECT_THAT(bin.held, Contains(std::vector<std::string>{R"(D:\SHARED)"}));
}

} // namespace
} // namespace zy::test
