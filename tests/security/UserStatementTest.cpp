// The statements by which the users' table is written, and the table of fields that they follow from.

#include "security/UserStatement.h"

#include <gtest/gtest.h>

#include <set>

namespace zy::test {
namespace {

TEST(UserStatements, MakeTheTableInTheWordsThatTheEngineHasAlwaysBeenGiven) {
    EXPECT_EQ(CreateStatement(), "CREATE TABLE [ZYSECURE.TMP] (USERID TEXT (10), PASSWORD TEXT (20), "
                                 "IDENTIFIER TEXT(20),EXPDATE TEXT (8), STATUS TEXT(1));");
}

TEST(UserStatements, InsertAUserInTheOrderOfTheTable) {
    const UserRecord user{
        .USERID = "u", .PASSWORD = "p", .IDENTIFIER = "i", .EXPDATE = "31-12-24", .STATUS = "A"};
    auto statement = InsertFront("(USERID, PASSWORD, IDENTIFIER, EXPDATE, STATUS");
    AppendValues(statement, user);
    EXPECT_EQ(statement, "INSERT INTO [ZYSECURE.TMP] (USERID, PASSWORD, IDENTIFIER, EXPDATE, STATUS) "
                         "VALUES ('u', 'p', 'i', '31-12-24', 'A');");
}

TEST(UserStatements, MakeTheIndexOnAColumn) {
    EXPECT_EQ(IndexStatement("USERID"), "CREATE INDEX [ZYSECURE] ON [ZYSECURE.DBF] (USERID);");
}

TEST(UserFields, StandEachInAColumnOfTheirOwn) {
    std::set<UsersColumn> columns;
    for (const auto& field : kUserFields) {
        columns.insert(field.gridColumn);
        EXPECT_EQ(&FieldIn(field.gridColumn), &field) << field.column;
    }
    EXPECT_EQ(columns.size(), kUserFields.size());
}

TEST(UserFields, MakeTheRowOfAUserInTheOrderOfTheGrid) {
    const UserRecord user{
        .USERID = "u", .PASSWORD = "p", .IDENTIFIER = "i", .EXPDATE = "31-12-24", .STATUS = "A"};
    EXPECT_EQ(GridRow(user), "u\tp\tA\t31-12-24\ti");
}

} // namespace
} // namespace zy::test
