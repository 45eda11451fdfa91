// What is on the disk when.

#include <array>
#include <string>
#include <vector>

#include "DatabaseTest.h"
#include "support/TableBytes.h"

namespace zy::dbase::test {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class PendingRows : public DatabaseTest {};

TEST_F(PendingRows, WritesCommittedRowsWithTheNextFlush) {
    Run(kCreateUsers);
    InsertInTransaction("ADA");
    Insert("BO");
    EXPECT_EQ(RecordsOnDisk(), 0U);
    database->Flush();
    EXPECT_EQ(RecordsOnDisk(), 2U);
}

TEST_F(PendingRows, WritesCommittedRowsBeforeTheyAreReadOrIndexedAndWhenItIsClosed) {
    Run(kCreateUsers);
    InsertInTransaction("ADA");
    EXPECT_THAT(NamesIn("ZYSECURE.TMP"), ElementsAre("ADA"));
    InsertInTransaction("BO");
    Run("CREATE INDEX I ON [ZYSECURE.TMP] (USERID)");
    EXPECT_EQ(RecordsOnDisk(), 2U);
    InsertInTransaction("CY");
    database->Close();
    EXPECT_EQ(RecordsOnDisk(), 3U);
}

TEST_F(PendingRows, WritesThemForGood) {
    Run(kCreateUsers);
    Insert("ADA");
    world.files.Plan({});
    database->Flush();
    EXPECT_THAT(world.files.Operations().Lines(),
                ElementsAre(R"(Exists C:\SYS\ZYSECURE.TMP)", R"(Create C:\SYS\ZYSECURE.TMP)",
                            R"(Write C:\SYS\ZYSECURE.TMP)", R"(Flush C:\SYS\ZYSECURE.TMP)",
                            R"(Close C:\SYS\ZYSECURE.TMP)"));
}

TEST_F(PendingRows, WritesThemOnceMoreAfterAWriteThatFailed) {
    Run(kCreateUsers);
    Insert("ADA");
    world.files.Plan({.operation = 3, .cutShort = true});
    EXPECT_EQ(ErrorNumber([&] { database->Flush(); }), kDiskFailed);
    world.files.Plan({});
    database->Flush();
    EXPECT_EQ(Get("ZYSECURE.TMP"), UserTable().Add(' ', {"ADA", "", "", "", ""}).Bytes());
}

TEST_F(PendingRows, TouchesNoFileWhenNothingIsPending) {
    Run(kCreateUsers);
    Insert("ADA");
    database->Flush();
    world.files.Plan({});
    database->Flush();
    database->Close();
    EXPECT_THAT(world.files.Operations().Lines(), IsEmpty());
}

TEST_F(PendingRows, TouchesNoFileAfterARowThatWasRefused) {
    Run(kCreateUsers);
    Insert("ADA");
    database->Flush();
    EXPECT_EQ(ErrorNumber([&] { Insert("ELEVENCHARS"); }), kFieldTooSmall);
    world.files.Plan({});
    database->Flush();
    EXPECT_THAT(world.files.Operations().Lines(), IsEmpty());
}

TEST_F(PendingRows, DropsWhatIsPendingWhenItIsDestroyedWithoutBeingClosed) {
    Run(kCreateUsers);
    engine.BeginTrans();
    Insert("ADA");
    database = Open();
    EXPECT_EQ(ErrorNumber([&] { engine.CommitTrans(); }), kNoTransaction);
    EXPECT_THAT(NamesIn("ZYSECURE.TMP"), IsEmpty());
}

TEST_F(PendingRows, AreWrittenBesideTheTableWhateverDotsItsPathHas) {
    for (const auto& [folder, table, beside] :
         std::vector<std::array<std::string, 3>>{{R"(C:\SYS.D\)", "T.", R"(C:\SYS.D\T.$$$)"},
                                                 {R"(C:\SYS.D\)", "T", R"(C:\SYS.D\T.$$$)"},
                                                 {R"(C:\SYS.D\)", ".X", R"(C:\SYS.D\.X.$$$)"}}) {
        world.files.AddFolder(R"(C:\SYS.D)");
        database = engine.OpenDatabase(folder, false, false, "dBase III");
        Run("CREATE TABLE [" + table + "] (NAME TEXT(1))");
        Run("INSERT INTO [" + table + "] (NAME) VALUES ('a')");
        database->Flush();
        Run("INSERT INTO [" + table + "] (NAME) VALUES ('b')");
        world.files.Plan({});
        database->Flush();
        EXPECT_THAT(world.files.Operations().Lines(), Contains("CreatePrivate " + beside)) << table;
    }
}

TEST_F(PendingRows, SeesATableThatOthersReplaceOnceItIsFlushed) {
    Run(kCreateUsers);
    Insert("ADA");
    database->Flush();
    Put("ZYSECURE.TMP", UserTable().Add(' ', {"OTHER", "", "", "", ""}).Bytes());
    Insert("BO");
    EXPECT_THAT(NamesIn("ZYSECURE.TMP"), ElementsAre("OTHER", "BO"));
}

TEST_F(PendingRows, DoesNotMakeATableAnewThatOthersHaveTakenAway) {
    Run(kCreateUsers);
    Insert("ADA");
    world.files.Take(PathOf("ZYSECURE.TMP"));
    EXPECT_EQ(ErrorNumber([&] { database->Flush(); }), kBadPath);
    EXPECT_THAT(Names(), IsEmpty());
}

TEST_F(PendingRows, ForgetsTheRowsOfATableThatWasTakenAwayAndIsCreatedAnew) {
    Run(kCreateUsers);
    Insert("ADA");
    world.files.Take(PathOf("ZYSECURE.TMP"));
    Run(kCreateUsers);
    EXPECT_THAT(NamesIn("ZYSECURE.TMP"), IsEmpty());
}

TEST_F(PendingRows, SharesATableWithTheOtherDatabasesOfItsEngine) {
    const auto other = Open();
    Run(kCreateUsers);
    Insert("ADA");
    other->Execute(InsertUser({"BO", "", "", "", ""}, "zysecure.tmp"));
    EXPECT_THAT(NamesIn("ZYSECURE.TMP"), ElementsAre("ADA", "BO"));
}

TEST_F(PendingRows, GivesAnIndexThePermissionsOfItsTable) {
    Run(kCreateUsers);
    Run("CREATE INDEX A ON [ZYSECURE.TMP] (USERID)");
    EXPECT_EQ(world.files.Permissions(PathOf("A.NDX")), 0600U);
    world.files.SetPermissions(PathOf("ZYSECURE.TMP"), 0640);
    Run("CREATE INDEX B ON [ZYSECURE.TMP] (USERID)");
    EXPECT_EQ(world.files.Permissions(PathOf("B.NDX")), 0640U);
}

} // namespace
} // namespace zy::dbase::test
