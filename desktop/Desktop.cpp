#include "desktop/Desktop.h"

#include <iostream>
#include <string>

#include "basics/RuntimeError.h"
#include "shell/Application.h"

namespace zy {

Desktop::Desktop(const CodePage& codePage, FileSystem& files)
    : codePage_(codePage), dialogs_(codePage, gate_, [this] { StartToolkit(); }),
      help_(files, dialogs_, [this] { StartToolkit(); }), paper_(codePage, gate_),
      window_(MakeDesktopWindow([this] { StartToolkit(); })) {}

void Desktop::StartToolkit() {
    if (!toolkit_) {
        starting.Raise();
        toolkit_.emplace();
    }
}

int Desktop::Run(const std::function<int()>& program) {
    try {
        return program();
    } catch (...) {
        return Report(std::current_exception());
    }
}

int Desktop::RunUntilClosed() {
    // The error is reported here, while the window that it came from is still there.
    const int status = Run([this] {
        // The window can be closed already, behind a question that the program asked before.
        if (!isClosed_) {
            // What was done behind the window's opening, such as restoring, was no action of the user's.
            gate_.updateViews.Raise();
            toolkit_->RunLoop();
        }
        gate_.Rethrow();
        return 0;
    });
    help_.Close();
    return status;
}

void Desktop::Close() {
    isClosed_ = true;
    toolkit_->EndLoop();
}

int Desktop::Report(const std::exception_ptr& error) {
    failing.Raise();
    try {
        std::rethrow_exception(error);
    } catch (const RuntimeError& runtimeError) {
        ShowError(runtimeError.BoxText());
    } catch (const std::exception& other) {
        ShowError(other.what());
    }
    return 1;
}

void Desktop::ShowError(std::string_view text) {
    try {
        dialogs_.ShowMessage(text, kApplicationTitle);
    } catch (const CannotShow&) {
        std::cerr << kApplicationTitle << ": " << codePage_.ToUtf8(text) << std::endl;
    }
}

} // namespace zy
