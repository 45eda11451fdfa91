#include "desktop/Toolkit.h"

#include <wx/app.h>
#include <wx/gdicmn.h>
#include <wx/init.h>
#include <wx/log.h>

#include <array>
#include <iostream>
#include <string>

#include "desktop/Native.h"

namespace zy {
namespace {

/// By this a desktop finds the entry of a window: its icon, its name, and the group that it belongs to.
constexpr const char* kApplicationId = ZY_APPLICATION_ID;

class App : public wxApp {
  public:
    App() { SetAppDisplayName(kApplicationId); }

    // The program reads its command line itself.
    bool OnInit() override { return true; }

    /// As the toolkit says it of a program that has set no language, but without the table of all languages.
    wxLayoutDirection GetLayoutDirection() const override { return wxLayout_LeftToRight; }

    /// A mistake in the use of the toolkit, which goes on in spite of it.
    void OnAssertFailure(const wxChar* file, int line, const wxChar* function, const wxChar* condition,
                         const wxChar* message) override {
        std::cerr << wxString::Format("%s:%d: %s: %s %s", file, line, function, condition,
                                      message == nullptr ? L"" : message)
                  << std::endl;
    }
};

/// Frees what the toolkit keeps of a start that failed.
void FreeStock() {
    wxDeleteStockLists();
    wxDELETE(wxTheColourDatabase);
}

} // namespace

Toolkit::Toolkit() {
    // What the toolkit takes for the program's file is what it calls the windows by.
    static std::string name{kApplicationId};
    std::array<char*, 2> arguments{name.data(), nullptr};
    int count = 1;
    wxApp::SetInstance(new App);
    {
        // The program itself reports that there is no display; the toolkit's message would be a second one.
        const wxLogNull silence;
        if (!wxEntryStart(count, arguments.data())) {
            FreeStock();
            throw CannotShow(
                "There is no display to open a window on: start it in a desktop session, or set DISPLAY");
        }
    }
    // The toolkit would make pictures of the height of text, which is none then, and break off.
    if (!HasFont()) {
        wxEntryCleanup();
        throw CannotShow("There is no font to show text with: install one, such as DejaVu Sans");
    }
    // NOLINTNEXTLINE(clang-analyzer-cplusplus.NewDeleteLeaks): the target is the toolkit's own from here on
    delete wxLog::SetActiveTarget(new wxLogStderr);
    wxTheApp->SetExitOnFrameDelete(false);
    wxTheApp->CallOnInit();
    TellFocusFirst();
    CloseMenusThatFailed();
    OfferNoEmoji();
    StrengthenFaintColours();
}

Toolkit::~Toolkit() {
    wxEntryCleanup();
}

void Toolkit::RunLoop() {
    wxTheApp->OnRun();
}

void Toolkit::EndLoop() {
    wxTheApp->ExitMainLoop();
}

} // namespace zy
