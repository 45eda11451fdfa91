#include <wx/bitmap.h>
#include <wx/dcmemory.h>
#include <wx/grid.h>
#include <wx/image.h>
#include <wx/uiaction.h>

#include "UnitsWindow.h"

namespace zy::test {
namespace {

using ::testing::ElementsAre;

class GridSelection : public UnitsWindow {
  protected:
    /// The block that is drawn as selected: its first row and column, its last row and column. Empty without
    /// one.
    std::vector<int> ShownBlock() {
        return InWindow([&] {
            std::vector<int> edges;
            for (const auto& block : RealGrid().GetSelectedBlocks()) {
                edges.insert(edges.end(), {block.GetTopRow() + 1, block.GetLeftCol(),
                                           block.GetBottomRow() + 1, block.GetRightCol()});
            }
            return edges;
        });
    }
    /// A cell as it is drawn, without its text.
    wxImage Picture(int row, int column) {
        return InWindow([&] {
            constexpr int kWidth = 100;
            constexpr int kHeight = 20;
            grid().cells.SetText(row, column, "");
            wxBitmap picture;
            picture.Create(kWidth, kHeight);
            wxMemoryDC canvas(picture);
            const wxGridCellCoords cell(row - 1, column);
            RealGrid().Render(canvas, {0, 0}, {kWidth, kHeight}, cell, cell, wxGRID_DRAW_SELECTION);
            canvas.SelectObject(wxNullBitmap);
            return picture.ConvertToImage();
        });
    }
    static std::string Points(const wxImage& picture) {
        const auto count =
            static_cast<std::size_t>(picture.GetWidth()) * static_cast<std::size_t>(picture.GetHeight());
        return {picture.GetData(), picture.GetData() + 3 * count};
    }
    static std::vector<int> ColourInside(const wxImage& picture) {
        const int x = picture.GetWidth() / 2;
        const int y = picture.GetHeight() / 2;
        return {picture.GetRed(x, y), picture.GetGreen(x, y), picture.GetBlue(x, y)};
    }
    /// Lets the grid's cells hear of the mouse with its left button, without moving the real one.
    void SendMouse(wxEventType type, const Cell& cell) {
        const wxPoint place = PlaceOfCell(cell.row, cell.column);
        InWindow([&] {
            auto* cells = RealGrid().GetGridWindow();
            wxMouseEvent event(type);
            event.SetEventObject(cells);
            event.SetPosition(cells->ScreenToClient(place));
            event.SetLeftDown(type != wxEVT_LEFT_UP);
            cells->ProcessWindowEvent(event);
        });
    }
    void WaitForBlockEnd(int row, int column) {
        WaitUntil("the block reaches to " + std::to_string(row) + "," + std::to_string(column), [&] {
            return grid().selection.BlockEnd() == Cell{row, column};
        });
    }
};

TEST_F(GridSelection, NoCellIsCurrentAtFirst) {
    PutUnits(ThreeUnits());
    Play([&] {
        EXPECT_EQ(InWindow([&] { return grid().selection.Row(); }), -1);
        EXPECT_EQ(InWindow([&] { return RealGrid().GetCellHighlightPenWidth(); }), 0);
        EXPECT_FALSE(InWindow([&] { return page().cmdDeleteUnit.Enabled(); }));
    });
}

TEST_F(GridSelection, WhoeverComesToTheGridByTabStandsOnTheFirstCell) {
    PutUnits(ThreeUnits());
    Play([&] {
        WaitForFocus(grid());
        Press(WXK_TAB, wxMOD_SHIFT);
        WaitForFocus(page().UpDownUnits);
        Press(WXK_TAB);
        WaitForFocus(grid());
        WaitForCell(1, 0);
        EXPECT_GT(InWindow([&] { return RealGrid().GetCellHighlightPenWidth(); }), 0);
        Press(WXK_DOWN);
        Press(WXK_RIGHT);
        WaitForCell(2, 1);
    });
}

TEST_F(GridSelection, ADragFromTheLineBetweenTwoCellsSelectsThemAndLeavesTheWidths) {
    PutUnits(ThreeUnits());
    Play([&] {
        const auto width = [&] { return InWindow([&] { return RealGrid().GetColSize(0); }); };
        const int before = width();
        const auto line = InWindow([&] {
            const wxRect cell = RealGrid().CellToRect(1, 1);
            return RealGrid().GetGridWindow()->ClientToScreen(wxPoint(cell.x, cell.y + cell.height / 2));
        });
        DragOver(line, PlaceOfCell(3, 0));
        WaitForBlockEnd(3, 0);
        EXPECT_THAT(ShownBlock(), ElementsAre(2, 0, 3, 1));
        EXPECT_EQ(width(), before);
    });
}

TEST_F(GridSelection, ADragAlongTheHeadersLeavesTheNextClickToTheWindow) {
    PutUnits(ThreeUnits());
    Play([&] {
        const wxPoint header = PlaceOfHeader();
        const int far = PlaceOfCell(1, 1).x - PlaceOfCell(1, 0).x;
        DragOver(header, header + wxPoint(far, 0));
        hands->PointAt(PlaceOfCell(3, 1));
        hands->PointAt(PlaceOfCell(2, 1));
        EXPECT_FALSE(InWindow([&] { return RealGrid().GetGridWindow()->HasCapture(); }));
        Click(page().cmdAddUNit);
        WaitForCell(4, 0);
    });
}

TEST_F(GridSelection, ABlockWithRowsThatGoIsNothingTheToolkitComplainsOf) {
    static int complaints = 0;
    PutUnits(ThreeUnits());
    Play([&] {
        InWindow([] {
            wxSetAssertHandler([](const wxString&, int, const wxString&, const wxString&, const wxString&) {
                ++complaints;
            });
        });
        Press('A', wxMOD_ALT);
        WaitForCell(4, 0);
        ClickCell(1, 0);
        Press('A', wxMOD_CONTROL);
        WaitForBlockEnd(4, 1);
        Press('Z', wxMOD_CONTROL);
        WaitUntil("the row is gone", [&] { return grid().cells.Rows() == 4; });
        Press(WXK_HOME, wxMOD_CONTROL);
        WaitForCell(1, 0);
        EXPECT_EQ(InWindow([] { return complaints; }), 0);
    });
}

TEST_F(GridSelection, ArrowsHomeAndEndMoveTheCurrentCell) {
    PutUnits(ThreeUnits());
    Play([&] {
        ClickCell(2, 0);
        Press(WXK_END);
        WaitForCell(2, 1);
        Press(WXK_HOME);
        WaitForCell(2, 0);
        Press(WXK_UP);
        Press(WXK_UP);
        WaitForCell(1, 0);
    });
}

TEST_F(GridSelection, PageDownAndCtrlEndMoveTheModelToo) {
    PutUnits(ManyUnits(500));
    Play([&] {
        ClickCell(1, 0);
        Press(WXK_PAGEDOWN);
        WaitUntil("the cell is a page down", [&] { return grid().selection.Row() > 10; });
        EXPECT_EQ(InWindow([&] { return RealGrid().GetGridCursorRow() + 1 - grid().selection.Row(); }), 0);
        Press(WXK_END, wxMOD_CONTROL);
        WaitForCell(500, 1);
        EXPECT_TRUE(IsOnScreen(500));
        Press(WXK_HOME, wxMOD_CONTROL);
        WaitForCell(1, 0);
        EXPECT_TRUE(IsOnScreen(1));
    });
}

TEST_F(GridSelection, ShiftWithArrowsSelectsABlock) {
    PutUnits(ThreeUnits());
    Play([&] {
        ClickCell(1, 0);
        Press(WXK_DOWN, wxMOD_SHIFT);
        Press(WXK_RIGHT, wxMOD_SHIFT);
        WaitForBlockEnd(2, 1);
        EXPECT_THAT(ShownBlock(), ElementsAre(1, 0, 2, 1));
        Press(WXK_UP, wxMOD_SHIFT);
        WaitForBlockEnd(1, 1);
        EXPECT_THAT(ShownBlock(), ElementsAre(1, 0, 1, 1));
        Press(WXK_DOWN);
        WaitForCell(2, 0);
        EXPECT_THAT(ShownBlock(), ElementsAre());
    });
}

TEST_F(GridSelection, EveryCellOfABlockIsDrawnAsSelectedAndTheCurrentOneFramed) {
    PutUnits(ThreeUnits());
    Play([&] {
        ClickCell(1, 0);
        Press(WXK_DOWN, wxMOD_SHIFT);
        WaitForBlockEnd(2, 0);
        EXPECT_THAT(ShownBlock(), ElementsAre(1, 0, 2, 0));
        const auto current = Picture(1, 0);
        const auto other = Picture(2, 0);
        EXPECT_EQ(ColourInside(current), ColourInside(other));
        EXPECT_NE(ColourInside(current), ColourInside(Picture(3, 0)));
        EXPECT_NE(Points(current), Points(other)) << "nothing tells the current cell apart";
        EXPECT_EQ(Points(other), Points(Picture(2, 0)));
    });
}

TEST_F(GridSelection, ShiftWithPageDownSelectsABlockToo) {
    PutUnits(ManyUnits(500));
    Play([&] {
        ClickCell(2, 0);
        Press(WXK_PAGEDOWN, wxMOD_SHIFT);
        WaitUntil("the block is a page long", [&] { return grid().selection.BlockEnd().row > 10; });
        EXPECT_EQ(InWindow([&] { return grid().selection.Row(); }), 2);
        EXPECT_EQ(ShownBlock().at(2), InWindow([&] { return grid().selection.BlockEnd().row; }));
    });
}

TEST_F(GridSelection, TheMouseSelectsABlock) {
    PutUnits(ThreeUnits());
    Play([&] {
        DragOverCells({3, 1}, {2, 0});
        WaitForBlockEnd(2, 0);
        WaitForCell(3, 1);
        EXPECT_THAT(ShownBlock(), ElementsAre(2, 0, 3, 1));
        ClickCell(1, 0);
        WaitForBlockEnd(1, 0);
        EXPECT_THAT(ShownBlock(), ElementsAre());
    });
}

TEST_F(GridSelection, ABlockReachesToWhereTheMouseIsLetGoAlsoWhenItsLastStepIsNotTold) {
    PutUnits(ThreeUnits());
    Play([&] {
        ClickCell(3, 1);
        SendMouse(wxEVT_LEFT_DOWN, {3, 1});
        SendMouse(wxEVT_MOTION, {3, 1});
        SendMouse(wxEVT_MOTION, {2, 1});
        SendMouse(wxEVT_LEFT_UP, {1, 0});
        WaitForBlockEnd(1, 0);
        WaitForCell(3, 1);
        EXPECT_THAT(ShownBlock(), ElementsAre(1, 0, 3, 1));
        EXPECT_FALSE(InWindow([&] { return RealGrid().GetGridWindow()->HasCapture(); }));
    });
}

TEST_F(GridSelection, AClickWithShiftStretchesTheBlock) {
    PutUnits(ThreeUnits());
    Play([&] {
        ClickCell(1, 0);
        hands->ClickWith(WXK_SHIFT, PlaceOfCell(3, 1));
        WaitForBlockEnd(3, 1);
        WaitForCell(1, 0);
    });
}

TEST_F(GridSelection, AWholeColumnSelectedByKeysBeginsAtItsTop) {
    PutUnits(ThreeUnits());
    Play([&] {
        ClickCell(2, 1);
        Press(WXK_SPACE, wxMOD_CONTROL);
        WaitForBlockEnd(3, 1);
        WaitForCell(1, 1);
        EXPECT_THAT(ShownBlock(), ElementsAre(1, 1, 3, 1));
    });
}

TEST_F(GridSelection, WhatTheProgramSelectsIsShown) {
    PutUnits(ManyUnits(300));
    Play([&] {
        InWindow([&] {
            desktop.Gate().Act([&] {
                grid().selection.Select(250, 0);
                grid().selection.SelectTo(252, 1);
            });
        });
        WaitForCell(250, 0);
        EXPECT_THAT(ShownBlock(), ElementsAre(250, 0, 252, 1));
        EXPECT_TRUE(IsOnScreen(250));
        EXPECT_TRUE(IsOnScreen(252));
    });
}

TEST_F(GridSelection, AClickOnTheHeaderSelectsNothing) {
    PutUnits(ThreeUnits());
    Play([&] {
        std::vector<int> pressed;
        grid().mouseDown.Connect([&](MouseButton button, int row, int column) {
            pressed = {static_cast<int>(button), row, column};
        });
        hands->Click(InWindow([&] {
            auto* header = RealGrid().GetGridColLabelWindow();
            return header->ClientToScreen(wxPoint(RealGrid().GetColSize(0) + 40, header->GetSize().y / 2));
        }));
        WaitUntil("the click has come", [&] { return !pressed.empty(); });
        EXPECT_THAT(pressed, ElementsAre(1, 0, 1));
        EXPECT_THAT(ShownBlock(), ElementsAre());
        EXPECT_EQ(InWindow([&] { return grid().selection.Row(); }), -1);
    });
}

TEST_F(GridSelection, TheRightButtonIsToldWithItsCell) {
    PutUnits(ThreeUnits());
    Play([&] {
        std::vector<int> pressed;
        grid().mouseDown.Connect([&](MouseButton button, int row, int column) {
            pressed = {static_cast<int>(button), row, column};
        });
        const auto place = PlaceOfCell(2, 1);
        InWindow([&] { wxUIActionSimulator().MouseMove(place); });
        InWindow([] { wxUIActionSimulator().MouseClick(wxMOUSE_BTN_RIGHT); });
        WaitUntil("the click has come", [&] { return !pressed.empty(); });
        EXPECT_THAT(pressed, ElementsAre(2, 2, 1));
    });
}

TEST_F(GridSelection, TabGoesFromCellToCell) {
    PutUnits(ThreeUnits());
    Play([&] {
        ClickCell(1, 1);
        Press(WXK_TAB);
        WaitForCell(2, 0);
        Press(WXK_TAB, wxMOD_SHIFT);
        WaitForCell(1, 1);
    });
}

TEST_F(GridSelection, TabInTheEditorCommitsAndGoesOn) {
    PutUnits(ThreeUnits());
    Play([&] {
        ClickCell(1, 0);
        Type("lb");
        Press(WXK_TAB);
        WaitForCell(1, 1);
        EXPECT_EQ(Shown(1, 0), "lb");
        WaitForFocus(grid());
    });
}

TEST_F(GridSelection, TabAtTheLastCellGoesOnToTheAddButton) {
    PutUnits(ThreeUnits());
    Play([&] {
        ClickCell(3, 1);
        Press(WXK_TAB);
        WaitForFocus(page().cmdAddUNit);
        WaitForCell(1, 0);
    });
}

TEST_F(GridSelection, TabAtTheLastCellCommitsFirst) {
    PutUnits(ThreeUnits());
    Play([&] {
        ClickCell(3, 1);
        Type("Days");
        Press(WXK_TAB);
        WaitForFocus(page().cmdAddUNit);
        WaitForNoEditor();
        EXPECT_EQ(Shown(3, 1), "Days");
    });
}

TEST_F(GridSelection, ShiftTabAtTheFirstCellGoesOnToTheHelpButton) {
    PutUnits(ThreeUnits());
    Play([&] {
        ClickCell(1, 0);
        Press(WXK_TAB, wxMOD_SHIFT);
        WaitForFocus(page().cmdHelpUnits);
        WaitForCell(3, 1);
    });
}

TEST_F(GridSelection, CtrlTabLeavesTheGridFromAnyCellBothWays) {
    PutUnits(ThreeUnits());
    Play([&] {
        ClickCell(2, 0);
        Press(WXK_TAB, wxMOD_CONTROL);
        WaitForFocus(page().cmdAddUNit);
        WaitForCell(2, 0);
        Press(WXK_TAB, wxMOD_SHIFT);
        WaitForFocus(grid());
        Press(WXK_TAB, wxMOD_CONTROL | wxMOD_SHIFT);
        WaitForFocus(page().UpDownUnits);
        WaitForCell(2, 0);
    });
}

TEST_F(GridSelection, TabLeavesAnEmptyGridBothWays) {
    Play([&] {
        WaitForFocus(grid());
        Press(WXK_TAB);
        WaitForFocus(page().cmdAddUNit);
        Press(WXK_TAB, wxMOD_SHIFT);
        WaitForFocus(grid());
        Press(WXK_TAB, wxMOD_SHIFT);
        WaitForFocus(page().UpDownUnits);
    });
}

} // namespace
} // namespace zy::test
