// Programs that are not ours: they read what we write, and we read what they write.

#include <algorithm>
#include <array>
#include <filesystem>
#include <random>

#include "DbaseTest.h"
#include "basics/Text.h"
#include "platform/posix/PosixFileSystem.h"
#include "support/ChildProcess.h"
#include "support/TemporaryFolder.h"

namespace zy::dbase::test {
namespace {

using ::testing::ElementsAreArray;
using Lines = std::vector<std::string>;

std::string Script(const std::string& name) {
    return ZY_READERS "/" + name;
}

/// Runs a program to its end, which must be a good one. Returns the lines that it prints.
Lines LinesOf(const Lines& arguments) {
    zy::test::ChildProcess process(arguments);
    Lines lines;
    while (const auto line = process.Output().Next()) {
        lines.push_back(*line);
    }
    Lines errors;
    while (const auto line = process.Errors().Next()) {
        errors.push_back(*line);
    }
    EXPECT_EQ(process.Wait(), 0) << arguments[1];
    EXPECT_THAT(errors, ::testing::IsEmpty());
    return lines;
}

/// A database of tables in a real folder.
class OtherReaders : public ::testing::Test {
  protected:
    void Write(const Rows& users) {
        database->Execute("CREATE TABLE ZYSECURE (USERID TEXT (10), PASSWORD TEXT (20), IDENTIFIER TEXT(20),"
                          "EXPDATE TEXT (8), STATUS TEXT(1));");
        for (const auto& user : users) {
            engine.BeginTrans();
            database->Execute(InsertUser(user, "ZYSECURE"), ExecuteOptions::FailOnError);
            engine.CommitTrans();
        }
        database->Execute("CREATE INDEX [ZYSECURE] ON [ZYSECURE.DBF] (USERID);");
        database->Flush();
    }

    Rows Read(std::string_view table) {
        const auto records = database->OpenRecordset(table, RecordsetType::Dynaset);
        return RowsOf(*records);
    }

    std::string Path(std::string_view name) const { return folder.Path(name); }
    std::string Table() const { return Path("ZYSECURE.DBF"); }
    std::string Index() const { return Path("ZYSECURE.NDX"); }

    /// The records as the programs print them.
    static Lines Printed(const Rows& users) {
        Lines lines;
        for (const auto& user : users) {
            lines.push_back(user[0] + "|" + user[1] + "|" + user[2] + "|" + user[3] + "|" + user[4]);
        }
        return lines;
    }

    void ExpectReadByAll(const Rows& users) {
        const auto printed = Printed(users);
        EXPECT_THAT(LinesOf({"/usr/bin/python3", Script("read_dbfread.py"), Table()}),
                    ElementsAreArray(printed));
        EXPECT_THAT(LinesOf({"/usr/bin/python3", Script("read_dbf.py"), Table()}), ElementsAreArray(printed));
        EXPECT_THAT(LinesOf({"perl", Script("read_xbase.pl"), Table()}), ElementsAreArray(printed));
        EXPECT_THAT(LinesOf({"dbfdump", "-m", Table()}), ElementsAreArray(DumpOf(users)));
    }

    /// What dbfdump prints of them: it trims values on both sides, and shows the columns' width.
    static Lines DumpOf(const Rows& users) {
        const std::array<std::pair<std::string, std::size_t>, 5> kColumns{
            {{"USERID: ", 10}, {"PASSWORD: ", 20}, {"IDENTIFIER: ", 20}, {"EXPDATE: ", 8}, {"STATUS: ", 1}}};
        Lines lines;
        for (std::size_t i = 0; i < users.size(); ++i) {
            lines.emplace_back();
            lines.push_back("Record: " + std::to_string(i));
            for (std::size_t field = 0; field < kColumns.size(); ++field) {
                std::string value = users[i][field].empty() ? "(NULL)" : std::string(LTrim(users[i][field]));
                value.resize(std::max(value.size(), kColumns[field].second), ' ');
                lines.push_back(kColumns[field].first + value);
            }
        }
        lines.emplace_back();
        return lines;
    }

    /// Users in an order that is that of no column; every tenth has the name of another one.
    static Rows ManyUsers(std::size_t count) {
        std::mt19937 random(4711);
        Rows users;
        for (std::size_t i = 0; i < count; ++i) {
            const auto name = i % 10 == 9 ? users[i / 2][0] : "U" + std::to_string(random() % 1000000);
            users.push_back({name, "p" + std::to_string(i), "", "YY-MM-DD", i % 2 == 0 ? "A" : "I"});
        }
        return users;
    }

    void ExpectIndexWalkedAndSearched(const Rows& users) {
        std::vector<std::pair<std::string, std::size_t>> order;
        for (std::size_t i = 0; i < users.size(); ++i) {
            order.emplace_back(users[i][0], i + 1);
        }
        std::sort(order.begin(), order.end());
        Lines walk;
        Lines search(users.size());
        for (const auto& [name, record] : order) {
            walk.push_back(std::to_string(record) + " " + name);
        }
        for (auto entry = order.rbegin(); entry != order.rend(); ++entry) {
            for (std::size_t i = 0; i < users.size(); ++i) {
                if (users[i][0] == entry->first) {
                    search[i] = std::to_string(i + 1) + " " + std::to_string(entry->second);
                }
            }
        }
        EXPECT_EQ(LinesOf({"perl", Script("walk_index.pl"), Index()}), walk);
        EXPECT_EQ(LinesOf({"perl", Script("search_index.pl"), Table(), Index()}), search);
    }

