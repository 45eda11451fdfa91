#pragma once

#include <chrono>
#include <string>

#include "controls/Control.h"

namespace zy {

/// A month's days, of which one is chosen.
class MonthCalendar : public Control {
  public:
    /// Offers the days from the first to the last one.
    MonthCalendar(Container* parent, std::string name, std::string caption, std::chrono::year_month_day first,
                  std::chrono::year_month_day last);

    std::chrono::year_month_day First() const { return first_; }
    std::chrono::year_month_day Last() const { return last_; }
    std::chrono::year_month_day Value() const { return value_; }
    /// The date must exist. One that is not offered becomes the nearest one that is.
    void SetValue(std::chrono::year_month_day value);

    /// The user clicks a day, also when it is the one that is chosen. Nothing happens when it is not offered.
    void Pick(std::chrono::year_month_day day);

    Event<> dateClick;
    Event<> valueChanged;

  private:
    std::chrono::year_month_day first_;
    std::chrono::year_month_day last_;
    std::chrono::year_month_day value_;
};

} // namespace zy
