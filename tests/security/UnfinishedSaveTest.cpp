// What the editor says when it opens beside the temporary table of a save that did not come to its end.

#include "UsersTest.h"
#include "support/TableBytes.h"

namespace zy::test {
namespace {

using ::testing::ElementsAre;

class AfterAnUnfinishedSave : public UsersTest {
  protected:
    /// Leaves two users in the temporary table alone, as a program does that ends between two steps.
    void LeaveTemporaryAlone() {
        PutTable({User("Ann"), User("Bob")});
        ASSERT_EQ(world.files.Rename(kUsersTable, kUsersTemporary), FileError::None);
    }
    std::string StatusBesideTable(std::string_view temporary) {
        world.files.Put(kUsersTemporary, temporary);
        Start("@SECURITY");
        EXPECT_EQ(world.files.Get(kUsersTemporary), temporary);
        return Status();
    }
};

TEST_F(AfterAnUnfinishedSave, TheUsersInTheTemporaryTableAloneAreCountedAndCanBeBroughtBack) {
    LeaveTemporaryAlone();
    EXPECT_EQ(Start("@SECURITY"), StartUp::WindowShown);
    EXPECT_THAT(Rows(), ElementsAre("NewUser||A|YY-MM-DD|"));
    const std::string status =
        "1 user; there is no ZYSECURE.DBF, but ZYSECURE.TMP holds 2 users: rename it to "
        "ZYSECURE.DBF and start again";
    EXPECT_EQ(Status(), status);
    Edit(1, kPassword, "p");
    EXPECT_EQ(Status(), status) << "until it is seen to";

    ASSERT_EQ(world.files.Rename(kUsersTemporary, kUsersTable), FileError::None);
    Start("@SECURITY");
    EXPECT_EQ(Status(), "2 users");
}

TEST_F(AfterAnUnfinishedSave, ATemporaryTableAloneThatGivesNoUsersBackIsOnlyInTheWay) {
    LeaveTemporaryAlone();
    auto bytes = *world.files.Get(kUsersTemporary);
    bytes.resize(193 + 60);
    EXPECT_EQ(StatusBesideTable(bytes),
              "1 user; there is no ZYSECURE.DBF, but ZYSECURE.TMP holds 1 user and is "
              "damaged and stops every save: move it to another folder");
    EXPECT_EQ(
        StatusBesideTable(dbase::test::UserTable().Bytes()),
        "1 user; there is no ZYSECURE.DBF, but ZYSECURE.TMP holds no users and stops every save: move it "
        "to another folder");
    EXPECT_EQ(StatusBesideTable("x"), "1 user; there is no ZYSECURE.DBF, but ZYSECURE.TMP cannot be read and "
                                      "stops every save: move it to another folder");
}

TEST_F(AfterAnUnfinishedSave, ATemporaryTableBesideTheTableStopsEverySave) {
    LeaveTemporaryAlone();
    PutTable({User("Ann")});
    Start("@SECURITY");
    EXPECT_EQ(Status(), "1 user; ZYSECURE.TMP holds 2 users and stops every save: move it to another folder");
    Edit(1, kPassword, "new");
    EXPECT_EQ(RaisedBy([&] { Save(); }).Number(), 3010) << "which is what was said";
    world.files.Take(kUsersTemporary);
    Save();
    Edit(1, kPassword, "newer");
    EXPECT_EQ(Status(), "1 user");
}

TEST_F(AfterAnUnfinishedSave, WhatASaveWillDropIsSaidBehindIt) {
    auto table = dbase::test::UserTable().Add(' ', {"Ann", "pw", "id", "", "A"});
    table.Add('*', {"Bob", "pw", "id", "", "A"});
    world.files.Put(kUsersTable, table.Bytes());
    EXPECT_EQ(StatusBesideTable("x"), "1 user; ZYSECURE.TMP cannot be read and stops every save: move it to "
                                      "another folder; a save will drop 1 deleted user");
}

} // namespace
} // namespace zy::test
