// What a table looks like on the disk, byte by byte.

#include "DbaseTest.h"
#include "support/TableBytes.h"

namespace zy::dbase::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using namespace std::string_literals;

class WriteTable : public DbaseTest {
  protected:
    void Create() { Run(kCreateUsers); }
    std::string Written() {
        database->Flush();
        return Get("ZYSECURE.TMP");
    }
};

TEST_F(WriteTable, StandsOnTheDiskAsSoonAsItIsCreated) {
    Create();
    EXPECT_EQ(Get("ZYSECURE.TMP"), UserTable().Bytes());
    EXPECT_EQ(Get("ZYSECURE.TMP").size(), 194U);
}

TEST_F(WriteTable, HoldsItsRecordsBehindTheHeader) {
    Create();
    Run(InsertUser({"ADMIN", "secret", "The boss", "27-01-31", "A"}));
    Run(InsertUser({"", "", "", "", ""}));
    Run(InsertUser({"0123456789", " x", "", "YY-MM-DD", "I"}));
    EXPECT_EQ(Written(), UserTable()
                             .Add(' ', {"ADMIN", "secret", "The boss", "27-01-31", "A"})
                             .Add(' ', {"", "", "", "", ""})
                             .Add(' ', {"0123456789", " x", "", "YY-MM-DD", "I"})
                             .Bytes());
}

TEST_F(WriteTable, BeginsWithTheVersionTheDateAndTheSizes) {
    Create();
    for (int i = 0; i < 3; ++i) {
        Run(InsertUser({"U", "", "", "", "A"}));
    }
    EXPECT_EQ(Written().substr(0, 16), "\x03\x7E\x0B\x14\x03\x00\x00\x00\xC1\x00\x3C\x00\x00\x00\x00\x00"s);
    EXPECT_EQ(Written().size(), 194U + 3 * 60);
}

TEST_F(WriteTable, HasTheRecordsInTheirPlaces) {
    Create();
    Run(InsertUser({"A", "B", "C", "D", "E"}));
    const auto record = Written().substr(193, 60);
    EXPECT_EQ(record[0], ' ');
    EXPECT_EQ(record[1], 'A');
    EXPECT_EQ(record[11], 'B');
    EXPECT_EQ(record[31], 'C');
    EXPECT_EQ(record[51], 'D');
    EXPECT_EQ(record[59], 'E');
}

TEST_F(WriteTable, NamesItsColumnsInCapitals) {
    Run("CREATE TABLE T (first text(3), Second_2 TEXT(254))");
    EXPECT_EQ(Get("T.DBF"), TableBytes({{"FIRST", 3}, {"SECOND_2", 254}}).Bytes());
}

TEST_F(WriteTable, HasEveryWidthFrom1To254) {
    for (int width = 1; width <= 254; ++width) {
        const auto name = "W" + std::to_string(width);
        Run("CREATE TABLE " + name + " (C TEXT(" + std::to_string(width) + "))");
        const std::string value(static_cast<std::size_t>(width), 'x');
        Run("INSERT INTO " + name + " (C) VALUES ('" + value + "')");
        EXPECT_EQ(RowsIn(name), Rows{{value}});
        EXPECT_EQ(Get(name + ".DBF").size(), static_cast<std::size_t>(33 + 32 + 1 + width + 1));
    }
}

TEST_F(WriteTable, HasUpTo255Columns) {
    std::string columns = "C1 TEXT(254)";
    for (int i = 2; i <= 255; ++i) {
        columns += ", C" + std::to_string(i) + " TEXT(254)";
    }
    Run("CREATE TABLE WIDE (" + columns + ")");
    Run("INSERT INTO WIDE (C255, C1) VALUES ('last', 'first')");
    const auto rows = RowsIn("WIDE");
    ASSERT_EQ(rows.size(), 1U);
    EXPECT_EQ(rows[0].size(), 255U);
    EXPECT_EQ(rows[0].front(), "first");
    EXPECT_EQ(rows[0].back(), "last");
    EXPECT_EQ(RaisedByRun("CREATE TABLE WIDER (" + columns + ", C256 TEXT(1))").Number(), kTooManyFields);
}

