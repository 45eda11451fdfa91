#pragma once

#include <wx/font.h>
#include <wx/print.h>

#include <functional>

#include "controls/Drawing.h"
#include "desktop/EventGate.h"
#include "platform/CodePage.h"

namespace zy {

/// The font of all texts on paper, ten points high, for a canvas with so many units to a twip.
wxFont PaperFont(double unitsPerTwip);
/// Its letters, as a canvas that has the font already measures them.
Lettering PaperLetters(const wxDC& canvas, double unitsPerTwip, const CodePage& codePage);

/// What the toolkit asks for while it prints. A unit of its canvas is made a twip, so that shapes and letters
/// have their sizes on every printer.
class Printout final : public wxPrintout {
  public:
    using MakePages = std::function<Pages(const Size& page, const Lettering&)>;

    /// All of these must outlive it.
    Printout(const wxString& title, const CodePage& codePage, EventGate& gate, const MakePages& make);

    void OnPreparePrinting() override;
    void GetPageInfo(int* least, int* most, int* from, int* to) override;
    bool HasPage(int page) override;
    /// False, which ends printing, when the page could not be made.
    bool OnPrintPage(int page) override;

  private:
    void PrepareCanvas();

    const CodePage& codePage_;
    EventGate& gate_;
    const MakePages& make_;
    Pages pages_;
};

} // namespace zy
