// The file that names the table of users, as a careless hand may leave it, and what becomes of the editor.

#include "UsersTest.h"

namespace zy::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class BadLocationFile : public UsersTest {
  protected:
    static constexpr std::string_view kLocation = R"(C:\SYS\ZYSECURE.ZYX)";

    void StartWith(std::string_view locationFile) {
        world.files.Put(kLocation, locationFile);
        EXPECT_EQ(Start("@SECURITY"), StartUp::WindowShown);
    }
    void StartAt(const std::string& path) { StartWith("ZYSECURE.SECURITYFILE=" + path + "\r\n"); }

    /// The file leaves the table in the system directory as the one that is edited.
    void ExpectDefault(std::string_view locationFile) {
        SCOPED_TRACE(::testing::PrintToString(locationFile));
        StartWith(locationFile);
        EXPECT_EQ(state().gsSecurityFile, kUsersTable);
        EXPECT_THAT(Rows(), ElementsAre("Ann|secret|A||id of Ann"));
        EXPECT_EQ(world.files.Get(kLocation), locationFile);
    }
    void ExpectNewList() { EXPECT_THAT(Rows(), ElementsAre("NewUser||A|YY-MM-DD|")); }

    /// Saves a user who passes the checks.
    RuntimeError RaisedBySave() {
        Edit(1, kPassword, "p");
        Edit(1, kIdentification, "i");
        return RaisedBy([&] { Save(); });
    }
    void ExpectNoPath(const std::string& path) {
        const auto error = RaisedBySave();
        EXPECT_EQ(error.Number(), 3044);
        EXPECT_EQ(error.Description(), "'" + path +
                                           "' isn't a valid path for the table of users: it names no folder. "
                                           "C:\\SYS\\ZYSECURE.ZYX names the table.");
        EXPECT_THAT(world.files.Names(""), IsEmpty()) << "nothing was written in the root";
        EXPECT_THAT(world.files.Names(R"(C:\SYS)"), ElementsAre("ZYSECURE.ZYX"));
    }
};

TEST_F(BadLocationFile, WithoutAWholeLineOfTheKeyLeavesTheTableInTheSystemDirectory) {
    PutTable({User("Ann")});
    ExpectDefault("");
    ExpectDefault("\r\n\r\n");
    ExpectDefault("ZYSECURE.SECURITYFILE=D:\\ELSE\\ZYSEC");
    ExpectDefault("ZYSECURE.SECURITYFILE=D:\\ELSE\\ZYSECURE.DBF\n");
    ExpectDefault("ZYSECURE.SECURITYFILE\r\n");
    ExpectDefault("ZYSECURE.SECURITYFILE D:\\ELSE\\ZYSECURE.DBF\r\n");
}

TEST_F(BadLocationFile, OfAnyBytesLeavesTheTableInTheSystemDirectory) {
    PutTable({User("Ann")});
    std::string bytes;
    for (int c = 0; c < 256; ++c) {
        bytes += static_cast<char>(c);
        bytes += "\r\n=";
    }
    ExpectDefault(bytes);
    ExpectDefault("\x89PNG\r\n\x1A\n" + std::string(1000, '\0') + "\r\n");
}

TEST_F(BadLocationFile, ThatMayNotBeReadLeavesTheTableInTheSystemDirectory) {
    PutTable({User("Ann")});
    world.files.SetUnreadable(kLocation);
    ExpectDefault("ZYSECURE.SECURITYFILE=D:\\ELSE\\ZYSECURE.DBF\r\n");
}

TEST_F(BadLocationFile, ThatIsAFolderLeavesTheTableInTheSystemDirectory) {
    PutTable({User("Ann")});
    world.files.AddFolder(kLocation);
    EXPECT_EQ(Start("@SECURITY"), StartUp::WindowShown);
    EXPECT_THAT(Rows(), ElementsAre("Ann|secret|A||id of Ann"));
}

TEST_F(BadLocationFile, OfTooManyLinesIsAnOverflow) {
    std::string lines;
    for (int i = 0; i < 32768; ++i) {
        lines += "k=v\r\n";
    }
    world.files.Put(kLocation, lines);
    EXPECT_EQ(RaisedBy([&] { Start("@SECURITY"); }).Number(), 6);
    EXPECT_FALSE(form().Visible());
}

TEST_F(BadLocationFile, ThatNamesAMissingFolderStartsANewListWhoseSaveSaysThatThereIsNone) {
    StartAt(R"(D:\NOWHERE\ZYSECURE.DBF)");
    ExpectNewList();
    const auto error = RaisedBySave();
    EXPECT_EQ(error.Number(), 3044);
    EXPECT_EQ(error.Description(),
              R"('D:\NOWHERE\ZYSECURE.TMP' cannot be written: the file or folder does not exist.)");
    EXPECT_THAT(world.files.Names(R"(C:\SYS)"), ElementsAre("ZYSECURE.ZYX"));
}

