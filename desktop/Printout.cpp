#include "desktop/Printout.h"

#include <wx/dc.h>
#include <wx/math.h>

#include "controls/Geometry.h"
#include "desktop/PaintedDrawing.h"
#include "desktop/ShownText.h"

namespace zy {

wxFont PaperFont(double unitsPerTwip) {
    constexpr int kTwips = 200;
    return {wxSize(0, wxRound(kTwips * unitsPerTwip)), wxFONTFAMILY_SWISS, wxFONTSTYLE_NORMAL,
            wxFONTWEIGHT_NORMAL};
}

Lettering PaperLetters(const wxDC& canvas, double unitsPerTwip, const CodePage& codePage) {
    const auto toTwips = [unitsPerTwip](int units) { return wxRound(units / unitsPerTwip); };
    return {toTwips(canvas.GetCharHeight()), [&canvas, &codePage, toTwips](std::string_view text) {
                return toTwips(canvas.GetTextExtent(ToShown(codePage, text)).x);
            }};
}

Printout::Printout(const wxString& title, const CodePage& codePage, EventGate& gate, const MakePages& make)
    : wxPrintout(title), codePage_(codePage), gate_(gate), make_(make) {}

void Printout::OnPreparePrinting() {
    gate_.Answer([this] {
        PrepareCanvas();
        const wxSize page = GetDC()->GetSize();
        const Size size{GetDC()->DeviceToLogicalXRel(page.x), GetDC()->DeviceToLogicalYRel(page.y)};
        pages_ = make_(size, PaperLetters(*GetDC(), 1, codePage_));
    });
}

void Printout::GetPageInfo(int* least, int* most, int* from, int* to) {
    *least = *from = 1;
    *most = *to = pages_.count;
}

bool Printout::HasPage(int page) {
    return page >= 1 && page <= pages_.count;
}

bool Printout::OnPrintPage(int page) {
    gate_.Answer([&] {
        PrepareCanvas();
        PaintOnPaper(*GetDC(), pages_.make(page), {*wxWHITE, *wxBLACK, PaperFont(1), 1}, codePage_);
    });
    return !gate_.HasFailed();
}

void Printout::PrepareCanvas() {
    wxSize inch;
    GetPPIPrinter(&inch.x, &inch.y);
    GetDC()->SetUserScale(inch.x / kTwipsPerInch, inch.y / kTwipsPerInch);
    GetDC()->SetFont(PaperFont(1));
}

} // namespace zy
