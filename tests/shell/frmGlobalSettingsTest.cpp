#include "support/EditorsTest.h"

namespace zy::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr auto kSure = "Are you Sure you want to Exit Without Saving Changes";

/// The window that all editors share: its pages, its menus, its exit.
class frmGlobalSettingsTest : public EditorsTest {
  protected:
    void ExpectFrames(bool rules, bool users, bool unitsOfMeasure) {
        EXPECT_EQ(form().fraRules.Visible(), rules);
        EXPECT_EQ(form().fraSecurity.Visible(), users);
        EXPECT_EQ(form().FraUnits.Visible(), unitsOfMeasure);
    }
};

TEST_F(frmGlobalSettingsTest, ShowsTheRulesPageUnderItsTitle) {
    Start("@RULES");
    ExpectFrames(true, false, false);
    EXPECT_EQ(form().Caption(), "ZY Setup - Rules");
}

TEST_F(frmGlobalSettingsTest, ShowsTheUsersPageUnderItsTitle) {
    Start("@SECURITY");
    ExpectFrames(false, true, false);
    EXPECT_EQ(form().Caption(), "ZY Setup - Security");
}

TEST_F(frmGlobalSettingsTest, ShowsTheUnitsPageUnderItsTitle) {
    Start("@UNITS");
    ExpectFrames(false, false, true);
    EXPECT_EQ(form().Caption(), "ZY Setup - Units of Measure");
}

TEST_F(frmGlobalSettingsTest, SetsTheUnitsTitleBeforeTheUnitsAreLoadedAndTheUsersTitleAfterwards) {
    Start("");
    std::vector<std::string> titles;
    form().zyStatusBar.change.Connect([&] { titles.push_back(form().Caption()); });
    window().ShowSecurity();
    window().ShowUnits();
    ASSERT_EQ(titles.size(), 2U);
    EXPECT_EQ(titles[0], "");
    EXPECT_EQ(titles[1], "ZY Setup - Units of Measure");
}

TEST_F(frmGlobalSettingsTest, ShowsNoPageBeforeOneIsChosen) {
    Start("");
    ExpectFrames(false, false, false);
}

TEST_F(frmGlobalSettingsTest, HidesTheOtherPagesWhenAnotherOneIsShown) {
    Start("@RULES");
    window().ShowUnits();
    ExpectFrames(false, false, true);
    window().ShowSecurity();
    ExpectFrames(false, true, false);
    window().ShowRules();
    ExpectFrames(true, false, false);
}

TEST_F(frmGlobalSettingsTest, SwitchesTheRulesPageBetweenItsListAndItsGrid) {
    Start("@RULES");
    const auto& page = program().rulesPage.controls;
    window().ShowGridMode();
    EXPECT_TRUE(page.fraGridMode.Visible());
    EXPECT_FALSE(page.fraRulesList.Visible() || page.FraRuleDetails.Visible());
    window().ShowListMode();
    EXPECT_FALSE(page.fraGridMode.Visible());
    EXPECT_TRUE(page.fraRulesList.Visible() && page.FraRuleDetails.Visible());
}

TEST_F(frmGlobalSettingsTest, TracesTheSameWordForEveryPage) {
    Start("@RULES");
    calls.clear();
    window().ShowUnits();
    window().ShowSecurity();
    EXPECT_THAT(calls,
                ElementsAre("trace frmGlobalSettings ShowUnits Rules", "trace mUnits LoadUnitsData Start",
                            "trace frmGlobalSettings ShowSecurity Rules",
                            "trace frmGlobalSettings LoadSecurity Finished"));
}

/// A menu with its entries, one line each, submenus indented.
std::vector<std::string> Lines(const MenuItem& menu, const std::string& indent = "") {
    std::vector<std::string> lines{indent + menu.Name() + " " + menu.Caption()};
    for (const auto* entry : menu.Entries()) {
        for (const auto& line : Lines(*entry, indent + "  ")) {
            lines.push_back(line);
        }
    }
    return lines;
}

TEST(MainMenuTest, HoldsTheFileMenu) {
    const MainMenu menu;
    EXPECT_THAT(Lines(menu.mnuFile), ElementsAre("mnuFile &File", "  mnuSave &Save", "  mnuExit E&xit"));
}

TEST(MainMenuTest, HoldsTheEditMenu) {
    const MainMenu menu;
    EXPECT_THAT(Lines(menu.mnuEdit),
                ElementsAre("mnuEdit &Edit", "  mnuUndo &Undo", "  mnuRedo &Redo", "  mnuSeparatorCut -",
                            "  mnuCut Cu&t", "  mnuCopy &Copy", "  mnuPaste &Paste", "  mnuSeparatorSelect -",
                            "  mnuSelectAll Select &All", "  mnuSeparatorVersions -",
                            "  mnuChanges U&nsaved Changes...", "  mnuOthers Changes by &Others...",
                            "  mnuVersions &Earlier Versions...", "  mnuSeparatorRules -",
                            "  mnuStandardRules Insert &Standard Rules...",
                            "  mnuSavePictures Sa&ve Pictures...", "  mnuPrint Pr&int..."));
}

