#include "support/EditorsTest.h"

namespace zy::test {
namespace {

using namespace std::string_literals; // for command lines that hold a NUL

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Not;

/// The start of the program over a memory world, with fakes of the two editors and of the placement.
class StartUpTest : public EditorsTest {
  protected:
    void ExpectModes(bool rules, bool users, bool unitsOfMeasure) {
        EXPECT_EQ(state().gbRulesMode.Value(), rules ? -1 : 0);
        EXPECT_EQ(state().gbSecurityMode.Value(), users ? -1 : 0);
        EXPECT_EQ(state().gbUnitsMode.Value(), unitsOfMeasure ? -1 : 0);
    }
    void ExpectNoWindow() {
        EXPECT_FALSE(form().Visible());
        EXPECT_FALSE(window().IsLoaded());
        ExpectModes(false, false, false);
    }

    /// The first steps, which are the same for every command line.
    static constexpr auto kStart = "trace mZYGlobal mMain ZYGlobal Start";
    static constexpr auto kLocation = "trace mSecurity SecurityFileLocation Start";
    static constexpr auto kRestore = "RestoreWindowPlacement";
};

TEST_F(StartUpTest, OpensTheRulesEditorInThisOrder) {
    EXPECT_EQ(Start("@RULES"), StartUp::WindowShown);
    EXPECT_THAT(calls,
                ElementsAre(kStart, kLocation, kRestore, "trace mZYGlobal mMain Rules Mode Started",
                            "trace mRules Build_Rules_Array Start", "trace frmGlobalSettings Form_Load Start",
                            "InstallMinSizeHook", "trace frmGlobalSettings ShowRules Rules",
                            "trace mRules LoadRulesListMode Start", "trace mRules ClearRule Start"));
    ExpectModes(true, false, false);
    EXPECT_TRUE(form().Visible());
}

TEST_F(StartUpTest, OpensTheUsersEditorAfterASuccessfulLoginAlone) {
    EXPECT_EQ(Start("@SECURITY"), StartUp::WindowShown);
    EXPECT_THAT(calls,
                ElementsAre(kStart, kLocation, kRestore, "LoadSecurityData",
                            "trace mZYGlobal mMain Security Mode Started",
                            "trace frmGlobalSettings Form_Load Start", "InstallMinSizeHook",
                            "trace frmGlobalSettings ShowSecurity Rules", "LoadSecurity", "ResizeSecurity"));
    ExpectModes(false, true, false);
    EXPECT_TRUE(form().Visible());
}

TEST_F(StartUpTest, OpensTheUnitsEditorInThisOrder) {
    EXPECT_EQ(Start("@UNITS"), StartUp::WindowShown);
    EXPECT_THAT(calls,
                ElementsAre(kStart, kLocation, kRestore, "trace mZYGlobal mMain Units Mode Started",
                            "trace frmGlobalSettings Form_Load Start", "InstallMinSizeHook",
                            "trace frmGlobalSettings ShowUnits Rules", "LoadUnitsData", "ResizeUnits"));
    ExpectModes(false, false, true);
    EXPECT_TRUE(form().Visible());
}

TEST_F(StartUpTest, LeavesOneModeOnWhicheverWereOnBefore) {
    Start("");
    const auto startFromAllModes = [this](std::string_view commandLine) {
        state().gbRulesMode = state().gbSecurityMode = state().gbUnitsMode = true;
        world.system.SetCommandLine(commandLine);
        mMain(program());
    };
    startFromAllModes("@RULES");
    ExpectModes(true, false, false);
    startFromAllModes("@SECURITY");
    ExpectModes(false, true, false);
    startFromAllModes("@UNITS");
    ExpectModes(false, false, true);
}

TEST_F(StartUpTest, LeavesNoTraceAndNoModeAfterARefusedLogin) {
    security.mayOpen = false;
    EXPECT_EQ(Start("@SECURITY"), StartUp::Ended);
    EXPECT_THAT(calls, ElementsAre(kStart, kLocation, kRestore, "LoadSecurityData"));
    ExpectNoWindow();
}

TEST_F(StartUpTest, TakesTheKeywordsInAnyCase) {
    EXPECT_EQ(Start("@rules"), StartUp::WindowShown);
    ExpectModes(true, false, false);
    EXPECT_EQ(Start("@Security"), StartUp::WindowShown);
    ExpectModes(false, true, false);
    EXPECT_EQ(Start("@units"), StartUp::WindowShown);
    ExpectModes(false, false, true);
}

TEST_F(StartUpTest, CutsTheCommandLineAtItsFirstNul) {
    EXPECT_EQ(Start("@RULES\0"s), StartUp::WindowShown);
    EXPECT_EQ(Start("@units\0 and more"s), StartUp::WindowShown);
    ExpectModes(false, false, true);
    EXPECT_EQ(Start("\0@RULES"s), StartUp::Ended);
    EXPECT_EQ(Start("@RU\0LES"s), StartUp::Ended);
}

TEST_F(StartUpTest, EndsWithoutAWordForAnyOtherCommandLine) {
    for (const auto& line : {"", " ", "@", "RULES", "/@RULES", "@RULE", "@RULESX", "@RULES ", " @RULES",
                             "@RULES @RULES", "@UNITS ", "@UNITS@RULES", "@RULES@UNITS", "\"@RULES\"",
                             "@RULES\t", "@RULES\r\n", "@SECURITY -x", "@HELP"}) {
        SCOPED_TRACE(line);
        calls.clear();
        EXPECT_EQ(Start(line), StartUp::Ended);
        EXPECT_THAT(calls, ElementsAre(kStart, kLocation, kRestore));
        ExpectNoWindow();
        EXPECT_EQ(unloaded, 0);
    }
}

TEST_F(StartUpTest, ComputesThePathsForEveryCommandLine) {
    for (const auto* line : {"@RULES", "@SECURITY", "@UNITS", "", "@OTHER"}) {
        SCOPED_TRACE(line);
        Start(line);
        EXPECT_EQ(state().gsSystemDir, "C:\\SYS\\");
        EXPECT_EQ(state().gsRulesFile, R"(C:\SYS\ZYRules.sys)");
        EXPECT_EQ(state().gsUnitsFile, R"(C:\SYS\ZYUNITS.SYS)");
        EXPECT_EQ(state().gsSecurityFile, R"(C:\SYS\ZYSECURE.DBF)");
    }
}

TEST_F(StartUpTest, AsksForTheUserTablesPlaceForEveryCommandLine) {
    world.files.Put(R"(C:\SYS\ZYSECURE.ZYX)",
                    "[ZYSECURE]\r\nZYSECURE.SECURITYFILE=d:\\shared\\users.dbf\r\n");
    for (const auto* line : {"@RULES", "@SECURITY", "@UNITS", "", "@OTHER"}) {
        SCOPED_TRACE(line);
        world.files.Plan({});
        Start(line);
        EXPECT_EQ(state().gsSecurityFile, R"(D:\SHARED\USERS.DBF)");
        EXPECT_THAT(world.files.Operations().Lines(),
                    Contains(R"(OpenAlwaysForReading C:\SYS\ZYSECURE.ZYX)"));
    }
}

TEST_F(StartUpTest, CutsTheSystemDirectoryAtItsNul) {
    world.system.SetSystemDirectory("C:\\SYS\0leftover"s);
    Start("@RULES");
    EXPECT_EQ(state().gsSystemDir, "C:\\SYS\\");
    EXPECT_EQ(state().gsUnitsFile, R"(C:\SYS\ZYUNITS.SYS)");
}

TEST_F(StartUpTest, TracesTheRulesModeBeforeTheFileIsRead) {
    world.files.Put(R"(C:\SYS\ZYRules.sys)", "[RULE]\r\n");
    world.files.SetUnreadable(R"(C:\SYS\ZYRules.sys)");
    EXPECT_EQ(ErrorNumber([&] { Start("@RULES"); }), 75);
    EXPECT_THAT(calls, ElementsAre(kStart, kLocation, kRestore, "trace mZYGlobal mMain Rules Mode Started",
                                   "trace mRules Build_Rules_Array Start"));
    ExpectNoWindow();
}

TEST_F(StartUpTest, ShowsNothingForAFileOfTooManyRules) {
    std::string text;
    for (int i = 0; i < 32768; ++i) {
        text += "[RULE]\r\n";
    }
    world.files.Put(R"(C:\SYS\ZYRules.sys)", text);
    EXPECT_EQ(ErrorNumber([&] { Start("@RULES"); }), 6);
    ExpectNoWindow();
    EXPECT_EQ(world.files.Get(R"(C:\SYS\ZYRules.sys)"), text);
}

TEST_F(StartUpTest, ShowsAFileOfAsManyRulesAsTheListHolds) {
    std::string text;
    for (int i = 0; i < 32767; ++i) {
        text += "[RULE]\r\n";
    }
    world.files.Put(R"(C:\SYS\ZYRules.sys)", text);
    EXPECT_EQ(Start("@RULES"), StartUp::WindowShown);
    EXPECT_EQ(program().rulesPage.controls.lstRulesList.Count(), 32767);
}

TEST_F(StartUpTest, LoadsTheWindowOnceWhenTheStoredPlaceLoadsIt) {
    placement.restoring = [&] { window().Load(); };
    Start("@RULES");
    EXPECT_THAT(calls,
                ElementsAre(kStart, kLocation, kRestore, "trace frmGlobalSettings Form_Load Start",
                            "InstallMinSizeHook", "trace mZYGlobal mMain Rules Mode Started",
                            "trace mRules Build_Rules_Array Start", "trace frmGlobalSettings ShowRules Rules",
                            "trace mRules LoadRulesListMode Start", "trace mRules ClearRule Start"));
}

TEST_F(StartUpTest, LaysThePageOutInItsModeBeforeTheWindowIsShown) {
    const auto expectMode = [&](const Bool16& mode) {
        EXPECT_TRUE(mode);
        EXPECT_FALSE(form().Visible());
        calls.emplace_back("seen");
    };
    units.resizing = [&] { expectMode(state().gbUnitsMode); };
    Start("@UNITS");
    EXPECT_EQ(calls.back(), "seen");
    security.resizing = [&] { expectMode(state().gbSecurityMode); };
    Start("@SECURITY");
    EXPECT_EQ(calls.back(), "seen");
}

TEST_F(StartUpTest, ClearsTheSharedMarkInTheRulesEditorAlone) {
    units.loading = [&] { state().gbChanged = true; };
    Start("@UNITS");
    EXPECT_TRUE(state().gbChanged);
    security.loading = [&] { state().gbChanged = true; };
    Start("@SECURITY");
    EXPECT_TRUE(state().gbChanged);
    placement.restoring = [&] { state().gbChanged = true; };
    Start("@RULES");
    EXPECT_FALSE(state().gbChanged);
}

TEST_F(StartUpTest, BringsItsOwnEditors) {
    options = {};
    EXPECT_EQ(Start("@RULES"), StartUp::WindowShown);
    EXPECT_TRUE(form().fraRules.Visible());
    EXPECT_EQ(Start("@UNITS"), StartUp::WindowShown);
    EXPECT_TRUE(form().FraUnits.Visible());
    EXPECT_EQ(program().unitsPage.controls.grdUnits.Text(0, 0), "Unit");
    EXPECT_EQ(Start("@SECURITY"), StartUp::WindowShown);
    EXPECT_TRUE(form().fraSecurity.Visible());
    EXPECT_EQ(program().securityPage.controls.grdSecurity.Text(1, 0), "NewUser");
}

TEST_F(StartUpTest, LeavesThePlaceAloneForAnUnknownCommandLine) {
    Start("@OTHER");
    EXPECT_THAT(calls, Not(Contains("SaveWindowPlacement")));
    EXPECT_THAT(calls, Not(Contains("InstallMinSizeHook")));
}

} // namespace
} // namespace zy::test
