#include <wx/calctrl.h>
#include <wx/dialog.h>
#include <wx/display.h>
#include <wx/frame.h>
#include <wx/generic/calctrlg.h>
#include <wx/grid.h>
#include <wx/scrolwin.h>

#include <algorithm>

#include "UsersWindow.h"

namespace zy::test {
namespace {

using namespace std::chrono_literals;

constexpr auto kDialog = "frmDatePicker";

class CalendarWindow : public UsersWindow {
  protected:
    CalendarWindow() {
        PutDate("26-02-28");
        world.system.SetToday(2027y / 3 / 9);
    }

    /// Makes this the expiry date of the second user.
    void PutDate(const std::string& date) {
        auto users = TwoUsers();
        users[1].EXPDATE = date;
        world.files.Take(R"(C:\SYS\ZYSECURE.DBF)");
        PutUsers(users);
    }
    /// Opens the calendar by the button of a cell.
    void OpenCalendar(int row) {
        OpenEditor(row, kExpiryDate);
        ClickCellButton();
        WaitForDialog(kDialog);
        WaitForFocusIn("dpZYSecurity");
    }
    void LeaveCalendar() {
        Press(WXK_ESCAPE);
        WaitForNoDialog(kDialog);
    }
    std::string ShownDay() {
        return InWindow([] { return RealCalendar().GetDate().FormatISODate().utf8_string(); });
    }
    /// Clicks a day of the month that is shown.
    void ClickDay(int day) {
        ClickDayOf(
            InWindow([] { return RealCalendar().GetDate(); }).SetDay(static_cast<unsigned short>(day)));
    }
    /// Clicks a day of that month or of a neighbouring one.
    void ClickDayOf(const wxDateTime& day) {
        hands->Click(InWindow([&] { return PlaceOfDay(day); }));
    }
    void ExpectClosedWith(const std::string& date) {
        WaitForNoDialog(kDialog);
        WaitForText(2, kExpiryDate, date);
        WaitForNoEditor();
        WaitForFocus(grid());
        WaitForCell(2, kExpiryDate);
    }
    static wxGenericCalendarCtrl& RealCalendar() {
        return dynamic_cast<wxGenericCalendarCtrl&>(RealNamed("dpZYSecurity"));
    }

    static wxScrolledWindow& RealPageArea() {
        const auto& children = RealFrame().GetChildren();
        const auto area = std::find_if(children.begin(), children.end(), [](const wxWindow* child) {
            return dynamic_cast<const wxScrolledWindow*>(child) != nullptr;
        });
        return dynamic_cast<wxScrolledWindow&>(**area);
    }

    /// The heights, as far as they can be seen, of the weeks to which the days in the column of one belong.
    static std::vector<int> HeightsOfWeeks(const wxDateTime& one) {
        auto& calendar = RealCalendar();
        wxPoint place(calendar.ScreenToClient(PlaceOfDay(one)).x, 0);
        std::vector<int> heights;
        wxDateTime last;
        for (; place.y < calendar.GetClientSize().y; ++place.y) {
            wxDateTime day;
            if (IsDay(calendar.HitTest(place, &day))) {
                if (!last.IsValid() || day != last) {
                    heights.push_back(0);
                }
                ++heights.back();
                last = day;
            }
        }
        return heights;
    }

