// What the handlers of the users page and of its dialogs tell the trace viewer.

#include "UsersTest.h"

namespace zy::test {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;

class UsersTraces : public UsersTest {
  protected:
    /// The form's own lines among those since the last call.
    std::vector<std::string> FormLines(const std::string& module = "frmGlobalSettings ") {
        std::vector<std::string> lines;
        for (const auto& line : Traces()) {
            if (line.starts_with(module)) {
                lines.push_back(line.substr(module.size()));
            }
        }
        return lines;
    }
};

TEST_F(UsersTraces, TellOfAPressOfTheMouseAndOfAKey) {
    StartOver({User("Ann"), User("Bob")});
    grid().PressMouse(MouseButton::Left, 2, 1);
    EXPECT_THAT(FormLines(), Contains("grdSecurity_MouseDown Start"));
    grid().Press({Key::Up});
    EXPECT_THAT(FormLines(), Contains("grdSecurity_KeyDown Start"));
}

TEST_F(UsersTraces, TellOfAnEditFromItsBeginningToItsEnd) {
    StartOver({User("Ann"), User("Bob")});
    grid().Pick(1, kPassword);
    Traces();
    grid().OpenEditor();
    EXPECT_THAT(FormLines(), ElementsAre("grdSecurity_BeforeEdit Start"));
    grid().editor.Enter("new", 3, 0);
    grid().editor.Commit();
    EXPECT_THAT(FormLines(), ElementsAre("grdSecurity_AfterEdit Start"));
}

TEST_F(UsersTraces, TellOfTheCalendarAndOfItsButtons) {
    StartOver({User("Ann"), User("Bob")});
    for (const bool clear : {true, false}) {
        grid().Pick(1, kExpiryDate);
        grid().OpenEditor();
        Traces();
        std::vector<std::string> inside;
        ExpectCalendar([&](frmDatePicker& picker) {
            EXPECT_THAT(FormLines(), ElementsAre("grdSecurity_CellButtonClick Start"));
            (clear ? picker.cmdClear : picker.cmdcancel).Click();
            inside = FormLines("frmDatePicker ");
        });
        grid().editor.PressButton();
        EXPECT_THAT(inside, ElementsAre(clear ? "cmdClear_Click Start" : "cmdcancel_Click Start"));
    }
}

TEST_F(UsersTraces, TellOfTheButtonsOfTheLogin) {
    PutTable({User("ADMIN", "pw")});
    std::vector<std::string> inside;
    ExpectLogin([&](frmLogin& login) {
        Traces();
        login.txtUserName.SetText("admin");
        login.txtPassword.SetText("PW");
        login.cmdOK.Click();
        inside = FormLines("frmLogin ");
    });
    Start("@SECURITY");
    EXPECT_THAT(inside, ElementsAre("cmdOK_Click Start"));

    ExpectLogin([&](frmLogin& login) {
        Traces();
        login.cmdCancel.Click();
        inside = FormLines("frmLogin ");
    });
    Start("@SECURITY");
    EXPECT_THAT(inside, ElementsAre("cmdCancel_Click Start"));
}

} // namespace
} // namespace zy::test