TEST_F(WriteTable, DoesNotStateALanguageAsLongAsAllIsAscii) {
    Create();
    Run(InsertUser({"\x01\x7F", "", "", "", ""}));
    EXPECT_EQ(Written()[29], '\x00');
}

TEST_F(WriteTable, IsInWindows1252FromTheFirstOtherCharacterOn) {
    Create();
    Run(InsertUser({"A", "", "", "", ""}));
    EXPECT_EQ(Written()[29], '\x00');
    Run(InsertUser({"M\xFCller", "", "", "", ""}));
    EXPECT_EQ(Written()[29], '\x03');
    Run(InsertUser({"B", "", "", "", ""}));
    EXPECT_EQ(Written()[29], '\x03');
    EXPECT_EQ(RowsIn("ZYSECURE.TMP")[1][0], "M\xFCller");
}

TEST_F(WriteTable, IsInWindows1252WhereverTheOnlyOtherCharacterStands) {
    for (int width = 1; width <= 70; ++width) {
        const auto table = "T" + std::to_string(width);
        Run("CREATE TABLE " + table + " (NAME TEXT(" + std::to_string(width) + "))");
        const std::string before(static_cast<std::size_t>(width - 1), 'A');
        Run("INSERT INTO " + table + " (NAME) VALUES ('" + before + "\xFC')");
        database->Flush();
        EXPECT_EQ(Get(table + ".DBF")[29], '\x03') << width;
    }
}

TEST_F(WriteTable, StatesALanguageThatAnotherProgramLeftOut) {
    auto table = UserTable();
    table.Add(' ', {"M\xFCller", "", "", "", ""});
    Put("ZYSECURE.DBF", table.Bytes());
    Run(InsertUser({"A", "", "", "", ""}, "ZYSECURE.DBF"));
    database->Flush();
    EXPECT_EQ(Get("ZYSECURE.DBF")[29], '\x03');
}

TEST_F(WriteTable, KeepsALanguageThatIsStated) {
    auto table = UserTable();
    for (const char language : {'\x01', '\x03', '\x57', '\xC8'}) {
        table.language = language;
        Put("ZYSECURE.DBF", table.Bytes());
        Run(InsertUser({"A", "", "", "", ""}, "ZYSECURE.DBF"));
        database->Flush();
        EXPECT_EQ(Get("ZYSECURE.DBF")[29], language);
    }
}

TEST_F(WriteTable, KeepsAFreshFileForItsOwner) {
    Create();
    EXPECT_EQ(world.files.Permissions(PathOf("ZYSECURE.TMP")), 0600U);
    Run(InsertUser({"A", "", "", "", ""}));
    Written();
    EXPECT_EQ(world.files.Permissions(PathOf("ZYSECURE.TMP")), 0600U);
}

TEST_F(WriteTable, KeepsThePermissionsThatItWasGiven) {
    Create();
    world.files.SetPermissions(PathOf("ZYSECURE.TMP"), 0664);
    Run(InsertUser({"A", "", "", "", ""}));
    Written();
    Run(InsertUser({"B", "", "", "", ""}));
    Written();
    EXPECT_EQ(world.files.Permissions(PathOf("ZYSECURE.TMP")), 0664U);
}

TEST_F(WriteTable, LeavesNoOtherFileBehind) {
    Create();
    for (const auto* name : {"A", "B"}) {
        Run(InsertUser({name, "", "", "", ""}));
        Written();
    }
    EXPECT_THAT(Names(), ElementsAre("ZYSECURE.TMP"));
}

TEST_F(WriteTable, KeepsWhatItDoesNotShow) {
    auto table = UserTable();
    table.Add('*', {"GONE", "", "", "", ""});
    Put("ZYSECURE.DBF", table.Bytes());
    Run(InsertUser({"NEW", "", "", "", ""}, "ZYSECURE.DBF"));
    EXPECT_EQ(RowsIn("ZYSECURE.DBF").size(), 1U);
    EXPECT_EQ(Get("ZYSECURE.DBF"), table.Add(' ', {"NEW", "", "", "", ""}).Bytes());
}

