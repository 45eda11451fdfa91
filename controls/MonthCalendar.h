#pragma once

#include <chrono>

#include "controls/Control.h"

namespace zy {

/// A month's days, of which one is chosen.
class MonthCalendar : public Control {
  public:
    using Control::Control;

    std::chrono::year_month_day Value() const { return value_; }
    /// The date must exist.
    void SetValue(std::chrono::year_month_day value);

    /// A person clicks a day, also when it is the one that is chosen.
    void Pick(std::chrono::year_month_day day);

    Event<> dateClick;
    Event<> valueChanged;

  private:
    std::chrono::year_month_day value_{std::chrono::year(2000), std::chrono::month(1), std::chrono::day(1)};
};

} // namespace zy
