#include <wx/bmpbuttn.h>
#include <wx/checkbox.h>
#include <wx/display.h>
#include <wx/frame.h>
#include <wx/html/helpwnd.h>
#include <wx/listbox.h>
#include <wx/notebook.h>
#include <wx/settings.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>
#include <wx/treectrl.h>

#include <cstdlib>
#include <regex>
#include <thread>

#include "DesktopColours.h"
#include "HelpBook.h"
#include "NativeLook.h"
#include "RulesWindow.h"
#include "desktop/Contrast.h"
#include "desktop/HelpPage.h"
#include "desktop/HelpTools.h"
#include "desktop/PageColours.h"

namespace zy::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Not;

constexpr auto kFirstPage = "ZY Setup Help";

/// Help as the user reads it.
class HelpWindow : public RulesWindow {
  protected:
    HelpWindow() { PutHelp(HelpBook()); }

    void PutHelp(const std::string& bytes) { world.files.Put(kHelpFile, bytes); }

    // The parts of the window. For the window's thread.
    template <typename Kind>
    static Kind* Find(wxWindow& window) {
        for (auto* child : window.GetChildren()) {
            auto* const inside = Find<Kind>(*child);
            auto* const found = dynamic_cast<Kind*>(child);
            if (found != nullptr || inside != nullptr) {
                return found != nullptr ? found : inside;
            }
        }
        return nullptr;
    }
    template <typename Kind>
    static Kind& Part(int id) {
        return dynamic_cast<Kind&>(*ShownHelp()->FindWindow(id));
    }
    static HelpPage& Page() { return *Find<HelpPage>(*ShownHelp()); }
    static wxTreeCtrl& Contents() { return Part<wxTreeCtrl>(wxID_HTML_TREECTRL); }
    /// The entry of that name below another.
    static wxTreeItemId Entry(const wxTreeItemId& above, const std::string& name) {
        wxTreeItemIdValue cookie{};
        auto entry = Contents().GetFirstChild(above, cookie);
        while (entry.IsOk() && Contents().GetItemText(entry) != name) {
            entry = Contents().GetNextChild(above, cookie);
        }
        return entry;
    }
    static wxTreeItemId Chapter(const std::string& name) {
        wxTreeItemIdValue cookie{};
        return Entry(Contents().GetFirstChild(Contents().GetRootItem(), cookie), name);
    }
    static bool IsSeen(const PageRange& cells) {
        const int top = Page().GetViewStart().y * wxHTML_SCROLL_STEP;
        return cells.first->GetAbsPos().y >= top &&
               cells.last->GetAbsPos().y + cells.last->GetHeight() <= top + Page().GetClientSize().y;
    }
    static std::vector<PageRange> Links() { return LinksOn(*Page().GetInternalRepresentation()); }
    static bool HasFocus(const wxWindow& part) { return wxWindow::FindFocus() == &part; }

    // What the user does.
    void OpenHelp() {
        Press(WXK_F1);
        WaitForPage(kFirstPage);
        WaitUntil("the help has the keyboard", [] { return ShownHelp()->IsActive() && HasFocus(Page()); });
        std::this_thread::sleep_for(UntilNewWindowKeepsKeyboard());
        WaitUntil("the help keeps the keyboard", [] { return ShownHelp()->IsActive() && HasFocus(Page()); });
    }
    void ClickOn(int part) {
        hands->Click(InWindow([&] {
            const auto place = Part<wxWindow>(part).GetScreenRect();
            return place.GetPosition() + place.GetSize() / 2;
        }));
    }
    void ClickOnEntry(const std::function<wxTreeItemId()>& entry) {
        hands->Click(InWindow([&] {
            Contents().EnsureVisible(entry());
            wxRect place;
            Contents().GetBoundingRect(entry(), place, true);
            return Contents().ClientToScreen(place.GetPosition() + place.GetSize() / 2);
        }));
    }
    void LookFor(const std::string& words) {
        InWindow([] {
            Find<wxNotebook>(*ShownHelp())->SetSelection(2);
            Part<wxTextCtrl>(wxID_HTML_SEARCHTEXT).SetFocus();
        });
        WaitUntil("the text box has the focus",
                  [] { return HasFocus(Part<wxTextCtrl>(wxID_HTML_SEARCHTEXT)); });
        Press('A', wxMOD_CONTROL);
        Type(words);
        Press(WXK_RETURN);
    }
    void TabToMark(const std::string& text) {
        Press(WXK_TAB);
        WaitForMark(text);
    }
    void CloseHelp() {
        InWindow([] { ShownHelp()->Close(); });
        WaitForNoHelp();
    }

