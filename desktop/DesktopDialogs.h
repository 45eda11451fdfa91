#pragma once

#include <functional>

#include "desktop/EventGate.h"
#include "platform/CodePage.h"
#include "platform/Dialogs.h"

namespace zy {

/// The toolkit's own message boxes, and the program's dialogs.
class DesktopDialogs final : public Dialogs {
  public:
    /// `startToolkit` is called before every box.
    DesktopDialogs(const CodePage& codePage, EventGate& gate, std::function<void()> startToolkit);

    void ShowMessage(std::string_view text, std::string_view title) override;
    bool AskYesNo(std::string_view text, std::string_view title, Escape escape) override;
    std::optional<std::string> AskFileToWrite(std::string_view title, std::string_view name,
                                              const std::vector<std::string>& kinds) override;
    void ShowForm(Form& form) override;

  private:
    bool AskToReplace(const std::string& path, std::string_view title);
    int Show(std::string_view text, std::string_view title, long buttons);

    const CodePage& codePage_;
    EventGate& gate_;
    std::function<void()> startToolkit_;
};

} // namespace zy
