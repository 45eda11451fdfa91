// Tables as other programs leave them behind.

#include "DbaseTest.h"
#include "support/TableBytes.h"

namespace zy::dbase::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using namespace std::string_literals;

class ReadTable : public DbaseTest {
  protected:
    Rows Read(const std::string& bytes) {
        Put("T.DBF", bytes);
        return RowsIn("T");
    }
    static TableBytes TwoColumns() {
        return TableBytes({{"NAME", 6}, {"CITY", 4}}).Add(' ', {"Ada", "Rome"}).Add(' ', {"Bo", ""});
    }
};

const Rows kBoth{{"Ada", "Rome"}, {"Bo", ""}};

TEST_F(ReadTable, GivesItsRecordsInTheirOrder) {
    EXPECT_EQ(Read(TwoColumns().Bytes()), kBoth);
}

TEST_F(ReadTable, GivesTheNamesOfItsColumns) {
    Put("T.DBF", TwoColumns().Bytes());
    const auto records = database->OpenRecordset("T.DBF", RecordsetType::Dynaset);
    ASSERT_EQ(records->Fields().Count(), 2);
    EXPECT_EQ(records->Fields().Item(0).Name(), "NAME");
    EXPECT_EQ(records->Fields().Item(1).Name(), "CITY");
}

TEST_F(ReadTable, LeavesOutTheBlanksAndNULsAtTheEndOfAValueOfAnyLength) {
    for (const auto& filler : {" "s, "\0"s, " \0"s, "\0 "s, "         \0"s, "\0         "s}) {
        for (std::size_t width = 1; width <= 40; ++width) {
            for (std::size_t length = 0; length <= width; ++length) {
                std::string value(length, 'x');
                if (length >= 3) {
                    value[length / 2] = filler.front(); // what stands inside belongs to the value
                }
                std::string filled = value;
                while (filled.size() < width) {
                    filled += filler;
                }
                filled.resize(width);
                const auto rows = Read(TableBytes({{"NAME", static_cast<unsigned>(width)}, {"NEXT", 1}})
                                           .Add(' ', {filled, "|"})
                                           .Bytes());
                EXPECT_EQ(rows, (Rows{{value, "|"}})) << width << ", " << length;
            }
        }
    }
}

TEST_F(ReadTable, IsEmptyWithoutRecords) {
    EXPECT_THAT(Read(TableBytes({{"NAME", 6}}).Bytes()), IsEmpty());
}

TEST_F(ReadTable, DoesWithoutTheMarkAtTheEnd) {
    auto table = TwoColumns();
    for (const auto& end : {""s, "\0"s, "\x1A garbage behind it"s, "\x1A\x1A"s}) {
        table.endOfFile = end;
        EXPECT_EQ(Read(table.Bytes()), kBoth);
    }
}

TEST_F(ReadTable, TakesAHeaderWithSomethingBehindTheEndOfTheColumns) {
    auto table = TwoColumns();
    for (std::size_t more = 1; more < 70; ++more) {
        table.endOfFields = "\x0D" + std::string(more, '\0');
        table.headerSize = 33 + 64 + more;
        EXPECT_EQ(Read(table.Bytes()), kBoth) << more;
    }
}

TEST_F(ReadTable, DoesNotCareForDatesAndAddresses) {
    auto table = TwoColumns();
    table.date = "\xFF\xFF\xFF";
    table.address = 0xFFFFFFFF;
    EXPECT_EQ(Read(table.Bytes()), kBoth);
}

TEST_F(ReadTable, IgnoresReservedBytes) {
    auto bytes = TwoColumns().Bytes();
    for (const int at : {12, 20, 27, 28, 30, 31, 50, 52, 63}) {
        bytes[static_cast<std::size_t>(at)] = '\xFF';
    }
    EXPECT_EQ(Read(bytes), kBoth);
}

TEST_F(ReadTable, LeavesOutDeletedRecords) {
    EXPECT_EQ(Read(TwoColumns().Add('*', {"Gone", ""}).Add(' ', {"Cy", ""}).Bytes()),
              (Rows{{"Ada", "Rome"}, {"Bo", ""}, {"Cy", ""}}));
    EXPECT_THAT(Read(TableBytes({{"NAME", 6}}).Add('*', {"Gone"}).Bytes()), IsEmpty());
}

TEST_F(ReadTable, CountsTheDeletedRecords) {
    Put("T.DBF", TwoColumns().Add('*', {"Gone", ""}).Add('*', {"Too", ""}).Bytes());
    const auto records = database->OpenRecordset("T", RecordsetType::Dynaset);
    EXPECT_EQ(records->Table().DeletedRecords(), 2U);
}

TEST_F(ReadTable, UsesTheCountWhenTheFileHoldsMoreAndTellsHowManyMore) {
    auto table = TwoColumns().Add('*', {"Gone", ""}).Add(' ', {"Cy", ""});
    table.count = 1;
    EXPECT_EQ(Read(table.Bytes()), (Rows{{"Ada", "Rome"}}));
    const auto records = database->OpenRecordset("T", RecordsetType::Dynaset);
    EXPECT_EQ(records->Table().UncountedRecords(), 3U);
    EXPECT_EQ(records->Table().DeletedRecords(), 0U);
}

