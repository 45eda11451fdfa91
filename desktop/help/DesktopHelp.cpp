#include "desktop/DesktopHelp.h"

#include <wx/app.h>
#include <wx/filesys.h>
#include <wx/fs_arc.h>
#include <wx/fs_mem.h>
#include <wx/html/helpdata.h>
#include <wx/imaggif.h>
#include <wx/log.h>

#include <utility>

#include "desktop/HelpFrame.h"
#include "desktop/HelpWindow.h"
#include "shell/Application.h"
#include "shell/mZYGlobal.h"

namespace zy {
namespace {

// The file as the toolkit's own file systems know it.
constexpr const char* kNameInMemory = "zysetup.hlp";
constexpr const char* kBook = "memory:zysetup.hlp#zip:zysetup.hhp";

/// What the viewer needs to read a book from memory and to show its pictures.
void AddReaders() {
    if (wxImage::FindHandler(wxBITMAP_TYPE_GIF) == nullptr) {
        wxImage::AddHandler(new wxGIFHandler);
    }
    // NOLINTBEGIN(clang-analyzer-cplusplus.NewDeleteLeaks): the toolkit deletes them in the end
    wxFileSystem::AddHandler(new wxMemoryFSHandler);
    wxFileSystem::AddHandler(new wxArchiveFSHandler);
}
// NOLINTEND(clang-analyzer-cplusplus.NewDeleteLeaks)

} // namespace

DesktopHelp::DesktopHelp(FileSystem& files, Dialogs& dialogs, std::function<void()> startToolkit)
    : files_(files), dialogs_(dialogs), startToolkit_(std::move(startToolkit)) {}

DesktopHelp::~DesktopHelp() = default;

void DesktopHelp::Show(std::string_view helpFile, HelpCommand command, std::uintptr_t /*data*/) {
    if (!book_ && !Open(helpFile)) {
        return;
    }
    HelpFrame& window = Window();
    if (command == HelpCommand::Key) {
        window.Inside().ShowIndex();
    } else {
        window.Inside().ShowContents();
    }
}

HelpFrame& DesktopHelp::Window() {
    // A window that was closed lives on until the events that stand in line are done.
    if (!window_ || wxTheApp->IsScheduledForDestruction(window_)) {
        window_ = new HelpFrame(*wxTheApp->GetTopWindow(), *book_);
    }
    window_->Show();
    window_->Raise();
    return *window_;
}

bool DesktopHelp::Open(std::string_view helpFile) {
    const auto opened = files_.OpenForReading(helpFile);
    if (!opened.handle) {
        Refuse(helpFile, Describe(opened.error));
        return false;
    }
    auto& file = *opened.handle;
    const auto content = ReadFileText(file, static_cast<std::uint32_t>(file.Size()));
    startToolkit_();
    AddReaders();
    wxMemoryFSHandler::AddFileWithMimeType(kNameInMemory, content.data(), content.size(), "application/zip");
    auto book = std::make_unique<wxHtmlHelpData>();
    const wxLogNull toldBelow;
    if (!book->AddBook(kBook)) {
        wxMemoryFSHandler::RemoveFile(kNameInMemory);
        Refuse(helpFile, "it is no help file, or it is damaged");
        return false;
    }
    book_ = std::move(book);
    return true;
}

void DesktopHelp::Refuse(std::string_view helpFile, std::string_view why) {
    dialogs_.ShowMessage("Cannot show the help file " + std::string(helpFile) + ": " + std::string(why),
                         kApplicationTitle);
}

void DesktopHelp::Close() {
    if (window_) {
        window_->Destroy();
    }
    if (book_) {
        book_.reset();
        wxMemoryFSHandler::RemoveFile(kNameInMemory);
    }
}

} // namespace zy
