#include "controls/MonthCalendar.h"

#include <algorithm>
#include <utility>

namespace zy {

MonthCalendar::MonthCalendar(Container* parent, std::string name, std::string caption,
                             std::chrono::year_month_day first, std::chrono::year_month_day last)
    : Control(parent, std::move(name), std::move(caption)), first_(first), last_(last), value_(first) {}

void MonthCalendar::SetValue(std::chrono::year_month_day value) {
    value_ = std::clamp(value, first_, last_);
    valueChanged.Raise();
}

void MonthCalendar::Pick(std::chrono::year_month_day day) {
    if (first_ <= day && day <= last_ && TakeFocus()) {
        SetValue(day);
        dateClick.Raise();
    }
}

} // namespace zy
