#pragma once

#include <memory>

#include "desktop/EventGate.h"
#include "platform/CodePage.h"
#include "platform/Paper.h"

class wxPrintDialogData;

namespace zy {

/// The toolkit's printing, and pictures that it paints.
class DesktopPaper final : public Paper {
  public:
    DesktopPaper(const CodePage& codePage, EventGate& gate);
    ~DesktopPaper() override;

    std::optional<std::string> PngOf(const std::function<Sheet(const Lettering&)>& make) override;
    /// With the system's own dialog, which comes up again as it was left.
    Printed Print(std::string_view title,
                  const std::function<Pages(const Size& page, const Lettering&)>& make) override;

  private:
    const CodePage& codePage_;
    EventGate& gate_;
    std::unique_ptr<wxPrintDialogData> settings_; ///< from the first print on
};

} // namespace zy
