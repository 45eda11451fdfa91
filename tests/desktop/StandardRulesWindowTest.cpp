#include <wx/dialog.h>

#include "NativeLook.h"
#include "RulesWindow.h"

namespace zy::test {
namespace {

constexpr auto kDialog = "frmStandardRules";

/// The dialog that offers the standard rules.
class StandardRulesWindow : public RulesWindow {
  protected:
    StandardRulesWindow() { PutRules(ThreeRules()); }

    void OpenByMenuBar() {
        Press('E', wxMOD_ALT);
        WaitForMenu();
        Press('S');
        WaitForDialog(kDialog);
    }
    int Rules() {
        return InWindow([&] { return page().lstRulesList.Count(); });
    }
};

TEST_F(StandardRulesWindow, HasRoomForEveryPart) {
    Play([&] {
        OpenByMenuBar();
        ExpectRoomForEveryPart(kDialog);
        Press(WXK_ESCAPE);
        WaitForNoDialog(kDialog);
        EXPECT_EQ(Rules(), 3);
    });
}

TEST_F(StandardRulesWindow, InsertsTheSetOnEnterAndShowsItsFirstRule) {
    Play([&] {
        OpenByMenuBar();
        WaitForFocusIn("lstSets");
        Press(WXK_RETURN);
        WaitForNoDialog(kDialog);
        WaitForSelection(4);
        EXPECT_EQ(Rules(), 9);
        EXPECT_EQ(TextIn(page().txtCode), "W1U");
        EXPECT_TRUE(IsRowVisible(4));
    });
}

TEST_F(StandardRulesWindow, OpensFromTheMenuThatAKeyOpensOverTheList) {
    Play([&] {
        Enter(page().lstRulesList);
        PressMenuKey();
        WaitForMenu();
        Press('S');
        WaitForDialog(kDialog);
        Press(WXK_ESCAPE);
        WaitForNoDialog(kDialog);
    });
}

} // namespace
} // namespace zy::test
