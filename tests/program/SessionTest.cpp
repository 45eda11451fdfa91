#include "Scene.h"

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

class Session : public Scene {
  protected:
    void Open() {
        StartBus();
        StartViewer();
        Start({"@RULES"});
        ASSERT_TRUE(WaitForWindow("ZY Setup - Rules")) << Program().Output();
    }

    bool WaitForRules(const std::string& bytes) const {
        return WaitUntil([&] { return Rules() == bytes; });
    }
};

TEST_F(Session, AddsEditsSavesAndClosesByKeyboardAlone) {
    PutRules(RuleText("R1", "1", "1", ">", "UCL", "One point above the limit"));
    Open();
    PressFor("alt+a", kAdded);
    Press("alt+r"); // to the Rule ID
    Press("ctrl+a");
    TypeText("R2");
    Press("alt+d"); // to the Description
    Press("ctrl+a");
    TypeText("Second");
    Press("ctrl+s");
    const auto expected = RuleText("R1", "1", "1", ">", "UCL", "One point above the limit  ") +
                          RuleText("R2", "1", "2", "=", "USL", "Second");
    EXPECT_TRUE(WaitForRules(expected)) << Rules();
    EXPECT_EQ(FileNames(), std::vector<std::string>{"ZYRules.sys"});
    Press("alt+F4");
    EXPECT_EQ(Program().WaitForEnd(), 0);
    EXPECT_EQ(Program().Output(), "");
}

TEST_F(Session, ClosingWithYesWritesTheRulesAsTheyAreHeld) {
    Open(); // no rules file yet
    PressFor("alt+a", kAdded);
    Press("alt+F4");
    ASSERT_TRUE(WaitForWindow("Save Changes?")) << Program().Output();
    Press("Return");
    EXPECT_EQ(Program().WaitForEnd(), 0);
    EXPECT_EQ(Rules(), RuleText("NEW", "1", "2", "=", "USL", "New"));
}

TEST_F(Session, ClosingWithNoLeavesTheFileAsItWas) {
    const auto before = RuleText("R1", "1", "1", ">", "UCL", "One");
    PutRules(before);
    Open();
    PressFor("alt+a", kAdded);
    Press("alt+F4");
    ASSERT_TRUE(WaitForWindow("Save Changes?")) << Program().Output();
    Press("alt+n");
    EXPECT_EQ(Program().WaitForEnd(), 0);
    EXPECT_EQ(Rules(), before);
}

TEST_F(Session, AFileOfTooManyRulesIsAnOverflowAndStatusOne) {
    std::string rules;
    for (int i = 0; i < 32768; ++i) {
        rules += "[RULE]\r\n";
    }
    PutRules(rules);
    Start({"@RULES"});
    ASSERT_TRUE(WaitForWindow("ZY Setup")) << Program().Output();
    Press("Return");
    EXPECT_EQ(Program().WaitForEnd(), 1);
    EXPECT_EQ(Rules(), rules);
}

} // namespace
} // namespace zy::test
