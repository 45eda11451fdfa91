#include "Scene.h"
#include "Screen.h"

namespace zy::test {
namespace {

const std::string kAdded = "frmGlobalSettings\tcmdAddList_Click\tStart";

/// One rule as the rules file holds it.
std::string RuleText(const std::string& code, const std::string& min, const std::string& max,
                     const std::string& cond, const std::string& zone, const std::string& description) {
    return "[RULE]\r\n"
           "   CODE         = " +
           code +
           "\r\n"
           "   MIN          = " +
           min +
           "\r\n"
           "   MAX          = " +
           max +
           "\r\n"
           "   COND         = " +
           cond +
           "\r\n"
           "   ZONE         = " +
           zone +
           "\r\n"
           "   DESC1        = " +
           description +
           "\r\n"
           "   DESC2        = \r\n"
           "   DESC3        = \r\n";
}

constexpr auto kFile = "ZYRules.sys";

class RulesProgram : public Scene {
  protected:
    void SetUp() override { StartViewer(); }
};

TEST_F(RulesProgram, AddsEditsSavesAndClosesByKeyboardAlone) {
    Put(kFile, RuleText("R1", "1", "1", ">", "UCL", "One point above the limit"));
    OpenRules();
    PressFor("alt+a", kAdded);
    PressKeys("alt+r"); // to the Rule ID
    PressKeys("ctrl+a");
    TypeCharacters("R2");
    PressKeys("alt+d"); // to the Description
    PressKeys("ctrl+a");
    TypeCharacters("Second");
    PressKeys("ctrl+s");
    const auto expected = RuleText("R1", "1", "1", ">", "UCL", "One point above the limit  ") +
                          RuleText("R2", "1", "2", "=", "USL", "Second");
    EXPECT_TRUE(WaitForBytes(kFile, expected)) << Get(kFile);
    Close();
    EXPECT_EQ(outside.FileNames(), std::vector<std::string>{"ZYRules.sys"});
}

TEST_F(RulesProgram, ClosingWithYesWritesTheRulesAsTheyAreHeld) {
    OpenRules(); // no rules file yet
    PressFor("alt+a", kAdded);
    PressKeys("alt+F4");
    ASSERT_TRUE(WaitForWindow("Save Changes?")) << Program().Output();
    PressKeys("Return");
    EXPECT_EQ(Program().WaitForEnd(), 0);
    EXPECT_EQ(Get(kFile), RuleText("NEW", "1", "2", "=", "USL", "New"));
}

TEST_F(RulesProgram, ClosingWithNoLeavesTheFileAsItWas) {
    const auto before = RuleText("R1", "1", "1", ">", "UCL", "One");
    Put(kFile, before);
    OpenRules();
    PressFor("alt+a", kAdded);
    PressKeys("alt+F4");
    ASSERT_TRUE(WaitForWindow("Save Changes?")) << Program().Output();
    PressKeys("alt+n");
    EXPECT_EQ(Program().WaitForEnd(), 0);
    EXPECT_EQ(Get(kFile), before);
}

TEST_F(RulesProgram, AFileOfTooManyRulesIsAnOverflowAndStatusOne) {
    std::string rules;
    for (int i = 0; i < 32768; ++i) {
        rules += "[RULE]\r\n";
    }
    Put(kFile, rules);
    Start({"@RULES"});
    ASSERT_TRUE(WaitForWindow("ZY Setup")) << Program().Output();
    PressKeys("Return");
    EXPECT_EQ(Program().WaitForEnd(), 1);
    EXPECT_EQ(Get(kFile), rules);
}

} // namespace
} // namespace zy::test
