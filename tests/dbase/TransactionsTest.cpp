// Transactions, and the save of the users editor.

#include "DatabaseTest.h"
#include "support/TableBytes.h"

namespace zy::dbase::test {
namespace {

using ::testing::ElementsAre;

class Transactions : public DatabaseTest {
  protected:
    void Reopen() {
        database->Close();
        database = Open();
    }
};

TEST_F(Transactions, GivesUpTheRowsOfATransactionThatIsOpenWhenItIsClosed) {
    Run(kCreateUsers);
    InsertInTransaction("ADA");
    engine.BeginTrans();
    Insert("BO");
    Insert("M\xFCller");
    Reopen();
    InsertInTransaction("CY");
    EXPECT_THAT(NamesIn("ZYSECURE.TMP"), ElementsAre("ADA", "CY"));
    EXPECT_EQ(Get("ZYSECURE.TMP")[29], '\0') << "nothing but ASCII is left";
}

TEST_F(Transactions, EndsAnOpenTransactionWhenItIsClosed) {
    Run(kCreateUsers);
    InsertInTransaction("ADA");
    engine.BeginTrans();
    Insert("BO");
    database->Close();
    EXPECT_EQ(RecordsOnDisk(), 1U);
    EXPECT_EQ(ErrorNumber([&] { engine.CommitTrans(); }), kNoTransaction);
}

TEST_F(Transactions, ShowsNoRowsOfAnOpenTransaction) {
    Run(kCreateUsers);
    Insert("ADA");
    engine.BeginTrans();
    Insert("M\xFCller");
    EXPECT_THAT(NamesIn("ZYSECURE.TMP"), ElementsAre("ADA"));
    EXPECT_EQ(Get("ZYSECURE.TMP")[29], '\0');
    engine.CommitTrans();
    EXPECT_THAT(NamesIn("ZYSECURE.TMP"), ElementsAre("ADA", "M\xFCller"));
}

TEST_F(Transactions, SpansSeveralTablesWithATransaction) {
    Run("CREATE TABLE T (A TEXT(3))");
    Run("CREATE TABLE U (A TEXT(3))");
    engine.BeginTrans();
    Run("INSERT INTO T (A) VALUES ('1')");
    Run("INSERT INTO U (A) VALUES ('2')");
    Reopen();
    engine.BeginTrans();
    Run("INSERT INTO U (A) VALUES ('3')");
    Run("INSERT INTO T (A) VALUES ('4')");
    engine.CommitTrans();
    EXPECT_THAT(NamesIn("T"), ElementsAre("4"));
    EXPECT_THAT(NamesIn("U"), ElementsAre("3"));
}

TEST_F(Transactions, LeavesTheOtherRowsOfATransactionAloneWhenAnInsertFails) {
    Run(kCreateUsers);
    engine.BeginTrans();
    Insert("ADA");
    EXPECT_EQ(RaisedByRun(InsertUser({"O'BRIEN", "", "", "", ""})).Number(), kInsertSyntax);
    EXPECT_EQ(RaisedByRun(InsertUser({"TOO LONG A NAME", "", "", "", ""})).Number(), kFieldTooSmall);
    Insert("BO");
    engine.CommitTrans();
    EXPECT_THAT(NamesIn("ZYSECURE.TMP"), ElementsAre("ADA", "BO"));
}

TEST_F(Transactions, LeavesATableAsItWasWhenAnInsertFails) {
    const auto bytes = UserTable().Add(' ', {"ADA", "", "", "", ""}).Bytes();
    Put("ZYSECURE.TMP", bytes);
    engine.BeginTrans();
    EXPECT_EQ(RaisedByRun(InsertUser({"O'BRIEN", "", "", "", ""})).Number(), kInsertSyntax);
    EXPECT_EQ(RaisedByRun(InsertUser({"", "", "", "", "too wide"})).Number(), kFieldTooSmall);
    database->Close();
    EXPECT_EQ(Get("ZYSECURE.TMP"), bytes);
}

TEST_F(Transactions, DoesNotNestTransactions) {
    engine.BeginTrans();
    EXPECT_EQ(ErrorNumber([&] { engine.BeginTrans(); }), kInTransaction);
    engine.CommitTrans();
    EXPECT_EQ(ErrorNumber([&] { engine.CommitTrans(); }), kNoTransaction);
}

TEST_F(Transactions, CreatesNothingWithinATransaction) {
    Run("CREATE TABLE T (A TEXT(3))");
    engine.BeginTrans();
    EXPECT_EQ(RaisedByRun(kCreateUsers).Number(), kInTransaction);
    EXPECT_EQ(RaisedByRun("CREATE INDEX I ON T (A)").Number(), kInTransaction);
    EXPECT_THAT(Names(), ElementsAre("T.DBF"));
}

// The save of the users editor

TEST_F(Transactions, ReplacesATableThroughATemporaryOneThatIsRenamedWhileItIsOpen) {
    Put("ZYSECURE.DBF", "old");
    Run(kCreateUsers);
    for (const auto* name : {"ZOE", "ADA", "BO"}) {
        InsertInTransaction(name);
    }
    database->Flush();
    EXPECT_EQ(world.files.Delete(PathOf("ZYSECURE.DBF")), FileError::None);
    EXPECT_EQ(world.files.Rename(PathOf("ZYSECURE.TMP"), PathOf("ZYSECURE.DBF")), FileError::None);
    database->Close();
    EXPECT_THAT(Names(), ElementsAre("ZYSECURE.DBF"));

    database = Open();
    EXPECT_THAT(NamesIn("ZYSECURE.DBF"), ElementsAre("ZOE", "ADA", "BO"));
    Run("CREATE INDEX [ZYSECURE] ON [ZYSECURE.DBF] (USERID);");
    EXPECT_THAT(Names(), ElementsAre("ZYSECURE.DBF", "ZYSECURE.NDX"));
}

} // namespace
} // namespace zy::dbase::test
