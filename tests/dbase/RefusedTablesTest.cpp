// Files that are no tables, and what is said of them.

#include <filesystem>

#include "DbaseTest.h"
#include "support/TableBytes.h"
#include "support/TemporaryFolder.h"
#include "support/ThisSystem.h"

namespace zy::dbase::test {
namespace {

using ::testing::StartsWith;
using namespace std::string_literals;

class RefusedTables : public DbaseTest {
  protected:
    /// Why a table of these bytes is not read. It must not be written either.
    std::string Refusal(const std::string& bytes) {
        constexpr std::string_view kFront = R"('C:\SYS\T.DBF' cannot be read: )";
        Put("T.DBF", bytes);
        const auto raised = RaisedBy([&] { RowsIn("T"); });
        EXPECT_EQ(raised.Number(), kBadFormat);
        EXPECT_EQ(RaisedByRun("INSERT INTO T (NAME) VALUES ('x')").Number(), kBadFormat);
        EXPECT_EQ(RaisedByRun("CREATE INDEX I ON T (NAME)").Number(), kBadFormat);
        EXPECT_EQ(Get("T.DBF"), bytes);
        EXPECT_EQ(Get("I.NDX"), "no file");
        EXPECT_THAT(raised.Description(), StartsWith(kFront));
        return raised.Description().substr(std::min(kFront.size(), raised.Description().size()));
    }
    static TableBytes Table() { return TableBytes({{"NAME", 6}, {"CITY", 4}}).Add(' ', {"Ada", "Rome"}); }
};

TEST_F(RefusedTables, AreTooShort) {
    EXPECT_EQ(Refusal(""), "it has 0 bytes, a table at least 33.");
    EXPECT_EQ(Refusal(Table().Bytes().substr(0, 32)), "it has 32 bytes, a table at least 33.");
}

TEST_F(RefusedTables, AreOfAnotherVersion) {
    auto table = Table();
    for (const char version : {'\x83', '\x30', '\x02', '\xFF'}) {
        table.version = version;
        EXPECT_THAT(Refusal(table.Bytes()),
                    ::testing::HasSubstr("which is not that of a dBase III table (3)."));
    }
    table.version = "\x83";
    EXPECT_EQ(Refusal(table.Bytes()), "its first byte is 131, which is not that of a dBase III table (3).");
}

TEST_F(RefusedTables, HaveNoRoomForTheirHeader) {
    auto table = Table();
    table.headerSize = 1000;
    EXPECT_EQ(Refusal(table.Bytes()), "byte 8 says that its header has 1000 bytes, but the file has 109.");
    table.headerSize = 32;
    EXPECT_EQ(Refusal(table.Bytes()), "byte 8 says that its header has 32 bytes, but the file has 109.");
    table.headerSize = 0xFFFF;
    EXPECT_EQ(Refusal(table.Bytes()), "byte 8 says that its header has 65535 bytes, but the file has 109.");
}

TEST_F(RefusedTables, HaveAHeaderThatIsCutShort) {
    const auto bytes = Table().Bytes();
    for (std::size_t size = 0; size < 97; ++size) {
        EXPECT_NE(Refusal(bytes.substr(0, size)), "") << size;
    }
}

TEST_F(RefusedTables, HaveAHeaderShorterThanTheirColumns) {
    auto table = Table();
    for (std::size_t size = 34; size < 97; ++size) {
        table.headerSize = size;
        EXPECT_EQ(Refusal(table.Bytes()), "the mark 0D that ends its columns is missing in the " +
                                              std::to_string(size) + " bytes of its header.");
    }
}

TEST_F(RefusedTables, HaveAHeaderThatReachesIntoTheirRecords) {
    auto table = Table().Add(' ', {"Bo", ""});
    for (std::size_t more = 1; more <= 22; ++more) {
        table.headerSize = 97 + more;
        table.count = 0;
        EXPECT_EQ(Refusal(table.Bytes()), "byte 8 says that its header has " + std::to_string(97 + more) +
                                              " bytes, but its columns make 97.");
    }
}

TEST_F(RefusedTables, HoldFewerRecordsThanTheirHeaderCounts) {
    auto table = Table();
    for (const std::size_t count : {2UL, 3UL, 0xFFFFFFFFUL}) {
        table.count = count;
        EXPECT_EQ(Refusal(table.Bytes()),
                  "byte 4 says that it has " + std::to_string(count) + " records, but the file holds 1.");
    }
    const auto bytes = Table().Bytes();
    for (std::size_t cut = 2; cut <= 12; ++cut) {
        EXPECT_EQ(Refusal(bytes.substr(0, bytes.size() - cut)),
                  "byte 4 says that it has 1 records, but the file holds 0.")
            << cut;
    }
}

TEST_F(RefusedTables, HaveARecordThatIsNeitherLiveNorDeleted) {
    for (int flag = 0; flag < 256; ++flag) {
        const auto c = static_cast<char>(flag);
        if (c != ' ' && c != '*') {
            EXPECT_EQ(Refusal(Table().Add(c, {"Bo", ""}).Bytes()),
                      "its record 2 begins with " + std::to_string(flag) +
                          ", which is neither a blank (32) nor the mark of a deleted one (42).");
        }
    }
}

TEST_F(RefusedTables, TellHowManyOfTheirRecordsAreThere) {
    auto table = Table().Add('*', {"Gone", ""}).Add(' ', {"Bo", ""}).Add('x', {"", ""}).Add(' ', {"Cy", ""});
    const auto damaged = ContentOfTable(table.Bytes(), "T");
    EXPECT_EQ(damaged.live, 2U);
    EXPECT_THAT(damaged.damage, StartsWith("its record 4 begins with 120"));
    const auto cut = ContentOfTable(Table().Add(' ', {"Bo", ""}).Bytes().substr(0, 97 + 11 + 5), "T");
    EXPECT_EQ(cut.live, 1U);
    EXPECT_THAT(cut.damage, StartsWith("byte 4 says"));
    const auto sound = ContentOfTable(Table().Bytes(), "T");
    EXPECT_EQ(sound.live, 1U);
    EXPECT_EQ(sound.damage, "");
}

TEST_F(RefusedTables, HaveNoEndOfTheirColumns) {
    auto table = Table();
    table.endOfFields = "\0"s;
    EXPECT_EQ(Refusal(table.Bytes()),
              "the mark 0D that ends its columns is missing in the 97 bytes of its header.");
}

TEST_F(RefusedTables, HaveNoColumns) {
    EXPECT_EQ(Refusal(TableBytes(std::vector<Column>{}).Bytes()), "it has no columns.");
}

TEST_F(RefusedTables, HaveRecordsOfAnotherLengthThanTheirColumns) {
    auto table = Table();
    for (const std::size_t size : {0UL, 1UL, 10UL, 12UL, 0xFFFFUL}) {
        table.recordSize = size;
        EXPECT_EQ(Refusal(table.Bytes()), "byte 10 says that its records have " + std::to_string(size) +
                                              " bytes, but its columns make 11.");
    }
}

TEST_F(RefusedTables, HaveColumnsWiderThanAnyRecord) {
    TableBytes table(std::vector<Column>(300, Column{"C", 255}));
    EXPECT_EQ(Refusal(table.Bytes()),
              "byte 10 says that its records have 10965 bytes, but its columns make 76501.");
}

TEST_F(RefusedTables, AreNotThere) {
    const auto raised = RaisedBy([&] { RowsIn("T"); });
    EXPECT_EQ(raised.Number(), kNoSuchTable);
    EXPECT_EQ(raised.Description(), R"('C:\SYS\T.DBF' cannot be opened: the file or folder does not exist.)");
}

TEST_F(RefusedTables, AreFolders) {
    world.files.AddFolder(PathOf("T.DBF"));
    const auto raised = RaisedBy([&] { RowsIn("T"); });
    EXPECT_EQ(raised.Number(), kCannotOpen);
    EXPECT_EQ(raised.Description(),
              R"('C:\SYS\T.DBF' cannot be opened: a folder of that name is in the way.)");
}

TEST_F(RefusedTables, MayNotBeRead) {
    Put("T.DBF", Table().Bytes());
    world.files.SetUnreadable(PathOf("T.DBF"));
    EXPECT_EQ(ErrorNumber([&] { RowsIn("T"); }), kCannotOpen);
}

TEST_F(RefusedTables, AreHeldByAnotherProgram) {
    Put("T.DBF", Table().Bytes());
    world.files.SetHeldOpen(PathOf("T.DBF"));
    EXPECT_EQ(ErrorNumber([&] { RowsIn("T"); }), kInUse);
}

TEST_F(RefusedTables, AreLargerThan2GigabytesAndAreNotReadAtAll) {
    const zy::test::TemporaryFolder folder;
    const auto bytes = Table().Bytes();
    folder.Put("T.DBF", bytes);
    std::filesystem::resize_file(folder.Path("T.DBF"), 0x80000000U); // the rest is no room on the disk
    const auto files = zy::test::SystemFiles();
    DBEngine real(*files, [] { return std::chrono::year_month_day(); });
    const auto raised = RaisedBy([&] {
        real.OpenDatabase(folder.InsidePath(), false, false, "dBase III")
            ->OpenRecordset("T", RecordsetType::Dynaset);
    });
    EXPECT_EQ(raised.Number(), kBadFormat);
    EXPECT_EQ(raised.Description(), "'" + files->DisplayPath(folder.InsidePath("T.DBF")) +
                                        "' cannot be read: it is larger than 2 GB.");
}

TEST_F(RefusedTables, CannotBeReadToTheirEnd) {
    Put("T.DBF", Table().Bytes());
    world.files.Plan({.operation = 2});
    const auto raised = RaisedBy([&] { RowsIn("T"); });
    EXPECT_EQ(raised.Number(), kReadFailed);
    EXPECT_EQ(raised.Description(), R"('C:\SYS\T.DBF' could be read up to byte 0 of 109 only.)");
}

} // namespace
} // namespace zy::dbase::test
