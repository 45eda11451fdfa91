#pragma once

#include <wx/string.h>
#include <wx/weakref.h>

#include <functional>
#include <memory>
#include <string>

#include "desktop/HelpFrame.h"
#include "platform/Dialogs.h"
#include "platform/FileSystem.h"
#include "platform/HelpSystem.h"

class wxHtmlHelpData;

namespace zy {

/// The toolkit's viewer of help books. A help file is an archive of pages with a list of their contents and
/// an index.
class DesktopHelp final : public HelpSystem {
  public:
    /// `startToolkit` is called before anything is shown.
    DesktopHelp(FileSystem& files, Dialogs& dialogs, std::function<void()> startToolkit);
    ~DesktopHelp() override;

    void Show(std::string_view helpFile, HelpCommand command, std::uintptr_t data) override;
    /// Closes the viewer if it is open.
    void Close();

  private:
    /// Reads the book that the file holds. False when there is none, which a message box
    /// then says.
    bool Open(std::string_view helpFile);
    /// The window, in front of the others.
    HelpFrame& Window();
    void Refuse(std::string_view helpFile, std::string_view why);

    FileSystem& files_;
    Dialogs& dialogs_;
    std::function<void()> startToolkit_;
    std::unique_ptr<wxHtmlHelpData> book_;
    /// Null while it is closed.
    wxWeakRef<HelpFrame> window_;
};

} // namespace zy