TEST_F(ReadTable, TakesNothingThatFillsTheFileUpForARecord) {
    auto table = TwoColumns();
    const std::string mark = "\x1A";
    for (const auto& end :
         {mark + std::string(500, '\0'), mark + TwoColumns().records, std::string(500, '\0'),
          std::string(500, ' '), std::string(500, '\x1A'), " Cyril Rom"s}) {
        table.endOfFile = end;
        Put("T.DBF", table.Bytes());
        const auto records = database->OpenRecordset("T", RecordsetType::Dynaset);
        EXPECT_EQ(records->Table().UncountedRecords(), 0U) << ::testing::PrintToString(end);
    }
}

TEST_F(ReadTable, TakesBlanksAndNulsOffTheEndOfAValueOnly) {
    EXPECT_EQ(
        Read(TableBytes({{"NAME", 6}}).Add(' ', {" a b"}).Add(' ', {"c\0\0 \0"s}).Add(' ', {"\0d"s}).Bytes()),
        (Rows{{" a b"}, {"c"}, {"\0d"s}}));
}

TEST_F(ReadTable, GivesTheTextOfColumnsThatAreNone) {
    TableBytes table({{"N", 8, 'N', 2}, {"D", 8, 'D'}, {"L", 1, 'L'}, {"F", 6, 'F', 1}, {"M", 10, 'M'}});
    table.Add(' ', {"   12.50", "20261120", "T", "  -1.5", "         7"});
    EXPECT_EQ(Read(table.Bytes()), (Rows{{"   12.50", "20261120", "T", "  -1.5", "         7"}}));
}

TEST_F(ReadTable, FindsAColumnByItsNameInAnyCase) {
    TableBytes table({{"Name", 6}, {"CITY", 4}, {"NAME", 2}});
    table.Add(' ', {"first", "Rome", "2"});
    Put("T.DBF", table.Bytes());
    const auto records = database->OpenRecordset("t", RecordsetType::Dynaset);
    EXPECT_EQ(records->Table().FindField("nAME"), 0U);
    EXPECT_EQ(records->Table().FindField("city"), 1U);
    EXPECT_EQ(records->Table().FindField("CIT"), std::nullopt);
}

TEST_F(ReadTable, TakesANameOfElevenCharacters) {
    Put("T.DBF", TableBytes({{"ELEVENCHARS", 6}}).Bytes());
    const auto records = database->OpenRecordset("T", RecordsetType::Dynaset);
    EXPECT_EQ(records->Fields().Item(0).Name(), "ELEVENCHARS");
}

TEST_F(ReadTable, StopsAtTheFirstNulOfAName) {
    Put("T.DBF", TableBytes({{"NAME\0JUNK"s, 6}}).Bytes());
    const auto records = database->OpenRecordset("T", RecordsetType::Dynaset);
    EXPECT_EQ(records->Fields().Item(0).Name(), "NAME");
}

TEST_F(ReadTable, TakesAColumnWithoutWidthForEmpty) {
    EXPECT_EQ(Read(TableBytes({{"NAME", 3}, {"NONE", 0}}).Add(' ', {"Ada", ""}).Bytes()),
              (Rows{{"Ada", ""}}));
    EXPECT_EQ(Read(TableBytes({{"NONE", 0}}).Add(' ', {""}).Bytes()), (Rows{{""}}));
}

// Characters

std::string HighCharacters() {
    std::string all;
    for (int c = 0x80; c < 0x100; ++c) {
        all += static_cast<char>(c);
    }
    return all;
}

TEST_F(ReadTable, LeavesCharactersAsTheyAreUnlessTheyAreOfDos) {
    TableBytes table({{"C", 128}});
    table.Add(' ', {HighCharacters()});
    for (const char language : {'\0', '\x03', '\x57', '\xC8', '\xFF'}) {
        table.language = language;
        EXPECT_EQ(Read(table.Bytes()), Rows{{HighCharacters()}});
    }
}

TEST_F(ReadTable, ConvertsCharactersOfDos) {
    TableBytes table({{"C", 20}});
    table.Add(' ', {"M\x81ller \x9B \xE1 \xE3 A~"});
    table.language = "\x01";
    EXPECT_EQ(Read(table.Bytes()), Rows{{"M\xFCller \xA2 \xDF p A~"}});
    table.language = "\x02";
    EXPECT_EQ(Read(table.Bytes()), Rows{{"M\xFCller \xF8 \xDF \xD2 A~"}});
}

TEST_F(ReadTable, ConvertsEveryLineToAsciiAndCountsWhatIsALikenessOnly) {
    TableBytes table({{"C", 10}});
    table.language = "\x01";
    table.Add(' ', {"\xC4\xCD\xB3\xBA\xDA\xC5\xDB\x81u"});
    EXPECT_EQ(Read(table.Bytes()), Rows{{"-=||++#\xFCu"}});
    const auto records = database->OpenRecordset("T", RecordsetType::Dynaset);
    EXPECT_EQ(records->Table().ReplacedCharacters(), 7U);
}

TEST_F(ReadTable, TellsOfACodePageThatItDoesNotKnow) {
    for (unsigned language = 0; language < 256; ++language) {
        const bool isKnown = language <= 3 || language == 0x57;
        auto table = TwoColumns();
        table.language = std::string(1, static_cast<char>(language));
        Put("T.DBF", table.Bytes());
        const auto records = database->OpenRecordset("T", RecordsetType::Dynaset);
        EXPECT_EQ(records->Table().UnknownPage(), isKnown ? std::nullopt : std::optional(language));
    }
}

} // namespace
} // namespace zy::dbase::test
