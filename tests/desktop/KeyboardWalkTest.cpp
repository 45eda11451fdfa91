// The three editors from start to end without a mouse.

#include "KeyboardWalk.h"

#include <algorithm>
#include <iterator>

#include "RulesWindow.h"
#include "UnitsWindow.h"
#include "UsersWindow.h"

namespace zy::test {
namespace {

using ::testing::ElementsAre;

class RulesWalk : public KeyboardWalk<RulesWindow> {
  protected:
    RulesWalk() { PutRules(ThreeRules()); }

    /// Goes back from the first field to what stands before it.
    void GoToTheList() {
        Press('R', wxMOD_ALT);
        WaitForFocus(page().txtCode);
        const auto order = ControlsInOrder();
        const auto here = std::find(order.begin(), order.end(), &page().txtCode);
        for (auto stop = std::make_reverse_iterator(here); stop != order.rend(); ++stop) {
            Press(WXK_TAB, wxMOD_SHIFT);
            WaitForFocus(**stop);
        }
    }
};

class UnitsWalk : public KeyboardWalk<UnitsWindow> {
  protected:
    UnitsWalk() { PutUnits(ThreeUnits()); }
};

class UsersWalk : public KeyboardWalk<UsersWindow> {
  protected:
    void LogIn() {
        WaitForDialog("frmLogin");
        WaitForFocusIn("txtUserName");
        Type("admin");
        Press(WXK_TAB);
        WaitForFocusIn("txtPassword");
        Type("secret");
        Press(WXK_RETURN);
        WaitForWindow();
        WaitForNoDialog("frmLogin");
    }
    void GoTo(int row, int column) {
        Press(WXK_HOME, wxMOD_CONTROL);
        WaitForCell(1, 0);
        for (int at = 1; at < row; ++at) {
            Press(WXK_DOWN);
        }
        for (int at = 0; at < column; ++at) {
            Press(WXK_RIGHT);
        }
        WaitForCell(row, column);
    }
    void FillIn(int row, int column, const std::string& text) {
        GoTo(row, column);
        Type(text);
        Press(WXK_RETURN);
        WaitForText(row, column, text);
    }
    /// Opens the list of a status and picks the second one.
    void PickInactive() {
        Press(WXK_F2);
        WaitForEditor("A");
        Press(WXK_DOWN, wxMOD_ALT);
        Press(WXK_DOWN);
        Press(WXK_DOWN);
        Press(WXK_RETURN);
    }
    static std::vector<std::string> NamesAndStates(const Users& users) {
        std::vector<std::string> lines;
        for (const auto& user : users) {
            lines.push_back(user.USERID + " " + user.STATUS);
        }
        return lines;
    }
};

TEST_F(RulesWalk, EditsAddsDeletesMovesAndSaves) {
    EXPECT_EQ(Play([&] {
                  WaitForFocus(page().lstRulesList);
                  Press(WXK_DOWN);
                  WaitForSelection(2);
                  Press('D', wxMOD_ALT);
                  WaitForFocus(page().txtDescription);
                  Press('A', wxMOD_CONTROL);
                  Type("Edited");
                  Press('Z', wxMOD_ALT);
                  WaitForFocus(page().cboZone);
                  Press(WXK_SPACE);
                  Press(WXK_UP);
                  Press(WXK_RETURN);
                  Press('S', wxMOD_CONTROL);
                  WaitForStatus("Saved");

                  Press('A', wxMOD_ALT);
                  WaitForFocus(page().txtCode);
                  Type("A7");
                  Press('S', wxMOD_CONTROL);
                  WaitForStatus("Saved");

                  GoToTheList();
                  Press(WXK_UP, wxMOD_ALT);
                  WaitForSelection(3);
                  Press(WXK_HOME);
                  WaitForSelection(1);
                  Press(WXK_DELETE);
                  ExpectBox("Are you Sure you want to Delete this Rule", "Confirm Delete");
                  PressInBox(WXK_RETURN);
                  WaitUntil("three rules are left", [&] { return page().lstRulesList.Count() == 3; });
                  Press('S', wxMOD_ALT);
                  WaitForStatus("Saved");
                  ReadHelp();
                  ReadAbout();
                  ChooseExit();
              }),
              0);
    EXPECT_EQ(File(), FileOf({"R2|3|4|<=|TARG|Edited", "A7|1|2|=|USL|New", "R3|5|6|=|-3S|Third rule  "}));
}

TEST_F(UnitsWalk, EditsAddsDeletesMovesAndSaves) {
    EXPECT_EQ(Play([&] {
                  WaitForFocus(page().grdUnits);
                  Press(WXK_DOWN);
                  WaitForCell(1, 0);
                  Press(WXK_TAB);
                  WaitForCell(1, 1);
                  Press(WXK_F2);
                  WaitForEditor("Kilograms");
                  Press(WXK_HOME);
                  Type("Some ");
                  Press(WXK_RETURN);
                  WaitForText(1, 1, "Some Kilograms");

                  Press('A', wxMOD_ALT);
                  WaitForEditor("");
                  Type("A");
                  Press(WXK_TAB);
                  WaitForCell(4, 1);
                  Type("Amperes");
                  Press(WXK_RETURN);
                  WaitForText(4, 1, "Amperes");
                  Press(WXK_UP, wxMOD_ALT);
                  WaitForCell(3, 1);

                  Press(WXK_UP);
                  WaitForCell(2, 1);
                  Press('D', wxMOD_ALT);
                  ExpectBox("Are you sure you wish to delete this Unit of Measure?", "Confirm Delete");
                  PressInBox(WXK_RETURN);
                  WaitForText(2, 0, "A");
                  Press('S', wxMOD_CONTROL);
                  WaitForStatus("Saved");
                  ReadHelp();
                  ReadAbout();
                  ChooseExit();
              }),
              0);
    EXPECT_EQ(File(), "Some Kilograms,kg\r\nAmperes,A\r\nSeconds,s\r\n");
}

TEST_F(UsersWalk, LogsInEditsAddsDeletesAndSaves) {
    PutUsers({User("ADMIN", "Secret"), User("Ann"), User("Bob")});
    EXPECT_EQ(PlayFromTheStart([&] {
                  LogIn();
                  WaitForFocus(page().grdSecurity);
                  GoTo(2, kStatus);
                  PickInactive();
                  WaitForText(2, kStatus, "I");

                  Press('A', wxMOD_ALT);
                  WaitForText(4, kUserName, "NewUser");
                  FillIn(4, kUserName, "Cy");
                  FillIn(4, kPassword, "pass word");
                  FillIn(4, kExpiryDate, "31-12-24");
                  FillIn(4, kIdentification, "Third");

                  GoTo(3, kUserName);
                  Press('D', wxMOD_ALT);
                  ExpectBox("Are you sure you wish to delete this User?", "Confirm Delete");
                  PressInBox(WXK_RETURN);
                  WaitForText(3, kUserName, "Cy");
                  Press('S', wxMOD_CONTROL);
                  WaitForStatus("Saved");
                  ReadHelp();
                  ReadAbout();
                  ChooseExit();
              }),
              0);
    ASSERT_TRUE(Table());
    EXPECT_THAT(NamesAndStates(*Table()), ElementsAre("ADMIN A", "Ann I", "Cy A"));
}

#ifndef _WIN32
// The system's marks there are the system's to show; what it has painted reaches the screen when it likes.

TEST_F(RulesWalk, ShowsWhereTheKeyboardIs) {
    Play([&] {
        auto others = ControlsInOrder();
        others.erase(others.begin());
        ExpectFocusSeen(
            page().lstRulesList, [&] { Press(WXK_TAB); }, others);
    });
}

TEST_F(UnitsWalk, ShowsWhereTheKeyboardIs) {
    Play([&] {
        WaitForFocus(page().grdUnits);
        Press(WXK_DOWN); // lets Delete be pressed
        WaitForCell(1, 0);
        ExpectFocusSeen(page().grdUnits, [&] { LeaveGrid(); },
                        {&page().cmdAddUNit, &page().cmdDeleteUnit, &page().cmdHelpUnits, &page().UpDownUnits,
                         &page().UpDownUnits});
    });
}

TEST_F(UsersWalk, ShowsWhereTheKeyboardIs) {
    PutUsers(TwoUsers());
    Play([&] {
        ExpectFocusSeen(page().grdSecurity, [&] { LeaveGrid(); },
                        {&page().cmdAddUser, &page().cmdDeleteUser, &page().cmdHelpSecurity});
    });
}

#endif

} // namespace
} // namespace zy::test
