#include <wx/filedlg.h>
#include <wx/frame.h>
#include <wx/modalhook.h>
#include <wx/statusbr.h>

#include <chrono>
#include <thread>

#include "NativeLook.h"
#include "RulesWindow.h"
#include "desktop/GtkFunctions.h"

namespace zy::test {
namespace {

/// The system's own dialog that asks where to save.
class FileDialogs : private wxModalDialogHook {
  public:
    FileDialogs() { Register(); }
    bool HaveKeyboard() const { return open_ != nullptr && HasKeyboard(*open_); }
    bool AreClosed() const { return open_ == nullptr; }
    /// What GTK has put into the open one.
    GList* Parts() const {
        return gtk_container_get_children(reinterpret_cast<_GtkContainer*>(
            gtk_dialog_get_content_area(reinterpret_cast<_GtkDialog*>(open_->m_widget))));
    }

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

    GList* HoldPartsOfDialog() {
        return InWindow([&] {
            GList* parts = dialogs_.Parts();
            g_list_foreach(
                parts, [](void* part, void*) { g_object_ref(part); }, nullptr);
            return parts;
        });
    }
    static void LetGoOf(GList* parts) { g_list_free_full(parts, g_object_unref); }

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

// While the disk is slow, GTK holds on to a part of a dialog that is gone.
TEST_F(SavePicturesWindow, LookAtNoNameInADialogThatIsGone) {
    static int complaints = 0;
    Play([&] {
        OpenByMenuBar();
        const auto parts = HoldPartsOfDialog();
        const auto count = [](const char*, GLogLevelFlags, const char*, void*) { ++complaints; };
        const auto handler =
            InWindow([&] { return g_log_set_handler("Gtk", G_LOG_LEVEL_CRITICAL, count, nullptr); });
        Type("x");
        Press(WXK_ESCAPE);
        WaitForNoDialog();
        constexpr std::chrono::milliseconds kLongerThanItWaitsForTheNextLetter{500};
        std::this_thread::sleep_for(kLongerThanItWaitsForTheNextLetter);
        EXPECT_EQ(InWindow([] { return complaints; }), 0);
        InWindow([&] {
            g_log_remove_handler("Gtk", handler);
            LetGoOf(parts);
        });
    });
}

} // namespace
} // namespace zy::test
