#include <wx/dialog.h>
#include <wx/stattext.h>

#include "RulesWindow.h"

namespace zy::test {
namespace {

using ::testing::ElementsAre;
using ::testing::StartsWith;

/// The About box as the user sees it.
class AboutWindow : public RulesWindow {
  protected:
    void OpenAbout() {
        Press('H', wxMOD_ALT);
        Press('A');
        WaitForDialog("frmAbout");
        WaitForFocusIn("cmdOk");
    }
    static std::string TextOf(const std::string& label) {
        return InWindow(
            [&] { return dynamic_cast<wxStaticText&>(RealNamed(label)).GetLabelText().utf8_string(); });
    }
    std::vector<std::string> Targets() {
        return InWindow([&] {
            std::vector<std::string> targets;
            for (const auto& request : world.links.Requests()) {
                targets.push_back(request.target);
            }
            return targets;
        });
    }
};

TEST_F(AboutWindow, ShowsTitleVersionAndContactLines) {
    Play([&] {
        OpenAbout();
        EXPECT_EQ(InWindow([] { return RealDialog("frmAbout")->GetTitle().utf8_string(); }),
                  "About ZY Setup");
        EXPECT_EQ(TextOf("lblAppTitle"), "ZY Setup");
        EXPECT_THAT(TextOf("lblVersion"), StartsWith("1."));
        EXPECT_THAT(TextOf("lblCompanyInfo"), StartsWith("Norvale \nNorvale House"));
        Press(WXK_RETURN);
        WaitForNoDialog("frmAbout");
    });
}

TEST_F(AboutWindow, HasRoomForEveryPart) {
    Play([&] {
        OpenAbout();
        ExpectRoomForEveryPart("frmAbout");
        Press(WXK_ESCAPE);
        WaitForNoDialog("frmAbout");
    });
}

TEST_F(AboutWindow, OpensALinkOnceForAClick) {
    Play([&] {
        OpenAbout();
        ClickIn("lblWebsite");
        WaitUntil("the link is asked for", [&] { return !world.links.Requests().empty(); });
        ClickIn("lblEmail");
        WaitUntil("the mail is asked for", [&] { return world.links.Requests().size() > 1; });
        EXPECT_THAT(Targets(), ElementsAre("http://www.norvale.example",
                                           "mailto:support@norvale.example?Subject=ZY Setup&Body="));
        ClickIn("cmdOk");
        WaitForNoDialog("frmAbout");
    });
    EXPECT_EQ(world.links.Requests().size(), 2U);
}

TEST_F(AboutWindow, OpensALinkByTheKeyboard) {
    Play([&] {
        OpenAbout();
        Press(WXK_TAB);
        WaitForFocusIn("lblWebsite");
        Press(WXK_RETURN);
        WaitUntil("the link is asked for", [&] { return !world.links.Requests().empty(); });
        EXPECT_THAT(Targets(), ElementsAre("http://www.norvale.example"));
        Press(WXK_ESCAPE);
        WaitForNoDialog("frmAbout");
    });
}

TEST_F(AboutWindow, KeepsThePageBehindItFromBeingUsed) {
    PutRules(ThreeRules());
    Play([&] {
        OpenAbout();
        Click(page().cmdAddList);
        ClickIn("cmdOk");
        WaitForNoDialog("frmAbout");
        EXPECT_EQ(InWindow([&] { return page().lstRulesList.Count(); }), 3);
    });
}

} // namespace
} // namespace zy::test
