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
    /// The cell gets the date that was clicked, and the dialog hides.
    void dpZYSecurity_DateClick();
    /// The cell is emptied, and the dialog hides.
    void cmdClear_Click();
    /// Hides the dialog and leaves the cell as it is.
    void cmdcancel_Click();
    /// Gives the dialog its size and its controls their places, in twips.
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
