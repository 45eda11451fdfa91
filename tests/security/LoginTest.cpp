#include "UsersTest.h"

namespace zy::test {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Not;

class Login : public UsersTest {
  protected:
    static void LogIn(frmLogin& login, std::string_view name, std::string_view password) {
        login.txtUserName.Enter(name);
        login.txtPassword.Enter(password);
        login.cmdOK.Click();
    }
    /// The login with these words is refused, in the box that says so.
    void Refuse(frmLogin& login, std::string_view name, std::string_view password) {
        world.dialogs.ExpectMessage("Invalid Password, try again!", "Login");
        LogIn(login, name, password);
        EXPECT_TRUE(login.Visible());
        EXPECT_FALSE(login.LoginSucceeded);
    }
};

TEST_F(Login, TheAdministratorOpensTheEditorCapitalsOrNot) {
    PutTable({User("Ann"), User(" Admin", "TopSecret")});
    ExpectLogin([&](frmLogin& login) { LogIn(login, "admin", "topsecret"); });
    EXPECT_EQ(Start("@SECURITY"), StartUp::WindowShown);
    EXPECT_TRUE(form().fraSecurity.Visible());
    EXPECT_TRUE(state().gbSecurityMode);
}

TEST_F(Login, TheLastAdministratorsPasswordCounts) {
    PutTable({User("ADMIN", "one"), User("Ann"), User("admin", "two")});
    ExpectLogin([&](frmLogin& login) {
        Refuse(login, "ADMIN", "one");
        LogIn(login, "ADMIN", "two");
    });
    EXPECT_EQ(Start("@SECURITY"), StartUp::WindowShown);
}

TEST_F(Login, ABlankBeforeOrBehindMakesItFail) {
    PutTable({User("ADMIN", "pw")});
    ExpectLogin([&](frmLogin& login) {
        Refuse(login, "ADMIN ", "pw");
        Refuse(login, " ADMIN", "pw");
        Refuse(login, "ADMIN", "pw ");
        Refuse(login, "ADMIN", " pw");
        LogIn(login, "ADMIN", "pw");
    });
    EXPECT_EQ(Start("@SECURITY"), StartUp::WindowShown);
}

TEST_F(Login, AWrongNameGetsTheSameWordsAsAWrongPassword) {
    PutTable({User("ADMIN", "pw"), User("Ann", "pw")});
    ExpectLogin([&](frmLogin& login) {
        Refuse(login, "Ann", "pw");
        Refuse(login, "", "pw");
        Refuse(login, "ADMIN", "");
        Refuse(login, "ADMIN", std::string(10000, 'x'));
    });
    EXPECT_EQ(Start("@SECURITY"), StartUp::Ended);
}

TEST_F(Login, AfterARefusalThePasswordHasTheFocusAndIsSelectedWhole) {
    PutTable({User("ADMIN", "pw")});
    ExpectLogin([&](frmLogin& login) {
        Refuse(login, "ADMIN", "wrong");
        EXPECT_TRUE(login.txtPassword.HasFocus());
        EXPECT_EQ(login.txtPassword.SelStart(), 0U);
        EXPECT_EQ(login.txtPassword.SelLength(), 5U);
    });
    Start("@SECURITY");
}

TEST_F(Login, AnEmptyPasswordIsAPasswordLikeAnyOther) {
    PutTable({User("ADMIN", "")});
    ExpectLogin([&](frmLogin& login) {
        Refuse(login, "ADMIN", "x");
        LogIn(login, "ADMIN", "");
    });
    EXPECT_EQ(Start("@SECURITY"), StartUp::WindowShown);
}

TEST_F(Login, ANulIsACharacterLikeAnyOther) {
    const std::string password("p\0w", 3);
    PutTable({User("ADMIN", password)});
    ExpectLogin([&](frmLogin& login) {
        Refuse(login, "ADMIN", "p");
        Refuse(login, "ADMIN", std::string("p\0x", 3));
        Refuse(login, std::string("ADMIN\0", 6), password);
        LogIn(login, "ADMIN", password);
    });
    EXPECT_EQ(Start("@SECURITY"), StartUp::WindowShown);
}

TEST_F(Login, AnEmptyOrAnEndlessPasswordIsRefusedAndTheRightOneStillTaken) {
    PutTable({User("ADMIN", "pw")});
    ExpectLogin([&](frmLogin& login) {
        Refuse(login, "ADMIN", "");
        Refuse(login, "ADMIN", "pw" + std::string(10000, ' '));
        Refuse(login, std::string(10000, 'A'), "pw");
        LogIn(login, "ADMIN", "pw");
    });
    EXPECT_EQ(Start("@SECURITY"), StartUp::WindowShown);
}

TEST_F(Login, CancelUnloadsTheWindowAndEndsTheProgramWithoutAWord) {
    PutTable({User("ADMIN", "pw")});
    ExpectLogin([&](frmLogin& login) {
        Traces();
        login.cmdCancel.Click();
        EXPECT_FALSE(login.Visible());
        EXPECT_TRUE(login.CancelClicked);
    });
    EXPECT_EQ(Start("@SECURITY"), StartUp::Ended);
    EXPECT_EQ(unloaded, 1);
    EXPECT_THAT(Traces(),
                ElementsAre("frmLogin cmdCancel_Click Start", "frmGlobalSettings Form_Unload Unloaded"));
    EXPECT_FALSE(state().gbSecurityMode);
}

TEST_F(Login, TheCloseBoxLeavesTheEditorClosedWithoutAWord) {
    PutTable({User("ADMIN", "pw")});
    ExpectLogin([&](frmLogin& login) {
        login.txtPassword.Enter("half of i");
        Traces();
    });
    EXPECT_EQ(Start("@SECURITY"), StartUp::Ended);
    EXPECT_EQ(unloaded, 0);
    EXPECT_THAT(Traces(), ElementsAre("mSecurity LoadSecurityData Load Complete"));
    EXPECT_FALSE(form().Visible());
    EXPECT_FALSE(state().gbSecurityMode);
}

TEST_F(Login, BeginsWithoutACancelEachTimeItIsLoaded) {
    PutTable({User("ADMIN", "pw")});
    ExpectLogin([](frmLogin& login) {
        EXPECT_FALSE(login.CancelClicked);
        login.cmdCancel.Click();
        login.Form_Load();
        EXPECT_FALSE(login.CancelClicked);
    });
    EXPECT_EQ(Start("@SECURITY"), StartUp::Ended);
    EXPECT_EQ(unloaded, 0) << "as after the close box";
}

TEST_F(Login, CancelTakesASuccessBack) {
    PutTable({User("ADMIN", "pw")});
    ExpectLogin([&](frmLogin& login) {
        LogIn(login, "ADMIN", "pw");
        login.SetVisible(true);
        login.cmdCancel.Click();
        EXPECT_FALSE(login.LoginSucceeded);
    });
    EXPECT_EQ(Start("@SECURITY"), StartUp::Ended);
}

TEST_F(Login, LooksAsItsPeopleKnowIt) {
    PutTable({User("ADMIN", "pw")});
    ExpectLogin([&](frmLogin& login) {
        EXPECT_EQ(login.Caption(), "ZY Setup Security Login");
        EXPECT_EQ(login.lblLabels[0].Caption(), "&User Name:");
        EXPECT_EQ(login.lblLabels[1].Caption(), "&Password:");
        EXPECT_EQ(login.lblLabels[0].Name(), "lblLabels");
        EXPECT_EQ(login.lblLabels[1].Name(), "lblLabels");
        EXPECT_EQ(login.cmdOK.Caption(), "OK");
        EXPECT_EQ(login.cmdCancel.Caption(), "Cancel");
        EXPECT_EQ(login.txtPassword.PasswordChar(), '*');
        EXPECT_EQ(login.txtUserName.PasswordChar(), '\0');
        EXPECT_EQ(login.OnEnter(), &login.cmdOK);
        EXPECT_EQ(login.OnEscape(), &login.cmdCancel);
    });
    Start("@SECURITY");
}

TEST_F(Login, NoPasswordReachesATrace) {
    PutTable({User("ADMIN", "XYZZYPW"), User("Ann", "XYZZYPW")});
    ExpectLogin([&](frmLogin& login) {
        Refuse(login, "ADMIN", "xyzzypw2");
        LogIn(login, "ADMIN", "xyzzypw");
    });
    Start("@SECURITY");
    Edit(2, kPassword, "xyzzypw3");
    Save();
    for (const auto& line : Traces()) {
        EXPECT_EQ(world.codePage.UCase(line).find("XYZZY"), std::string::npos) << line;
    }
}

TEST_F(Login, TheMainWindowIsSwitchedOffMeanwhileWhenItIsVisible) {
    PutTable({User("ADMIN", "pw")});
    ExpectLogin([&](frmLogin&) { EXPECT_TRUE(form().Enabled()) << "nobody sees it yet"; });
    Start("@SECURITY");
    window().Show();
    ExpectLogin([&](frmLogin&) { EXPECT_FALSE(form().Enabled()); });
    EXPECT_FALSE(page().users.LoadSecurityData());
    EXPECT_TRUE(form().Enabled());
}

} // namespace
} // namespace zy::test
