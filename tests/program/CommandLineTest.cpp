#include "Scene.h"

namespace zy::test {
namespace {

class CommandLine : public Scene {
  protected:
    /// The exit status of a program that nobody does anything to.
    std::optional<int> StatusOf(const std::vector<std::string>& arguments) {
        Start(arguments);
        return Program().WaitForEnd();
    }
};

TEST_F(CommandLine, AnUnknownArgumentEndsTheProgramSilently) {
    EXPECT_EQ(StatusOf({"@OTHER"}), 0);
}

TEST_F(CommandLine, NoArgumentEndsTheProgramSilentlyAndWritesNothing) {
    EXPECT_EQ(StatusOf({}), 0);
    EXPECT_TRUE(outside.FileNames().empty());
    EXPECT_EQ(outside.Registry(), "");
}

TEST_F(CommandLine, SeveralArgumentsAreOneTextThatMatchesNothing) {
    EXPECT_EQ(StatusOf({"@RULES", "@UNITS"}), 0);
}

TEST_F(CommandLine, AKeywordInLowerCaseOpensItsEditor) {
    Open("@rules", kRulesTitle);
}

} // namespace
} // namespace zy::test