TEST(MainMenuTest, HoldsTheContextMenuOfTheRulesList) {
    const MainMenu menu;
    EXPECT_THAT(Lines(menu.mnuListPopMenu),
                ElementsAre("mnuListPopMenu ", "  mnuStandardRulesOfList Insert &Standard Rules...",
                            "  mnuSavePicturesOfList Sa&ve Pictures...", "  mnuPrintOfList Pr&int..."));
}

TEST(MainMenuTest, HasNoAccessKeyTwiceInAMenu) {
    const MainMenu menu;
    for (const auto* each : {&menu.mnuFile, &menu.mnuEdit, &menu.mnuHelp, &menu.mnuListPopMenu}) {
        std::set<char> keys;
        for (const auto* entry : each->Entries()) {
            const auto mark = entry->Caption().find('&');
            if (!entry->IsSeparator()) {
                ASSERT_NE(mark, std::string::npos) << entry->Name();
                EXPECT_TRUE(keys.insert(AsciiCapital(entry->Caption()[mark + 1])).second) << entry->Name();
            }
        }
    }
}

TEST(MainMenuTest, HoldsTheHelpMenu) {
    const MainMenu menu;
    EXPECT_THAT(Lines(menu.mnuHelp),
                ElementsAre("mnuHelp &Help", "  mnuContents &Contents", "  mnuIndex &Index",
                            "  mnuSeperator5 -", "  mnuWeb Norvale on the &Web...",
                            "    mnuWebProducts Products", "    mnuWebAcademy Academy Web Based Training",
                            "    mnuWebMentorDesk Mentor Desk", "    mnuSeperator6 -",
                            "    mnuWebHome Norvale Home Page", "  mnuSeperator7 -",
                            "  mnuAbout &About ZY Setup"));
}

TEST(MainMenuTest, HoldsTheContextMenusOfTheGrids) {
    const MainMenu menu;
    EXPECT_THAT(Lines(menu.mnuGridPopMenu),
                ElementsAre("mnuGridPopMenu ", "  mnuAddRule &Add Rule", "  mnuDeleteRule &Delete Rule"));
    EXPECT_THAT(Lines(menu.mnuSecuritypopMenu),
                ElementsAre("mnuSecuritypopMenu ", "  mnuAddUser Add User", "  mnuDeleteUser Delete User"));
}

TEST(MainMenuTest, HasSeparatorsWhereItsNamesSayAndNowhereElse) {
    const MainMenu menu;
    for (const auto* entry : {&menu.mnuSeperator5, &menu.mnuSeperator6, &menu.mnuSeperator7}) {
        EXPECT_TRUE(entry->IsSeparator()) << entry->Name();
    }
    for (const auto* entry : {&menu.mnuSave, &menu.mnuExit, &menu.mnuContents, &menu.mnuIndex, &menu.mnuWeb,
                              &menu.mnuWebProducts, &menu.mnuWebHome, &menu.mnuAbout}) {
        EXPECT_FALSE(entry->IsSeparator()) << entry->Name();
    }
}

TEST_F(frmGlobalSettingsTest, ClosesFromTheMenuWithoutAQuestionOfItsOwn) {
    StartAndForget("@RULES");
    window().menu.mnuExit.Click();
    EXPECT_THAT(calls, ElementsAre("trace frmGlobalSettings Form_Unload Rules", "SetProcedure", "Open key",
                                   "Create key", "trace frmGlobalSettings Form_Unload Unloaded"));
    EXPECT_EQ(unloaded, 1);
    EXPECT_FALSE(form().Visible());
    EXPECT_THAT(world.dialogs.Shown(), IsEmpty());
}

TEST_F(frmGlobalSettingsTest, SavesThePlaceAfterTheHookIsGoneAndBeforeItTellsThatItIsGone) {
    StartAndForget("@UNITS");
    window().unloaded.Connect([&] { calls.emplace_back("unloaded"); });
    window().Unload();
    EXPECT_THAT(calls, ElementsAre("trace frmGlobalSettings Form_Unload Units", "SetProcedure", "Open key",
                                   "Create key", "trace frmGlobalSettings Form_Unload Unloaded", "unloaded"));
}

