// Statements that are understood, but cannot be carried out.

#include "DbaseTest.h"

namespace zy::dbase::test {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;

class StatementErrors : public DbaseTest {};

TEST_F(StatementErrors, TakesAValueWithASingleQuoteForASyntaxErrorAndNeverShowsIt) {
    Run(kCreateUsers);
    for (const auto* value :
         {"sec'ret", "'secret", "secret'", "'", "sec'ret'ive", "sec', 'ret", "sec'); secret"}) {
        for (std::size_t field = 0; field < 5; ++field) {
            Row user{"A", "", "", "", ""};
            user[field] = value;
            const auto raised = RaisedByRun(InsertUser(user));
            EXPECT_THAT((std::vector{kInsertSyntax, kCountsDiffer}), ::testing::Contains(raised.Number()))
                << value;
            EXPECT_THAT(raised.Description(), Not(HasSubstr("ret"))) << value;
        }
    }
    EXPECT_THAT(RowsIn("ZYSECURE.TMP"), ::testing::IsEmpty());
}

TEST_F(StatementErrors, RefusesValuesThatAreTooWideWithoutShowingThem) {
    Run(kCreateUsers);
    const auto raised = RaisedByRun(InsertUser({"A", "123456789012345678901", "", "", ""}));
    EXPECT_EQ(raised.Number(), kFieldTooSmall);
    EXPECT_EQ(raised.Description(),
              "The field is too small: the value for 'PASSWORD' is wider than its 20 characters.");
    EXPECT_EQ(RaisedByRun(InsertUser({"A", "", "", "", "  "})).Number(), kFieldTooSmall);
    EXPECT_THAT(RowsIn("ZYSECURE.TMP"), ::testing::IsEmpty());
}

TEST_F(StatementErrors, AddsNoRowAndSaysNothingWithoutTheOptionToFail) {
    Run(kCreateUsers);
    database->Execute(InsertUser({"12345678901", "", "", "", ""}));
    database->Execute(InsertUser({"1234567890", "", "", "", ""}));
    EXPECT_EQ(RowsIn("ZYSECURE.TMP").size(), 1U);
}

TEST_F(StatementErrors, FailsWithoutTheOptionTooWhenTheStatementItselfIsWrong) {
    database->Execute(kCreateUsers);
    EXPECT_EQ(ErrorNumber([&] { database->Execute(kCreateUsers); }), kTableExists);
    EXPECT_EQ(ErrorNumber([&] { database->Execute("INSERT INTO MISSING (A) VALUES ('x')"); }), kNoSuchTable);
    EXPECT_EQ(ErrorNumber([&] { database->Execute("INSERT INTO [ZYSECURE.TMP] (A) VALUES ('x')"); }),
              kUnknownField);
    EXPECT_EQ(ErrorNumber([&] { database->Execute("INSERT INTO"); }), kInsertSyntax);
}

TEST_F(StatementErrors, RefusesATableThatExistsAndNamesItsFile) {
    Put("zysecure.tmp", "left over");
    const auto raised = RaisedByRun(kCreateUsers);
    EXPECT_EQ(raised.Number(), kTableExists);
    EXPECT_EQ(raised.Description(),
              R"(Table 'ZYSECURE.TMP' already exists: the file 'C:\SYS\ZYSECURE.TMP' stands in the way.)");
    EXPECT_EQ(Get("ZYSECURE.TMP"), "left over");
}

TEST_F(StatementErrors, RefusesAnIndexThatExists) {
    Run("CREATE TABLE T (A TEXT(3))");
    Put("I.NDX", "old");
    const auto raised = RaisedByRun("CREATE INDEX I ON T (A)");
    EXPECT_EQ(raised.Number(), kIndexExists);
    EXPECT_EQ(raised.Description(),
              R"(Index 'I' already exists: the file 'C:\SYS\I.NDX' stands in the way.)");
    EXPECT_EQ(Get("I.NDX"), "old");
}

TEST_F(StatementErrors, NamesFilesAsPeopleNameThem) {
    Run("CREATE TABLE T (A TEXT(3))");
    Put("I.NDX", "old");
    Put("BAD.DBF", "bad");
    world.files.SetDisplayed(R"(C:\SYS)", "/home/u");
    const auto expect = [&](std::string_view sql, const std::string& file) {
        EXPECT_THAT(RaisedByRun(sql).Description(), HasSubstr("'/home/u/" + file + "'")) << sql;
    };
    expect("CREATE TABLE T (A TEXT(3))", "T.DBF");
    expect("CREATE INDEX I ON T (A)", "I.NDX");
    expect("CREATE INDEX J ON T (B)", "T.DBF");
    expect("CREATE INDEX J ON BAD (A)", "BAD.DBF");
    expect("INSERT INTO BAD (A) VALUES ('x')", "BAD.DBF");
    expect("INSERT INTO MISSING (A) VALUES ('x')", "MISSING.DBF");
    EXPECT_THAT(RaisedBy([&] { RowsIn("BAD"); }).Description(), HasSubstr("'/home/u/BAD.DBF'"));
    world.files.SetFolderReadOnly(R"(C:\SYS)");
    expect("CREATE TABLE NEW (A TEXT(3))", "NEW.DBF");
    expect("CREATE INDEX J ON T (A)", "J.NDX");
}

TEST_F(StatementErrors, NamesTheFilesOfAWriteAsPeopleNameThem) {
    Run("CREATE TABLE T (A TEXT(3))");
    world.files.SetDisplayed(R"(C:\SYS)", "/home/u");
    const auto expect = [&](std::size_t failing, const std::string& files) {
        Run("INSERT INTO T (A) VALUES ('x')");
        world.files.Plan({.operation = failing});
        EXPECT_THAT(RaisedBy([&] { database->Flush(); }).Description(), HasSubstr(files)) << failing;
        world.files.Plan({});
        database->Flush();
    };
    expect(2, "'/home/u/T.DBF' cannot be written"); // a table without records is written over
    expect(1, "'/home/u/T.$$$' cannot be written");
    expect(6, "'/home/u/T.DBF' cannot be written");
}

TEST_F(StatementErrors, NamesBothFilesOfATableThatCouldNotBeRenamedAsPeopleNameThem) {
    Run("CREATE TABLE T (A TEXT(3))");
    Run("INSERT INTO T (A) VALUES ('x')");
    database->Flush();
    Run("INSERT INTO T (A) VALUES ('y')");
    world.files.SetDisplayed(R"(C:\SYS)", "/home/u");
    world.files.Plan({.operation = 7});
    EXPECT_THAT(RaisedBy([&] { database->Flush(); }).Description(),
                HasSubstr("stands in '/home/u/T.$$$': it could not be renamed to '/home/u/T.DBF'"));
}

TEST_F(StatementErrors, TellsHowFarAFileCouldBeReadAsPeopleNameIt) {
    Run("CREATE TABLE T (A TEXT(3))");
    world.files.SetDisplayed(R"(C:\SYS)", "/home/u");
    world.files.Plan({.operation = 2});
    EXPECT_THAT(RaisedBy([&] { RowsIn("T"); }).Description(), HasSubstr("'/home/u/T.DBF' could be read"));
}

TEST_F(StatementErrors, RefusesColumnsThatATableDoesNotHave) {
    Run("CREATE TABLE T (A TEXT(3), B TEXT(3))");
    const auto raised = RaisedByRun("INSERT INTO T (A, C) VALUES ('x', 'y')");
    EXPECT_EQ(raised.Number(), kUnknownField);
    EXPECT_EQ(raised.Description(),
              "The INSERT INTO statement contains the following unknown field name: 'C'.");
    EXPECT_EQ(RaisedByRun("INSERT INTO T (A, a) VALUES ('x', 'y')").Number(), kDuplicateDestination);
    EXPECT_EQ(RaisedByRun("INSERT INTO T (A) VALUES ('x', 'y')").Number(), kCountsDiffer);
    EXPECT_EQ(RaisedByRun("INSERT INTO T (A, B) VALUES ('x')").Number(), kCountsDiffer);
    EXPECT_EQ(RaisedByRun("CREATE INDEX I ON T (C)").Number(), kUnknownIndexField);
    EXPECT_EQ(RaisedByRun("CREATE INDEX I ON T (A, B)").Number(), kNotSupported);
    EXPECT_EQ(RaisedByRun("CREATE INDEX I ON MISSING (A)").Number(), kNoSuchTable);
}

TEST_F(StatementErrors, RefusesColumnsThatATableCannotHave) {
    for (const auto* name : {"[]", "ABCDEFGHIJK", "[A B]", "_A", "\xC4", "[1A]", "[A-B]", "[A.B]"}) {
        EXPECT_EQ(RaisedByRun("CREATE TABLE T (X TEXT(1), " + std::string(name) + " TEXT(1))").Number(),
                  kBadName)
            << name;
    }
    EXPECT_EQ(RaisedByRun("CREATE TABLE T (A TEXT(1), B TEXT(2), a TEXT(1))").Number(), kFieldDefinedTwice);
    EXPECT_EQ(RaisedByRun("CREATE TABLE T (A TEXT(0))").Number(), kFieldSyntax);
    EXPECT_EQ(RaisedByRun("CREATE TABLE T (A TEXT(255))").Number(), kFieldSyntax);
    EXPECT_THAT(Names(), ::testing::IsEmpty());
}

TEST_F(StatementErrors, RefusesNamesThatCannotBeThoseOfFiles) {
    for (const auto* name :
         {"[]", "[ ]", "[.]", "[..]", "[a\\b]", "[a/b]", "[a:b]", "[a*]", "[a?]", "[a\tb]"}) {
        const std::string text = name;
        EXPECT_EQ(RaisedByRun("CREATE TABLE " + text + " (A TEXT(1))").Number(), kBadName) << text;
        EXPECT_EQ(RaisedByRun("INSERT INTO " + text + " (A) VALUES ('x')").Number(), kBadName) << text;
        EXPECT_EQ(ErrorNumber([&] { RowsIn(text.substr(1, text.size() - 2)); }), kBadName) << text;
    }
}

TEST_F(StatementErrors, WritesTextIntoTextColumnsOnly) {
    Put("T.DBF", std::string("\x03\x7E\x0B\x14\0\0\0\0\x41\0\x02\0", 12) + std::string(20, '\0') + "N" +
                     std::string(10, '\0') + "N" + std::string(4, '\0') + "\x01" + std::string(15, '\0') +
                     "\x0D\x1A");
    EXPECT_EQ(RaisedByRun("INSERT INTO T (N) VALUES ('1')").Number(), kNotSupported);
    EXPECT_EQ(RaisedByRun("CREATE INDEX I ON T (N)").Number(), kUnknownIndexField);
}

} // namespace
} // namespace zy::dbase::test
