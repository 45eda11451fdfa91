#include <wx/html/helpctrl.h>
#include <wx/html/helpfrm.h>
#include <wx/html/helpwnd.h>
#include <wx/notebook.h>
#include <wx/treectrl.h>

#include <fstream>
#include <iterator>

#include "RulesWindow.h"

namespace zy::test {
namespace {

constexpr auto kHelpFile = R"(C:\PRODUCT\zysetup.hlp)";

/// Help as a person reads it.
class HelpWindow : public RulesWindow {
  protected:
    void PutHelp(const std::string& bytes) { world.files.Put(kHelpFile, bytes); }
    /// The book that is built with the program.
    static std::string Book() {
        std::ifstream file(ZY_HELP_BOOK, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

    static wxHtmlHelpFrame* Frame() {
        for (auto* window : wxTopLevelWindows) {
            if (auto* frame = dynamic_cast<wxHtmlHelpFrame*>(window); frame != nullptr && frame->IsShown()) {
                return frame;
            }
        }
        return nullptr;
    }
    template <typename Kind>
    static Kind* Find(wxWindow& window) {
        for (auto* child : window.GetChildren()) {
            auto* found = dynamic_cast<Kind*>(child);
            if (found == nullptr) {
                found = Find<Kind>(*child);
            }
            if (found != nullptr) {
                return found;
            }
        }
        return nullptr;
    }
    void WaitForPage(const wxString& title) {
        WaitUntil("the help shows " + title.utf8_string(), [&] {
            auto* frame = Frame();
            auto* page = frame == nullptr ? nullptr : Find<wxHtmlWindow>(*frame);
            return page != nullptr && page->GetOpenedPageTitle() == title;
        });
    }
    /// The caption of the list that is in front.
    static std::string List() {
        return InWindow([] {
            auto& lists = *Find<wxNotebook>(*Frame());
            return lists.GetPageText(static_cast<std::size_t>(lists.GetSelection())).utf8_string();
        });
    }
    /// How many chapters the list of contents shows below the title of the book.
    static std::size_t ChaptersShown() {
        return InWindow([] {
            auto& contents = *Find<wxTreeCtrl>(*Frame());
            wxTreeItemIdValue cookie{};
            const auto book = contents.GetFirstChild(contents.GetRootItem(), cookie);
            return contents.IsExpanded(book) ? contents.GetChildrenCount(book, false) : 0;
        });
    }
    void CloseHelp() {
        InWindow([] { Frame()->Close(); });
        WaitUntil("the help is closed", [] { return Frame() == nullptr; });
    }
};

TEST_F(HelpWindow, OpensAtItsContentsByTheMenu) {
    PutHelp(Book());
    Play([&] {
        Press('H', wxMOD_ALT);
        Press('C');
        WaitForPage("ZY Setup Help");
        EXPECT_EQ(List(), "Contents");
        EXPECT_GT(ChaptersShown(), 5U);
        CloseHelp();
    });
}

TEST_F(HelpWindow, OpensAtItsContentsByF1AndByTheHelpButton) {
    PutHelp(Book());
    Play([&] {
        Press(WXK_F1);
        WaitForPage("ZY Setup Help");
        CloseHelp();
        WaitForWindow();
        Click(page().cmdHelpRules);
        WaitForPage("ZY Setup Help");
        EXPECT_EQ(List(), "Contents");
        CloseHelp();
    });
}

TEST_F(HelpWindow, OpensWhileAFieldIsWrongWhichIsAskedAboutAfterwards) {
    PutHelp(Book());
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
    PutHelp(Book());
    Play([&] {
        Press('H', wxMOD_ALT);
        Press('I');
        WaitUntil("the help is open", [] { return Frame() != nullptr; });
        EXPECT_EQ(List(), "Index");
        CloseHelp();
    });
}

TEST_F(HelpWindow, StaysOpenBesideTheEditorAndGoesWithIt) {
    PutHelp(Book());
    EXPECT_EQ(Play([&] {
                  Press(WXK_F1);
                  WaitForPage("ZY Setup Help");
                  InWindow([] { RealFrame().Raise(); });
                  WaitUntil("the editor has the keyboard", [] { return RealFrame().IsActive(); });
                  EXPECT_TRUE(IsEnabled(page().cmdAddList));
                  EXPECT_NE(InWindow([] { return Frame(); }), nullptr);
              }),
              0);
}

TEST_F(HelpWindow, TellsOfAMissingFile) {
    Play([&] {
        Press(WXK_F1);
        ExpectBox("Cannot show the help file C:\\PRODUCT\\zysetup.hlp: the file or folder does not exist",
                  "ZY Setup");
        PressInBox(WXK_RETURN);
        WaitForWindow();
    });
}

TEST_F(HelpWindow, TellsOfADamagedFileAndReadsAGoodOneLater) {
    const auto book = Book();
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
        WaitForPage("ZY Setup Help");
        CloseHelp();
    });
}

} // namespace
} // namespace zy::test
