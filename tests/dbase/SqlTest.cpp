// The statements: what is understood, and what is said of those that are not.

#include "DbaseTest.h"

namespace zy::dbase::test {
namespace {

using ::testing::ElementsAre;

class Sql : public DbaseTest {
  protected:
    /// What is said of a statement after "Syntax error in ... statement: at character ".
    void ExpectFailure(const std::string& sql, int number, const std::string& text) {
        const auto raised = RaisedByRun(sql);
        EXPECT_EQ(raised.Number(), number) << sql;
        EXPECT_EQ(raised.Description(), text) << sql;
    }
    void ExpectInsertFailure(const std::string& sql, const std::string& place) {
        ExpectFailure(sql, kInsertSyntax, "Syntax error in INSERT INTO statement: at character " + place);
    }
};

TEST_F(Sql, IsUnderstoodInAnyCaseAndWithAnyBlanks) {
    Run("create\tTable\r\n  t(a Text(3),b\nTEXT( 04 ) )  ;  ");
    Run("INSERT into[T](B , a)values('1' ,'2')");
    EXPECT_EQ(RowsIn("T"), (Rows{{"2", "1"}}));
    Run("Create INDEX i on t(A);");
    EXPECT_THAT(Names(), ElementsAre("i.NDX", "t.DBF"));
}

TEST_F(Sql, TakesNamesBareOrInBrackets) {
    Run("CREATE TABLE [a table.x] ([TEXT] TEXT (5), [VALUES] TEXT(5), TABLE TEXT (5))");
    Run("INSERT INTO [A TABLE.X] (TEXT, VALUES, [table]) VALUES ('a', 'b', 'c')");
    EXPECT_EQ(RowsIn("A Table.X"), (Rows{{"a", "b", "c"}}));
}

TEST_F(Sql, MeansTheExtensionOfATableOrAnIndexWhenThereIsNone) {
    Run("CREATE TABLE PLAIN (A TEXT (5))");
    Run("CREATE TABLE [OTHER.TMP] (A TEXT (5))");
    Run("CREATE INDEX PLAIN ON PLAIN (A)");
    Run("CREATE INDEX [OTHER.IDX] ON [OTHER.TMP] (A)");
    EXPECT_THAT(Names(), ElementsAre("OTHER.IDX", "OTHER.TMP", "PLAIN.DBF", "PLAIN.NDX"));
}

TEST_F(Sql, TakesAnythingBetweenQuotesForText) {
    Run("CREATE TABLE T (A TEXT (30))");
    const Row values{"", " ", "it''s", "''", "''''", "a \"b\" [c], (d);", "\x80\xFF\x01\n", "VALUES", "--"};
    for (const auto& value : values) {
        Run("INSERT INTO T (A) VALUES ('" + value + "')");
    }
    EXPECT_EQ(RowsIn("T"), (Rows{{""},
                                 {""},
                                 {"it's"},
                                 {"'"},
                                 {"''"},
                                 {"a \"b\" [c], (d);"},
                                 {"\x80\xFF\x01\n"},
                                 {"VALUES"},
                                 {"--"}}));
}

TEST_F(Sql, FillsColumnsThatAreNotNamedWithBlanks) {
    Run("CREATE TABLE T (A TEXT (3), B TEXT (3), C TEXT (3))");
    Run("INSERT INTO T (B) VALUES ('x')");
    EXPECT_EQ(RowsIn("T"), (Rows{{"", "x", ""}}));
}

TEST_F(Sql, IsRefusedWhenItIsNoKnownStatement) {
    for (const auto* sql : {"", "   ", ";", "SELECT * FROM T", "INSERTS INTO T (A) VALUES ('x')",
                            "[INSERT] INTO T", "'INSERT'", "DROP TABLE T", "\xFF", "(", "12"}) {
        EXPECT_EQ(RaisedByRun(sql).Number(), kInvalidStatement) << sql;
    }
    ExpectFailure("  DROP TABLE T", kInvalidStatement,
                  "Invalid SQL statement: at character 3 stands a word where CREATE or INSERT should.");
    ExpectFailure("", kInvalidStatement,
                  "Invalid SQL statement: at character 1 stands the end where CREATE or INSERT should.");
}

TEST_F(Sql, SaysWhatIsWrongWithACreateTable) {
    const std::string front = "Syntax error in CREATE TABLE statement: at character ";
    ExpectFailure("CREATE", kCreateTableSyntax, front + "7 stands the end where TABLE should.");
    ExpectFailure("CREATE VIEW T", kCreateTableSyntax, front + "8 stands a word where TABLE should.");
    ExpectFailure("CREATE TABLE", kCreateTableSyntax, front + "13 stands the end where a name should.");
    ExpectFailure("CREATE TABLE 'T' (A TEXT(1))", kCreateTableSyntax,
                  front + "14 stands a text in quotes where a name should.");
    ExpectFailure("CREATE TABLE [T (A TEXT(1))", kCreateTableSyntax,
                  front + "14 stands a name without a closing bracket where a name should.");
    ExpectFailure("CREATE TABLE T", kCreateTableSyntax, front + "15 stands the end where '(' should.");
    ExpectFailure("CREATE TABLE T ()", kCreateTableSyntax,
                  front + "17 stands a closing parenthesis where a name should.");
    ExpectFailure("CREATE TABLE T (A TEXT(1)", kCreateTableSyntax,
                  front + "26 stands the end where ',' or ')' should.");
    ExpectFailure("CREATE TABLE T (A TEXT(1),)", kCreateTableSyntax,
                  front + "27 stands a closing parenthesis where a name should.");
    ExpectFailure("CREATE TABLE T (A TEXT(1));;", kCreateTableSyntax,
                  front + "28 stands a semicolon where the end should.");
    ExpectFailure("CREATE TABLE T (A TEXT(1)) x", kCreateTableSyntax,
                  front + "28 stands a word where the end should.");
}

TEST_F(Sql, SaysWhatIsWrongWithAColumn) {
    const std::string front = "Syntax error in field definition: at character ";
    ExpectFailure("CREATE TABLE T (A)", kFieldSyntax,
                  front + "18 stands a closing parenthesis where TEXT should.");
    ExpectFailure("CREATE TABLE T (A DATE)", kFieldSyntax, front + "19 stands a word where TEXT should.");
    ExpectFailure("CREATE TABLE T (A TEXT)", kFieldSyntax,
                  front + "23 stands a closing parenthesis where '(' should.");
    ExpectFailure("CREATE TABLE T (A TEXT())", kFieldSyntax,
                  front + "24 stands a closing parenthesis where a width should.");
    ExpectFailure("CREATE TABLE T (A TEXT(-1))", kFieldSyntax,
                  front + "24 stands a character that belongs to nothing where a width should.");
    ExpectFailure("CREATE TABLE T (A TEXT(99999999999))", kFieldSyntax,
                  front + "24 stands a number where a width of 1 to 254 should.");
    ExpectFailure("CREATE TABLE T (A TEXT(1", kFieldSyntax, front + "25 stands the end where ')' should.");
}

TEST_F(Sql, SaysWhatIsWrongWithAnInsert) {
    Run("CREATE TABLE T (A TEXT (3), B TEXT (3))");
    ExpectInsertFailure("INSERT T (A) VALUES ('x')", "8 stands a word where INTO should.");
    ExpectInsertFailure("INSERT INTO T VALUES ('x')", "15 stands a word where '(' should.");
    ExpectInsertFailure("INSERT INTO T (A) ('x')", "19 stands an opening parenthesis where VALUES should.");
    ExpectInsertFailure("INSERT INTO T (A) VALUES (x)", "27 stands a word where a text in quotes should.");
    ExpectInsertFailure("INSERT INTO T (A) VALUES (1)", "27 stands a number where a text in quotes should.");
    ExpectInsertFailure("INSERT INTO T (A) VALUES (\"x\")",
                        "27 stands a character that belongs to nothing where a text in quotes should.");
    ExpectInsertFailure("INSERT INTO T (A) VALUES ('x'", "30 stands the end where ',' or ')' should.");
    ExpectInsertFailure("INSERT INTO T (A) VALUES ('x",
                        "27 stands a text without a closing quote where a text in "
                        "quotes should.");
    ExpectInsertFailure("INSERT INTO T (A, B) VALUES ('x' 'y')",
                        "34 stands a text in quotes where ',' or ')' should.");
    ExpectInsertFailure("INSERT INTO T (A; B) VALUES ('x', 'y')",
                        "17 stands a semicolon where ',' or ')' should.");
    ExpectInsertFailure("INSERT INTO T (A,, B) VALUES ('x', 'y')", "18 stands a comma where a name should.");
}

TEST_F(Sql, SaysWhatIsWrongWithACreateIndex) {
    const std::string front = "Syntax error in CREATE INDEX statement: at character ";
    ExpectFailure("CREATE INDEX ON T (A)", kCreateIndexSyntax, front + "17 stands a word where ON should.");
    ExpectFailure("CREATE INDEX I ON (A)", kCreateIndexSyntax,
                  front + "19 stands an opening parenthesis where a name should.");
    ExpectFailure("CREATE INDEX I ON T A", kCreateIndexSyntax, front + "21 stands a word where '(' should.");
    ExpectFailure("CREATE INDEX I ON T (A) UNIQUE", kCreateIndexSyntax,
                  front + "25 stands a word where the end should.");
}

} // namespace
} // namespace zy::dbase::test
