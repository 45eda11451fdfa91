#include <wx/filedlg.h>
#include <wx/frame.h>
#include <wx/modalhook.h>
#include <wx/statusbr.h>

#include "NativeLook.h"
#include "RulesWindow.h"

namespace zy::test {
namespace {

/// The system's own dialog that asks where to save.
class FileDialogs : private wxModalDialogHook {
  public:
    FileDialogs() { Register(); }
    bool HaveKeyboard() const { return open_ != nullptr && HasKeyboard(*open_); }
    bool AreClosed() const { return open_ == nullptr; }

  private:
    int Enter(wxDialog* dialog) override {
        open_ = dynamic_cast<wxFileDialog*>(dialog);
        return wxID_NONE;
    }
    void Exit(wxDialog* /*dialog*/) override { open_ = nullptr; }

    wxFileDialog* open_ = nullptr;
};

/// The pictures of the rules, saved by hand.
class SavePicturesWindow : public RulesWindow {
  protected:
    SavePicturesWindow() { PutRules(ThreeRules()); }

    void OpenByMenuBar() {
        Press('E', wxMOD_ALT);
        WaitForMenu();
        Press('V');
        WaitUntil("the dialog has the keyboard", [&] { return dialogs_.HaveKeyboard(); });
    }
    /// Replaces the name that stands in the dialog.
    void Save(const std::string& name) {
        Press('A', wxMOD_CONTROL);
        Type(name);
        Press(WXK_RETURN);
        WaitForNoDialog();
    }
    void WaitForNoDialog() {
        WaitUntil("the dialog is closed", [&] { return dialogs_.AreClosed(); });
    }
    static void WaitForStatusAbout(const std::string& words) {
        WaitUntil("the status bar tells of" + words, [&] {
            return RealFrame().GetStatusBar()->GetStatusText().utf8_string().find(words) != std::string::npos;
        });
    }

  private:
    FileDialogs dialogs_;
};

// The file goes to the disk of the test, which has no such folder: the status bar tells its name.

TEST_F(SavePicturesWindow, GoToTheFileThatTheUserNames) {
    Play([&] {
        OpenByMenuBar();
        Save("mine.png");
        WaitForStatusAbout(" mine.png ");
    });
}

TEST_F(SavePicturesWindow, GetTheEndingOfTheirKindWhenTheUserNamesNone) {
    Play([&] {
        OpenByMenuBar();
        Save("mine.old");
        WaitForStatusAbout(" mine.old.svg ");
    });
}

TEST_F(SavePicturesWindow, AreNotSavedOnEscape) {
    Play([&] {
        OpenByMenuBar();
        Press(WXK_ESCAPE);
        WaitForNoDialog();
        WaitForStatus("3 rules");
    });
}

} // namespace
} // namespace zy::test