    // What the user sees.
    void WaitForPage(const wxString& title) {
        WaitUntil("the help shows " + title.utf8_string(),
                  [&] { return ShownHelp() != nullptr && Page().GetOpenedPageTitle() == title; });
    }
    static std::string Marked() { return Page().SelectionToText().Strip(wxString::both).utf8_string(); }
    void WaitForMark(const std::string& text) {
        WaitUntil("\"" + text + "\" is marked", [&] { return Marked() == text; });
    }
    void WaitForNoHelp() {
        WaitUntil("the help is closed", [] { return ShownHelp() == nullptr; });
    }
    void WaitForFound(const std::string& text) {
        WaitUntil("the search says " + text, [&] {
            return Find<wxStaticText>(*Part<wxListBox>(wxID_HTML_SEARCHLIST).GetParent())->GetLabel() == text;
        });
    }
    /// The caption of the list that is in front.
    static std::string List() {
        return InWindow([] {
            auto& lists = *Find<wxNotebook>(*ShownHelp());
            return lists.GetPageText(static_cast<std::size_t>(lists.GetSelection())).utf8_string();
        });
    }
    static std::string ChosenInContents() {
        return InWindow([] { return Contents().GetItemText(Contents().GetSelection()).utf8_string(); });
    }
    /// How many chapters the list of contents shows below the title of the book.
    static std::size_t ChaptersShown() {
        return InWindow([] {
            wxTreeItemIdValue cookie{};
            const auto book = Contents().GetFirstChild(Contents().GetRootItem(), cookie);
            return Contents().IsExpanded(book) ? Contents().GetChildrenCount(book, false) : 0;
        });
    }
};

TEST_F(HelpWindow, OpensAtItsContentsByTheMenu) {
    Play([&] {
        Press('H', wxMOD_ALT);
        Press('C');
        WaitForPage(kFirstPage);
        EXPECT_EQ(List(), "Contents");
        EXPECT_GT(ChaptersShown(), 5U);
        CloseHelp();
    });
}

TEST_F(HelpWindow, OpensAtItsContentsByF1AndByTheHelpButton) {
    Play([&] {
        Press(WXK_F1);
        WaitForPage(kFirstPage);
        CloseHelp();
        WaitForWindow();
        Click(page().cmdHelpRules);
        WaitForPage(kFirstPage);
        EXPECT_EQ(List(), "Contents");
        CloseHelp();
    });
}

TEST_F(HelpWindow, OpensWhileAFieldIsWrongWhichIsAskedAboutAfterwards) {
    PutHelp(HelpBook());
    PutRules(ThreeRules());
    Play([&] {
        Fill(page().txtMin, "0");
        Press(WXK_F1);
        WaitForPage("ZY Setup Help");
        CloseHelp();
        WaitForWindow();
        Click(page().cmdHelpRules);
        WaitForPage("ZY Setup Help");
        CloseHelp();
        WaitForWindow();
        EXPECT_TRUE(BoxesSeen().empty());
        Click(page().txtDescription);
        ExpectBox("Min Must be between 1 and 100", "Invalid Rule Min Value");
        PressInBox(WXK_RETURN);
        WaitForFocus(page().txtMin);
    });
}

TEST_F(HelpWindow, OpensAtItsIndexByTheMenu) {
    Play([&] {
        Press('H', wxMOD_ALT);
        Press('I');
        WaitUntil("the help is open", [] { return ShownHelp() != nullptr; });
        EXPECT_EQ(List(), "Index");
        CloseHelp();
    });
}