  private:
    static bool IsDay(wxCalendarHitTestResult what) {
        return what == wxCAL_HITTEST_DAY || what == wxCAL_HITTEST_SURROUNDING_WEEK;
    }
    static wxPoint PlaceOfDay(const wxDateTime& day) {
        constexpr int kStep = 5;
        auto& calendar = RealCalendar();
        const wxSize size = calendar.GetClientSize();
        for (wxPoint place; place.y < size.y; place.y += kStep) {
            for (place.x = 0; place.x < size.x; place.x += kStep) {
                wxDateTime hit;
                if (IsDay(calendar.HitTest(place, &hit)) && hit.IsSameDate(day)) {
                    return calendar.ClientToScreen(place);
                }
            }
        }
        throw GaveUp("The calendar does not show that day");
    }
};

TEST_F(CalendarWindow, AClickPicksADayOfTheMonthThatIsShown) {
    Play([&] {
        OpenCalendar(2);
        EXPECT_EQ(ShownDay(), "2026-02-28");
        ClickDay(11);
        ExpectClosedWith("26-02-11");
        EXPECT_TRUE(IsEnabled(page().cmdSaveUsers));
        Click(page().cmdSaveUsers);
        WaitForStatus("Saved");
    });
    ASSERT_TRUE(Table());
    EXPECT_EQ(Table()->at(1).EXPDATE, "26-02-11");
}

TEST_F(CalendarWindow, AClickOnTheDayThatIsShownPicksItToo) {
    Play([&] {
        OpenCalendar(2);
        ClickDay(28);
        ExpectClosedWith("26-02-28");
        EXPECT_TRUE(IsEnabled(page().cmdSaveUsers));
    });
}

TEST_F(CalendarWindow, AClickPicksADayOfANeighbouringMonthToo) {
    Play([&] {
        OpenCalendar(2);
        ClickDayOf({30, wxDateTime::Jan, 2026});
        ExpectClosedWith("26-01-30");
        OpenCalendar(2);
        ClickDayOf({1, wxDateTime::Feb, 2026});
        ExpectClosedWith("26-02-01");
    });
}

TEST_F(CalendarWindow, ADayIsPickedByKeyboardAlone) {
    Play([&] {
        OpenEditor(2, kExpiryDate);
        Press(WXK_DOWN, wxMOD_ALT);
        WaitForDialog(kDialog);
        WaitForFocusIn("dpZYSecurity");
        Press(WXK_RIGHT);
        Press(WXK_DOWN);
        Press(WXK_RETURN);
        ExpectClosedWith("26-03-08");
    });
}

TEST_F(CalendarWindow, KeysEndAtTheLastYearThatTwoDigitsCanMean) {
    PutDate("49-12-30");
    Play([&] {
        OpenCalendar(2);
        for (const int key : {WXK_RIGHT, WXK_RIGHT, WXK_DOWN, WXK_PAGEDOWN, WXK_RETURN}) {
            Press(key);
        }
        ExpectClosedWith("49-12-31");
    });
}

TEST_F(CalendarWindow, KeysEndAtTheFirstYearThatTwoDigitsCanMean) {
    PutDate("50-01-02");
    Play([&] {
        OpenCalendar(2);
        for (const int key : {WXK_LEFT, WXK_LEFT, WXK_UP, WXK_PAGEUP, WXK_RETURN}) {
            Press(key);
        }
        ExpectClosedWith("50-01-01");
    });
}

TEST_F(CalendarWindow, ShowsTodayForACellWithoutADate) {
    Play([&] {
        OpenCalendar(1);
        EXPECT_EQ(ShownDay(), "2027-03-09");
        LeaveCalendar();
    });
}

TEST_F(CalendarWindow, ClearEmptiesTheCell) {
    Play([&] {
        OpenCalendar(2);
        ClickIn("cmdClear");
        ExpectClosedWith("");
        EXPECT_TRUE(IsEnabled(page().cmdSaveUsers));
    });
}

TEST_F(CalendarWindow, CancelEscapeAndTheCloseBoxChangeNothing) {
    Play([&] {
        OpenCalendar(2);
        ClickIn("cmdcancel");
        ExpectClosedWith("26-02-28");
        OpenCalendar(2);
        Press(WXK_ESCAPE);
        ExpectClosedWith("26-02-28");
        OpenCalendar(2);
        CloseWindow();
        ExpectClosedWith("26-02-28");
        EXPECT_FALSE(IsEnabled(page().cmdSaveUsers));
    });
}

TEST_F(CalendarWindow, AltWithALetterPressesItsButton) {
    Play([&] {
        OpenCalendar(2);
        Press('C', wxMOD_ALT);
        ExpectClosedWith("");
    });
}

TEST_F(CalendarWindow, HasRoomForAllWeeksOfAMonth) {
    PutDate("26-08-31");
    Play([&] {
        OpenCalendar(2);
        InWindow([] {
            const auto heights = HeightsOfWeeks({30, wxDateTime::Aug, 2026});
            EXPECT_THAT(heights, ::testing::SizeIs(6));
            EXPECT_EQ(heights.front(), heights.back());
            const wxRect place = RealCalendar().GetRect();
            EXPECT_TRUE(wxRect(RealDialog(kDialog)->GetClientSize()).Contains(place));
            EXPECT_GT(RealNamed("cmdClear").GetPosition().y, place.GetBottom());
        });
        LeaveCalendar();
    });
}

TEST_F(CalendarWindow, StandsJustBelowItsCell) {
    Play([&] {
        OpenCalendar(2);
        const auto cell = RectOfCell(2, kExpiryDate);
        const auto dialog = InWindow([] { return RealDialog(kDialog)->GetScreenRect(); });
        EXPECT_NEAR(dialog.x, cell.x, 2);
        EXPECT_NEAR(dialog.y, cell.GetBottom() + 1, 2);
        LeaveCalendar();
    });
}

TEST_F(CalendarWindow, StandsJustBelowItsCellOnAPageThatIsScrolledToo) {
    Play([&] {
        static constexpr Size kLeast{13000, 11500};
        InWindow([&] {
            program->form.leastInnerSize = [] { return kLeast; };
            RealFrame().SetSize(RealFrame().GetSize() + wxSize(10, 10));
        });
        WaitUntil("the page has its room", [&] { return program->form.InnerSize().height >= kLeast.height; });
        OpenEditor(2, kExpiryDate);
        const int before = InWindow([&] { return RealGrid().GetScreenPosition().y; });
        InWindow([] { RealPageArea().Scroll(0, 3); });
        WaitUntil("the page is scrolled", [&] { return RealGrid().GetScreenPosition().y < before; });
        ClickCellButton();
        WaitForDialog(kDialog);
        const auto cell = RectOfCell(2, kExpiryDate);
        const auto dialog = InWindow([] { return RealDialog(kDialog)->GetScreenRect(); });
        EXPECT_NEAR(dialog.x, cell.x, 2);
        EXPECT_NEAR(dialog.y, cell.GetBottom() + 1, 2);
        LeaveCalendar();
    });
}

TEST_F(CalendarWindow, StandsWhollyOnTheScreen) {
    Play([&] {
        const auto place =
            InWindow([] { return wxDisplay().GetClientArea().GetBottomRight() - wxPoint(700, 200); });
        InWindow([&] { RealFrame().Move(place); });
        WaitUntil("the window stands at the corner", [&] {
            return RealGrid().GetScreenPosition().y > place.y; // told by the window system
        });
        OpenCalendar(2);
        const auto dialog = InWindow([] { return RealDialog(kDialog)->GetScreenRect(); });
        EXPECT_TRUE(InWindow([] { return wxDisplay().GetClientArea(); }).Contains(dialog));
        LeaveCalendar();
    });
}

} // namespace
} // namespace zy::test
