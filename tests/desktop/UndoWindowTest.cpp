#include <wx/dataview.h>
#include <wx/frame.h>
#include <wx/grid.h>
#include <wx/menu.h>
#include <wx/textctrl.h>

#include "RulesWindow.h"
#include "UnitsWindow.h"
#include "UsersWindow.h"

namespace zy::test {
namespace {

/// The entries of the Edit menu in a real window. For the window's thread.
std::vector<std::string> EditEntries(const wxFrame& frame) {
    std::vector<std::string> entries;
    for (const auto* item : frame.GetMenuBar()->GetMenu(1)->GetMenuItems()) {
        if (!item->IsSeparator()) {
            const auto text = item->GetItemLabelText().utf8_string();
            entries.push_back(item->IsEnabled() ? text : "(" + text + ")");
        }
    }
    return entries;
}

/// An editor and its Edit menu.
template <typename Window>
class WithEditMenu : public Window {
  protected:
    /// Waits until the entries are these; those that cannot be chosen stand in brackets.
    /// Above those that open a box.
    void ExpectEntries(const std::vector<std::string>& entries) {
        WaitUntil("the menu has the entries " + ::testing::PrintToString(entries), [&] {
            auto all = EditEntries(Window::RealFrame());
            all.resize(std::min(all.size(), entries.size()));
            return all == entries;
        });
    }
    void OpenEditMenu() {
        this->Press('E', wxMOD_ALT);
        this->WaitForMenu();
    }
    void ChooseFromEditMenu(int key) {
        OpenEditMenu();
        this->Press(key);
        this->WaitForNoMenu();
    }
};

class UndoInUnits : public WithEditMenu<UnitsWindow> {
  protected:
    UndoInUnits() { PutUnits(ThreeUnits()); }
};

TEST_F(UndoInUnits, ControlZTakesAnEditBackAndControlYAndControlShiftZDoItAgain) {
    Play([&] {
        Fill(2, 1, "Ells");
        Press('Z', wxMOD_CONTROL);
        WaitForText(2, 1, "Metres");
        WaitForCell(2, 1);
        WaitForFocus(grid());
        EXPECT_FALSE(IsEnabled(page().cmdSaveUnits));
        Press('Y', wxMOD_CONTROL);
        WaitForText(2, 1, "Ells");
        Press('Z', wxMOD_CONTROL);
        WaitForText(2, 1, "Metres");
        Press('Z', wxMOD_CONTROL | wxMOD_SHIFT);
        WaitForText(2, 1, "Ells");
        EXPECT_TRUE(IsEnabled(page().cmdSaveUnits));
        EXPECT_EQ(Status(), "3 units   -   Redone: Edit Unit Description");
    });
}

TEST_F(UndoInUnits, TheMenuNamesTheSteps) {
    Play([&] {
        ExpectEntries({"(Undo)", "(Redo)", "Cut", "Copy", "Paste", "Select All"});
        ClickCell(3, 0);
        Click(page().cmdDeleteUnit);
        ExpectBox("Are you sure you wish to delete this Unit of Measure?", "Confirm Delete");
        PressInBox(WXK_RETURN);
        WaitUntil("the unit is gone", [&] { return grid().cells.Rows() == 3; });
        ExpectEntries({"Undo Delete Unit s", "(Redo)", "Cut", "Copy", "Paste", "Select All"});
        ChooseFromEditMenu('U');
        WaitForText(3, 0, "s");
        ExpectEntries({"(Undo)", "Redo Delete Unit s", "Cut", "Copy", "Paste", "Select All"});
        ChooseFromEditMenu('R');
        WaitUntil("the unit is gone again", [&] { return grid().cells.Rows() == 3; });
    });
}

TEST_F(UndoInUnits, ControlZInAnOpenCellLeavesTheTextThatWasThere) {
    PutUnits(ThreeUnits());
    Play([&] {
        OpenEditor(2, 1);
        Type("Ells");
        WaitForEditor("Ells");
        Press('Z', wxMOD_CONTROL);
        Press('S', wxMOD_CONTROL);
        Press(WXK_F2);
        WaitForEditor("Metres");
        EXPECT_FALSE(program->form.ChangeFlag);
    });
}

#ifndef _WIN32
// There a key of the menu bar goes by way of the menu, which closes the cell: what was typed is a step then.
TEST_F(UndoInUnits, ControlZInAnOpenCellTakesTheTypingBackFirst) {
    Play([&] {
        Fill(1, 0, "g");
        OpenEditor(2, 1);
        Type("Ells");
        WaitForEditor("Ells");
        Press('Z', wxMOD_CONTROL);
        WaitForEditor("Metres");
        Press('Y', wxMOD_CONTROL);
        WaitForEditor("Ells");
        Press('Z', wxMOD_CONTROL);
        WaitForEditor("Metres");
        Press('Z', wxMOD_CONTROL);
        WaitForNoEditor();
        WaitForText(1, 0, "kg");
        WaitForCell(1, 0);
    });
}
#endif

TEST_F(UndoInUnits, TheCellThatComesBackIsScrolledIntoSight) {
    PutUnits(ManyUnits(500));
    Play([&] {
        ClickCell(1, 1);
        Type("x");
        Press(WXK_DOWN);
        WaitForCell(2, 1);
        Press(WXK_UP);
        WaitForCell(1, 1);
        InWindow([&] { RealGrid().MakeCellVisible(400, 0); });
        WaitUntil("the cell is out of sight", [&] { return !RealGrid().IsVisible(0, 0, true); });
        Press('Z', wxMOD_CONTROL);
        WaitForText(1, 1, "Unit number 1");
        WaitUntil("the cell is in sight", [&] { return RealGrid().IsVisible(0, 0, true); });
    });
}

TEST_F(UndoInUnits, TheMenuCopiesAndPastesCells) {
    Play([&] {
        ClickCell(1, 1);
        ChooseFromEditMenu('C');
        EXPECT_EQ(OnClipboard(), "Kilograms\r\n");
        ClickCell(2, 1);
        ChooseFromEditMenu('P');
        WaitForText(2, 1, "Kilograms");
        ChooseFromEditMenu('T');
        WaitForText(2, 1, "");
        ChooseFromEditMenu('A');
        WaitUntil("all is selected", [&] { return grid().selection.BlockEnd() == Cell{3, 1}; });
    });
}

TEST_F(UndoInUnits, TheMenuIsGreyWhereThereIsNothingToWorkOn) {
    Play([&] {
        PutOnClipboard("x");
        OpenEditMenu();
        ExpectEntries({"(Undo)", "(Redo)", "(Cut)", "(Copy)", "Paste", "Select All"});
        LeaveMenu();
        Click(page().cmdAddUNit);
        WaitForEditor("");
        Press(WXK_ESCAPE);
        Press(WXK_TAB, wxMOD_SHIFT);
        WaitForCell(3, 1);
        OpenEditMenu();
        ExpectEntries({"Undo Add Unit", "(Redo)", "Cut", "Copy", "Paste", "Select All"});
        LeaveMenu();
    });
}

class UndoInUsers : public UsersWindow {};

TEST_F(UndoInUsers, ControlZBringsTheOldPasswordBack) {
    PutUsers(TwoUsers());
    Play([&] {
        Fill(2, kPassword, "open");
        EXPECT_TRUE(IsEnabled(page().cmdSaveUsers));
        Press('Z', wxMOD_CONTROL);
        WaitForText(2, kPassword, "secret");
        WaitForCell(2, kPassword);
        EXPECT_FALSE(IsEnabled(page().cmdSaveUsers));
        EXPECT_EQ(Status(), "2 users   -   Undone: Edit Password");
        Press('Y', wxMOD_CONTROL);
        WaitForText(2, kPassword, "open");
    });
}

class UndoInRules : public WithEditMenu<RulesWindow> {
  protected:
    UndoInRules() { PutRules(ThreeRules()); }

