#include <wx/dialog.h>
#include <wx/frame.h>
#include <wx/html/htmlwin.h>
#include <wx/statusbr.h>

#include "HelpBook.h"
#include "ReaderMsw.h"
#include "RulesWindow.h"
#include "UsersWindow.h"

namespace zy::test {
namespace {

using ::testing::ElementsAre;
using ::testing::StartsWith;

/// How screen readers of the system call what stands in the windows. Wine calls a drop-down list by what is
/// chosen, though there is a label before it, and calls all that the program says nothing of "client".
class NamesInRules : public RulesWindow {};

class NamesInUsers : public UsersWindow {
  protected:
    static std::vector<std::string> ReadDialog(const std::string& name) {
        return InWindow([&] { return ReadWindows(RealDialog(name)->GetHandle()); });
    }
};

/// The help as screen readers of the system read it.
class NamesInHelp : public RulesWindow {
  protected:
    NamesInHelp() { world.files.Put(kHelpFile, HelpBook()); }

    static wxHtmlWindow* Page() {
        auto* page = wxWindow::FindWindowByName("htmlWindow");
        return dynamic_cast<wxHtmlWindow*>(page);
    }
    void OpenHelp() {
        Press(WXK_F1);
        WaitUntil("the page has the keyboard",
                  [] { return Page() != nullptr && wxWindow::FindFocus() == Page(); });
    }
    static std::vector<std::string> FirstLines(std::size_t count) {
        auto lines = InWindow([] { return Reader(*Page()).Lines(); });
        lines.resize(count);
        return lines;
    }
};

TEST_F(NamesInHelp, APageIsADocumentOfParagraphsAndLinks) {
    Play([&] {
        OpenHelp();
        EXPECT_EQ(InWindow([] { return Reader(*Page()).Role(); }), "document");
        EXPECT_THAT(FirstLines(8),
                    ElementsAre("static text 'ZY Setup Help'",
                                StartsWith("static text 'This is the help of ZY Setup"),
                                StartsWith("static text 'ZY Setup edits three lists"), "static text 'Editor'",
                                "static text 'Title of the window'", "static text 'What you do with it'",
                                "link 'Rules'", "static text 'ZY Setup - Rules'"));
        EXPECT_EQ(InWindow([] { return Reader(*Page()).Description(1); }), "title");
        InWindow([] { wxGetTopLevelParent(Page())->Close(); });
    });
}

TEST_F(NamesInHelp, TheParagraphAndTheLinkThatTheUserComesToHaveTheFocus) {
    constexpr long kSecond = 2;
    constexpr long kLink = 7;
    Play([&] {
        OpenHelp();
        const HeardEvents heard(InWindow([] { return Page(); }));
        Press(WXK_DOWN, wxMOD_CONTROL);
        heard.WaitFor({.event = EVENT_OBJECT_FOCUS, .child = kSecond});
        EXPECT_EQ(InWindow([] { return Reader(*Page()).Focus(); }), kSecond);
        Press(WXK_TAB);
        heard.WaitFor({.event = EVENT_OBJECT_FOCUS, .child = kLink});
        InWindow([&] { Reader(*Page()).Do(kLink); });
        WaitUntil("the link is followed", [] { return Page()->GetOpenedPageTitle() == "Rules editor"; });
        InWindow([] { wxGetTopLevelParent(Page())->Close(); });
    });
}

TEST_F(NamesInRules, TheListAndTheDetailsAreNamedByTheirOwnCaptions) {
    PutRules({"R1|1|2|>|UCL|First"});
    Play([&] {
        EXPECT_THAT(
            InWindow([&] { return ReadWindows(RealFrame().GetHandle()); }),
            ElementsAre(
                "client 'ZY Setup - Rules'", "  client 'panel'", "    client 'panel'", "      client 'panel'",
                "        client 'Current Rules List'", "          list 'Current Rules List'",
                "            client 'wxdataviewctrlmainwindow'", "            client 'wxHeaderCtrl'",
                "              client ''", "          client 'panel'", "            client 'Move rule up'",
                "            client 'Move rule down'", "          client 'Add'", "          client 'Delete'",
                "          client 'Save'", "          client 'Help'", "        client 'Rule Details'",
                "          client 'Rule ID:'", "          text 'Rule ID:'", "          client 'Minimum:'",
                "          text 'Minimum:'", "          client 'Maximum:'", "          text 'Maximum:'",
                "          client 'Condition:'", "          client '> - Greater Than'",
                "          client 'Zone:'", "          client 'UCL - Upper Control Limit (Red)'",
                "          client 'Description:'", "          text 'Description:'",
                "          graphic 'Picture of the rule'", "  status bar 'Status'", "    alert '1 rule'"));
    });
}

TEST_F(NamesInRules, WhatTheStatusBarNewlySaysIsAnAlert) {
    PutRules({"R1|1|2|>|UCL|First"});
    Play([&] {
        const HeardEvents heard(InWindow([] { return RealFrame().GetStatusBar()->GetChildren().front(); }));
        Enter(page().txtCode);
        Type("X");
        heard.WaitFor({.event = EVENT_SYSTEM_ALERT, .child = CHILDID_SELF});
    });
}

TEST_F(NamesInUsers, EachPartOfTheWindowHasOne) {
    Play([&] {
        EXPECT_THAT(InWindow([&] { return ReadWindows(RealFrame().GetHandle()); }),
                    ElementsAre("client 'ZY Setup - Security'", "  client 'panel'", "    client 'panel'",
                                "      client 'panel'", "        client 'panel'", "          client 'grid'",
                                "            client 'panel'", StartsWith("            table '"),
                                "        client 'Add'", "        client 'Delete'", "        client 'Save'",
                                "        client 'Help'", "  status bar 'Status'", "    alert '1 user'"));
    });
}

TEST_F(NamesInUsers, LoginIsADialogWithNamedFields) {
    PutUsers({User("ADMIN", "Secret"), User("Ann")});
    PlayFromTheStart([&] {
        WaitForDialog("frmLogin");
        EXPECT_THAT(ReadDialog("frmLogin"),
                    ElementsAre("dialog 'ZY Setup Security Login'", "  client 'panel'",
                                "    client 'User Name:'", "    text 'User Name:'", "    client 'Password:'",
                                "    text 'Password:'", "    client 'OK'", "    client 'Cancel'"));
        Press(WXK_ESCAPE);
    });
}

TEST_F(NamesInUsers, AboutIsADialogWithLinksNamedByTheirOwnTexts) {
    Play([&] {
        Press('H', wxMOD_ALT);
        Press('A');
        WaitForDialog("frmAbout");
        EXPECT_THAT(ReadDialog("frmAbout"),
                    ElementsAre("dialog 'About ZY Setup'", "  client 'panel'", "    client 'ZY Setup icon'",
                                "    client 'ZY Setup'", "    client '1.0 Build 0'", "    client ''",
                                StartsWith("    client 'Norvale \n"), "    link 'http://www.norvale.example'",
                                "    link 'support@norvale.example'", "    client ''", "    client 'OK'"));
        Press(WXK_ESCAPE);
        WaitForNoDialog("frmAbout");
    });
}

TEST_F(NamesInUsers, TheCalendarIsCalledByItsCurrentDayAndMonthAndYearByThemselves) {
    auto users = TwoUsers();
    users[0].EXPDATE = "26-12-01";
    PutUsers(users);
    Play([&] {
        OpenEditor(1, kExpiryDate);
        ClickCellButton();
        WaitForDialog("frmDatePicker");
        WaitForFocusIn("dpZYSecurity");
        // The text of the year has a name in the real system alone; Wine does not keep names of single
        // windows.
        EXPECT_THAT(ReadDialog("frmDatePicker"),
                    ElementsAre("dialog 'Expiry Date'", "  client 'panel'",
                                "    cell 'Tuesday, 1 December 2026'", "    text ''", "    client 'Year'",
                                "    client 'Month'", "    client 'Clear'", "    client 'Cancel'"));
        const HeardEvents heard(InWindow([] { return &RealNamed("dpZYSecurity"); }));
        Press(WXK_LEFT);
        heard.WaitFor({.event = EVENT_OBJECT_NAMECHANGE, .child = CHILDID_SELF});
        EXPECT_EQ(InWindow([] { return Reader(RealNamed("dpZYSecurity")).Name(); }),
                  "Monday, 30 November 2026");
        Press(WXK_ESCAPE);
        WaitForNoDialog("frmDatePicker");
    });
}

} // namespace
} // namespace zy::test
