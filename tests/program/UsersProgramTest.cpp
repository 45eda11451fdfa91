#include <gmock/gmock.h>

#include "Scene.h"
#include "Screen.h"

namespace zy::test {
namespace {

using ::testing::ElementsAre;

constexpr auto kTable = "ZYSECURE.DBF";
constexpr std::size_t kHeader = 193;
constexpr auto kLogin = "ZY Setup Security Login";
constexpr auto kSaveChanges = "Save Changes?";

std::string Padded(std::string text, std::size_t width) {
    text.resize(width, ' ');
    return text;
}

/// A user without an expiry date, as the table holds one.
std::string Record(const std::string& name, const std::string& password, const std::string& identification) {
    return ' ' + Padded(name, 10) + Padded(password, 20) + Padded(identification, 20) + Padded("", 8) + 'A';
}

class UsersProgram : public Scene {
  protected:
    void SetUp() override { StartViewer(); }
    /// Turns the user that a new table begins with into this one.
    static void Fill(const std::string& name, const std::string& password,
                     const std::string& identification) {
        PressKeys("ctrl+Home");
        TypeCharacters(name);
        PressKeys("Tab");
        TypeCharacters(password);
        PressKeys("Tab Tab Tab");
        TypeCharacters(identification);
        PressKeys("Return");
    }
    /// What the table holds behind its header.
    std::string Records() const {
        const auto table = Get(kTable);
        return table.size() < kHeader ? "" : table.substr(kHeader);
    }
    /// Makes a table that the login stands before.
    void MakeAdministrator() {
        OpenUsers();
        Fill("ADMIN", "Secret", "The chief");
        PressKeys("ctrl+s");
        ASSERT_TRUE(WaitUntil([this] {
            return Records() == Record("ADMIN", "Secret", "The chief") + '\x1a';
        })) << Records();
        Close();
    }
};

TEST_F(UsersProgram, TheFirstUserMakesTheTableAndItsIndex) {
    MakeAdministrator();
    EXPECT_THAT(outside.FileNames(), ElementsAre("ZYSECURE.DBF", "ZYSECURE.NDX"));
}

TEST_F(UsersProgram, TheAdministratorLogsInAndIsRefusedWithAWrongPassword) {
    MakeAdministrator();
    Start({"@SECURITY"});
    ASSERT_TRUE(WaitForWindow(kLogin)) << Program().Output();
    TypeCharacters("admin");
    PressKeys("Tab");
    TypeCharacters("wrong");
    PressKeys("Return");
    ASSERT_TRUE(WaitForWindow("Login")) << Program().Output(); // the refusal
    PressKeys("Return");
    ASSERT_TRUE(WaitForWindow(kLogin)) << Program().Output();
    TypeCharacters("secret");
    PressKeys("Return");
    ASSERT_TRUE(WaitForWindow(kUsersTitle)) << Program().Output();
    Close();
}

TEST_F(UsersProgram, CancelAtTheLoginEndsTheProgram) {
    MakeAdministrator();
    Start({"@SECURITY"});
    ASSERT_TRUE(WaitForWindow(kLogin)) << Program().Output();
    PressKeys("Escape");
    EXPECT_EQ(Program().WaitForEnd(), 0);
}

TEST_F(UsersProgram, ATableWhoseAdministratorIsCutOffDoesNotOpenAndStays) {
    MakeAdministrator();
    const auto cut = Get(kTable).substr(0, kHeader + 30);
    Put(kTable, cut);
    Start({"@SECURITY"});
    ASSERT_TRUE(WaitForWindow("ZY Setup")) << Program().Output(); // the box of the error
    PressKeys("Return");
    EXPECT_NE(Program().WaitForEnd(), 0);
    EXPECT_EQ(Get(kTable), cut);
}

TEST_F(UsersProgram, ClosingAsksAndYesSaves) {
    OpenUsers();
    Fill("Ann", "secret", "First");
    PressKeys("alt+F4");
    ASSERT_TRUE(WaitForWindow(kSaveChanges)) << Program().Output();
    PressKeys("Return");
    EXPECT_EQ(Program().WaitForEnd(), 0);
    EXPECT_EQ(Records(), Record("Ann", "secret", "First") + '\x1a');
}

} // namespace
} // namespace zy::test