TEST_F(BadLocationFile, ThatNamesItselfIsNoTableAndStays) {
    const std::string text = "ZYSECURE.SECURITYFILE=" + std::string(kLocation) + "\r\n";
    world.files.Put(kLocation, text);
    const auto error = RaisedBy([&] { Start("@SECURITY"); });
    EXPECT_EQ(error.Number(), 3274);
    EXPECT_EQ(error.Description(), R"('C:\SYS\ZYSECURE.ZYX' cannot be read: its first byte is 90, which is )"
                                   "not that of a dBase III table (3).");
    EXPECT_EQ(world.files.Get(kLocation), text);
}

TEST_F(BadLocationFile, ThatNamesTheTemporaryTableHasItReadAndNeverOverwritten) {
    PutTable({User("Ann")});
    ASSERT_EQ(world.files.Rename(kUsersTable, kUsersTemporary), FileError::None);
    const auto before = world.files.Get(kUsersTemporary);
    StartAt(std::string(kUsersTemporary));
    EXPECT_THAT(Rows(), ElementsAre("Ann|secret|A||id of Ann"));
    EXPECT_EQ(RaisedBySave().Number(), 3010);
    EXPECT_EQ(world.files.Get(kUsersTemporary), before);
}

TEST_F(BadLocationFile, ThatNamesATableWithoutAnExtensionMeansThatVeryFile) {
    PutTable({User("Ann")}, R"(C:\ELSE\)");
    ASSERT_EQ(world.files.Rename(R"(C:\ELSE\ZYSECURE.DBF)", R"(C:\ELSE\PEOPLE)"), FileError::None);
    world.files.Put(R"(C:\ELSE\PEOPLE.DBF)", "another table, which is not asked for");
    StartAt(R"(C:\ELSE\PEOPLE)");
    EXPECT_THAT(Rows(), ElementsAre("Ann|secret|A||id of Ann"));
    ASSERT_EQ(world.files.Rename(R"(C:\ELSE\PEOPLE)", R"(C:\ELSE\PEOPLE.)"), FileError::None);
    StartAt(R"(C:\ELSE\PEOPLE.)");
    EXPECT_THAT(Rows(), ElementsAre("Ann|secret|A||id of Ann"));
}

TEST_F(BadLocationFile, ThatNamesATableWithoutAnExtensionDoesNotMeanTheOneWithIt) {
    PutTable({User("Ann")}, R"(C:\ELSE\)");
    StartAt(R"(C:\ELSE\ZYSECURE)");
    ExpectNewList();
}

TEST_F(BadLocationFile, IsNamedAsPeopleNameItWhenItNamesNoFolder) {
    world.files.SetDisplayed(R"(C:\SYS)", "/home/u");
    StartAt("");
    EXPECT_THAT(RaisedBySave().Description(), ::testing::EndsWith(". /home/u/ZYSECURE.ZYX names the table."));
}

TEST_F(BadLocationFile, WithOneQuoteOnlyNamesNoFolderAndTheSaveSaysSo) {
    StartAt("\"");
    ExpectNewList();
    ExpectNoPath("");
}

TEST_F(BadLocationFile, WithAnEmptyValueNamesNoFolderAndTheSaveSaysSo) {
    StartAt("");
    ExpectNewList();
    ExpectNoPath("");
}

TEST_F(BadLocationFile, WithAFileNameAloneNamesNoFolderAndTheSaveSaysSo) {
    StartAt("USERS.DBF");
    ExpectNewList();
    ExpectNoPath("USERS.DBF");
}

TEST_F(BadLocationFile, WithAFileNameAloneThatExistsNamesNoFolderAndLoadingSaysSo) {
    world.files.Put("USERS.DBF", "a file of the current folder");
    world.files.Put(kLocation, "ZYSECURE.SECURITYFILE=USERS.DBF\r\n");
    EXPECT_EQ(RaisedBy([&] { Start("@SECURITY"); }).Number(), 3044);
}

TEST_F(BadLocationFile, ThatNamesAFolderStartsANewListThatIsSavedInIt) {
    world.files.AddFolder(R"(C:\ELSE)");
    StartAt(R"(C:\ELSE\)");
    ExpectNewList();
    EXPECT_EQ(RaisedBySave().Number(), 0);
    EXPECT_EQ(TableUsers(R"(C:\ELSE\)")->size(), 1U);
}

TEST_F(BadLocationFile, WithANulInAFolderIsAPathThatCannotBe) {
    StartAt(std::string("C:\\E\0LSE\\ZYSECURE.DBF", 21));
    ExpectNewList();
    EXPECT_EQ(RaisedBySave().Number(), 3044);
}

TEST_F(BadLocationFile, MayHaveSlashesForBackslashes) {
    PutTable({User("Far")}, R"(C:\ELSE\)");
    StartAt("c:/else/zysecure.dbf");
    EXPECT_THAT(Rows(), ElementsAre("Far|secret|A||id of Far"));
    EXPECT_EQ(RaisedBySave().Number(), 0);
    EXPECT_EQ(TableUsers(R"(C:\ELSE\)")->front().PASSWORD, "p");
    EXPECT_THAT(world.files.Names(R"(C:\ELSE)"), ElementsAre("ZYSECURE.DBF", "ZYSECURE.NDX"));
}

} // namespace
} // namespace zy::test