TEST_F(HelpWindow, StaysOpenBesideTheEditorAndGoesWithIt) {
    EXPECT_EQ(Play([&] {
                  Press(WXK_F1);
                  WaitForPage(kFirstPage);
                  InWindow([] { RealFrame().Raise(); });
                  WaitUntil("the editor has the keyboard", [] { return RealFrame().IsActive(); });
                  EXPECT_TRUE(IsEnabled(page().cmdAddList));
                  EXPECT_NE(InWindow([] { return ShownHelp(); }), nullptr);
              }),
              0);
}

TEST_F(HelpWindow, TellsOfAMissingFile) {
    world.files.Delete(kHelpFile);
    Play([&] {
        Press(WXK_F1);
        ExpectBox("Cannot show the help file C:\\PRODUCT\\zysetup.hlp: the file or folder does not exist",
                  "ZY Setup");
        PressInBox(WXK_RETURN);
        WaitForWindow();
    });
}

TEST_F(HelpWindow, TellsOfADamagedFileAndReadsAGoodOneLater) {
    const auto book = HelpBook();
    Play([&] {
        for (const auto& bytes : {std::string(), std::string("no archive"), book.substr(0, book.size() / 2),
                                  std::string(20000, '\0')}) {
            InWindow([&] { PutHelp(bytes); });
            Press(WXK_F1);
            ExpectBox(
                "Cannot show the help file C:\\PRODUCT\\zysetup.hlp: it is no help file, or it is damaged",
                "ZY Setup");
            PressInBox(WXK_RETURN);
            WaitForWindow();
        }
        InWindow([&] { PutHelp(book); });
        Press(WXK_F1);
        WaitForPage(kFirstPage);
        CloseHelp();
    });
}

TEST_F(HelpWindow, SaysInItsTitleWhatItIsOnEveryPage) {
    Play([&] {
        OpenHelp();
        const auto title = [] { return InWindow([] { return ShownHelp()->GetTitle().utf8_string(); }); };
        EXPECT_EQ(title(), "ZY Setup - Help");
        TabToMark("Rules");
        Press(WXK_RETURN);
        WaitForPage("Rules editor");
        EXPECT_EQ(title(), "ZY Setup - Help");
        CloseHelp();
    });
}

TEST_F(HelpWindow, OpensOverTheMiddleOfTheEditor) {
    Play([&] {
        InWindow([] { RealFrame().Move(420, 260); });
        WaitUntil("the editor is there", [] { return RealFrame().GetPosition().x >= 400; });
        OpenHelp();
        InWindow([] {
            const auto middle = [](const wxRect& place) { return place.GetPosition() + place.GetSize() / 2; };
            const auto away = middle(ShownHelp()->GetScreenRect()) - middle(RealFrame().GetScreenRect());
            constexpr int kBorders = 30;
            EXPECT_LE(std::abs(away.x), kBorders);
            EXPECT_LE(std::abs(away.y), kBorders);
        });
        CloseHelp();
    });
}

TEST_F(HelpWindow, OpensOnTheScreenWhereverTheEditorStands) {
    Play([&] {
        InWindow([] { RealFrame().Move(1400, 1000); });
        WaitUntil("the editor is there", [] { return RealFrame().GetPosition().x >= 1380; });
        OpenHelp();
        InWindow([] {
            const auto screen = wxDisplay(ShownHelp()).GetClientArea();
            EXPECT_TRUE(screen.Contains(ShownHelp()->GetScreenRect()));
        });
        CloseHelp();
    });
}

TEST_F(HelpWindow, EscapeClosesItFromEveryPart) {
    Play([&] {
        for (const int part : {0, int{wxID_HTML_TREECTRL}, int{wxID_HTML_DOWN}}) {
            OpenHelp();
            InWindow([&] {
                if (part != 0) {
                    Part<wxWindow>(part).SetFocus();
                }
            });
            Press(WXK_ESCAPE);
            WaitForNoHelp();
            WaitForWindow();
        }
    });
}

