#include <wx/textctrl.h>

#include "NativeLook.h"
#include "UsersWindow.h"

namespace zy::test {
namespace {

constexpr auto kDialog = "frmLogin";

class LoginWindow : public UsersWindow {
  protected:
    LoginWindow() { PutUsers({User("ADMIN", "Secret"), User("Ann")}); }

    /// Types name and password, the Tab key between them.
    void TypeLogin(const std::string& name, const std::string& password) {
        WaitForDialog(kDialog);
        WaitForFocusIn("txtUserName");
        Type(name);
        Press(WXK_TAB);
        WaitForFocusIn("txtPassword");
        Type(password);
        WaitUntil("the password is typed", [&] { return RealPassword().GetValue() == password; });
    }
    /// Answers the box of a refusal and waits until the password can be typed over.
    void ExpectRefusal() {
        ExpectBox("Invalid Password, try again!", "Login");
        PressInBox(WXK_RETURN);
        WaitForDialog(kDialog);
        WaitUntil("the password is selected", [&] {
            return RealPassword().HasFocus() && !RealPassword().GetValue().empty() &&
                   RealPassword().GetStringSelection() == RealPassword().GetValue();
        });
    }
    static wxTextCtrl& RealPassword() { return dynamic_cast<wxTextCtrl&>(RealNamed("txtPassword")); }
};

TEST_F(LoginWindow, TheAdministratorLogsInByKeyboardCapitalsOrNot) {
    EXPECT_EQ(PlayFromTheStart([&] {
                  TypeLogin("admin", "sECRET");
                  Press(WXK_RETURN);
                  WaitForWindow();
                  WaitForNoDialog(kDialog);
                  EXPECT_EQ(Shown(2, kUserName), "Ann");
              }),
              0);
    EXPECT_TRUE(boxes.Seen().empty());
}

TEST_F(LoginWindow, HasRoomForEveryPart) {
    PlayFromTheStart([&] {
        WaitForDialog(kDialog);
        ExpectRoomForEveryPart(kDialog);
        Press(WXK_ESCAPE);
    });
}

TEST_F(LoginWindow, TheAdministratorLogsInByMouse) {
    PlayFromTheStart([&] {
        WaitForDialog(kDialog);
        ClickIn("txtPassword");
        WaitForFocusIn("txtPassword");
        Type("secret");
        ClickIn("txtUserName");
        WaitForFocusIn("txtUserName");
        Type("ADMIN");
        ClickIn("cmdOK");
        WaitForWindow();
        EXPECT_EQ(Shown(1, kUserName), "ADMIN");
    });
}

TEST_F(LoginWindow, ThePasswordIsShownAsStars) {
    PlayFromTheStart([&] {
        TypeLogin("ADMIN", "secret");
        EXPECT_EQ(InWindow([] { return PasswordCharacterOf(RealPassword()); }), wxUniChar('*'));
        Press(WXK_RETURN);
        WaitForWindow();
    });
}

TEST_F(LoginWindow, ARefusalIsToldAndThePasswordIsTypedAnew) {
    PlayFromTheStart([&] {
        TypeLogin("ADMIN", "wrong");
        ClickIn("cmdOK");
        ExpectRefusal();
        Press(WXK_RETURN);
        ExpectRefusal();
        Type("secret"); // takes the place of what is selected
        Press(WXK_RETURN);
        WaitForWindow();
    });
    EXPECT_EQ(boxes.Seen().size(), 2U);
}

TEST_F(LoginWindow, TheAccessKeysGoToTheBoxes) {
    PlayFromTheStart([&] {
        WaitForDialog(kDialog);
        Press('P', wxMOD_ALT);
        WaitForFocusIn("txtPassword");
        Press('U', wxMOD_ALT);
        WaitForFocusIn("txtUserName");
        Press(WXK_ESCAPE);
    });
}

TEST_F(LoginWindow, CancelEndsTheProgram) {
    EXPECT_EQ(PlayFromTheStart([&] {
                  TypeLogin("ADMIN", "secret");
                  ClickIn("cmdCancel");
              }),
              0);
    EXPECT_FALSE(program->form.Visible());
    EXPECT_TRUE(boxes.Seen().empty());
}

TEST_F(LoginWindow, EscapeIsCancel) {
    EXPECT_EQ(PlayFromTheStart([&] {
                  TypeLogin("ADMIN", "secret");
                  Press(WXK_ESCAPE);
              }),
              0);
    EXPECT_FALSE(program->form.Visible());
}

TEST_F(LoginWindow, TheCloseBoxEndsTheProgramToo) {
    EXPECT_EQ(PlayFromTheStart([&] {
                  TypeLogin("ADMIN", "secret");
                  CloseWindow();
              }),
              0);
    EXPECT_FALSE(program->form.Visible());
    EXPECT_TRUE(boxes.Seen().empty());
}

} // namespace
} // namespace zy::test
