#pragma once

#include <string>
#include <string_view>

#include "controls/CommandButton.h"
#include "controls/Form.h"
#include "controls/MonthCalendar.h"
#include "platform/SystemInfo.h"
#include "shell/TraceChannel.h"

namespace zy {

/// The calendar from which the expiry date of a user is picked. It offers the dates that a year of two digits
/// can mean.
class frmDatePicker : public Form {
  public:
    frmDatePicker(TraceChannel& trace, SystemInfo& system);

    /// Shows the date of the cell that is edited; today when the cell holds none of the shape "yy-mm-dd".
    void Form_Load(std::string_view cell);
    void dpZYSecurity_DateClick();
    void cmdClear_Click();
    void cmdcancel_Click();
    /// Gives the dialog its size, its controls their places.
    void Form_Resize();

    /// A date was picked or cleared: the cell gets this text.
    Event<const std::string&> picked;

    MonthCalendar dpZYSecurity;
    CommandButton cmdClear;
    CommandButton cmdcancel; // spelled so throughout

  private:
    void Start(std::string_view procedure);
    void Finish(const std::string& text);

    TraceChannel& trace_;
    SystemInfo& system_;
};

} // namespace zy