TEST_F(HelpWindow, OpensAnewAtOnceAfterItWasClosed) {
    Play([&] {
        OpenHelp();
        const auto pressed = InWindow([&] {
            const auto* closed = ShownHelp();
            ShownHelp()->Close();
            program->form.menu.mnuContents.Click();
            return std::pair(closed, ShownHelp());
        });
        EXPECT_NE(pressed.first, pressed.second);
        WaitUntil("the closed window is gone", [&] { return !wxTopLevelWindows.Find(pressed.first); });
        WaitForPage(kFirstPage);
        CloseHelp();
    });
}

TEST_F(HelpWindow, EscapeClosesItFromATextBox) {
    Play([&] {
        Press('H', wxMOD_ALT);
        Press('I');
        WaitUntil("the box for a keyword has the focus", [] {
            return ShownHelp() != nullptr && ShownHelp()->IsActive() &&
                   HasFocus(Part<wxTextCtrl>(wxID_HTML_INDEXTEXT));
        });
        Press(WXK_ESCAPE);
        WaitForNoHelp();
        WaitForWindow();
    });
}

// Links by the keyboard

TEST_F(HelpWindow, TabMarksTheLinksOfThePageInTheirOrder) {
    Play([&] {
        OpenHelp();
        TabToMark("Rules");
        TabToMark("Users");
        TabToMark("Units of measure");
        Press(WXK_TAB, wxMOD_SHIFT);
        WaitForMark("Users");
        CloseHelp();
    });
}

TEST_F(HelpWindow, TabScrollsToTheLinkThatItMarks) {
    Play([&] {
        OpenHelp();
        const auto count = InWindow([] { return Links().size(); });
        ASSERT_GT(count, 10U);
        EXPECT_FALSE(InWindow([] { return IsSeen(Links().back()); }));
        for (std::size_t i = 0; i < count; ++i) {
            Press(WXK_TAB);
        }
        WaitForMark("Glossary");
        EXPECT_TRUE(InWindow([] { return IsSeen(Links().back()); }));
        CloseHelp();
    });
}

TEST_F(HelpWindow, TabBeginsWithTheLinksThatCanBeSeen) {
    Play([&] {
        OpenHelp();
        InWindow([] { ShownHelp()->SetSize(700, 420); });
        Press(WXK_END);
        WaitUntil("the first link is scrolled away", [] { return Page().GetViewStart().y > 10; });
        Press(WXK_TAB);
        WaitUntil("a link is marked", [] { return !Marked().empty(); });
        EXPECT_NE(InWindow([] { return Marked(); }), "Rules");
        CloseHelp();
    });
}

TEST_F(HelpWindow, EnterFollowsTheMarkedLink) {
    Play([&] {
        OpenHelp();
        TabToMark("Rules");
        TabToMark("Users");
        Press(WXK_RETURN);
        WaitForPage("Users editor");
        EXPECT_THAT(InWindow([] { return Marked(); }), IsEmpty());
        CloseHelp();
    });
}

TEST_F(HelpWindow, AltLeftAndAltRightGoThroughThePagesThatWereRead) {
    Play([&] {
        OpenHelp();
        TabToMark("Rules");
        Press(WXK_RETURN);
        WaitForPage("Rules editor");
        Press(WXK_LEFT, wxMOD_ALT);
        WaitForPage(kFirstPage);
        Press(WXK_RIGHT, wxMOD_ALT);
        WaitForPage("Rules editor");
        CloseHelp();
    });
}

TEST_F(HelpWindow, TabLeavesThePageBehindItsLastLink) {
    Play([&] {
        OpenHelp();
        const auto links = InWindow([] { return Links().size(); });
        for (std::size_t i = 0; i <= links; ++i) {
            EXPECT_TRUE(InWindow([] { return HasFocus(Page()); })) << i;
            Press(WXK_TAB);
        }
        WaitUntil("another part has the focus", [] { return !HasFocus(Page()); });
        EXPECT_THAT(InWindow([] { return Marked(); }), IsEmpty());
        CloseHelp();
    });
}

