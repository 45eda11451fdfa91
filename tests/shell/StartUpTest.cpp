#include "security/frmLogin.h"
#include "support/EditorsTest.h"
#include "support/RawBool16.h"
#include "support/UsersOnDisk.h"

namespace zy::test {
namespace {

using namespace std::string_literals; // for command lines that hold a NUL

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;

/// The start of the program over a memory world.
class StartUpTest : public EditorsTest {
  protected:
    void ExpectModes(bool rules, bool users, bool unitsOfMeasure) {
        EXPECT_EQ(ValueOf(state().gbRulesMode), rules ? -1 : 0);
        EXPECT_EQ(ValueOf(state().gbSecurityMode), users ? -1 : 0);
        EXPECT_EQ(ValueOf(state().gbUnitsMode), unitsOfMeasure ? -1 : 0);
    }
    void ExpectNoWindow() {
        EXPECT_FALSE(form().Visible());
        ExpectModes(false, false, false);
    }

    /// The first steps, which are the same for every command line.
    static constexpr auto kStart = "trace mZYGlobal mMain ZYGlobal Start";
    static constexpr auto kLocation = "trace mSecurity SecurityFileLocation Start";
    static constexpr auto kRestore = "Open key";
    static constexpr auto kHook = "SetProcedure";
};

TEST_F(StartUpTest, OpensTheRulesEditorInThisOrder) {
    EXPECT_EQ(Start("@RULES"), StartUp::WindowShown);
    EXPECT_THAT(calls,
                ElementsAre(kStart, kLocation, kRestore, "trace mZYGlobal mMain Rules Mode Started",
                            "trace mRules Build_Rules_Array Start", "trace frmGlobalSettings Form_Load Start",
                            kHook, "trace frmGlobalSettings ShowRules Rules",
                            "trace mRules LoadRulesListMode Start", "trace mRules ClearRule Start"));
    ExpectModes(true, false, false);
    EXPECT_TRUE(form().Visible());
}

TEST_F(StartUpTest, OpensTheUsersEditorAfterASuccessfulLoginAlone) {
    PutUsersTable(world, {User("ADMIN", "pw")});
    world.dialogs.ExpectForm([](Form& form) {
        auto& login = dynamic_cast<frmLogin&>(form);
        login.txtUserName.Enter("admin");
        login.txtPassword.Enter("pw");
        login.cmdOK.Click();
    });
    EXPECT_EQ(Start("@SECURITY"), StartUp::WindowShown);
    EXPECT_THAT(calls, ElementsAre(kStart, kLocation, kRestore, "trace mSecurity LoadSecurityData Start",
                                   "trace frmLogin Form_Load Start", "trace frmLogin cmdOK_Click Start",
                                   "trace mSecurity LoadSecurityData Load Complete",
                                   "trace mZYGlobal mMain Security Mode Started",
                                   "trace frmGlobalSettings Form_Load Start", kHook,
                                   "trace frmGlobalSettings ShowSecurity Rules",
                                   "trace frmGlobalSettings LoadSecurity Finished"));
    ExpectModes(false, true, false);
    EXPECT_TRUE(form().Visible());
}

TEST_F(StartUpTest, OpensTheUnitsEditorInThisOrder) {
    EXPECT_EQ(Start("@UNITS"), StartUp::WindowShown);
    EXPECT_THAT(calls,
                ElementsAre(kStart, kLocation, kRestore, "trace mZYGlobal mMain Units Mode Started",
                            "trace frmGlobalSettings Form_Load Start", kHook,
                            "trace frmGlobalSettings ShowUnits Rules", "trace mUnits LoadUnitsData Start"));
    ExpectModes(false, false, true);
    EXPECT_TRUE(form().Visible());
}

TEST_F(StartUpTest, SaysWhereTheNoteOfARunThatBrokeOffIs) {
    Start("@UNITS");
    const std::string before(form().zyStatusBar.Text());
    program().TellOfCrash(std::nullopt);
    EXPECT_EQ(form().zyStatusBar.Text(), before);
    program().TellOfCrash("a path");
    EXPECT_THAT(form().zyStatusBar.Text(),
                HasSubstr("ZY Setup broke off the last time it ran; its support needs a path"));
}

TEST_F(StartUpTest, SaysThatItGoesWithoutTheSessionBus) {
    Start("@UNITS");
    program().TellOfSilentBus();
    EXPECT_THAT(form().zyStatusBar.Text(),
                HasSubstr("The session bus does not answer: screen readers do not reach this window"));
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
    PutUsersTable(world, {User("ADMIN", "pw")});
    world.dialogs.ExpectForm([](Form& login) { login.SetVisible(false); });
    EXPECT_EQ(Start("@SECURITY"), StartUp::Ended);
    EXPECT_THAT(calls, Not(Contains("trace mZYGlobal mMain Security Mode Started")));
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
    world.registry.Put(std::string(mRegistryEdit::kKey), "Width", "10500");
    Start("@RULES");
    EXPECT_THAT(calls,
                ElementsAre(kStart, kLocation, kRestore, "trace frmGlobalSettings Form_Load Start", kHook,
                            "trace mZYGlobal mMain Rules Mode Started",
                            "trace mRules Build_Rules_Array Start", "trace frmGlobalSettings ShowRules Rules",
                            "trace mRules LoadRulesListMode Start", "trace mRules ClearRule Start"));
}

TEST_F(StartUpTest, LaysThePageOutInItsModeBeforeTheWindowIsShown) {
    const auto expectLaidOut = [this](std::string_view commandLine, const Frame& frame, const Bool16& mode) {
        form().SetVisible(false);
        bool shown = false;
        form().appearanceChanged.Connect([&] {
            if (form().Visible()) {
                shown = true;
                EXPECT_TRUE(mode);
                EXPECT_GE(frame.Bounds().width, 9900);
            }
        });
        world.system.SetCommandLine(commandLine);
        mMain(program());
        EXPECT_TRUE(shown);
    };
    for (const auto* line : {"@RULES", "@SECURITY", "@UNITS"}) {
        SCOPED_TRACE(line);
        Start("");
        form().SetInnerSize({10000, 9000});
        const bool rules = line == std::string_view("@RULES");
        const bool users = line == std::string_view("@SECURITY");
        expectLaidOut(line,
                      rules   ? form().fraRules
                      : users ? form().fraSecurity
                              : form().FraUnits,
                      rules   ? state().gbRulesMode
                      : users ? state().gbSecurityMode
                              : state().gbUnitsMode);
    }
}

TEST_F(StartUpTest, ClearsTheSharedMarkInTheRulesEditorAlone) {
    Start("");
    const auto markAndStart = [this](std::string_view commandLine) {
        state().gbChanged = true;
        world.system.SetCommandLine(commandLine);
        mMain(program());
        return bool(state().gbChanged);
    };
    EXPECT_TRUE(markAndStart("@UNITS"));
    EXPECT_TRUE(markAndStart("@SECURITY"));
    EXPECT_FALSE(markAndStart("@RULES"));
}

TEST_F(StartUpTest, BringsItsOwnEditors) {
    EXPECT_EQ(Start("@RULES"), StartUp::WindowShown);
    EXPECT_TRUE(form().fraRules.Visible());
    EXPECT_EQ(Start("@UNITS"), StartUp::WindowShown);
    EXPECT_TRUE(form().FraUnits.Visible());
    EXPECT_EQ(program().unitsPage.controls.grdUnits.cells.Text(0, 0), "Unit");
    EXPECT_EQ(Start("@SECURITY"), StartUp::WindowShown);
    EXPECT_TRUE(form().fraSecurity.Visible());
    EXPECT_EQ(program().securityPage.controls.grdSecurity.cells.Text(1, 0), "NewUser");
}

TEST_F(StartUpTest, LeavesThePlaceAloneForAnUnknownCommandLine) {
    Start("@OTHER");
    EXPECT_THAT(calls, Not(Contains("Create key")));
    EXPECT_THAT(calls, Not(Contains(kHook)));
}

} // namespace
} // namespace zy::test