TEST_F(frmGlobalSettingsTest, KeepsThePlaceAndTheHookWhenAFailedCheckKeepsItOpen) {
    world.files.Put(R"(C:\SYS\ZYUNITS.SYS)", "A,\r\n");
    StartAndForget("@UNITS");
    form().ChangeFlag = true;
    ExpectWishToSave(Answer::Yes);
    world.dialogs.ExpectMessage("Unit cannot be blank", "Invalid Unit");
    window().menu.mnuExit.Click();
    EXPECT_THAT(calls, ::testing::Not(::testing::Contains("Open key")));
    EXPECT_THAT(calls, ::testing::Not(::testing::Contains("SetProcedure")));
    EXPECT_EQ(unloaded, 0);
}

TEST_F(frmGlobalSettingsTest, AsksBeforeLeavingWithoutSavingAndStaysOnNo) {
    StartAndForget("@RULES");
    world.dialogs.ExpectYesNo(kSure, "Confirm Exit", Answer::No, Escape::AnswersNo);
    window().ConfirmExit();
    EXPECT_EQ(unloaded, 0);
    EXPECT_THAT(calls, IsEmpty());
}

TEST_F(frmGlobalSettingsTest, GoesThroughTheClosingQuestionAfterThatYes) {
    StartAndForget("@RULES");
    form().ChangeFlag = true;
    world.dialogs.ExpectYesNo(kSure, "Confirm Exit", Answer::Yes, Escape::AnswersNo);
    ExpectWishToSave(Answer::No);
    window().ConfirmExit();
    EXPECT_EQ(unloaded, 1);
}

TEST_F(frmGlobalSettingsTest, LoadsOnceUntilItIsUnloaded) {
    StartAndForget("@RULES");
    window().Load();
    window().Show();
    EXPECT_THAT(calls, IsEmpty());
    window().Unload();
    calls.clear();
    window().Show();
    EXPECT_THAT(calls, ElementsAre("trace frmGlobalSettings Form_Load Start", "SetProcedure"));
    EXPECT_TRUE(form().Visible());
}

TEST_F(frmGlobalSettingsTest, LaysOutThePageInChargeAlone) {
    const auto expectWidths = [this](const char* argument, int rules, int users, int unitsOfMeasure) {
        SCOPED_TRACE(argument);
        StartAndForget(argument);
        for (Frame* frame : {&form().fraRules, &form().fraSecurity, &form().FraUnits}) {
            frame->SetBounds({});
        }
        form().SetInnerSize({10000, 9000});
        EXPECT_THAT(calls, ElementsAre("trace frmGlobalSettings Form_Resize Start"));
        EXPECT_EQ(form().fraRules.Bounds().width, rules);
        EXPECT_EQ(form().fraSecurity.Bounds().width, users);
        EXPECT_EQ(form().FraUnits.Bounds().width, unitsOfMeasure);
    };
    expectWidths("@RULES", 10000, 0, 0);
    expectWidths("@SECURITY", 0, 9900, 0);
    expectWidths("@UNITS", 0, 0, 9900);
}

TEST_F(frmGlobalSettingsTest, NeedsTheRoomThatTheEditorInChargeNeeds) {
    EXPECT_EQ(SettingsForm().LeastInnerSize(), Size());
    Start("");
    EXPECT_EQ(form().LeastInnerSize(), Size());
    StartAndForget("@SECURITY");
    EXPECT_EQ(form().LeastInnerSize(), program().securityPage.LeastInnerSize());
    StartAndForget("@UNITS");
    EXPECT_EQ(form().LeastInnerSize(), program().unitsPage.LeastInnerSize());
    EXPECT_NE(form().LeastInnerSize(), program().rulesPage.LeastInnerSize());
    StartAndForget("@RULES");
    EXPECT_EQ(form().LeastInnerSize(), program().rulesPage.LeastInnerSize());
    EXPECT_GT(form().LeastInnerSize().height, 0);
}

TEST_F(frmGlobalSettingsTest, RunsNoLayoutWhileItIsMinimized) {
    StartAndForget("@UNITS");
    form().SetState(WindowState::Minimized);
    const auto before = form().FraUnits.Bounds().width;
    form().SetInnerSize({0, 0});
    EXPECT_THAT(calls, ElementsAre("trace frmGlobalSettings Form_Resize Start"));
    EXPECT_EQ(form().FraUnits.Bounds().width, before);
    form().SetState(WindowState::Maximized);
    form().SetInnerSize({28800, 16200});
    EXPECT_EQ(form().FraUnits.Bounds().width, 28700);
}

TEST_F(frmGlobalSettingsTest, StartsWithoutMarksAndWithoutAMinimumSizeOfItsOwn) {
    Start("@RULES");
    ExpectMarks(false, false);
    EXPECT_EQ(form().MinWidth, 0);
    EXPECT_EQ(form().MinHeight, 0);
    EXPECT_EQ(form().Name(), "frmGlobalSettings");
    EXPECT_EQ(&window().Form(), &form());
}

} // namespace
} // namespace zy::test