TEST_F(HelpWindow, CtrlDownAndCtrlUpGoFromParagraphToParagraph) {
    Play([&] {
        OpenHelp();
        TabToMark("Rules");
        Press(WXK_UP, wxMOD_CONTROL);
        WaitForMark("What you do with it");
        Press(WXK_UP, wxMOD_CONTROL);
        WaitForMark("Title of the window");
        Press(WXK_DOWN, wxMOD_CONTROL);
        WaitForMark("What you do with it");
        CloseHelp();
    });
}

TEST_F(HelpWindow, CtrlDownGoesOnFromALinkThatIsMarked) {
    Play([&] {
        OpenHelp();
        TabToMark("Rules");
        Press(WXK_DOWN, wxMOD_CONTROL);
        WaitForMark("ZY Setup - Rules");
        CloseHelp();
    });
}

TEST_F(HelpWindow, CtrlDownGoesOnBelowWordsThatWereFound) {
    Play([&] {
        OpenHelp();
        LookFor("nobody asks for these words");
        WaitForFound("Not found");
        LookFor("done without a mouse");
        WaitForPage("Keyboard");
        InWindow([] { Page().SetFocus(); });
        Press(WXK_DOWN, wxMOD_CONTROL);
        WaitForMark("Everywhere");
        CloseHelp();
    });
}

TEST_F(HelpWindow, LargerTextLeavesTheWayThroughThePageAsItIs) {
    Play([&] {
        OpenHelp();
        const auto height = [] { return Page().GetParser()->GetCharHeight(); };
        const int before = InWindow(height);
        ClickOn(wxID_ZOOM_IN);
        WaitUntil("the text is larger", [&] { return height() > before; });
        InWindow([] { Page().SetFocus(); });
        WaitUntil("the page has the focus", [] { return HasFocus(Page()); });
        TabToMark("Rules");
        Press(WXK_DOWN, wxMOD_CONTROL);
        WaitForMark("ZY Setup - Rules");
        CloseHelp();
    });
}

#ifndef _WIN32
// On Windows it goes round among the tool buttons.
TEST_F(HelpWindow, TabComesRoundToThePageAgain) {
    Play([&] {
        OpenHelp();
        TabToMark("Rules");
        Press(WXK_TAB, wxMOD_SHIFT);
        WaitUntil("another part has the focus", [] { return !HasFocus(Page()); });
        constexpr int kMostParts = 30;
        for (int i = 0; i < kMostParts && !InWindow([] { return HasFocus(Page()); }); ++i) {
            const auto* part = InWindow([] { return wxWindow::FindFocus(); });
            Press(WXK_TAB); // one that is pressed before the last one was heard would leave the page again
            WaitUntil("the next part has the focus", [part] { return wxWindow::FindFocus() != part; });
        }
        EXPECT_TRUE(InWindow([] { return HasFocus(Page()); }));
        CloseHelp();
    });
}
#endif

TEST_F(HelpWindow, ShiftTabLeavesThePageBeforeItsFirstLink) {
    Play([&] {
        OpenHelp();
        TabToMark("Rules");
        Press(WXK_TAB, wxMOD_SHIFT);
        WaitUntil("another part has the focus", [] { return !HasFocus(Page()); });
        CloseHelp();
    });
}

// Contents

TEST_F(HelpWindow, AnEntryOfTheContentsOpensItsPage) {
    Play([&] {
        OpenHelp();
        ClickOnEntry([] { return Chapter("Users"); });
        WaitForPage("Users editor");
        CloseHelp();
    });
}

TEST_F(HelpWindow, EnterInTheContentsGoesToThePage) {
    Play([&] {
        OpenHelp();
        ClickOnEntry([] { return Chapter("Users"); });
        WaitForPage("Users editor");
        WaitUntil("the contents have the focus", [] { return HasFocus(Contents()); });
        Press(WXK_RETURN);
        WaitUntil("the page has the focus", [] { return HasFocus(Page()); });
        EXPECT_EQ(InWindow([] { return Page().GetOpenedPageTitle().utf8_string(); }), "Users editor");
        CloseHelp();
    });
}

