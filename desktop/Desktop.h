#pragma once

#include <exception>
#include <functional>
#include <memory>
#include <optional>

#include "controls/Event.h"
#include "desktop/DesktopDialogs.h"
#include "desktop/DesktopHelp.h"
#include "desktop/DesktopPaper.h"
#include "desktop/DesktopWindow.h"
#include "desktop/EventGate.h"
#include "desktop/Toolkit.h"
#include "platform/World.h"

namespace zy {

/// The user's desktop: message boxes, help, windows and the event loop. The toolkit starts when the first of
/// them is needed, so that a program that shows nothing needs no display.
class Desktop {
  public:
    /// The help file is read from `files`.
    Desktop(const CodePage& codePage, FileSystem& files);

    /// The program's view of it.
    ScreenWorld Get() { return {.dialogs = dialogs_, .help = help_, .window = *window_, .paper = paper_}; }

    /// Runs the program and returns the exit status: what the program returns, or 1 when an error that
    /// nothing inside has caught was shown.
    int Run(const std::function<int()>& program);
    /// Runs the event loop until Close, and not at all after it. Returns the exit status as Run does.
    int RunUntilClosed();
    void Close();

    /// Throws CannotShow.
    void StartToolkit();
    EventGate& Gate() { return gate_; }
    DesktopWindow& Window() { return *window_; }
    const CodePage& TextCodePage() const { return codePage_; }

    /// The toolkit is about to start.
    Event<> starting;
    /// An error is about to be shown behind which the program ends.
    Event<> failing;

  private:
    int Report(const std::exception_ptr& error);
    void ShowError(std::string_view text);

    const CodePage& codePage_;
    std::optional<Toolkit> toolkit_;
    EventGate gate_;
    DesktopDialogs dialogs_;
    DesktopHelp help_;
    DesktopPaper paper_;
    std::unique_ptr<DesktopWindow> window_;
    bool isClosed_ = false;
};

} // namespace zy
