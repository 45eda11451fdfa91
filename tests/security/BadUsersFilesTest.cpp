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

// Tables that are read as far as they go

TEST_F(BadUsersFiles, ThatAreCutAtAnyRecordShowTheUsersThatAreWholeAndSayHowManyAreMissing) {
    const auto bytes = AnnAndBob().Bytes();
    for (const std::size_t size : {193U, 193U + 59U}) {
        world.files.Put(kUsersTable, bytes.substr(0, size));
        Start("@SECURITY");
        EXPECT_THAT(Rows(), ElementsAre("||||"));
        EXPECT_EQ(Status(), "1 user; ZYSECURE.DBF is cut short: 2 of its users are missing");
    }
    world.files.Put(kUsersTable, bytes.substr(0, 193 + 60));
    Start("@SECURITY");
    EXPECT_THAT(Rows(), ElementsAre("Ann|pw|A||id of Ann"));
    EXPECT_EQ(Status(), "1 user; ZYSECURE.DBF is cut short: 1 of its users are missing");
}

TEST_F(BadUsersFiles, WhoseHeaderCountsMoreUsersThanThereAreShowThoseThatThereAre) {
    auto table = AnnAndBob();
    table.count = 0xFFFFFFFF;
    Open(table);
    EXPECT_EQ(Rows(), AnnAndBobRows());
    EXPECT_EQ(Status(), "2 users; ZYSECURE.DBF is cut short: 4294967293 of its users are missing");
}

TEST_F(BadUsersFiles, WithoutTheMarkAtTheEndAreWhole) {
    auto table = AnnAndBob();
    table.endOfFile = "";
    Open(table);
    EXPECT_EQ(Rows(), AnnAndBobRows());
    EXPECT_EQ(Status(), "2 users");
}

TEST_F(BadUsersFiles, ShowNoDeletedUserAlsoWhenItIsTheAdministrator) {
    Open(AnnAndBob().Add('*', {"ADMIN", "pw", "id", "", "A"}));
    EXPECT_EQ(Rows(), AnnAndBobRows());
    EXPECT_EQ(Status(), "2 users");
    Edit(1, kPassword, "new");
    Save();
    EXPECT_EQ(TableUsers()->size(), 2U);
    EXPECT_EQ(world.files.Get(kUsersTable)->size(), 194U + 2 * 60U) << "the deleted one is gone for good";
}

TEST_F(BadUsersFiles, ShowNoDamagedUserAndSayHowManyThereAre) {
    Open(AnnAndBob().Add('\0', {"Cid", "", "", "", ""}).Add('A', {"Dan", "", "", "", ""}));
    EXPECT_EQ(Rows(), AnnAndBobRows());
    EXPECT_EQ(Status(), "2 users; ZYSECURE.DBF is damaged: 2 of its users cannot be shown");
}

TEST_F(BadUsersFiles, ThatAreCutShortAndDamagedSayBoth) {
    auto table = AnnAndBob().Add('?', {"Cid", "", "", "", ""});
    table.count = 5;
    Open(table);
    EXPECT_EQ(Rows(), AnnAndBobRows());
    EXPECT_EQ(Status(), "2 users; ZYSECURE.DBF is cut short: 2 of its users are missing; "
                        "ZYSECURE.DBF is damaged: 1 of its users cannot be shown");
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
    Edit(1, kPassword, "new");
    Save();
    EXPECT_EQ(world.files.Get(kUsersTable)->size(), 194U + 60U) << "a table of five columns is written";
}

} // namespace
} // namespace zy::test