TEST_F(WriteTable, HasNothingOfARowThatWasRefusedInTheNextOne) {
    Create();
    EXPECT_EQ(RaisedByRun(InsertUser({"LONGNAME99", std::string(21, 'x'), "", "", ""})).Number(),
              kFieldTooSmall);
    Run(InsertUser({"ANN", "", "", "", ""}));
    EXPECT_EQ(Written(), UserTable().Add(' ', {"ANN", "", "", "", ""}).Bytes());
}

TEST_F(WriteTable, HasNothingOfWhatStoodBehindTheLastRecordInTheNextOne) {
    auto table = UserTable();
    Put("ZYSECURE.DBF", table.Bytes() + std::string(100, 'x'));
    Run(InsertUser({"ANN", "", "", "", ""}, "ZYSECURE.DBF"));
    database->Flush();
    EXPECT_EQ(Get("ZYSECURE.DBF"), table.Add(' ', {"ANN", "", "", "", ""}).Bytes());
}

TEST_F(WriteTable, GetsTheDateOfTheChange) {
    auto table = UserTable();
    table.date = "\x5F\x01\x02";
    Put("ZYSECURE.DBF", table.Bytes());
    Run(InsertUser({"NEW", "", "", "", ""}, "ZYSECURE.DBF"));
    database->Flush();
    EXPECT_EQ(Get("ZYSECURE.DBF").substr(1, 3), "\x7E\x0B\x14");
}

TEST_F(WriteTable, KeepsWhatElseStandsInTheHeader) {
    auto table = UserTable();
    table.address = 0xDEADBEEF;
    table.headerSize += 1;
    table.endOfFields += '\0';
    Put("ZYSECURE.DBF", table.Bytes());
    Run(InsertUser({"NEW", "", "", "", ""}, "ZYSECURE.DBF"));
    database->Flush();
    EXPECT_EQ(Get("ZYSECURE.DBF"), table.Add(' ', {"NEW", "", "", "", ""}).Bytes());
}

TEST_F(WriteTable, IsNotTouchedWhenNothingWasAdded) {
    auto table = UserTable();
    table.date = "\x5F\x01\x02";
    table.endOfFile = "";
    Put("ZYSECURE.DBF", table.Bytes());
    EXPECT_THAT(RowsIn("ZYSECURE.DBF"), IsEmpty());
    database->Close();
    EXPECT_EQ(Get("ZYSECURE.DBF"), table.Bytes());
}

TEST_F(WriteTable, TakesARowInTheCodePageThatItIsIn) {
    auto table = UserTable();
    table.language = "\x02";
    Put("ZYSECURE.DBF", table.Bytes());
    Run(InsertUser({"M\xFCller", "\xD8", "", "", ""}, "ZYSECURE.DBF"));
    EXPECT_EQ(RowsIn("ZYSECURE.DBF")[0][0], "M\xFCller");
    EXPECT_EQ(Get("ZYSECURE.DBF"), table.Add(' ', {"M\x81ller", "\x9D", "", "", ""}).Bytes());
}

TEST_F(WriteTable, RefusesACharacterThatItsCodePageLacks) {
    auto table = UserTable();
    table.language = "\x01";
    table.Add(' ', {"A", "", "", "", ""});
    Put("ZYSECURE.DBF", table.Bytes());
    const auto raised = RaisedByRun(InsertUser({"B", "\x80", "", "", ""}, "ZYSECURE.DBF"));
    EXPECT_EQ(raised.Number(), kCannotConvert);
    EXPECT_EQ(raised.Description(),
              "Data type conversion error: the value for 'PASSWORD' has a character that the table's "
              "code page lacks.");
    database->Flush();
    EXPECT_EQ(Get("ZYSECURE.DBF"), table.Bytes());
}

} // namespace
} // namespace zy::dbase::test
