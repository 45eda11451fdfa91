#include "desktop/MonthCalendarBinding.h"

#include <wx/settings.h>
#include <wx/stattext.h>

#include "desktop/Native.h"

namespace zy {
namespace {

std::chrono::year_month_day DateOf(const wxDateTime& day) {
    return {std::chrono::year(day.GetYear()), std::chrono::month(static_cast<unsigned>(day.GetMonth()) + 1),
            std::chrono::day(day.GetDay())};
}

wxDateTime ShownDay(std::chrono::year_month_day date) {
    const auto month = static_cast<wxDateTime::Month>(static_cast<unsigned>(date.month()) - 1);
    return {static_cast<wxDateTime::wxDateTime_t>(static_cast<unsigned>(date.day())), month,
            static_cast<int>(date.year())};
}

/// With the names that the calendar itself shows.
wxString LongDate(const wxDateTime& day) {
    return wxDateTime::GetWeekDayName(day.GetWeekDay()) +
           wxString::Format(", %d ", static_cast<int>(day.GetDay())) +
           wxDateTime::GetMonthName(day.GetMonth()) + wxString::Format(" %d", day.GetYear());
}

} // namespace

MonthCalendarBinding::MonthCalendarBinding(const ViewContext& context, const Inside& inside,
                                           MonthCalendar& model)
    : ControlBinding(context, inside, model), model_(model),
      calendar_(new wxGenericCalendarCtrl(Parent(), wxID_ANY, ShownDay(model.Value()), {}, {},
                                          wxCAL_SHOW_HOLIDAYS | wxCAL_MONDAY_FIRST |
                                              wxCAL_SHOW_SURROUNDING_WEEKS | wxBORDER_THEME)) {
    calendar_->Bind(wxEVT_LEFT_DOWN, [this](wxMouseEvent& event) { PressMouse(event); });
    calendar_->Bind(wxEVT_LEFT_UP, [this](wxMouseEvent& event) { LetGoOfMouse(event); });
    calendar_->Bind(wxEVT_KEY_DOWN, [this](wxKeyEvent& event) { PressKey(event); });
    calendar_->SetDateRange(ShownDay(model.First()), ShownDay(model.Last()));
    Keep(model_.valueChanged.Observe([this] { ShowValue(); }));
    calendar_->SetHeaderColours(wxSystemSettings::GetColour(wxSYS_COLOUR_GRAYTEXT),
                                wxSystemSettings::GetColour(wxSYS_COLOUR_WINDOW));
    Attach(calendar_);
    NameParts();
}

void MonthCalendarBinding::TakeUnseenTexts() {
    const wxWindowList siblings = Parent()->GetChildren();
    for (auto* sibling : siblings) {
        if (dynamic_cast<wxStaticText*>(sibling) != nullptr && !sibling->IsShown()) {
            sibling->Reparent(calendar_);
        }
    }
}

void MonthCalendarBinding::NameParts() {
    TakeUnseenTexts();
    SetAccessibleRole(*calendar_, AccessibleRole::Calendar);
    SetAccessibleDescription(*calendar_, Shown(model_.Caption()));
    SetAccessibleName(*calendar_->GetMonthControl(), "Month");
    SetAccessibleName(*calendar_->GetYearControl(), "Year");
    calendar_->Bind(wxEVT_CALENDAR_SEL_CHANGED, [this](wxCalendarEvent& event) {
        event.Skip();
        TellDay();
    });
    TellDay();
}

void MonthCalendarBinding::TellDay() {
    // The calendar is drawn, so to a screen reader it stands for its current day.
    SetAccessibleName(*calendar_, LongDate(calendar_->GetDate()));
}

void MonthCalendarBinding::PressMouse(wxMouseEvent& event) {
    pressed_ = DayAt(event);
    // A day of a neighbouring month would turn the calendar to that month, where another day lies under the
    // mouse.
    event.Skip(!pressed_.IsValid() || pressed_.GetMonth() == calendar_->GetDate().GetMonth());
}

void MonthCalendarBinding::LetGoOfMouse(wxMouseEvent& event) {
    const wxDateTime day = DayAt(event);
    if (day.IsValid() && pressed_.IsValid() && day == pressed_) {
        Pick(day);
    } else {
        event.Skip();
    }
}

wxDateTime MonthCalendarBinding::DayAt(const wxMouseEvent& event) const {
    wxDateTime day;
    const auto hit = calendar_->HitTest(event.GetPosition(), &day);
    return hit == wxCAL_HITTEST_DAY || hit == wxCAL_HITTEST_SURROUNDING_WEEK ? day : wxDateTime();
}

void MonthCalendarBinding::PressKey(wxKeyEvent& event) {
    const int key = event.GetKeyCode();
    if (!event.HasAnyModifiers() && (key == WXK_RETURN || key == WXK_NUMPAD_ENTER || key == WXK_SPACE)) {
        Pick(calendar_->GetDate());
    } else {
        event.Skip();
    }
}

void MonthCalendarBinding::Pick(const wxDateTime& day) {
    Gate().Act([&] { model_.Pick(DateOf(day)); });
}

void MonthCalendarBinding::ShowValue() {
    calendar_->SetDate(ShownDay(model_.Value()));
    TellDay();
}

} // namespace zy
