#include "GridTest.h"

namespace zy::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

TEST_F(GridTest, StartsWithItsHeaderRowAlone) {
    const Grid fresh(&form, "grd", 2);
    EXPECT_EQ(fresh.cells.Rows(), 1);
    EXPECT_EQ(fresh.cells.Columns(), 2);
    EXPECT_EQ(fresh.selection.Row(), -1);
    EXPECT_EQ(fresh.columns.Width(1), 960);
}

TEST_F(GridTest, AddsARowOfTabJoinedCells) {
    EXPECT_EQ(grid.cells.Rows(), 3);
    EXPECT_THAT(Row(1), ElementsAre("a", "b", "c"));
}

TEST_F(GridTest, LeavesCellsEmptyThatARowDoesNotName) {
    grid.cells.AddItem("x");
    EXPECT_THAT(Row(3), ElementsAre("x", "", ""));
}

TEST_F(GridTest, RemovesARowAndKeepsTheCurrentOneInside) {
    grid.selection.Select(2, 1);
    grid.cells.RemoveItem(1);
    EXPECT_EQ(grid.cells.Rows(), 2);
    EXPECT_THAT(Row(1), ElementsAre("d", "e", "f"));
    EXPECT_EQ(grid.selection.Row(), 1);
}

TEST_F(GridTest, GrowsByEmptyRowsAndShrinksFromTheEnd) {
    grid.cells.SetRows(4);
    EXPECT_THAT(Row(3), ElementsAre("", "", ""));
    grid.cells.SetRows(2);
    EXPECT_EQ(grid.cells.Rows(), 2);
    EXPECT_THAT(Row(1), ElementsAre("a", "b", "c"));
}

TEST_F(GridTest, TellsAChangedCellOnce) {
    grid.cells.SetText(1, 2, "c");
    grid.cells.SetText(1, 2, "C");
    EXPECT_THAT(notes, ElementsAre("changed 1,2"));
}

TEST_F(GridTest, RaisesSubscriptOutOfRangeForACellItDoesNotHave) {
    EXPECT_EQ(ErrorNumber([&] { static_cast<void>(grid.cells.Text(3, 0)); }), 9);
    EXPECT_EQ(ErrorNumber([&] { grid.cells.SetText(0, 3, ""); }), 9);
    EXPECT_EQ(ErrorNumber([&] { grid.selection.Select(-1, 0); }), 9);
    EXPECT_EQ(ErrorNumber([&] { grid.selection.SelectTo(0, -1); }), 9);
    EXPECT_EQ(ErrorNumber([&] { grid.cells.RemoveItem(3); }), 9);
    EXPECT_EQ(ErrorNumber([&] { grid.editor.Open(); }), 9) << "there is no current cell";
}

TEST_F(GridTest, TellsItsCurrentCellOnlyWhenItIsAnotherOne) {
    grid.selection.Select(1, 1);
    grid.selection.Select(1, 1);
    EXPECT_THAT(notes, ElementsAre("current"));
}

TEST_F(GridTest, DoesNotMakeTheHeaderCurrentOnAClick) {
    grid.Pick(0, 1);
    EXPECT_EQ(grid.selection.Row(), -1);
}

TEST_F(GridTest, TellsWhichMouseButtonWentDownWhere) {
    grid.mouseDown.Connect([this](MouseButton mouseButton, int row, int column) {
        notes.push_back(std::to_string(static_cast<int>(mouseButton)) + std::to_string(row) +
                        std::to_string(column));
    });
    grid.PressMouse(MouseButton::Right, 1, 0);
    EXPECT_THAT(notes, ElementsAre("210"));
}

TEST_F(GridTest, LeavesCellsOutThatARowHasTooMany) {
    grid.cells.AddItem("1\t2\t3\t4");
    EXPECT_THAT(Row(3), ElementsAre("1", "2", "3"));
}

TEST_F(GridTest, AddsManyItemsAsItAddsOneButAnnouncesThemOnce) {
    const std::vector<std::string> items{"1\t2\t3\t4", "", "x", "\t\ty"};
    std::vector<std::vector<int>> announced;
    grid.cells.changing.Connect([&](int first, int removed, int added) {
        announced.push_back({first, removed, added});
    });
    grid.cells.AddItems(items.size(), [&](std::size_t item, std::string& text) { text += items[item]; });
    EXPECT_THAT(announced, ElementsAre(ElementsAre(3, 0, 4)));
    EXPECT_EQ(grid.cells.Rows(), 7);
    EXPECT_THAT(Row(3), ElementsAre("1", "2", "3"));
    EXPECT_THAT(Row(4), ElementsAre("", "", ""));
    EXPECT_THAT(Row(5), ElementsAre("x", "", ""));
    EXPECT_THAT(Row(6), ElementsAre("", "", "y"));
}

TEST_F(GridTest, AddsNoRowForNoItems) {
    grid.cells.AddItems(0, [](std::size_t, std::string&) { FAIL(); });
    EXPECT_EQ(grid.cells.Rows(), 3);
}

