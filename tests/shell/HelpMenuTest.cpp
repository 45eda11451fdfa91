#include "support/ProgramTest.h"

namespace zy::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// The Help menu and the Help buttons of the pages.
class HelpMenuTest : public ProgramTest {
  protected:
    static MemoryHelpSystem::Request Contents() {
        return {R"(C:\PRODUCT\zysetup.hlp)", HelpCommand::Contents, 0};
    }
    static LinkRequest Page(const std::string& path) {
        return {.owner = LinkOwner::DesktopWindow,
                .verb = "Open",
                .target = "http://www.norvale.example" + path,
                .showCommand = 1};
    }
    /// Chooses a menu entry; the record that tells of it.
    std::vector<std::string> TracesOf(MenuItem& entry) {
        Traces();
        entry.Click();
        return Traces();
    }
};

TEST_F(HelpMenuTest, OpensTheHelpFileOfTheProgramsFolderAtItsContents) {
    Start("@RULES");
    EXPECT_THAT(TracesOf(form().menu.mnuContents), ElementsAre("frmGlobalSettings mnuContents_Click Start"));
    EXPECT_THAT(world.help.Requests(), ElementsAre(Contents()));
    EXPECT_EQ(static_cast<int>(HelpCommand::Contents), 3);
}

TEST_F(HelpMenuTest, OpensTheKeywordIndexWithoutAKeyword) {
    Start("@RULES");
    EXPECT_THAT(TracesOf(form().menu.mnuIndex), ElementsAre("frmGlobalSettings mnuIndex_Click Start"));
    EXPECT_THAT(world.help.Requests(),
                ElementsAre(MemoryHelpSystem::Request{R"(C:\PRODUCT\zysetup.hlp)", HelpCommand::Key, 0}));
    EXPECT_EQ(static_cast<int>(HelpCommand::Key), 0x101);
}

TEST_F(HelpMenuTest, OpensTheContentsFromTheHelpButtonOfEveryPage) {
    Start("@RULES");
    program().rulesPage.controls.cmdHelpRules.Click();
    Start("@SECURITY");
    program().securityPage.controls.cmdHelpSecurity.Click();
    Start("@UNITS");
    program().unitsPage.controls.cmdHelpUnits.Click();
    EXPECT_THAT(world.help.Requests(), ElementsAre(Contents(), Contents(), Contents()));
}

TEST_F(HelpMenuTest, TracesTheHelpButtons) {
    Start("@UNITS");
    Traces();
    program().unitsPage.controls.cmdHelpUnits.Click();
    EXPECT_THAT(Traces(), ElementsAre("frmGlobalSettings cmdHelpUnits_Click Start"));
    Start("@RULES");
    Traces();
    program().rulesPage.controls.cmdHelpRules.Click();
    EXPECT_THAT(Traces(), ElementsAre("frmGlobalSettings cmdHelpRules_Click Start"));
    Start("@SECURITY");
    Traces();
    program().securityPage.controls.cmdHelpSecurity.Click();
    EXPECT_THAT(Traces(), ElementsAre("frmGlobalSettings cmdHelpSecurity_Click Start"));
}

TEST_F(HelpMenuTest, DoesNotAskWhetherTheHelpFileIsThere) {
    Start("@RULES");
    world.files.Plan({});
    form().menu.mnuContents.Click();
    EXPECT_EQ(world.files.Operations().Count(), 0U);
}

TEST_F(HelpMenuTest, OpensTheMakersWebPagesWithTheNormalShowCommand) {
    Start("@RULES");
    auto& menu = form().menu;
    EXPECT_THAT(TracesOf(menu.mnuWebProducts), ElementsAre("frmGlobalSettings mnuWebProducts_Click Start"));
    EXPECT_THAT(TracesOf(menu.mnuWebAcademy), ElementsAre("frmGlobalSettings mnuWebAcademy_Click Start"));
    EXPECT_THAT(TracesOf(menu.mnuWebMentorDesk),
                ElementsAre("frmGlobalSettings mnuWebMentorDesk_Click Start"));
    EXPECT_THAT(TracesOf(menu.mnuWebHome), ElementsAre("frmGlobalSettings mnuWebHome_Click Start"));
    EXPECT_THAT(world.links.Requests(),
                ElementsAre(Page("/software.htm"), Page("/academy.htm"), Page("/mentordesk.htm"), Page("/")));
}

TEST_F(HelpMenuTest, SaysNothingWhenThereIsNoBrowser) {
    Start("@RULES");
    world.links.SetHasPrograms(false);
    form().menu.mnuWebHome.Click();
    EXPECT_EQ(world.links.Requests().size(), 1U);
    EXPECT_THAT(world.dialogs.Shown(), IsEmpty());
}

TEST_F(HelpMenuTest, ShowsTheAboutBoxFilled) {
    Start("@RULES");
    Traces();
    std::string title;
    world.dialogs.ExpectForm([&](Form& box) {
        EXPECT_EQ(box.Name(), "frmAbout");
        EXPECT_TRUE(box.Visible());
        title = box.Caption();
    });
    form().menu.mnuAbout.Click();
    EXPECT_EQ(title, "About ZY Setup");
    EXPECT_THAT(Traces(), ElementsAre("frmGlobalSettings mnuAbout_Click Start", "frmAbout Form_Load Start"));
}

} // namespace
} // namespace zy::test
