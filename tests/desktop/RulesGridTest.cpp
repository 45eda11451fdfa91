#include <wx/app.h>
#include <wx/dataview.h>
#include <wx/frame.h>
#include <wx/grid.h>

#include <cstdlib>
#include <memory>

#include "NativeLook.h"
#include "RulesWindow.h"

namespace zy::test {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;

/// The rules grid in the real window, where only a test brings it.
class RulesGrid : public RulesWindow {
  protected:
    RulesGrid() { PutRules(ThreeRules()); }

    /// Does to the program what no control of it does, without waiting for the end.
    void Have(const std::function<void()>& action) {
        wxTheApp->CallAfter([this, action] { desktop.Gate().Act(action); });
    }
    /// What was moved in the program comes to its place on the screen with the next picture.
    void ShowGrid() {
        const auto isPainted = std::make_shared<bool>(false);
        Have([this, isPainted] {
            program->rulesPage.ShowGridMode();
            RealGrid().GetGridWindow()->Bind(wxEVT_PAINT, [isPainted](wxPaintEvent& event) {
                event.Skip();
                *isPainted = true;
            });
        });
        WaitUntil("the grid is painted", [&] { return *isPainted; });
    }
    /// Stores the grid and goes back to the list, unless a check keeps the grid.
    void LeaveGrid() {
        Have([this] {
            if (program->rulesPage.StoreBeforeTabSwitch()) {
                program->rulesPage.ShowListMode();
                program->rulesPage.listMode.LoadRulesListMode();
            }
        });
    }
    void ShowList() {
        LeaveGrid();
        WaitUntil("the list is shown", [&] { return RealList().IsShownOnScreen(); });
    }
    /// The toolkit itself takes the inside of a box for the whole box.
    static wxRect WholePlace(const wxWindow& window) {
        return {window.GetParent()->ClientToScreen(window.GetPosition()), window.GetSize()};
    }
    std::vector<std::string> ShownRow(int row) {
        std::vector<std::string> cells;
        for (int column = 0; column < 6; ++column) {
            cells.push_back(Shown(row, column));
        }
        return cells;
    }
    std::vector<std::string> ShownHeaders() {
        return InWindow([&] {
            std::vector<std::string> headers;
            for (int column = 0; column < RealGrid().GetNumberCols(); ++column) {
                headers.push_back(RealGrid().GetColLabelValue(column).utf8_string());
            }
            return headers;
        });
    }
    int Width(int column) {
        return InWindow([&] { return RealGrid().GetColSize(column); });
    }
};

TEST_F(RulesGrid, WritesItsHeaderInTheColourOfTheListsHeader) {
    Play([&] {
        const wxColour colour = InWindow([&] { return HeaderColourOf(RealList()); });
        ShowGrid();
        EXPECT_EQ(InWindow([&] { return RealGrid().GetLabelTextColour(); }), colour);
    });
}

TEST_F(RulesGrid, ShowsSixColumnsAndARowForEveryRule) {
    Play([&] {
        ShowGrid();
        EXPECT_THAT(ShownHeaders(), ElementsAre("Code", "Min", "Max", "Cond.", "Zone", "Description"));
        EXPECT_EQ(InWindow([&] { return RealGrid().GetNumberRows(); }), 3);
        EXPECT_THAT(ShownRow(1), ElementsAre("R1", "1", "2", ">", "UCL", "First rule  "));
        EXPECT_THAT(ShownRow(3), ElementsAre("R3", "5", "6", "=", "-3S", "Third rule  "));
        EXPECT_FALSE(InWindow([&] { return RealList().IsShownOnScreen(); }));
    });
}

TEST_F(RulesGrid, IsNotEvenMadeBeforeItIsShown) {
    Play([&] {
        EXPECT_EQ(InWindow([] { return wxWindow::FindWindowByName("grdRules"); }), nullptr);
        EXPECT_FALSE(InWindow([] { return wxWindow::FindWindowByName("fraGridMode")->IsShown(); }));
    });
}

TEST_F(RulesGrid, FillsThePageBelowItsCaptionAndGivesTheDescriptionTheAdditionalWidth) {
    Play([&] {
        ShowGrid();
        const auto frame = InWindow([&] { return WholePlace(*wxWindow::FindWindowByName("fraGridMode")); });
        const auto place = InWindow([&] { return WholePlace(Real(grid())); });
        EXPECT_GE(place.y - frame.y, InWindow([&] { return RealGrid().GetCharHeight(); }));
        constexpr int kBesideGrid = 60;
        for (const int gap : {place.x - frame.x, frame.GetRight() - place.GetRight(),
                              frame.GetBottom() - place.GetBottom()}) {
            EXPECT_GT(gap, 0);
            EXPECT_LT(gap, kBesideGrid);
        }
        Resize({586, 560});
        const int code = Width(kCodeColumn);
        const int description = Width(kDescriptionColumn);
        Resize({1200, 900});
        EXPECT_EQ(Width(kCodeColumn), code);
        EXPECT_GT(Width(kDescriptionColumn), description + 500);
    });
}

TEST_F(RulesGrid, TakesWhatIsTypedAndListModeShowsIt) {
    Play([&] {
        ShowGrid();
        Fill(2, kCodeColumn, "XY");
        Fill(2, kDescriptionColumn, "Another text");
        ShowList();
        EXPECT_THAT(Row(2), ElementsAre("XY", "3", "4", "<=", "LWL", "Another text"));
        EXPECT_EQ(TextIn(page().txtCode), "R1");
    });
}

TEST_F(RulesGrid, FitsItsColumnsWhenAnEditHasEnded) {
    Play([&] {
        ShowGrid();
        const int before = Width(kCodeColumn);
        Fill(1, kCodeColumn, "a code that is far too wide");
        WaitUntil("the column is wider", [&] { return RealGrid().GetColSize(kCodeColumn) > before; });
    });
}

TEST_F(RulesGrid, TakesAZoneFromTheDropDownListAndListModeFindsIt) {
    Play([&] {
        ShowGrid();
        OpenEditor(1, kZoneColumn);
        ClickCellButton();
        for (int item = 0; item <= 3; ++item) {
            Press(WXK_DOWN);
        }
        Press(WXK_RETURN);
        WaitForText(1, kZoneColumn, "TARG ");
        ShowList();
        EXPECT_EQ(ItemIn(page().cboZone), "TARG - Target for Variable (Green)");
    });
}

TEST_F(RulesGrid, TakesTheEmptyConditionFromTheDropDownList) {
    Play([&] {
        ShowGrid();
        OpenEditor(2, kCondColumn);
        ClickCellButton();
        Press(WXK_UP);
        Press(WXK_RETURN);
        WaitForText(2, kCondColumn, "");
        ShowList();
        EXPECT_THAT(Row(2), ElementsAre("R2", "3", "4", "", "LWL", "Second rule  "));
    });
}

TEST_F(RulesGrid, AddsARuleByItsContextMenu) {
    Play([&] {
        ShowGrid();
        ClickCell(1, kCodeColumn);
        OpenMenuAt(PlaceOfCell(2, kMinColumn));
        ChooseFromMenu(WXK_DOWN);
        WaitForText(4, kCodeColumn, "NEW");
        WaitForCell(4, kCodeColumn);
        WaitForStatus("4 rules");
        ShowList();
        EXPECT_THAT(Row(4), ElementsAre("NEW", "1", "2", "=", "USL", "New"));
    });
}

TEST_F(RulesGrid, DeletesTheCurrentRowsRuleByItsContextMenuAtOnce) {
    Play([&] {
        ShowGrid();
        ClickCell(2, kZoneColumn);
        OpenMenuAt(PlaceOfCell(1, kMinColumn));
        WaitForCell(2, kCodeColumn); // the whole current row, wherever the mouse is
        WaitUntil("the row is selected",
                  [&] { return RealGrid().IsInSelection(1, 0) && RealGrid().IsInSelection(1, 5); });
        ChooseFromMenu(WXK_UP);
        WaitForText(2, kCodeColumn, "R3");
        EXPECT_EQ(InWindow([&] { return RealGrid().GetNumberRows(); }), 2);
        ShowList();
        EXPECT_THAT(Row(1), Contains("R1"));
        EXPECT_THAT(Row(2), Contains("R3"));
    });
    EXPECT_TRUE(boxes.Seen().empty());
}

TEST_F(RulesGrid, WithoutRulesItsContextMenuCanOnlyAdd) {
    PutRules({});
    Play([&] {
        ShowGrid();
        OpenMenuAt(PlaceOfHeader());
        EXPECT_FALSE(InWindow([&] { return program->window.menu.mnuDeleteRule.Enabled(); }));
        ChooseAboveDisabledEntry();
        WaitForText(1, kCodeColumn, "NEW");
        WaitForCell(1, kCodeColumn);
    });
}

TEST_F(RulesGrid, HasTheKeyboardOnItsFirstCellAsSoonAsTheListIsGone) {
    Play([&] {
        ShowGrid();
        WaitForFocus(grid());
        WaitForCell(1, kCodeColumn);
        Type("X");
        WaitForEditor("X");
        Press(WXK_RETURN);
        WaitForText(1, kCodeColumn, "X");
    });
}

TEST_F(RulesGrid, StaysWithTheCellThatFailsOpenUntilItIsMended) {
    Play([&] {
        ShowGrid();
        Fill(3, kMinColumn, "7");
        LeaveGrid();
        ExpectBox("Min Value must be less than Max Value", "Invalid Rule Max or Min Value");
        PressInBox(WXK_RETURN);
        WaitForEditor("6");
        WaitForCell(3, kMaxColumn);
        Type("8");
        WaitForEditor("8");
        ShowList();
        EXPECT_THAT(Row(3), ElementsAre("R3", "7", "8", "=", "-3S", "Third rule  "));
    });
}

TEST_F(RulesGrid, IsSavedFromTheMenuOnceItIsStored) {
    Play([&] {
        ShowGrid();
        Fill(1, kDescriptionColumn, "Stored");
        ShowList();
        ChooseSave();
        WaitForStatus("Saved");
    });
    EXPECT_THAT(File().value_or(""), ::testing::HasSubstr("DESC1        = Stored\r\n"));
}

TEST_F(RulesGrid, HoldsAFullListOfRules) {
    PutRules(ManyRules(32767));
    Play([&] {
        ShowGrid();
        ClickCell(1, kCodeColumn);
        EXPECT_EQ(InWindow([&] { return RealGrid().GetNumberRows(); }), 32767);
        EXPECT_EQ(Shown(32767, kDescriptionColumn), "Rule number 32767  ");
        Fill(1, kDescriptionColumn, "The first one");
    });
}

TEST_F(RulesGrid, TheContextMenuOpensBesideTheRowsToo) {
    Play([&] {
        ShowGrid();
        WaitForCell(1, kCodeColumn);
        OpenMenuAt(PlaceOf(grid()));
        ChooseFromMenu(WXK_DOWN);
        WaitForText(4, 0, "NEW");
    });
}

TEST_F(RulesGrid, TheContextMenuOpensByItsKeyToo) {
    Play([&] {
        ShowGrid();
        WaitForCell(1, kCodeColumn);
        Press(WXK_F10, wxMOD_SHIFT);
        WaitForMenu();
        ChooseFromMenu(WXK_UP);
        WaitUntil("the rule is gone", [&] { return grid().cells.Rows() == 3; });
    });
}

} // namespace
} // namespace zy::test