    void WaitForTextIn(const TextBox& box, const std::string& text) {
        WaitUntil("the box shows " + text, [&] {
            return box.Text() == text && dynamic_cast<wxTextCtrl&>(Real(box)).GetValue() == text;
        });
    }
};

TEST_F(UndoInRules, ControlZTakesTypingBackInItsField) {
    Play([&] {
        const auto before = TextIn(page().txtDescription);
        Fill(page().txtDescription, "other text");
        Click(page().txtMax);
        WaitForFocus(page().txtMax);
        Press('Z', wxMOD_CONTROL);
        WaitForTextIn(page().txtDescription, before);
        WaitForFocus(page().txtDescription);
        Press('Y', wxMOD_CONTROL);
        WaitForTextIn(page().txtDescription, "other text");
    });
}

TEST_F(UndoInRules, TextThatWasDroppedComesBackWithItsRule) {
    Play([&] {
        Fill(page().txtDescription, "not stored");
        ClickRow(3);
        WaitForSelection(3);
        EXPECT_NE(Status().find("dropped; Edit > Undo brings them back"), std::string::npos);
        Press('Z', wxMOD_CONTROL);
        WaitForSelection(1);
        WaitForTextIn(page().txtDescription, "not stored");
        WaitForFocus(page().txtDescription);
    });
}

TEST_F(UndoInRules, TheRuleThatComesBackIsScrolledIntoSight) {
    PutRules(ManyRules(200));
    Play([&] {
        Press(WXK_DELETE);
        ExpectBox("Are you Sure you want to Delete this Rule", "Confirm Delete");
        PressInBox(WXK_RETURN);
        WaitUntil("the rule is gone", [&] { return page().lstRulesList.Count() == 199; });
        WaitUntil("the first rule is out of sight", [&] {
            // At first the list still goes to the rule that is selected now.
            RealList().EnsureVisible(wxDataViewItem(wxUIntToPtr(150U)));
            return RealList().GetTopItem() != wxDataViewItem(wxUIntToPtr(1U));
        });
        Press('Z', wxMOD_CONTROL);
        WaitUntil("the rule is back", [&] { return page().lstRulesList.Count() == 200; });
        WaitForSelection(1);
        PlaceAtRest(1);
        EXPECT_TRUE(IsRowVisible(1));
    });
}

TEST_F(UndoInRules, TheMenuWorksOnTheTextOfAField) {
    Play([&] {
        Fill(page().txtDescription, "some text");
        ChooseFromEditMenu('A');
        ChooseFromEditMenu('C');
        EXPECT_EQ(OnClipboard(), "some text");
        ChooseFromEditMenu('T');
        WaitForTextIn(page().txtDescription, "");
        ChooseFromEditMenu('P');
        WaitForTextIn(page().txtDescription, "some text");
    });
}

TEST_F(UndoInRules, TheKeysOfTheMenuAreAFieldsOwn) {
    Play([&] {
        Fill(page().txtDescription, "some text");
        Press('A', wxMOD_CONTROL);
        Press('X', wxMOD_CONTROL);
        WaitForTextIn(page().txtDescription, "");
        Press('V', wxMOD_CONTROL);
        WaitForTextIn(page().txtDescription, "some text");
        Press('V', wxMOD_CONTROL);
        WaitForTextIn(page().txtDescription, "some textsome text");
    });
}

TEST_F(UndoInRules, TheMenuCopiesTheRuleThatIsSelected) {
    Play([&] {
        WaitForFocus(page().lstRulesList);
        OpenEditMenu();
        ExpectEntries({"(Undo)", "(Redo)", "(Cut)", "Copy", "(Paste)", "(Select All)"});
        Press('C');
        WaitForNoMenu();
        EXPECT_EQ(OnClipboard(), InWindow([&] { return page().lstRulesList.Copy(); }));
    });
}

} // namespace
} // namespace zy::test