TEST_F(HelpWindow, TheContentsShowWhereALinkHasLed) {
    Play([&] {
        OpenHelp();
        ClickOnEntry([] { return Chapter("Rules"); });
        WaitForPage("Rules editor");
        // A link into the middle of another page.
        InWindow([] { Page().LoadPage("trouble.html#help"); });
        WaitForPage("When something goes wrong");
        EXPECT_NE(ChosenInContents(), "Rules");
        ClickOnEntry([] { return Chapter("Rules"); });
        WaitForPage("Rules editor");
        CloseHelp();
    });
}

// Search

TEST_F(HelpWindow, SearchShowsTheWordsInThePage) {
    Play([&] {
        OpenHelp();
        LookFor("glossary");
        WaitForMark("Glossary");
        InWindow([] {
            EXPECT_EQ(Page().GetOpenedPageTitle(), kFirstPage);
            EXPECT_GT(Page().GetViewStart().y, 0);
            EXPECT_TRUE(IsSeen(Links().back()));
        });
        CloseHelp();
    });
}

TEST_F(HelpWindow, SearchFindsWordsThatStandOnTwoLines) {
    Play([&] {
        OpenHelp();
        LookFor("above the upper  warning");
        WaitForMark("above the upper warning");
        CloseHelp();
    });
}

TEST_F(HelpWindow, SearchOpensTheNextPageThatWasFoundAtTheWords) {
    Play([&] {
        OpenHelp();
        LookFor("expiry");
        WaitForPage(kFirstPage);
        WaitForFound("Found on 10 pages");
        WaitUntil("the pages found have the focus",
                  [] { return HasFocus(Part<wxListBox>(wxID_HTML_SEARCHLIST)); });
        Press(WXK_DOWN);
        WaitForPage("Keyboard");
        WaitForMark("Expiry");
        CloseHelp();
    });
}

TEST_F(HelpWindow, SearchLooksForWholeWordsWhereThatIsAskedFor) {
    Play([&] {
        OpenHelp();
        LookFor("rule");
        WaitForMark("Rules");
        InWindow([] {
            for (auto* child : Part<wxListBox>(wxID_HTML_SEARCHLIST).GetParent()->GetChildren()) {
                if (auto* box = dynamic_cast<wxCheckBox*>(child)) {
                    box->SetValue(true);
                }
            }
        });
        LookFor("rule");
        WaitForMark("rule");
        LookFor("RULE");
        WaitForFound("Not found");
        CloseHelp();
    });
}

TEST_F(HelpWindow, SearchSaysOnHowManyPagesItFoundTheWords) {
    Play([&] {
        OpenHelp();
        LookFor("neverwritten");
        WaitForFound("Not found");
        LookFor("Everything can be done without a mouse");
        WaitForFound("Found on 1 page");
        CloseHelp();
    });
}

// Buttons

TEST_F(HelpWindow, EveryButtonSaysWhatItDoesAndShowsAPicture) {
    Play([&] {
        OpenHelp();
        const auto names = InWindow([] {
            std::vector<std::string> texts;
            for (auto* child : Find<HelpTools>(*ShownHelp())->GetChildren()) {
                texts.push_back(child->GetToolTipText().utf8_string());
                const auto& button = dynamic_cast<wxBitmapButton&>(*child);
                EXPECT_GE(button.GetBitmap().GetLogicalWidth(), 16) << texts.back();
            }
            return texts;
        });
        EXPECT_THAT(names, ElementsAre("Show or hide the contents", "Back", "Forward",
                                       "First page of the chapter", "Previous page", "Next page",
                                       "Larger text", "Smaller text", "Print this page"));
        CloseHelp();
    });
}

TEST_F(HelpWindow, TurnsThePagesInTheOrderOfTheContents) {
    Play([&] {
        OpenHelp();
        ClickOn(wxID_HTML_DOWN);
        WaitForPage("What ZY Setup is");
        ClickOn(wxID_HTML_DOWN);
        WaitForPage("The window");
        EXPECT_EQ(ChosenInContents(), "The window");
        ClickOn(wxID_HTML_UPNODE);
        WaitForPage("What ZY Setup is");
        ClickOn(wxID_HTML_UP);
        WaitForPage(kFirstPage);
        ClickOn(wxID_HTML_UP);
        ClickOn(wxID_HTML_BACK);
        WaitForPage("What ZY Setup is");
        ClickOn(wxID_HTML_FORWARD);
        WaitForPage(kFirstPage);
        CloseHelp();
    });
}

