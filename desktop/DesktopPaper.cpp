#include "desktop/DesktopPaper.h"

#include <wx/app.h>
#include <wx/bitmap.h>
#include <wx/dcmemory.h>
#include <wx/image.h>
#include <wx/log.h>
#include <wx/math.h>
#include <wx/print.h>

#include <algorithm>

#include "controls/Drawing.h"
#include "controls/Geometry.h"
#include "desktop/PaintedDrawing.h"
#include "desktop/PngFile.h"
#include "desktop/Printout.h"
#include "desktop/ShownText.h"

namespace zy {

DesktopPaper::DesktopPaper(const CodePage& codePage, EventGate& gate) : codePage_(codePage), gate_(gate) {}

DesktopPaper::~DesktopPaper() = default;

std::optional<std::string> DesktopPaper::PngOf(const std::function<Sheet(const Lettering&)>& make) {
    constexpr int kPointsPerInch = 144;
    constexpr int kMostPoints = 30000;
    constexpr double kPointsPerTwip = kPointsPerInch / kTwipsPerInch;
    const wxFont font = PaperFont(kPointsPerTwip);
    wxMemoryDC canvas;
    wxBitmap bitmap;
    bitmap.Create(1, 1);
    canvas.SelectObject(bitmap);
    canvas.SetFont(font);
    const Sheet sheet = make(PaperLetters(canvas, kPointsPerTwip, codePage_));
    const wxSize size(wxRound(sheet.size.width * kPointsPerTwip),
                      wxRound(sheet.size.height * kPointsPerTwip));
    if (std::max(size.x, size.y) > kMostPoints) {
        return std::nullopt;
    }
    canvas.SelectObject(wxNullBitmap);
    bitmap.Create(size.x, size.y);
    canvas.SelectObject(bitmap);
    canvas.SetBackground(*wxWHITE_BRUSH);
    canvas.Clear();
    Paint(canvas, sheet.drawing, {*wxWHITE, *wxBLACK, font, kPointsPerTwip}, codePage_);
    canvas.SelectObject(wxNullBitmap);
    return PngFileOf(bitmap.ConvertToImage(), kPointsPerInch);
}

Printed DesktopPaper::Print(std::string_view title,
                            const std::function<Pages(const Size& page, const Lettering&)>& make) {
    gate_.PrepareForBox();
    if (!settings_) {
        settings_ = std::make_unique<wxPrintDialogData>();
    }
    wxPrinter printer(settings_.get());
    Printout printout(ToShown(codePage_, title), codePage_, gate_, make);
    const wxLogNull noBoxOfTheToolkit;
    const bool isPrinted = printer.Print(wxTheApp->GetTopWindow(), &printout, true);
    gate_.Rethrow();
    if (isPrinted) {
        *settings_ = printer.GetPrintDialogData();
        return Printed::Yes;
    }
    return wxPrinter::GetLastError() == wxPRINTER_CANCELLED ? Printed::Cancelled : Printed::Failed;
}

} // namespace zy
