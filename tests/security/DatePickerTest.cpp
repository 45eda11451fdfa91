#include "UsersTest.h"

namespace zy::test {
namespace {

using namespace std::chrono_literals;
using ::testing::Contains;

class DatePicker : public UsersTest {
  protected:
    DatePicker() { StartOver({User("Ann"), User("Bob")}); }

    /// Presses the button of the second user's date cell; the person does this in the calendar.
    void OpenCalendar(const std::function<void(frmDatePicker&)>& person) {
        ExpectCalendar(person);
        grid().Pick(2, kExpiryDate);
        grid().OpenEditor();
        ASSERT_EQ(grid().editor.List(), CellList("..."));
        grid().editor.PressButton();
        ExpectScriptPlayed(world.dialogs);
    }
    std::chrono::year_month_day ShownFor(std::string_view cell) {
        grid().cells.SetText(2, kExpiryDate, cell);
        std::chrono::year_month_day shown{};
        OpenCalendar([&](frmDatePicker& picker) { shown = picker.dpZYSecurity.Value(); });
        return shown;
    }
};

TEST_F(DatePicker, ShowsTheDateOfTheCell) {
    EXPECT_EQ(ShownFor("26-02-28"), 2026y / 2 / 28);
}

TEST_F(DatePicker, YearsFromFiftyOnAreThoseOfTheLastCentury) {
    EXPECT_EQ(ShownFor("49-12-31"), 2049y / 12 / 31);
    EXPECT_EQ(ShownFor("50-01-01"), 1950y / 1 / 1);
}

TEST_F(DatePicker, ShowsTodayWhenTheCellHoldsNoDateOfItsShape) {
    world.system.SetToday(2027y / 3 / 9);
    for (const auto* cell : {"", "YY-MM-DD", "26-02-30", "2026-1-5", "26/02/28"}) {
        EXPECT_EQ(ShownFor(cell), 2027y / 3 / 9) << cell;
    }
}

TEST_F(DatePicker, OffersTheDatesThatTwoDigitsOfAYearCanMean) {
    grid().cells.SetText(2, kExpiryDate, "26-02-28");
    OpenCalendar([&](frmDatePicker& picker) {
        auto& calendar = picker.dpZYSecurity;
        EXPECT_EQ(calendar.First(), 1950y / 1 / 1);
        EXPECT_EQ(calendar.Last(), 2049y / 12 / 31);
        calendar.Pick(2050y / 1 / 1);
        calendar.Pick(1949y / 12 / 31);
        EXPECT_TRUE(picker.Visible());
        EXPECT_EQ(grid().cells.Text(2, kExpiryDate), "26-02-28");
        calendar.Pick(2049y / 12 / 31);
        EXPECT_FALSE(picker.Visible());
    });
    EXPECT_EQ(grid().cells.Text(2, kExpiryDate), "49-12-31");
    OpenCalendar([&](frmDatePicker& picker) { picker.dpZYSecurity.Pick(1950y / 1 / 1); });
    EXPECT_EQ(grid().cells.Text(2, kExpiryDate), "50-01-01");
}

TEST_F(DatePicker, ShowsTheNearestDateThatItOffersWhenTodayIsNone) {
    world.system.SetToday(2075y / 3 / 9);
    EXPECT_EQ(ShownFor(""), 2049y / 12 / 31);
    world.system.SetToday(1949y / 3 / 9);
    EXPECT_EQ(ShownFor(""), 1950y / 1 / 1);
}

TEST_F(DatePicker, ADayThatIsClickedStandsInTheCell) {
    OpenCalendar([&](frmDatePicker& picker) {
        picker.dpZYSecurity.Pick(2031y / 4 / 5);
        EXPECT_FALSE(picker.Visible());
    });
    EXPECT_EQ(grid().cells.Text(2, kExpiryDate), "31-04-05");
    ExpectSaveEnabled(true);
    ExpectMarks(false, true);
    EXPECT_FALSE(grid().editor.IsOpen());
    EXPECT_THAT(Traces(), Contains("frmDatePicker dpZYSecurity_DateClick Start"));
}

TEST_F(DatePicker, TheDayThatIsShownCanBeClicked) {
    grid().cells.SetText(2, kExpiryDate, "26-02-28");
    OpenCalendar([&](frmDatePicker& picker) { picker.dpZYSecurity.Pick(picker.dpZYSecurity.Value()); });
    EXPECT_EQ(grid().cells.Text(2, kExpiryDate), "26-02-28");
    ExpectSaveEnabled(true);
}

TEST_F(DatePicker, ClearEmptiesTheCell) {
    grid().cells.SetText(2, kExpiryDate, "26-02-28");
    OpenCalendar([&](frmDatePicker& picker) {
        picker.cmdClear.Click();
        EXPECT_FALSE(picker.Visible());
    });
    EXPECT_EQ(grid().cells.Text(2, kExpiryDate), "");
    ExpectSaveEnabled(true);
    ExpectMarks(false, true);
}

TEST_F(DatePicker, CancelAndTheCloseBoxChangeNothing) {
    grid().cells.SetText(2, kExpiryDate, "26-02-28");
    OpenCalendar([&](frmDatePicker& picker) {
        picker.cmdcancel.Click();
        EXPECT_FALSE(picker.Visible());
    });
    OpenCalendar([&](frmDatePicker&) {});
    EXPECT_EQ(grid().cells.Text(2, kExpiryDate), "26-02-28");
    ExpectSaveEnabled(false);
    ExpectMarks(false, false);
}

TEST_F(DatePicker, ATextThatWasTypedBeforeIsKept) {
    ExpectCalendar([&](frmDatePicker& picker) {
        EXPECT_EQ(picker.dpZYSecurity.Value(), 2030y / 1 / 2);
        picker.cmdcancel.Click();
    });
    grid().Pick(2, kExpiryDate);
    grid().TypeOver("30-01-02");
    grid().editor.PressButton();
    EXPECT_EQ(grid().cells.Text(2, kExpiryDate), "30-01-02");
    ExpectMarks(false, true);
}

TEST_F(DatePicker, StandsBelowItsCell) {
    grid().cellPlace = [](int row, int column) { return Rect{column * 1000, row * 300, 1000, 300}; };
    form().fraSecurity.SetBounds({50, 60, 9000, 9000});
    grid().SetBounds({50, 50, 8000, 8000});
    OpenCalendar([&](frmDatePicker& picker) {
        EXPECT_EQ(picker.Bounds().left, 50 + 50 + 3000);
        EXPECT_EQ(picker.Bounds().top, 60 + 50 + 600 + 300);
    });
}

TEST_F(DatePicker, OnlyCellsOfDatesHaveIt) {
    grid().Pick(2, kUserName);
    grid().OpenEditor();
    EXPECT_EQ(grid().editor.List(), CellList(""));
    grid().editor.PressButton();
    EXPECT_TRUE(grid().editor.IsOpen());
    grid().editor.buttonClick.Raise(2, kUserName);
    EXPECT_TRUE(grid().editor.IsOpen()) << "and no calendar came";
}

} // namespace
} // namespace zy::test
