// Tables of users as a careless copy, a broken disk or another program may leave them.

#include "UsersTest.h"
#include "support/TableBytes.h"

namespace zy::test {
namespace {

using dbase::test::Column;
using dbase::test::TableBytes;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

class BadUsersFiles : public UsersTest {
  protected:
    static TableBytes AnnAndBob() {
        return dbase::test::UserTable()
            .Add(' ', {"Ann", "pw", "id of Ann", "", "A"})
            .Add(' ', {"Bob", "pw", "id of Bob", "30-01-02", "I"});
    }
    static const std::vector<std::string>& AnnAndBobRows() {
        static const std::vector<std::string> rows{"Ann|pw|A||id of Ann", "Bob|pw|I|30-01-02|id of Bob"};
        return rows;
    }

    /// Starting over a table of these bytes raises this, and the table stays as it is.
    void ExpectRefused(const std::string& bytes, int number, const std::string& description) {
        world.files.Put(kUsersTable, bytes);
        const auto error = RaisedBy([&] { Start("@SECURITY"); });
        EXPECT_EQ(error.Number(), number);
        EXPECT_EQ(error.Description(), description);
        EXPECT_EQ(world.files.Get(kUsersTable), bytes);
        EXPECT_FALSE(form().Visible());
    }
    void Open(const TableBytes& table) {
        world.files.Put(kUsersTable, table.Bytes());
        EXPECT_EQ(Start("@SECURITY"), StartUp::WindowShown);
    }
};

// Files that are no tables

TEST_F(BadUsersFiles, OfNoBytesAreRefused) {
    ExpectRefused("", 3274, R"('C:\SYS\ZYSECURE.DBF' cannot be read: it has 0 bytes, a table at least 33.)");
}

TEST_F(BadUsersFiles, ThatAreCutInTheHeaderAreRefused) {
    const auto bytes = AnnAndBob().Bytes();
    ExpectRefused(bytes.substr(0, 20), 3274,
                  R"('C:\SYS\ZYSECURE.DBF' cannot be read: it has 20 bytes, a table at least 33.)");
    ExpectRefused(bytes.substr(0, 192), 3274,
                  R"('C:\SYS\ZYSECURE.DBF' cannot be read: byte 8 says that its header has 193 bytes, )"
                  "but the file has 192.");
}

TEST_F(BadUsersFiles, WithAWrongHeaderSizeAreRefused) {
    auto table = AnnAndBob();
    table.headerSize = 1000;
    ExpectRefused(table.Bytes(), 3274,
                  R"('C:\SYS\ZYSECURE.DBF' cannot be read: byte 8 says that its header has 1000 bytes, )"
                  "but the file has 314.");
    table.headerSize = 161;
    ExpectRefused(table.Bytes(), 3274,
                  R"('C:\SYS\ZYSECURE.DBF' cannot be read: the mark 0D that ends its columns is missing in )"
                  "the 161 bytes of its header.");
}

TEST_F(BadUsersFiles, OfALaterVersionAreRefused) {
    auto table = AnnAndBob();
    table.version = "\x83"; // with a file of memos
    ExpectRefused(table.Bytes(), 3274,
                  R"('C:\SYS\ZYSECURE.DBF' cannot be read: its first byte is 131, which is not that of a )"
                  "dBase III table (3).");
}

TEST_F(BadUsersFiles, ThatMayNotBeReadAreRefused) {
    world.files.SetUnreadable(kUsersTable);
    ExpectRefused(AnnAndBob().Bytes(), 3051, R"('C:\SYS\ZYSECURE.DBF' cannot be opened: access is denied.)");
}

TEST_F(BadUsersFiles, ThatAnotherProgramHoldsAreRefused) {
    world.files.SetHeldOpen(kUsersTable);
    ExpectRefused(AnnAndBob().Bytes(), 3045,
                  R"('C:\SYS\ZYSECURE.DBF' cannot be opened: another program is using it.)");
}

TEST_F(BadUsersFiles, LackingOneOfOurColumnsAreRefused) {
    TableBytes table({{"USERID", 10}, {"PASSWORD", 20}, {"IDENTIFIER", 20}, {"EXPDATE", 8}});
    table.Add(' ', {"Ann", "pw", "id", ""});
    ExpectRefused(table.Bytes(), 3265,
                  R"(Item not found in this collection: the table of users 'C:\SYS\ZYSECURE.DBF' has 4 of )"
                  "the 5 fields of a user.");
}

TEST_F(BadUsersFiles, ThatAreFoldersCountAsNoTableAndTheSaveSaysSo) {
    world.files.AddFolder(kUsersTable);
    EXPECT_EQ(Start("@SECURITY"), StartUp::WindowShown);
    EXPECT_THAT(Rows(), ElementsAre("NewUser||A|YY-MM-DD|"));
    Edit(1, kPassword, "p");
    Edit(1, kIdentification, "i");
    const auto error = RaisedBy([&] { Save(); });
    EXPECT_EQ(error.Number(), 75);
    EXPECT_THAT(error.Description(), HasSubstr("Path/File access error: C:\\SYS\\ZYSECURE.DBF could not be "
                                               "replaced, a folder of that name is in the way"));
    EXPECT_TRUE(world.files.Exists(kUsersTemporary)) << "the users are in here";
}

// Damaged tables: an administrator who cannot be read would turn the login off.

TEST_F(BadUsersFiles, ThatAreCutAtAnyRecordAreRefused) {
    const auto bytes = AnnAndBob().Bytes();
    for (const std::size_t size : {193U, 193U + 59U, 193U + 60U, 193U + 119U}) {
        SCOPED_TRACE(size);
        ExpectRefused(bytes.substr(0, size), 3274,
                      R"('C:\SYS\ZYSECURE.DBF' cannot be read: byte 4 says that it has 2 records, but the )"
                      "file holds " +
                          std::to_string((size - 193) / 60) + ".");
    }
}

TEST_F(BadUsersFiles, WhoseHeaderCountsMoreUsersThanThereAreAreRefused) {
    auto table = AnnAndBob();
    table.count = 3;
    ExpectRefused(table.Bytes(), 3274,
                  R"('C:\SYS\ZYSECURE.DBF' cannot be read: byte 4 says that it has 3 records, but the file )"
                  "holds 2.");
}

TEST_F(BadUsersFiles, WhoseHeaderIsLongerThanItsColumnsAreRefused) {
    auto table =
        dbase::test::UserTable().Add(' ', {"ADMIN", "pw", "id", "", "A"}).Add(' ', {"Ann", "", "", "", ""});
    table.headerSize = 193 + 60;
    table.count = 1;
    ExpectRefused(table.Bytes(), 3274,
                  R"('C:\SYS\ZYSECURE.DBF' cannot be read: byte 8 says that its header has 253 bytes, but )"
                  "its columns make 193.");
}

TEST_F(BadUsersFiles, WithARecordThatIsNeitherAUserNorADeletedOneAreRefused) {
    for (const char flag : {'\0', 'A', '\x1A'}) {
        ExpectRefused(AnnAndBob().Add(flag, {"ADMIN", "pw", "id", "", "A"}).Bytes(), 3274,
                      R"('C:\SYS\ZYSECURE.DBF' cannot be read: its record 3 begins with )" +
                          std::to_string(static_cast<unsigned char>(flag)) +
                          ", which is neither a blank (32) nor the mark of a deleted one (42).");
    }
}

// Tables that hold more than the editor shows

TEST_F(BadUsersFiles, AreWholeWithoutTheMarkAtTheEndAndWithAnyBytesBehindIt) {
    auto table = AnnAndBob();
    for (const auto* end :
         {"", "\x1A some bytes that fill the sector up, and which are more than a record has"}) {
        table.endOfFile = end;
        Open(table);
        EXPECT_EQ(Rows(), AnnAndBobRows());
        EXPECT_EQ(Status(), "2 users");
    }
}

TEST_F(BadUsersFiles, WithUsersThatTheHeaderDoesNotCountSaySoUntilASaveHasDroppedThem) {
    auto table = AnnAndBob().Add(' ', {"Cid", "pw", "id", "", "A"});
    table.count = 2;
    Open(table);
    EXPECT_EQ(Rows(), AnnAndBobRows());
    const std::string report = "2 users; a save will drop 1 user that the table does not count";
    EXPECT_EQ(Status(), report);
    Edit(1, kPassword, "new");
    EXPECT_EQ(Status(), report);
    Edit(1, kPassword, "");
    world.dialogs.ExpectMessage("Invalid Password. Password Cannot be blank", "ZY Setup");
    Save();
    EXPECT_EQ(Status(), report) << "nothing was saved";
    Edit(1, kPassword, "new");
    Save();
    EXPECT_EQ(Status(), "Saved");
    Edit(1, kPassword, "newer");
    EXPECT_EQ(Status(), "2 users");
    EXPECT_EQ(TableUsers()->size(), 2U);
}

TEST_F(BadUsersFiles, SayAllThatASaveWillDrop) {
    auto table = TableBytes(
        {{"USERID", 10}, {"PASSWORD", 20}, {"IDENTIFIER", 20}, {"EXPDATE", 8}, {"STATUS", 1}, {"SHIFT", 2}});
    table.language = "\x01";
    table.Add(' ', {"\xC4nn\xC4", "pw", "id", "", "A", "1"});
    table.Add('*', {"Gone", "pw", "id", "", "A", "1"}).Add('*', {"Too", "pw", "id", "", "A", "1"});
    Open(table);
    EXPECT_EQ(Status(), "1 user; a save will drop 1 more column, 2 characters that the code page lacks, "
                        "2 deleted users");
    table.language = "\xC9";
    table.records.clear();
    table.count = 0;
    Open(table.Add(' ', {"Ann", "pw", "id", "", "A", "1"}));
    EXPECT_EQ(Status(), "1 user; a save will drop 1 more column, the mark of the unknown code page 201");
    Edit(1, kPassword, "new");
    ChooseSave();
    Edit(1, kPassword, "newer");
    EXPECT_EQ(Status(), "1 user");
}

TEST_F(BadUsersFiles, ShowNoDeletedUserAlsoWhenItIsTheAdministrator) {
    Open(AnnAndBob().Add('*', {"ADMIN", "pw", "id", "", "A"}));
    EXPECT_EQ(Rows(), AnnAndBobRows());
    EXPECT_EQ(Status(), "2 users; a save will drop 1 deleted user");
    Edit(1, kPassword, "new");
    Save();
    EXPECT_EQ(TableUsers()->size(), 2U);
    EXPECT_EQ(world.files.Get(kUsersTable)->size(), 194U + 2 * 60U) << "the deleted one is gone for good";
}

TEST_F(BadUsersFiles, Of255ColumnsGiveTheFirstFive) {
    std::vector<Column> columns = dbase::test::UserTable().columns;
    std::vector<std::string> values{"Ann", "pw", "id of Ann", "", "A"};
    for (int column = 5; column < 255; ++column) {
        columns.push_back({"C" + std::to_string(column), 1});
        values.emplace_back("x");
    }
    Open(TableBytes(columns).Add(' ', values));
    EXPECT_THAT(Rows(), ElementsAre("Ann|pw|A||id of Ann"));
    EXPECT_EQ(Status(), "1 user; a save will drop 250 more columns");
    Edit(1, kPassword, "new");
    Save();
    EXPECT_EQ(world.files.Get(kUsersTable)->size(), 194U + 60U) << "a table of five columns is written";
}

} // namespace
} // namespace zy::test
