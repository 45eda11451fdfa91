#include "security/frmDatePicker.h"

#include <algorithm>

#include "basics/Date.h"

namespace zy {

frmDatePicker::frmDatePicker(TraceChannel& trace, SystemInfo& system)
    : Form("frmDatePicker"),
      dpZYSecurity(this, "dpZYSecurity", "Expiry Date", kFirstShortDate, kLastShortDate),
      cmdClear(this, "cmdClear", "Clear", 'C'), cmdcancel(this, "cmdcancel", "Cancel"), trace_(trace),
      system_(system) {
    SetCaption("Expiry Date");
    SetKeyButtons(nullptr, &cmdcancel);
    dpZYSecurity.dateClick.Connect([this] { dpZYSecurity_DateClick(); });
    cmdClear.click.Connect([this] { cmdClear_Click(); });
    cmdcancel.click.Connect([this] { cmdcancel_Click(); });
    resize.Connect([this] { Form_Resize(); });
}

void frmDatePicker::Start(std::string_view procedure) {
    trace_.DebugTrace("frmDatePicker", procedure, "Start");
}

void frmDatePicker::Form_Load(std::string_view cell) {
    Start("Form_Load");
    dpZYSecurity.SetValue(ParseShortDate(cell).value_or(system_.Today()));
}

void frmDatePicker::dpZYSecurity_DateClick() {
    Start("dpZYSecurity_DateClick");
    Finish(ShortDate(dpZYSecurity.Value()));
}

void frmDatePicker::cmdClear_Click() {
    Start("cmdClear_Click");
    Finish("");
}

void frmDatePicker::Finish(const std::string& text) {
    picked.Raise(text);
    SetVisible(false);
}

void frmDatePicker::cmdcancel_Click() {
    Start("cmdcancel_Click");
    SetVisible(false);
}

void frmDatePicker::Form_Resize() {
    constexpr int kMargin = 90;
    const auto& calendar = dpZYSecurity.Preferred();
    const int height = std::max(cmdClear.Preferred().height, cmdcancel.Preferred().height);
    const int least = std::max(cmdClear.Preferred().width, cmdcancel.Preferred().width);
    const int button = std::max((calendar.width - kMargin) / 2, least);
    const int width = std::max(calendar.width, 2 * button + kMargin);
    const int top = kMargin + calendar.height + kMargin;
    dpZYSecurity.SetBounds({kMargin, kMargin, width, calendar.height});
    cmdClear.SetBounds({kMargin, top, button, height});
    cmdcancel.SetBounds({kMargin + width - button, top, button, height});
    SetBounds({Bounds().left, Bounds().top, width + 2 * kMargin, top + height + kMargin});
}

} // namespace zy