TEST_F(GridTest, AddsRowsThatArePartsOfOneTextWithoutCopyingThem) {
    const auto text = Share("a long text of many parts; its parts are not copied");
    const char* const place = text->data();
    grid.cells.AddRowsOf(text, [](std::string_view whole, TextParts& parts) {
        for (const auto part : {whole.substr(0, 1), whole.substr(2, 4), whole.substr(7, 4),
                                std::string_view(), whole.substr(15, 4), whole.substr(20, 5)}) {
            parts.Append(part);
        }
    });
    EXPECT_EQ(grid.cells.Rows(), 5);
    EXPECT_THAT(Row(3), ElementsAre("a", "long", "text"));
    EXPECT_THAT(Row(4), ElementsAre("", "many", "parts"));
    EXPECT_EQ(grid.cells.Text(3, 1).data(), place + 2);
}

TEST_F(GridTest, KeepsTheRowsItHadWhenATextCannotBeTakenApart) {
    EXPECT_EQ(ErrorNumber([&] {
                  grid.cells.AddRowsOf(Share("text"), [](std::string_view text, TextParts& parts) {
                      parts.Append(text);
                      RaiseOverflow();
                  });
              }),
              6);
    grid.cells.AddItem("g\th\ti");
    EXPECT_THAT(Row(2), ElementsAre("d", "e", "f"));
    EXPECT_THAT(Row(3), ElementsAre("g", "h", "i"));
}

TEST_F(GridTest, HandsOutTextsThatStayWhenTheirCellsGetOthers) {
    const auto b = grid.cells.Text(1, 1);
    grid.cells.SetText(1, 1, grid.cells.Text(2, 1));
    grid.cells.SetText(2, 1, b);
    EXPECT_THAT(Row(1), ElementsAre("a", "e", "c"));
    EXPECT_THAT(Row(2), ElementsAre("d", "b", "f"));
}

TEST_F(GridTest, TellsThatRowsChangedOnceTheyAreShownAgain) {
    int told = 0;
    grid.cells.rowsChanged.Connect([&] { ++told; });
    grid.cells.SetRedraw(false);
    grid.cells.AddItem("1");
    grid.cells.AddRowsOf(Share(""), [](std::string_view, TextParts&) {});
    grid.cells.SetRows(2);
    grid.cells.RemoveItem(1);
    EXPECT_EQ(told, 0);
    grid.cells.SetRedraw(true);
    EXPECT_EQ(told, 1);
    grid.cells.AddItem("1");
    EXPECT_EQ(told, 2);
}

TEST_F(GridTest, TellsThatTheCurrentCellWentWithItsRow) {
    grid.selection.Select(2, 1);
    notes.clear();
    grid.cells.SetRows(2);
    ExpectCurrent(1, 1);
    grid.cells.RemoveItem(1);
    ExpectCurrent(0, 1);
    grid.cells.SetRows(0);
    ExpectCurrent(-1, 1);
    EXPECT_THAT(notes, ElementsAre("current", "current", "current"));
}

TEST_F(GridTest, KeepsItsCurrentCellWhenRowsAreAddedBehindIt) {
    grid.selection.Select(2, 1);
    notes.clear();
    grid.cells.SetRows(7);
    grid.cells.AddItem("1");
    ExpectCurrent(2, 1);
    EXPECT_THAT(notes, IsEmpty());
}

TEST_F(GridTest, StretchesTheBlockUntilAnotherCellIsSelected) {
    grid.selection.Select(1, 1);
    grid.selection.SelectTo(2, 2);
    EXPECT_EQ(grid.selection.BlockEnd(), (Cell{2, 2}));
    ExpectCurrent(1, 1);
    grid.selection.Select(2, 0);
    EXPECT_EQ(grid.selection.BlockEnd(), (Cell{2, 0}));
}

TEST_F(GridTest, TellsAColumnsWidthOnce) {
    int told = 0;
    grid.columns.widthChanged.Connect([&] { ++told; });
    grid.columns.SetWidth(1, 500);
    grid.columns.SetWidth(1, 500);
    EXPECT_EQ(told, 1);
    EXPECT_EQ(grid.columns.Width(1), 500);
}

TEST_F(GridTest, TellsFromWhichColumnOnToFitAlsoToAViewThatComesLater) {
    int first = -1;
    grid.columns.fit.Connect([&](int column) { first = column; });
    EXPECT_EQ(grid.columns.FittedFrom(), 3);
    grid.columns.Fit(1);
    EXPECT_EQ(first, 1);
    EXPECT_EQ(grid.columns.FittedFrom(), 1);
}

TEST_F(GridTest, LetsNoOneWorkOnItWhileItIsDisabled) {
    grid.selection.Select(1, 1);
    grid.SetEnabled(false);
    grid.mouseDown.Connect([this](MouseButton, int, int) { notes.emplace_back("mouse"); });
    notes.clear();
    grid.Pick(2, 2);
    grid.TypeOver("x");
    grid.OpenEditor();
    grid.PressMouse(MouseButton::Left, 2, 2);
    grid.Paste("x");
    EXPECT_FALSE(grid.Press({Key::Down}));
    ExpectCurrent(1, 1);
    EXPECT_FALSE(grid.editor.IsOpen());
    EXPECT_THAT(notes, IsEmpty());
    EXPECT_THAT(Row(1), ElementsAre("a", "b", "c"));
}

} // namespace
} // namespace zy::test
