#include "controls/MonthCalendar.h"

namespace zy {

void MonthCalendar::SetValue(std::chrono::year_month_day value) {
    value_ = value;
    valueChanged.Raise();
}

void MonthCalendar::Pick(std::chrono::year_month_day day) {
    if (TakeFocus()) {
        SetValue(day);
        dateClick.Raise();
    }
}

} // namespace zy
