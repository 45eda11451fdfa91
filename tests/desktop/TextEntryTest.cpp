#include <wx/textctrl.h>

#include "NativeLook.h"
#include "RulesWindow.h"
#include "desktop/ShownText.h"
#include "shell/StatusTexts.h"

namespace zy::test {
namespace {

constexpr auto kRefused =
    "Description: the character U+03A9 was not taken: the settings files cannot hold it";

class TextEntryWindow : public RulesWindow {
  protected:
    TextEntryWindow() { PutRules(ThreeRules()); }

    wxTextCtrl& RealBox(const TextBox& box) { return dynamic_cast<wxTextCtrl&>(Real(box)); }
    std::pair<long, long> SelectionIn(const TextBox& box) {
        return InWindow([&] {
            std::pair<long, long> selection;
            RealBox(box).GetSelection(&selection.first, &selection.second);
            return selection;
        });
    }
    void SelectIn(const TextBox& box, long from, long to) {
        InWindow([&] { RealBox(box).SetSelection(from, to); });
    }
    std::string Description() {
        return InWindow([&] { return page().txtDescription.Text(); });
    }
    void WaitForDescription(const std::string& text) {
        WaitUntil("the description is \"" + text + "\"",
                  [&] { return page().txtDescription.Text() == text; });
    }
    void EnterDescription() {
        Enter(page().txtDescription);
        Press(WXK_END);
    }
};

TEST_F(TextEntryWindow, WhatIsTypedReachesTheFormCharacterByCharacter) {
    Play([&] {
        EnterDescription();
        Type("x");
        WaitForDescription("First rule  x");
        Press(WXK_BACK);
        Press(WXK_BACK);
        Press(WXK_BACK);
        WaitForDescription("First rule");
        EXPECT_EQ(TextIn(page().txtDescription), "First rule");
        EXPECT_EQ(SelectionIn(page().txtDescription), std::pair(10L, 10L));
    });
}

TEST_F(TextEntryWindow, ACharacterOfTheCodePageBeyondAsciiIsTaken) {
    Play([&] {
        Fill(page().txtDescription, "");
        Paste(wxString::FromUTF8("20 € für Žofie"));
        WaitForDescription("20 \x80 f\xFCr \x8Eofie");
        Press('S', wxMOD_CONTROL);
        WaitForStatus("Saved");
        EXPECT_EQ(Row(1).back(), "20 € für Žofie");
    });
    EXPECT_NE(File()->find("DESC1        = 20 \x80 f\xFCr \x8Eofie\r\n"), std::string::npos);
}

TEST_F(TextEntryWindow, APastedCharacterThatTheCodePageLacksIsRefused) {
    Play([&] {
        EnterDescription();
        Press(WXK_LEFT);
        Paste(wxString::FromUTF8("5 kΩ"));
        WaitForStatus(kRefused);
        EXPECT_EQ(TextIn(page().txtDescription), "First rule  ");
        EXPECT_EQ(Description(), "First rule  ");
        EXPECT_EQ(SelectionIn(page().txtDescription), std::pair(11L, 11L));
        Type("x"); // goes where the caret was
        WaitForDescription("First rule x ");
    });
}

TEST_F(TextEntryWindow, ARefusedCharacterLeavesTheSelectionThatItWouldHaveReplaced) {
    Play([&] {
        Enter(page().txtDescription);
        SelectIn(page().txtDescription, 0, 5);
        Paste(wxString::FromUTF8("Ω"));
        WaitForStatus(kRefused);
        EXPECT_EQ(TextIn(page().txtDescription), "First rule  ");
        EXPECT_EQ(SelectionIn(page().txtDescription), std::pair(0L, 5L));
        Type("A");
        WaitForDescription("A rule  ");
    });
}

TEST_F(TextEntryWindow, ATypedCharacterThatTheCodePageLacksIsRefused) {
    Play([&] {
        EnterDescription();
        InWindow([] { TypeComposed(0x03A9); });
        WaitForStatus(kRefused);
        EXPECT_EQ(TextIn(page().txtDescription), "First rule  ");
        EXPECT_EQ(SelectionIn(page().txtDescription), std::pair(12L, 12L));
    });
}

TEST_F(TextEntryWindow, PastedLineEndsAndTabsBecomeBlanks) {
    Play([&] {
        Enter(page().txtDescription);
        SelectIn(page().txtDescription, 0, 12);
        Paste("one\r\ntwo\nthree\tfour");
        WaitForDescription("one two three four");
        EXPECT_EQ(TextIn(page().txtDescription), "one two three four");
        EXPECT_EQ(SelectionIn(page().txtDescription), std::pair(18L, 18L));
    });
}

TEST_F(TextEntryWindow, ATabThatTheFileHoldsStaysWhereItIs) {
    PutRules({"R1|1|2|>|UCL|left\tright"});
    Play([&] {
        EnterDescription();
        Type("!");
        WaitForDescription("left\tright  !");
    });
}

TEST_F(TextEntryWindow, ANulIsShownAsItsSymbolAndKept) {
    PutRules({std::string("R1|1|2|>|UCL|left") + '\0' + "right"});
    Play([&] {
        EXPECT_EQ(TextIn(page().txtDescription), "left\u2400right  ");
        EXPECT_EQ(Row(1).back(), "left\u2400right  ");
        EnterDescription();
        Type("!");
        WaitForDescription(std::string("left") + '\0' + "right  !");
        Press('S', wxMOD_CONTROL);
        WaitForStatus("Saved");
    });
    EXPECT_NE(File()->find(std::string("left") + '\0' + "right  !\r\n"), std::string::npos);
}

TEST_F(TextEntryWindow, ATextBeyondTheBoxIsNotCut) {
    const std::string longText(70000, 'z');
    PutRules({"R1|1|2|>|UCL|" + longText});
    Play([&] {
        EXPECT_EQ(InWindow([&] { return RealBox(page().txtDescription).GetValue().length(); }), kMostShown);
        Enter(page().txtDescription);
        Press(WXK_HOME);
        Press(WXK_DELETE);
        WaitForDescription(longText.substr(1) + "  ");
        Type("A");
        WaitForDescription("A" + longText.substr(1) + "  ");
        EXPECT_EQ(SelectionIn(page().txtDescription), std::pair(1L, 1L));
    });
}

TEST_F(TextEntryWindow, ArrowKeysMoveThroughAVeryLongTextAtOnce) {
    const long length = 20000;
    PutRules({"R1|1|2|>|UCL|" + std::string(length, 'z')});
    Play([&] {
        EnterDescription();
        const long end = length + 2; // the two blanks that a rule's description ends with
        WaitUntil("the caret is at the end",
                  [&] { return RealBox(page().txtDescription).GetInsertionPoint() == end; });
        for (int press = 0; press < 10; ++press) {
            Press(WXK_LEFT);
        }
        Press(WXK_LEFT, wxMOD_SHIFT);
        WaitUntil("the caret has moved",
                  [&] { return RealBox(page().txtDescription).GetStringSelection().length() == 1; });
        EXPECT_EQ(SelectionIn(page().txtDescription), std::pair(end - 11, end - 10));
    });
}

TEST_F(TextEntryWindow, WhatDoesNotFitIntoAFieldIsRefused) {
    Play([&] {
        Enter(page().txtDescription);
        SelectIn(page().txtDescription, 0, 5);
        Paste(wxString('z', 30000));
        WaitForStatus(std::string(kFieldFull));
        EXPECT_EQ(Description(), "First rule  ");
        EXPECT_EQ(SelectionIn(page().txtDescription), std::pair(0L, 5L));
        Paste(wxString('z', kMostShown - 7));
        WaitUntil("as much as fits is taken", [&] {
            return page().txtDescription.Text() == std::string(kMostShown - 7, 'z') + " rule  ";
        });
    });
}

} // namespace
} // namespace zy::test