    zy::test::TemporaryFolder folder;
    PosixFileSystem files{Windows1252()};
    DBEngine engine{files, [] {
                        using namespace std::chrono;
                        return year_month_day(2026y / November / 20);
                    }};
    std::unique_ptr<Database> database = engine.OpenDatabase(folder.InsidePath(), false, false, "dBase III");
};

const Rows kThreeUsers{{"ADMIN", "secret", "The boss", "27-01-31", "A"},
                       {"ADA", " x", "", "", "I"},
                       {"0123456789", "01234567890123456789", "\"quoted\"", "YY-MM-DD", "A"}};

TEST_F(OtherReaders, ReadOurUsers) {
    Write(kThreeUsers);
    ExpectReadByAll(kThreeUsers);
    ExpectIndexWalkedAndSearched(kThreeUsers);
}

TEST_F(OtherReaders, ReadOurCharactersBeyondAscii) {
    const Rows users{{"M\xFCller", "\x80\xE9\xFF", "caf\xE9", "", "A"}, {"\xC4rger", "", "", "", "I"}};
    Write(users);
    ExpectReadByAll(users);
    ExpectIndexWalkedAndSearched(users);
}

TEST_F(OtherReaders, ReadTheUsersOfTheSampleSettings) {
    for (const auto* name : {"ZYSECURE.DBF", "ZYSECURE.NDX"}) {
        std::filesystem::copy_file(ZY_SAMPLES + std::string("/") + name, Path(name));
    }
    const auto users = Read("ZYSECURE");
    EXPECT_EQ(users.size(), 5U);
    ExpectReadByAll(users);
    ExpectIndexWalkedAndSearched(users);
}

TEST_F(OtherReaders, ReadAnEmptyTableOfOurs) {
    Write({});
    EXPECT_THAT(LinesOf({"/usr/bin/python3", Script("read_dbfread.py"), Table()}), ::testing::IsEmpty());
    EXPECT_THAT(LinesOf({"/usr/bin/python3", Script("read_dbf.py"), Table()}), ::testing::IsEmpty());
    EXPECT_THAT(LinesOf({"perl", Script("read_xbase.pl"), Table()}), ::testing::IsEmpty());
    EXPECT_THAT(LinesOf({"perl", Script("walk_index.pl"), Index()}), ::testing::IsEmpty());
}

TEST_F(OtherReaders, ReadManyUsersOfOursInTheOrderOfTheIndex) {
    const auto users = ManyUsers(2000);
    Write(users);
    ExpectReadByAll(users);
    ExpectIndexWalkedAndSearched(users);
}

TEST_F(OtherReaders, FindNoFaultInAnIndexOfThreeLevels) {
    const auto users = ManyUsers(700);
    Write(users);
    ExpectIndexWalkedAndSearched(users);
}

// The other way round

const Rows kTheirUsers{{"ADMIN", "secret", "The boss", "27-01-31", "A"},
                       {"M\xFCller", "x y", "", "", "I"},
                       {"0123456789", "", "", "YY-MM-DD", "A"}};

TEST_F(OtherReaders, WriteWithPythonDbfWhatWeRead) {
    for (const auto* page : {"cp1252", "cp437", "cp850"}) {
        const std::string name = std::string(page) + ".dbf";
        LinesOf({"/usr/bin/python3", Script("write_dbf.py"), Path(name), page});
        EXPECT_EQ(Read(name), kTheirUsers) << page;
    }
}

TEST_F(OtherReaders, WriteWithXBaseWhatWeRead) {
    LinesOf({"perl", Script("write_xbase.pl"), Path("xbase.dbf")});
    EXPECT_EQ(Read("XBASE"), kTheirUsers);
}

TEST_F(OtherReaders, WriteWithShapelibWhatWeRead) {
    LinesOf({"dbfcreate", Path("shape.dbf"), "-s", "USERID", "10", "-s", "PASSWORD", "20", "-n", "AGE", "3",
             "0"});
    LinesOf({"dbfadd", Path("shape.dbf"), "ADMIN", "secret", "42"});
    LinesOf({"dbfadd", Path("shape.dbf"), "M\xFCller", "", "7"});
    EXPECT_EQ(Read("SHAPE"), (Rows{{"ADMIN", "secret", " 42"}, {"M\xFCller", "", "  7"}}));
}

TEST_F(OtherReaders, WriteTablesToWhichWeAdd) {
    for (const auto& arguments :
         {Lines{"/usr/bin/python3", Script("write_dbf.py"), Path("ZYSECURE.dbf"), "cp1252"},
          Lines{"perl", Script("write_xbase.pl"), Path("ZYSECURE.dbf")}}) {
        LinesOf(arguments);
        database->Execute(InsertUser({"NEW", "", "", "", "I"}, "ZYSECURE"), ExecuteOptions::FailOnError);
        database->Flush();
        auto users = kTheirUsers;
        users.push_back({"NEW", "", "", "", "I"});
        EXPECT_EQ(Read("ZYSECURE"), users);
        EXPECT_THAT(LinesOf({"perl", Script("read_xbase.pl"), Table()}), ElementsAreArray(Printed(users)));
        EXPECT_THAT(LinesOf({"/usr/bin/python3", Script("read_dbf.py"), Table()}),
                    ElementsAreArray(Printed(users)));
        std::filesystem::remove(Table());
    }
}

} // namespace
} // namespace zy::dbase::test