TEST_F(HelpWindow, TurnsThePageAlsoFromThePlaceThatALinkHasLedTo) {
    Play([&] {
        OpenHelp();
        InWindow([] { Page().LoadPage("keyboard.html#grid"); });
        WaitForPage("Keyboard");
        ClickOn(wxID_HTML_DOWN);
        WaitForPage("Working in a grid");
        CloseHelp();
    });
}

TEST_F(HelpWindow, MakesItsTextLargerAndSmaller) {
    Play([&] {
        OpenHelp();
        const auto height = [] { return Page().GetParser()->GetCharHeight(); };
        const int before = InWindow(height);
        ClickOn(wxID_ZOOM_IN);
        ClickOn(wxID_ZOOM_IN);
        WaitUntil("the text is larger", [&] { return height() > before; });
        ClickOn(wxID_ZOOM_OUT);
        ClickOn(wxID_ZOOM_OUT);
        WaitUntil("the text is as before", [&] { return height() == before; });
        CloseHelp();
    });
}

// Colours

/// The help on a desktop that becomes dark.
class HelpColours : public HelpWindow {
  protected:
    static wxColour Desktop(wxSystemColour colour) { return wxSystemSettings::GetColour(colour); }
    static bool IsDark(const wxColour& colour) { return colour.GetLuminance() < 0.5; }
    static void ExpectReadable() {
        InWindow([] {
            const auto paper = Page().GetBackgroundColour();
            EXPECT_EQ(paper, Desktop(wxSYS_COLOUR_WINDOW));
            EXPECT_EQ(Page().GetParser()->GetActualColor(), Desktop(wxSYS_COLOUR_WINDOWTEXT));
            EXPECT_GE(Contrast(paper, Page().GetParser()->GetActualColor()), 4.5);
            EXPECT_GE(Contrast(paper, Page().GetParser()->GetLinkColor()), 3);
            const std::regex name("=\"[a-z]*(window|text|highlight|face)\"");
            EXPECT_FALSE(std::regex_search(Page().GetParser()->GetSource()->utf8_string(), name));
        });
    }

    DesktopColours colours;
};

TEST_F(HelpColours, AreThoseOfTheDesktop) {
    Play([&] {
        OpenHelp();
        ExpectReadable();
        CloseHelp();
    });
}

TEST_F(HelpColours, AreThoseOfADarkDesktop) {
    prepare = [&] { colours.Darken(); };
    Play([&] {
        OpenHelp();
        EXPECT_TRUE(InWindow([] { return IsDark(Page().GetBackgroundColour()); }));
        ExpectReadable();
        CloseHelp();
    });
}

TEST_F(HelpColours, ChangeWithThoseOfTheDesktop) {
    Play([&] {
        OpenHelp();
        Press(WXK_END);
        WaitUntil("the page is scrolled", [] { return Page().GetViewStart().y > 0; });
        InWindow([&] { colours.Darken(); });
        WaitUntil("the page is dark", [] { return IsDark(Page().GetBackgroundColour()); });
        ExpectReadable();
        EXPECT_GT(InWindow([] { return Page().GetViewStart().y; }), 0) << "the place in the page is kept";
        CloseHelp();
    });
}

TEST(ContrastOfColours, IsThatOfTheLightTheyGive) {
    EXPECT_NEAR(Contrast(*wxBLACK, *wxWHITE), 21, 0.01);
    EXPECT_NEAR(Contrast(*wxWHITE, *wxWHITE), 1, 0.01);
    EXPECT_NEAR(Contrast(wxColour(0x77, 0x77, 0x77), *wxWHITE), 4.48, 0.01);
}

} // namespace
} // namespace zy::test
