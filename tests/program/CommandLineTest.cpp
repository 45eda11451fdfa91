#include <algorithm>

#include "Scene.h"

namespace zy::test {
namespace {

class CommandLine : public Scene {
  protected:
    /// Starts the program where no window can come up.
    std::optional<int> StatusWithoutDisplay(const std::vector<std::string>& arguments) {
        environment.unset.emplace_back("DISPLAY");
        Start(arguments);
        return Program().WaitForEnd();
    }
};

TEST_F(CommandLine, AnUnknownArgumentEndsTheProgramSilentlyWithoutNeedingADisplay) {
    EXPECT_EQ(StatusWithoutDisplay({"@OTHER"}), 0);
    EXPECT_EQ(Program().Output(), "");
}

TEST_F(CommandLine, NoArgumentEndsTheProgramSilentlyAndWritesNothing) {
    EXPECT_EQ(StatusWithoutDisplay({}), 0);
    EXPECT_EQ(Program().Output(), "");
    EXPECT_TRUE(FileNames().empty());
}

TEST_F(CommandLine, SeveralArgumentsAreOneTextThatMatchesNothing) {
    EXPECT_EQ(StatusWithoutDisplay({"@RULES", "@UNITS"}), 0);
    EXPECT_EQ(Program().Output(), "");
}

TEST_F(CommandLine, ABlankBehindTheKeywordMakesItUnknown) {
    EXPECT_EQ(StatusWithoutDisplay({"@RULES "}), 0);
}

TEST_F(CommandLine, AnEditorWithoutADisplaySaysSoAndEndsWithStatusOne) {
    EXPECT_EQ(StatusWithoutDisplay({"@RULES"}), 1);
    EXPECT_NE(Program().Output().find("display"), std::string::npos) << Program().Output();
}

TEST_F(CommandLine, AKeywordInLowerCaseOpensItsEditor) {
    Start({"@rules"});
    EXPECT_TRUE(WaitForWindow("ZY Setup - Rules")) << Program().Output();
}

TEST_F(CommandLine, AMissingSettingsFolderIsMadeInTheUsersDataFolder) {
    environment.set.erase("ZYSETUP_SYSTEM_DIR");
    environment.unset.emplace_back("ZYSETUP_SYSTEM_DIR");
    EXPECT_EQ(StatusWithoutDisplay({""}), 0);
    EXPECT_TRUE(std::filesystem::is_directory(environment.set["XDG_DATA_HOME"] + "/zysetup/system"));
}

} // namespace
} // namespace zy::test
