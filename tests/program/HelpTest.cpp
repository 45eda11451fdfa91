#include "Scene.h"
#include "Screen.h"

namespace zy::test {
namespace {

class HelpMenu : public Scene {};

TEST_F(HelpMenu, F1OpensTheBookBesideTheProgram) {
    OpenRules();
    PressKeys("F1");
    ASSERT_TRUE(WaitForWindow("ZY Setup - Help")) << Program().Output();
    PressKeys("alt+F4");
    ASSERT_TRUE(WaitForWindow(kRulesTitle)) << Program().Output();
    PressKeys("alt+F4");
    EXPECT_EQ(Program().WaitForEnd(), 0);
}

TEST_F(HelpMenu, AboutOpensTheBoxOfThatName) {
    OpenRules();
    PressKeys("alt+h a");
    ASSERT_TRUE(WaitForWindow("About ZY Setup")) << Program().Output();
    PressKeys("Return");
    ASSERT_TRUE(WaitForWindow(kRulesTitle)) << Program().Output();
    Close();
}

} // namespace
} // namespace zy::test
