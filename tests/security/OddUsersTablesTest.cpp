// Tables of users that can be read but are not as the editor writes them.

#include "UsersTest.h"
#include "support/TableBytes.h"

namespace zy::test {
namespace {

using dbase::test::TableBytes;
using ::testing::ElementsAre;

class OddUsersTables : public UsersTest {
  protected:
    void Open(const TableBytes& table) {
        world.files.Put(kUsersTable, table.Bytes());
        EXPECT_EQ(Start("@SECURITY"), StartUp::WindowShown);
    }
    /// Saving is refused with this message, and the table stays as it is.
    void ExpectSaveRefused(const std::string& message) {
        const auto before = world.files.Get(kUsersTable);
        world.dialogs.ExpectMessage(message, "ZY Setup");
        ChooseSave();
        ExpectScriptPlayed(world.dialogs);
        EXPECT_EQ(world.files.Get(kUsersTable), before);
        EXPECT_FALSE(world.files.Exists(kUsersTemporary));
    }
};

TEST_F(OddUsersTables, WithWiderColumnsShowWhatTheyHoldAndTheChecksRefuseWhatIsTooLong) {
    TableBytes table({{"USERID", 30}, {"PASSWORD", 40}, {"IDENTIFIER", 40}, {"EXPDATE", 20}, {"STATUS", 5}});
    table.Add(' ', {"AnnaBellaClara", std::string(21, 'p'), std::string(21, 'i'), "2026-11-20", "A"});
    Open(table);
    EXPECT_THAT(Rows(), ElementsAre("AnnaBellaClara|" + std::string(21, 'p') + "|A|2026-11-20|" +
                                    std::string(21, 'i')));
    ExpectSaveRefused("Invalid User ID. User ID must not be longer than 10 characters");
    Edit(1, kUserName, "Anna");
    ExpectSaveRefused("Invalid Password. Password must not be longer than 20 characters");
    Edit(1, kPassword, "p");
    ExpectSaveRefused("Invalid User Identifier. User Identifier must not be longer than 20 characters");
    Edit(1, kIdentification, "i");
    ExpectSaveRefused("Invalid Expiry Date. Expiry Date must not be longer than 8 characters");
    Edit(1, kExpiryDate, "26-11-20");
    ChooseSave();
    EXPECT_EQ(world.files.Get(kUsersTable)->size(), 194U + 60U) << "the columns have their own widths again";
}

TEST_F(OddUsersTables, WithTooFewColumnsAreNamedAsPeopleNameThem) {
    world.files.SetDisplayed(R"(C:\SYS)", "/home/u");
    world.files.Put(kUsersTable, TableBytes({{"USERID", 10}}).Add(' ', {"Ann"}).Bytes());
    EXPECT_THAT(RaisedBy([&] { Start("@SECURITY"); }).Description(),
                ::testing::HasSubstr("the table of users '/home/u/ZYSECURE.DBF' has 1 of the 5 fields"));
}

TEST_F(OddUsersTables, WithAStatusThatIsTooWideAreNotSavedForNoCheckLooksAtIt) {
    TableBytes table({{"USERID", 10}, {"PASSWORD", 20}, {"IDENTIFIER", 20}, {"EXPDATE", 8}, {"STATUS", 5}});
    Open(table.Add(' ', {"Ann", "pw", "id", "", "AA"}));
    Edit(1, kPassword, "new");
    const auto before = world.files.Get(kUsersTable);
    const auto error = RaisedBy([&] { Save(); });
    EXPECT_EQ(error.Number(), 3163);
    EXPECT_EQ(error.Description(),
              "The field is too small: the value for 'STATUS' is wider than its 1 characters.\n\n"
              "The file C:\\SYS\\ZYSECURE.TMP stands in the way of the next save. It holds no users. "
              "C:\\SYS\\ZYSECURE.DBF is in place. Move the file to another folder before you save again.");
    EXPECT_EQ(world.files.Get(kUsersTable), before);
}

TEST_F(OddUsersTables, WithNarrowerColumnsAreSavedWithColumnsOfTheirOwnWidths) {
    TableBytes table({{"USERID", 3}, {"PASSWORD", 2}, {"IDENTIFIER", 2}, {"EXPDATE", 1}, {"STATUS", 1}});
    Open(table.Add(' ', {"Ann", "pw", "id", "", "A"}));
    EXPECT_THAT(Rows(), ElementsAre("Ann|pw|A||id"));
    Edit(1, kUserName, "AnnaBellaC");
    Save();
    EXPECT_EQ(TableUsers()->front().USERID, "AnnaBellaC");
    EXPECT_EQ(world.files.Get(kUsersTable)->size(), 194U + 60U);
}

TEST_F(OddUsersTables, WithColumnsThatAreNoTextShowTheTextThatStandsForThem) {
    TableBytes table({{"USERID", 10, 'N'},
                      {"PASSWORD", 20, 'F', 2},
                      {"IDENTIFIER", 10, 'M'},
                      {"EXPDATE", 8, 'D'},
                      {"STATUS", 1, 'L'}});
    Open(table.Add(' ', {"        12", "                1.50", "         7", "20261120", "T"}));
    EXPECT_THAT(Rows(), ElementsAre("        12|                1.50|T|20261120|         7"));
    ExpectSaveRefused("Invalid Expiry Date. Must Use Format YY-MM-DD or blank for no Expiry Date");
    Edit(1, kExpiryDate, "26-11-20");
    ChooseSave();
    EXPECT_EQ(TableUsers(), (Users{{.USERID = "        12",
                                    .PASSWORD = "                1.50",
                                    .IDENTIFIER = "         7",
                                    .EXPDATE = "26-11-20",
                                    .STATUS = "T"}}));
}

TEST_F(OddUsersTables, InACodePageOfDosShowAccentsAndAreSavedInThatOfWindows) {
    auto table = dbase::test::UserTable();
    table.Add(' ', {"M\x81ller", "p\x84ss", "id", "", "A"});
    for (const char* language : {"\x01", "\x02"}) {
        table.language = language;
        Open(table);
        EXPECT_THAT(Rows(), ElementsAre("M\xFCller|p\xE4ss|A||id"));
        Edit(1, kIdentification, "new");
        Save();
        EXPECT_EQ(TableUsers()->front().USERID, "M\xFCller");
        const auto bytes = *world.files.Get(kUsersTable);
        EXPECT_EQ(bytes[29], '\x03');
        EXPECT_EQ(bytes.substr(194, 6), "M\xFCller");
    }
}

TEST_F(OddUsersTables, InACodePageOfDosHaveAnAdministratorWithAnAccentInThePassword) {
    auto table = dbase::test::UserTable();
    table.language = "\x02";
    table.Add(' ', {"ADMIN", "p\x84ss", "id", "", "A"});
    world.files.Put(kUsersTable, table.Bytes());
    ExpectLogin([&](frmLogin& login) {
        login.txtUserName.Enter("admin");
        login.txtPassword.Enter("P\xC4SS");
        login.cmdOK.Click();
    });
    EXPECT_EQ(Start("@SECURITY"), StartUp::WindowShown);
}

TEST_F(OddUsersTables, WithADoubleQuoteInANameAreShownAndNotSaved) {
    Open(dbase::test::UserTable().Add(' ', {"\"Ann\"", "pw", "id", "", "A"}));
    EXPECT_THAT(Rows(), ElementsAre("\"Ann\"|pw|A||id"));
    ExpectSaveRefused("Invalid User Name. User ID cannot contain Double Quotes");
}

TEST_F(OddUsersTables, WithANulInAValueKeepIt) {
    const std::string name("A\0n", 3);
    Open(dbase::test::UserTable().Add(' ', {name, "pw", "id", "", "A"}));
    Edit(1, kPassword, "new");
    Save();
    EXPECT_EQ(TableUsers()->front().USERID, name);
}

TEST_F(OddUsersTables, Of32767UsersAreSavedWhole) {
    Users users;
    for (int i = 0; i < 32767; ++i) {
        users.push_back(User("u" + std::to_string(i)));
    }
    StartOver(users);
    EXPECT_EQ(Status(), "32767 users");
    Edit(32767, kPassword, "new");
    Save();
    users.back().PASSWORD = "new";
    EXPECT_EQ(TableUsers(), users);
    EXPECT_EQ(world.files.Get(kUsersIndex)->size(), 1369U * 512);
}

TEST_F(OddUsersTables, Of32768UsersAreAnOverflowAndStay) {
    auto table = dbase::test::UserTable();
    for (int i = 0; i < 32768; ++i) {
        table.Add(' ', {"u" + std::to_string(i), "pw", "id", "", "A"});
    }
    const auto bytes = table.Bytes();
    world.files.Put(kUsersTable, bytes);
    EXPECT_EQ(RaisedBy([&] { Start("@SECURITY"); }).Number(), 6);
    EXPECT_EQ(world.files.Get(kUsersTable), bytes);
    EXPECT_FALSE(form().Visible());
}

TEST_F(OddUsersTables, Of32767UsersAndDeletedOnesAreReadForOnlyTheShownOnesCount) {
    auto table = dbase::test::UserTable();
    for (int i = 0; i < 32767; ++i) {
        table.Add(' ', {"u" + std::to_string(i), "pw", "id", "", "A"});
        table.Add('*', {"gone", "", "", "", ""});
    }
    Open(table);
    EXPECT_EQ(grid().cells.Rows(), 32768);
}

} // namespace
} // namespace zy::test
