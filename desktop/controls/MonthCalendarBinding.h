#pragma once

#include <wx/calctrl.h>
#include <wx/generic/calctrlg.h>

#include "controls/MonthCalendar.h"
#include "desktop/ControlBinding.h"

namespace zy {

/// A calendar of one month. A click picks a day, also the one that is chosen already; by keyboard the arrows
/// move and Enter or the space bar picks.
class MonthCalendarBinding : public ControlBinding {
  public:
    MonthCalendarBinding(const ViewContext& context, const Inside& inside, MonthCalendar& model);

  private:
    void PressMouse(wxMouseEvent& event);
    void LetGoOfMouse(wxMouseEvent& event);
    /// The day under the mouse, also one of a neighbouring month; no valid one beside the days.
    wxDateTime DayAt(const wxMouseEvent& event) const;
    void PressKey(wxKeyEvent& event);
    void Pick(const wxDateTime& day);
    void ShowValue();
    void NameParts();
    /// The toolkit keeps month and year as texts too, which nobody sees here. Beside the calendar they would
    /// name the controls behind them.
    void TakeUnseenTexts();
    /// Tells assistive technology which day is current.
    void TellDay();

    MonthCalendar& model_;
    // The toolkit's own calendar, for it can say on which day the mouse is; the window system's cannot.
    wxGenericCalendarCtrl* calendar_;
    wxDateTime pressed_; ///< the day that the mouse was pressed on
};

} // namespace zy
