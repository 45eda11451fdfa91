#include <wx/grid.h>
#include <wx/msw/wrapwin.h>

#include <oleacc.h>

#include "ReaderMsw.h"
#include "UnitsWindow.h"

namespace zy::test {
namespace {

constexpr long kItself = CHILDID_SELF;
// Cells are counted row by row, from the header on, which has two columns.
constexpr long kFirstHeader = 1;
constexpr long kFirstUnit = 3;
constexpr long kFirstDescription = 4;
constexpr long kSecondUnit = 5;
constexpr long kLastDescription = 8;

/// The grid of the units as a screen reader of the system gets to know it.
class AccessibleGrid : public UnitsWindow {
  protected:
    AccessibleGrid() { PutUnits(ThreeUnits()); }

    Reader Cells() { return Reader(*RealGrid().GetGridWindow()); }
    template <typename Question>
    auto Ask(const Question& question) {
        return InWindow([&] { return question(Cells()); });
    }
    std::string NameOf(long child) {
        return Ask([&](const Reader& cells) { return cells.Name(child); });
    }
    long Neighbour(long child, long direction) {
        return Ask([&](const Reader& cells) { return cells.Neighbour(child, direction); });
    }
    bool Has(long child, long state) {
        return (Ask([&](const Reader& cells) { return cells.State(child); }) & state) != 0;
    }
};

TEST_F(AccessibleGrid, IsATableOfHeadersAndCells) {
    Play([&] {
        EXPECT_EQ(Ask([](const Reader& cells) { return cells.Role(); }), "table");
        EXPECT_EQ(Ask([](const Reader& cells) { return cells.Lines(); }),
                  (std::vector<std::string>{
                      "column header 'Unit'", "column header 'Unit Description'",
                      "cell 'Unit kg, row 1 of 3'", "cell 'Unit Description Kilograms, row 1 of 3'",
                      "cell 'Unit m, row 2 of 3'", "cell 'Unit Description Metres, row 2 of 3'",
                      "cell 'Unit s, row 3 of 3'", "cell 'Unit Description Seconds, row 3 of 3'"}));
    });
}

TEST_F(AccessibleGrid, NamesAnEmptyCellByItsColumnAndRow) {
    PutUnits({",pcs"});
    Play([&] { EXPECT_EQ(NameOf(kFirstDescription), "Unit Description, row 1 of 1"); });
}

TEST_F(AccessibleGrid, HasTheFocusInItsCurrentCell) {
    Play([&] {
        ClickCell(1, 0);
        WaitForCell(1, 0);
        EXPECT_EQ(Ask([](const Reader& cells) { return cells.Focus(); }), kFirstUnit);
        EXPECT_TRUE(Has(kFirstUnit, STATE_SYSTEM_FOCUSED));
        EXPECT_TRUE(Has(kFirstUnit, STATE_SYSTEM_SELECTED));
        Press(WXK_RIGHT);
        WaitForCell(1, 1);
        EXPECT_EQ(Ask([](const Reader& cells) { return cells.Focus(); }), kFirstDescription);
        EXPECT_FALSE(Has(kFirstUnit, STATE_SYSTEM_FOCUSED | STATE_SYSTEM_SELECTED));
    });
}

TEST_F(AccessibleGrid, TellsOfEachMoveOfItsCurrentCell) {
    Play([&] {
        ClickCell(1, 0);
        WaitForCell(1, 0);
        const HeardEvents heard(InWindow([&] { return RealGrid().GetGridWindow(); }));
        Press(WXK_DOWN);
        WaitForCell(2, 0);
        heard.WaitFor({EVENT_OBJECT_FOCUS, kSecondUnit});
    });
}

TEST_F(AccessibleGrid, TellsOfANewTextAndOfRowsThatCame) {
    Play([&] {
        ClickCell(1, 0);
        WaitForCell(1, 0);
        const HeardEvents heard(InWindow([&] { return RealGrid().GetGridWindow(); }));
        Press(WXK_DELETE);
        WaitForText(1, 0, "");
        heard.WaitFor({EVENT_OBJECT_NAMECHANGE, kFirstUnit});
        Click(page().cmdAddUNit);
        heard.WaitFor({EVENT_OBJECT_REORDER, kItself});
    });
}

TEST_F(AccessibleGrid, TellsHowMuchIsSelected) {
    Play([&] {
        ClickCell(1, 0);
        WaitForCell(1, 0);
        const HeardEvents heard(InWindow([&] { return RealGrid().GetGridWindow(); }));
        Press(WXK_DOWN, wxMOD_SHIFT);
        heard.WaitFor({EVENT_OBJECT_DESCRIPTIONCHANGE, kFirstUnit});
        EXPECT_EQ(Ask([](const Reader& cells) { return cells.Description(kFirstUnit); }), "2 rows selected");
        EXPECT_TRUE(Has(kFirstUnit, STATE_SYSTEM_SELECTED));
        EXPECT_TRUE(Has(kSecondUnit, STATE_SYSTEM_SELECTED));
        EXPECT_FALSE(Has(kFirstDescription, STATE_SYSTEM_SELECTED));
        EXPECT_EQ(Ask([](const Reader& cells) { return cells.Selected(); }), kFirstUnit);
    });
}

TEST_F(AccessibleGrid, IsWalkedInAllDirections) {
    Play([&] {
        EXPECT_EQ(Neighbour(kItself, NAVDIR_FIRSTCHILD), kFirstHeader);
        EXPECT_EQ(Neighbour(kItself, NAVDIR_LASTCHILD), kLastDescription);
        EXPECT_EQ(Neighbour(kFirstUnit, NAVDIR_RIGHT), kFirstDescription);
        EXPECT_EQ(Neighbour(kFirstUnit, NAVDIR_DOWN), kSecondUnit);
        EXPECT_EQ(Neighbour(kSecondUnit, NAVDIR_UP), kFirstUnit);
        EXPECT_EQ(Neighbour(kFirstDescription, NAVDIR_LEFT), kFirstUnit);
        EXPECT_EQ(Neighbour(kFirstDescription, NAVDIR_NEXT), kSecondUnit);
        EXPECT_EQ(Neighbour(kFirstDescription, NAVDIR_RIGHT), Reader::kNone);
        EXPECT_EQ(Neighbour(kLastDescription, NAVDIR_NEXT), Reader::kNone);
    });
}

TEST_F(AccessibleGrid, HasItsCellsWhereTheyAreSeen) {
    Play([&] {
        const wxRect place = Ask([](const Reader& cells) { return cells.Place(kSecondUnit); });
        EXPECT_EQ(place, RectOfCell(2, 0));
        const wxPoint inside = PlaceOfCell(2, 0);
        EXPECT_EQ(Ask([&](const Reader& cells) { return cells.At(inside); }), kSecondUnit);
        EXPECT_FALSE(Has(kSecondUnit, STATE_SYSTEM_OFFSCREEN));
    });
}

TEST_F(AccessibleGrid, SaysWhichCellsAreScrolledOutOfSight) {
    PutUnits(ManyUnits(200));
    Play([&] {
        EXPECT_TRUE(Has(2 * 200 + 1, STATE_SYSTEM_OFFSCREEN));
        EXPECT_FALSE(Has(kFirstUnit, STATE_SYSTEM_OFFSCREEN));
    });
}

TEST_F(AccessibleGrid, OpensACellByItsAction) {
    Play([&] {
        EXPECT_EQ(Ask([](const Reader& cells) { return cells.Action(kSecondUnit); }), "Edit");
        InWindow([&] { Cells().Do(kSecondUnit); });
        WaitForEditor("m");
    });
}

TEST_F(AccessibleGrid, GoesToACellThatIsPicked) {
    Play([&] {
        InWindow([&] { Cells().Pick(kLastDescription); });
        WaitForCell(3, 1);
    });
}

} // namespace
} // namespace zy::test
