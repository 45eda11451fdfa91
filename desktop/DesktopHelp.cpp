#include "desktop/DesktopHelp.h"

#include <wx/app.h>
#include <wx/display.h>
#include <wx/filesys.h>
#include <wx/fs_arc.h>
#include <wx/fs_mem.h>
#include <wx/html/helpctrl.h>
#include <wx/html/helpfrm.h>
#include <wx/imaggif.h>
#include <wx/log.h>
#include <wx/treectrl.h>

#include <utility>

#include "desktop/Native.h"
#include "desktop/Pictures.h"
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
    wxFileSystem::AddHandler(new wxMemoryFSHandler);
    wxFileSystem::AddHandler(new wxArchiveFSHandler);
}

/// The viewer, in a window that has room for a picture beside the contents.
class Viewer : public wxHtmlHelpController {
  public:
    using wxHtmlHelpController::wxHtmlHelpController;

  private:
    /// The list of contents begins with the book's title, closed.
    static void ShowChapters(wxHtmlHelpFrame& frame) {
        auto* contents = dynamic_cast<wxTreeCtrl*>(frame.FindWindow(wxID_HTML_TREECTRL));
        wxTreeItemIdValue cookie{};
        if (contents != nullptr && !contents->IsEmpty()) {
            contents->Expand(contents->GetFirstChild(contents->GetRootItem(), cookie));
        }
    }

    wxHtmlHelpFrame* CreateHelpFrame(wxHtmlHelpData* data) override {
        auto* frame = wxHtmlHelpController::CreateHelpFrame(data);
        wxSize size = frame->FromDIP(wxSize(1000, 700));
        size.DecTo(wxDisplay(frame).GetClientArea().GetSize());
        frame->SetSize(size);
        frame->SetIcons(ProgramIcon());
        LayOutUnseen(*frame);
        ShowChapters(*frame);
        return frame;
    }
};

} // namespace

DesktopHelp::DesktopHelp(FileSystem& files, Dialogs& dialogs, std::function<void()> startToolkit)
    : files_(files), dialogs_(dialogs), startToolkit_(std::move(startToolkit)) {}

DesktopHelp::~DesktopHelp() = default;

void DesktopHelp::Show(std::string_view helpFile, HelpCommand command, std::uintptr_t /*data*/) {
    if (!viewer_ && !Open(helpFile)) {
        return;
    }
    if (command == HelpCommand::Key) {
        viewer_->DisplayIndex();
    } else {
        viewer_->DisplayContents();
    }
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
    auto viewer = std::make_unique<Viewer>(wxHF_DEFAULT_STYLE, wxTheApp->GetTopWindow());
    viewer->SetTitleFormat("%s");
    const wxLogNull toldBelow;
    if (!viewer->AddBook(kBook)) {
        wxMemoryFSHandler::RemoveFile(kNameInMemory);
        Refuse(helpFile, "it is no help file, or it is damaged");
        return false;
    }
    viewer_ = std::move(viewer);
    return true;
}

void DesktopHelp::Refuse(std::string_view helpFile, std::string_view why) {
    dialogs_.ShowMessage("Cannot show the help file " + std::string(helpFile) + ": " + std::string(why),
                         kApplicationTitle);
}

void DesktopHelp::Close() {
    if (viewer_) {
        viewer_.reset();
        wxMemoryFSHandler::RemoveFile(kNameInMemory);
    }
}

} // namespace zy
