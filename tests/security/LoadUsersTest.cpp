#include "UsersTest.h"

namespace zy::test {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::Not;

class LoadUsers : public UsersTest {};

TEST_F(LoadUsers, WithoutATableThereIsOneNewUserAndNoLogin) {
    EXPECT_EQ(Start("@SECURITY"), StartUp::WindowShown);
    EXPECT_THAT(Rows(), ElementsAre("NewUser||A|YY-MM-DD|"));
    EXPECT_TRUE(page().users.newSecurityFile);
    const auto traces = Traces();
    EXPECT_THAT(traces, Contains("mSecurity LoadSecurityData Start"));
    EXPECT_THAT(traces, Contains("mSecurity LoadSecurityData Load New Sec FIle Complete"));
    EXPECT_EQ(form().Caption(), "ZY Setup - Security");
}

TEST_F(LoadUsers, ATableWithoutAnAdministratorOpensWithoutALogin) {
    PutTable({User("Ann"), User("Bob")});
    EXPECT_EQ(Start("@SECURITY"), StartUp::WindowShown);
    EXPECT_THAT(Rows(), ElementsAre("Ann|secret|A||id of Ann", "Bob|secret|A||id of Bob"));
    EXPECT_FALSE(page().users.newSecurityFile);
    EXPECT_THAT(Traces(), Contains("mSecurity LoadSecurityData Load Complete"));
}

TEST_F(LoadUsers, ADiskThatFailsAtAnyMomentOpensNoEditorAsIfThereWereNoTable) {
    PutTable({User("Ann")});
    for (const bool lasting : {false, true}) {
        std::size_t operation = 0;
        do {
            ++operation;
            world.files.Plan({.operation = operation, .lasting = lasting});
            try {
                Start("@SECURITY");
                EXPECT_FALSE(page().users.newSecurityFile) << operation << lasting;
            } catch (const RuntimeError&) {
                EXPECT_NE(world.files.Operations().Faults(), 0U);
            }
        } while (world.files.Operations().Faults() != 0);
        EXPECT_GT(operation, 3U) << "the table is looked for, opened and read";
    }
}

TEST_F(LoadUsers, ColumnsAreTakenByTheirPlaceNotByTheirNames) {
    dbase::DBEngine engine(world.files, [this] { return world.system.Today(); });
    world.files.AddFolder(R"(C:\SYS)");
    const auto database = engine.OpenDatabase(R"(C:\SYS\)", false, false, "dBase III");
    database->Execute(
        "CREATE TABLE [ZYSECURE.DBF] (STATUS TEXT (10), A TEXT (20), B TEXT(20),C TEXT (8), D TEXT(1), "
        "MORE TEXT(3));");
    database->Execute(
        "INSERT INTO [ZYSECURE.DBF] (STATUS, A, B, C, D, MORE) VALUES ('n','p','i','d','I','x');");
    database->Close();
    Start("@SECURITY");
    EXPECT_THAT(Rows(), ElementsAre("n|p|I|d|i"));
}

TEST_F(LoadUsers, ATableOfFewerColumnsIsARunTimeError) {
    dbase::DBEngine engine(world.files, [this] { return world.system.Today(); });
    world.files.AddFolder(R"(C:\SYS)");
    const auto database = engine.OpenDatabase(R"(C:\SYS\)", false, false, "dBase III");
    database->Execute("CREATE TABLE [ZYSECURE.DBF] (USERID TEXT (10));");
    database->Execute("INSERT INTO [ZYSECURE.DBF] (USERID) VALUES ('n');");
    database->Close();
    EXPECT_EQ(RaisedBy([&] { Start("@SECURITY"); }).Number(), 3265);
}

TEST_F(LoadUsers, ATableWithoutUsersGivesOneEmptyElement) {
    PutTable({});
    EXPECT_EQ(Start("@SECURITY"), StartUp::WindowShown);
    EXPECT_THAT(Rows(), ElementsAre("||||"));
    EXPECT_EQ(page().users.zySecure, Users(1));
}

TEST_F(LoadUsers, AFileThatIsNoTableIsARunTimeErrorAndStays) {
    for (const std::string_view bytes :
         {std::string_view(""), std::string_view("no table"), std::string_view("\x03", 1)}) {
        world.files.Put(kUsersTable, bytes);
        EXPECT_EQ(RaisedBy([&] { Start("@SECURITY"); }).Number(), 3274);
        EXPECT_EQ(world.files.Get(kUsersTable), bytes);
        EXPECT_FALSE(form().Visible());
    }
}

TEST_F(LoadUsers, TheTableIsTheOneThatTheLocationFileNames) {
    PutTable({User("Far")}, R"(C:\ELSE\)");
    world.files.Put(R"(C:\SYS\ZYSECURE.ZYX)", "ZYSECURE.SECURITYFILE = \"c:\\else\\zysecure.dbf\"\r\n");
    Start("@SECURITY");
    EXPECT_THAT(Rows(), ElementsAre("Far|secret|A||id of Far"));
}

TEST_F(LoadUsers, AnEmptyPathCountsAsNoTable) {
    world.files.Put(R"(C:\SYS\ZYSECURE.ZYX)", "ZYSECURE.SECURITYFILE = \"\r\n");
    Start("@SECURITY");
    EXPECT_EQ(state().gsSecurityFile, "");
    EXPECT_THAT(Rows(), ElementsAre("NewUser||A|YY-MM-DD|"));
}

TEST_F(LoadUsers, AfterLoadingSaveIsOffAndDeleteFollowsWhetherThereAreUsers) {
    StartOver({User("Ann")});
    ExpectSaveEnabled(false);
    ExpectDeleteEnabled(true);
    ExpectMarks(false, false);
    EXPECT_EQ(Status(), "1 user");
    page().users.zySecure.clear();
    page().LoadSecurity();
    ExpectDeleteEnabled(false);
}

TEST_F(LoadUsers, TheGridHasItsHeadersAndAListOfStates) {
    StartOver({User("Ann")});
    EXPECT_EQ(grid().cells.Text(0, kUserName), "User Name");
    EXPECT_EQ(grid().cells.Text(0, kPassword), "Password");
    EXPECT_EQ(grid().cells.Text(0, kStatus), "Status");
    EXPECT_EQ(grid().cells.Text(0, kExpiryDate), "Expiry Date");
    EXPECT_EQ(grid().cells.Text(0, kIdentification), "User Identification");
    for (int column = 0; column < grid().cells.Columns(); ++column) {
        EXPECT_EQ(grid().columns.Width(column), 960);
        grid().Pick(1, column);
        grid().OpenEditor();
        EXPECT_EQ(grid().editor.List(), CellList(column == kStatus       ? "A|I"
                                                 : column == kExpiryDate ? "..."
                                                                         : ""));
        grid().editor.Cancel();
    }
}

TEST_F(LoadUsers, MoreUsersThanACounterHoldsAreAnOverflowBeforeAnythingIsShown) {
    Users users(32767, User("x"));
    PutTable(users);
    EXPECT_EQ(Start("@SECURITY"), StartUp::WindowShown);
    EXPECT_EQ(grid().cells.Rows(), 32768);
    world.files.Take(kUsersTable);
    users.push_back(User("x"));
    PutTable(users);
    EXPECT_EQ(RaisedBy([&] { Start("@SECURITY"); }).Number(), 6);
    EXPECT_FALSE(form().Visible());
}

} // namespace
} // namespace zy::test
