// Databases and recordsets.

#include "DatabaseTest.h"
#include "support/TableBytes.h"

namespace zy::dbase::test {
namespace {

using ::testing::ElementsAre;

// Opening

TEST_F(DatabaseTest, OpensFoldersOfOneKindOnly) {
    for (const auto* connect : {"", "dBase IV", "dBase III;", "Excel"}) {
        EXPECT_EQ(ErrorNumber([&] { engine.OpenDatabase(kFolder, false, false, connect); }), kNoSuchKind)
            << connect;
    }
    EXPECT_NE(engine.OpenDatabase(kFolder, true, false, "DBASE iii"), nullptr);
}

TEST_F(DatabaseTest, TakesAFolderWithOrWithoutItsLastSeparator) {
    Put("T.DBF", TableBytes({{"NAME", 6}}).Add(' ', {"Ada"}).Bytes());
    database = engine.OpenDatabase(R"(C:\SYS)", false, false, "dBase III");
    EXPECT_THAT(NamesIn("T"), ElementsAre("Ada"));
}

TEST_F(DatabaseTest, ShowsAMissingFolderWithTheFirstTable) {
    database = engine.OpenDatabase(R"(C:\MISSING)", false, false, "dBase III");
    EXPECT_EQ(ErrorNumber([&] { NamesIn("T"); }), kNoSuchTable);
    const auto raised = RaisedByRun("CREATE TABLE T (A TEXT(1))");
    EXPECT_EQ(raised.Number(), kBadPath);
    EXPECT_EQ(raised.Description(),
              R"('C:\MISSING\T.DBF' cannot be written: the file or folder does not exist.)");
}

TEST_F(DatabaseTest, FindsATableInAnyCase) {
    Put("Mixed.Dbf", TableBytes({{"NAME", 6}}).Add(' ', {"Ada"}).Bytes());
    for (const auto* name : {"mixed", "MIXED.DBF", "Mixed.dbf"}) {
        EXPECT_THAT(NamesIn(name), ElementsAre("Ada"));
    }
}

TEST_F(DatabaseTest, ChangesNothingWhenItIsForReadingOnly) {
    Put("T.DBF", TableBytes({{"NAME", 6}}).Add(' ', {"Ada"}).Bytes());
    database = Open(true);
    EXPECT_THAT(NamesIn("T"), ElementsAre("Ada"));
    for (const auto* sql :
         {"CREATE TABLE U (A TEXT(1))", "INSERT INTO T (NAME) VALUES ('x')", "CREATE INDEX I ON T (NAME)"}) {
        EXPECT_EQ(RaisedByRun(sql).Number(), kReadOnly);
    }
    EXPECT_THAT(Names(), ElementsAre("T.DBF"));
}

TEST_F(DatabaseTest, IsOfNoUseOnceItIsClosed) {
    database->Close();
    EXPECT_EQ(ErrorNumber([&] { database->OpenRecordset("T", RecordsetType::Dynaset); }), kClosed);
    EXPECT_EQ(RaisedByRun("CREATE TABLE T (A TEXT(1))").Number(), kClosed);
    EXPECT_EQ(ErrorNumber([&] { database->Flush(); }), kClosed);
    EXPECT_EQ(ErrorNumber([&] { database->Close(); }), kClosed);
}

// Recordsets

TEST_F(DatabaseTest, StandsOnTheFirstRecordOfANewRecordset) {
    Put("T.DBF", TableBytes({{"NAME", 6}}).Add('*', {"Gone"}).Add(' ', {"Ada"}).Add(' ', {"Bo"}).Bytes());
    const auto records = database->OpenRecordset("T", RecordsetType::Dynaset);
    EXPECT_EQ(records->Fields().Item(0).Value(), "Ada");
    records->MoveNext();
    EXPECT_EQ(records->Fields().Item(0).Value(), "Bo");
    records->MoveNext();
    EXPECT_TRUE(records->Eof());
    records->MoveFirst();
    EXPECT_EQ(records->Fields().Item(0).Value(), "Ada");
}

TEST_F(DatabaseTest, HasNoRecordBehindTheLastOne) {
    Put("T.DBF", TableBytes({{"NAME", 6}}).Add(' ', {"Ada"}).Bytes());
    const auto records = database->OpenRecordset("T", RecordsetType::Dynaset);
    records->MoveNext();
    EXPECT_EQ(ErrorNumber([&] { records->MoveNext(); }), kNoCurrentRecord);
    EXPECT_EQ(ErrorNumber([&] { static_cast<void>(records->Fields().Item(0).Value()); }), kNoCurrentRecord);
}

TEST_F(DatabaseTest, GoesToTheFirstOfNoRecordsWithoutAnError) {
    Run(kCreateUsers);
    const auto records = database->OpenRecordset("ZYSECURE.TMP", RecordsetType::Dynaset);
    EXPECT_TRUE(records->Eof());
    records->MoveFirst();
    EXPECT_TRUE(records->Eof());
    EXPECT_EQ(ErrorNumber([&] { records->MoveNext(); }), kNoCurrentRecord);
}

TEST_F(DatabaseTest, CountsColumnsFromNought) {
    Run(kCreateUsers);
    const auto records = database->OpenRecordset("ZYSECURE.TMP", RecordsetType::Dynaset);
    EXPECT_EQ(records->Fields().Count(), 5);
    EXPECT_EQ(records->Fields().Item(0).Name(), "USERID");
    EXPECT_EQ(records->Fields().Item(4).Name(), "STATUS");
    EXPECT_EQ(ErrorNumber([&] { records->Fields().Item(-1); }), kNoSuchItem);
    EXPECT_EQ(ErrorNumber([&] { records->Fields().Item(5); }), kNoSuchItem);
}

TEST_F(DatabaseTest, ClosesARecordsetForGood) {
    Run(kCreateUsers);
    const auto records = database->OpenRecordset("ZYSECURE.TMP", RecordsetType::Dynaset);
    records->Close();
    EXPECT_EQ(ErrorNumber([&] { records->MoveFirst(); }), kClosed);
    EXPECT_EQ(ErrorNumber([&] { static_cast<void>(records->Eof()); }), kClosed);
    EXPECT_EQ(ErrorNumber([&] { static_cast<void>(records->Fields().Count()); }), kClosed);
    records->Close();
}

TEST_F(DatabaseTest, KeepsARecordsetAsItWasWhenItsTableChanges) {
    Run(kCreateUsers);
    Insert("ADA");
    const auto records = database->OpenRecordset("ZYSECURE.TMP", RecordsetType::Dynaset);
    Insert("BO");
    database->Close();
    world.files.Take(PathOf("ZYSECURE.TMP"));
    EXPECT_EQ(RowsOf(*records).size(), 1U);
}

} // namespace
} // namespace zy::dbase::test
