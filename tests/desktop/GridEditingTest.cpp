#include <wx/frame.h>
#include <wx/grid.h>
#include <wx/textctrl.h>

#include "NativeLook.h"
#include "UnitsWindow.h"
#include "desktop/ShownText.h"
#include "shell/StatusTexts.h"

namespace zy::test {
namespace {

constexpr auto kRefused =
    "row 2, Unit Description: the character U+03A9 was not taken: the settings files cannot hold it";

class GridEditing : public UnitsWindow {
  protected:
    GridEditing() { PutUnits(ThreeUnits()); }
};

TEST_F(GridEditing, F2OpensTheEditorWithTheWholeTextSelected) {
    Play([&] {
        OpenEditor(2, 1);
        Type("x");
        WaitForEditor("x");
    });
}

TEST_F(GridEditing, ADoubleClickOpensTheEditor) {
    Play([&] {
        DoubleClickCell(2, 1);
        WaitForEditor("Metres");
    });
}

TEST_F(GridEditing, TypingOverACellStartsWithTheCharacterTyped) {
    Play([&] {
        ClickCell(2, 1);
        Type("abc");
        WaitForEditor("abc");
        Press(WXK_RETURN);
        WaitForCell(3, 1);
        WaitForNoEditor();
        EXPECT_EQ(Shown(2, 1), "abc");
    });
}

TEST_F(GridEditing, ASpaceIsTypedLikeAnyCharacter) {
    Play([&] {
        ClickCell(2, 0);
        Type(" x");
        WaitForEditor(" x");
    });
}

TEST_F(GridEditing, BackspaceOpensAnEmptyEditor) {
    Play([&] {
        ClickCell(2, 1);
        Press(WXK_BACK);
        WaitForEditor("");
    });
}

TEST_F(GridEditing, EscapeLeavesTheCellAsItWasAndTheKeyboardOnTheGrid) {
    Play([&] {
        OpenEditor(2, 1);
        Type("nothing");
        Press(WXK_ESCAPE);
        WaitForNoEditor();
        EXPECT_EQ(Shown(2, 1), "Metres");
        EXPECT_FALSE(program->form.ChangeFlag);
        Press(WXK_DOWN);
        WaitForCell(3, 1);
    });
}

TEST_F(GridEditing, ArrowsUpAndDownCommitAndMoveOn) {
    Play([&] {
        OpenEditor(2, 1);
        Type("Ells");
        Press(WXK_DOWN);
        WaitForCell(3, 1);
        EXPECT_EQ(Shown(2, 1), "Ells");
        Type("Days");
        Press(WXK_UP);
        WaitForCell(2, 1);
        EXPECT_EQ(Shown(3, 1), "Days");
    });
}

TEST_F(GridEditing, ArrowsLeftAndRightHomeAndEndMoveInTheText) {
    Play([&] {
        OpenEditor(2, 1);
        Press(WXK_HOME);
        Type("<");
        Press(WXK_RIGHT);
        Type("-");
        Press(WXK_END);
        Type(">");
        WaitForEditor("<M-etres>");
    });
}

TEST_F(GridEditing, DeleteInTheEditorDeletesACharacter) {
    Play([&] {
        OpenEditor(2, 1);
        Press(WXK_HOME);
        Press(WXK_DELETE);
        WaitForEditor("etres");
    });
}

TEST_F(GridEditing, DeleteOnACellEmptiesIt) {
    Play([&] {
        ClickCell(2, 1);
        Press(WXK_DELETE);
        WaitForText(2, 1, "");
        EXPECT_TRUE(program->form.ChangeFlag);
    });
}

TEST_F(GridEditing, AClickOnAnotherCellCommits) {
    Play([&] {
        OpenEditor(2, 1);
        Type("Ells");
        WaitForEditor("Ells");
        ClickCell(3, 0);
        WaitForNoEditor();
        EXPECT_EQ(Shown(2, 1), "Ells");
    });
}

TEST_F(GridEditing, AClickBesideTheCellsCommits) {
    Play([&] {
        OpenEditor(2, 1);
        Type("Ells");
        WaitForEditor("Ells");
        hands->Click(PlaceOf(grid()));
        WaitForNoEditor();
        EXPECT_EQ(Shown(2, 1), "Ells");
        EXPECT_EQ(grid().selection.Row(), 2);
    });
}

TEST_F(GridEditing, OpeningAMenuCommits) {
    Play([&] {
        OpenEditor(2, 1);
        Type("Ells");
        WaitForEditor("Ells");
        Press('F', wxMOD_ALT);
        WaitForText(2, 1, "Ells");
        EXPECT_FALSE(InWindow([&] { return grid().editor.IsOpen(); }));
        LeaveMenu();
    });
}

TEST_F(GridEditing, AnEditThatIsOpenStaysOpenWhileAnotherWindowIsActive) {
    Play([&] {
        OpenEditor(2, 1);
        Type("Ells");
        WaitForEditor("Ells");
        auto* other = InWindow([] {
            auto* window = new wxFrame(nullptr, wxID_ANY, "Another window");
            window->Show();
            window->Raise();
            return window;
        });
        WaitUntil("the other window is active", [&] { return other->IsActive(); });
        EXPECT_TRUE(InWindow([&] { return grid().editor.IsOpen(); }));
        InWindow([&] { other->Destroy(); });
        WaitUntil("the editor has the keyboard again", [&] { return RealFrame().IsActive(); });
        WaitForEditor("Ells");
        Type("!");
        WaitForEditor("Ells!");
    });
}

TEST_F(GridEditing, ACharacterThatTheCodePageLacksIsRefusedInTheEditor) {
    Play([&] {
        OpenEditor(2, 1);
        PutOnClipboard(wxString::FromUTF8("5 kΩ"));
        Press('V', wxMOD_CONTROL);
        WaitForStatus(kRefused);
        WaitForEditor("Metres");
        Type("x");
        WaitForEditor("x"); // the selection is what it was
    });
}

TEST_F(GridEditing, ACharacterThatTheCodePageLacksDoesNotOpenTheEditor) {
    Play([&] {
        ClickCell(2, 1);
        TypeForeign(0x03A9);
        WaitForStatus(kRefused);
        EXPECT_FALSE(InWindow([&] { return grid().editor.IsOpen(); }));
    });
}

TEST_F(GridEditing, LineEndsAndTabsPastedIntoTheEditorBecomeBlanks) {
    Play([&] {
        OpenEditor(2, 1);
        PutOnClipboard("one\ttwo\r\nthree\nfour");
        Press('V', wxMOD_CONTROL);
        WaitForEditor("one two three four");
        Press(WXK_RETURN);
        WaitForText(2, 1, "one two three four");
    });
}

TEST_F(GridEditing, CharactersOfTheCodePageAreTaken) {
    Play([&] {
        OpenEditor(2, 1);
        PutOnClipboard(wxString::FromUTF8("Ångström €"));
        Press('V', wxMOD_CONTROL);
        Press(WXK_RETURN);
        WaitForText(2, 1, "Ångström €");
        EXPECT_EQ(InWindow([&] { return std::string(grid().cells.Text(2, 1)); }), "\xC5ngstr\xF6m \x80");
    });
}

TEST_F(GridEditing, ArrowKeysMoveThroughAVeryLongTextAtOnce) {
    PutUnits({std::string(20000, 'z') + ",kg"});
    Play([&] {
        ClickCell(1, 1);
        Press(WXK_F2);
        WaitUntil("the editor is open", [&] { return RealEditor().HasFocus(); });
        Press(WXK_END);
        for (int press = 0; press < 10; ++press) {
            Press(WXK_LEFT);
        }
        WaitUntil("the caret has moved", [&] { return RealEditor().GetInsertionPoint() == 19990; });
    });
}

TEST_F(GridEditing, WhatDoesNotFitIntoACellIsRefused) {
    Play([&] {
        OpenEditor(2, 1);
        PutOnClipboard(wxString('z', 30000));
        Press('V', wxMOD_CONTROL);
        WaitForStatus(std::string(kFieldFull));
        WaitForEditor("Metres");
        Type("x");
        WaitForEditor("x"); // the selection is what it was
    });
}

TEST_F(GridEditing, TextBeyondWhatTheEditorCanShowIsKept) {
    const std::string beyond(70000, 'z');
    PutUnits({beyond + ",kg"});
    Play([&] {
        ClickCell(1, 1);
        Press(WXK_F2);
        WaitUntil("the editor is open", [&] { return RealEditor().HasFocus(); });
        Press(WXK_HOME);
        Press(WXK_DELETE);
        Press(WXK_RETURN);
        WaitForNoEditor();
        EXPECT_EQ(InWindow([&] { return grid().cells.Text(1, 1).size(); }), 69999U);
    });
}

TEST_F(GridEditing, TheEditorStandsOverItsCellAndScrollsWithIt) {
    PutUnits(ManyUnits(200));
    Play([&] {
        ClickCell(5, 1);
        Press(WXK_F2);
        WaitForEditor("Unit number 5");
        const auto cell = PlaceOfCell(5, 1);
        EXPECT_TRUE(InWindow([&] { return RealEditor().GetScreenRect().Contains(cell); }));
        InWindow([&] { RealGrid().Scroll(0, 2); });
        const auto moved = PlaceOfCell(5, 1);
        EXPECT_LT(moved.y, cell.y);
        WaitUntil("the editor is over its cell",
                  [&] { return RealEditor().GetScreenRect().Contains(moved); });
        EXPECT_TRUE(InWindow([&] { return grid().editor.IsOpen(); }));
    });
}

TEST_F(GridEditing, TypingBringsAnOpenCellThatWasScrolledAwayBackIntoView) {
    PutUnits(ManyUnits(200));
    Play([&] {
        OpenEditor(5, 1);
        InWindow([&] { RealGrid().Scroll(0, RealGrid().GetScrollRange(wxVERTICAL)); });
        ASSERT_FALSE(IsOnScreen(5));
        Type("x");
        WaitForEditor("x");
        EXPECT_TRUE(IsOnScreen(5));
    });
}

TEST_F(GridEditing, AClickIntoTheOpenCellKeepsItOpen) {
    Play([&] {
        OpenEditor(2, 1);
        hands->Click(PlaceOfCell(2, 1));
        Press(WXK_END);
        Type("!");
        WaitForEditor("Metres!");
    });
}

TEST_F(GridEditing, AClickThatTakesTheKeyboardNowhereCommitsToo) {
    Play([&] {
        OpenEditor(2, 1);
        Type("Ells");
        WaitForEditor("Ells");
        hands->Click(PlaceOfHeader());
        WaitForNoEditor();
        EXPECT_EQ(Shown(2, 1), "Ells");
    });
}

} // namespace
} // namespace zy::test
