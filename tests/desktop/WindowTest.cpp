#include "WindowTest.h"

#include <wx/app.h>
#include <wx/clipbrd.h>
#include <wx/dataobj.h>
#include <wx/dialog.h>
#include <wx/frame.h>

#include <cstdio>
#include <cstdlib>
#include <thread>

#include "NativeLook.h"
#include "desktop/MainWindowView.h"
#include "desktop/Native.h"
#include "desktop/ShownText.h"
#include "platform/World.h"
#include "shell/mMain.h"

namespace zy::test {
namespace {

wxPoint MiddleOnScreen(const wxWindow& window) {
    const wxRect place = window.GetScreenRect();
    return {place.x + place.width / 2, place.y + place.height / 2};
}

/// A test that waits in vain has a window, and perhaps a box, that nobody will close.
[[noreturn]] void EndHere(const std::string& why) {
    ADD_FAILURE() << why;
    std::fflush(nullptr);
    std::_Exit(EXIT_FAILURE);
}

void FailOnAssertion(const wxString& file, int line, const wxString& /*function*/, const wxString& condition,
                     const wxString& message) {
    ADD_FAILURE() << file << ':' << line << ": " << condition << ' ' << message;
}

} // namespace

WindowTest::WindowTest(const std::string& argument) : desktop(Windows1252(), world.files) {
    wxSetAssertHandler(FailOnAssertion);
    world.system.SetCommandLine(argument);
}

World WindowTest::OutsideWorld() {
    return WorldOf(world, desktop.Get());
}

int WindowTest::Play(const std::function<void()>& script) {
    return PlayFromTheStart([&] {
        WaitForWindow();
        script();
    });
}

int WindowTest::PlayFromTheStart(const std::function<void()>& script) {
    desktop.StartToolkit();
    AwaitWork();
    std::thread user([&] { RunScript(script); });
    const int status = desktop.Run([&] { return RunProgram(); });
    user.join();
    return status;
}

int WindowTest::RunProgram() {
    program = std::make_unique<Program>(OutsideWorld());
    const MainWindowView view(desktop, program->window);
    prepare();
    const int status = mMain(*program) == StartUp::WindowShown ? desktop.RunUntilClosed() : 0;
    ended_.set_value();
    return status;
}

void WindowTest::RunScript(const std::function<void()>& script) {
    try {
        hands = std::make_unique<Hands>();
        script();
        LeaveWindow();
    } catch (const std::exception& error) {
        EndHere(error.what());
    }
}

void WindowTest::LeaveWindow() {
    // From here on the window's thread may be gone at any moment, so nothing is asked of it and waited for.
    HandToWindow([this] {
        if (program->form.Visible()) {
            program->rulesPage.controls.grdRules.editor.Cancel();
            program->unitsPage.controls.grdUnits.editor.Cancel();
            program->securityPage.controls.grdSecurity.editor.Cancel();
            program->form.ChangeFlag = false;
            program->state.gbChanged = false;
            program->window.Unload();
        }
    });
}

void WindowTest::PutOnClipboard(const wxString& text) {
    InWindow([&] {
        const wxClipboardLocker open;
        wxTheClipboard->SetData(new wxTextDataObject(text));
    });
}

void WindowTest::Paste(const wxString& text) {
    PutOnClipboard(text);
    Press('V', wxMOD_CONTROL);
}

void WindowTest::Enter(const Control& control) {
    Click(control);
    WaitForFocus(control);
}

void WindowTest::OpenFileMenu() {
    Press('F', wxMOD_ALT);
    WaitForMenu();
}

void WindowTest::ChooseSave() {
    OpenFileMenu();
    Press('S');
    WaitForNoMenu();
}

void WindowTest::ChooseExit() {
    OpenFileMenu();
    Press('X');
    // The window is nobody's to ask any more.
    if (ended_.get_future().wait_for(kPatience) != std::future_status::ready) {
        throw GaveUp("Waited in vain until the program ends");
    }
}

void WindowTest::WaitForMenu() {
    WaitUntil("a menu is open", [] { return IsMenuOpen(); });
}

void WindowTest::WaitForNoMenu() {
    WaitUntil("no menu is open", [] { return !IsMenuOpen(); });
}

void WindowTest::LeaveMenu() {
    Press(WXK_ESCAPE);
    Press(WXK_ESCAPE);
    WaitForNoMenu();
}

void WindowTest::CloseWindow() {
    Press(WXK_F4, wxMOD_ALT);
}

void WindowTest::ExpectBox(const std::string& text, const std::string& title) {
    WaitUntil("the box \"" + text + "\" opens", [&] { return boxes.Active() != nullptr; });
    EXPECT_EQ(InWindow([&] { return boxes.Active()->GetMessage().utf8_string(); }), text);
    EXPECT_EQ(InWindow([&] { return TitleOf(*boxes.Active()); }), title);
    EXPECT_FALSE(InWindow([&] { return HasPicture(*boxes.Active()); }));
}

void WindowTest::PressInBox(int key, int modifiers) {
    const auto closed = InWindow([&] { return boxes.ClosedCount(); });
    Press(key, modifiers);
    WaitUntil("the box is gone", [&] { return boxes.ClosedCount() > closed; });
}

void WindowTest::PressWhereItDoesNothing(int key, int modifiers) {
    constexpr std::chrono::milliseconds kLongEnough{300};
    const auto closed = InWindow([&] { return boxes.ClosedCount(); });
    Press(key, modifiers);
    std::this_thread::sleep_for(kLongEnough);
    EXPECT_EQ(InWindow([&] { return boxes.ClosedCount(); }), closed);
}

void WindowTest::ClickInLastBox(int answer) {
    hands->Click(InWindow([&] { return ButtonOf(*boxes.Active(), answer); }));
}

void WindowTest::ClickInBox(int answer) {
    const auto closed = InWindow([&] { return boxes.ClosedCount(); });
    ClickInLastBox(answer);
    WaitUntil("the box is gone", [&] { return boxes.ClosedCount() > closed; });
}

std::vector<std::string> WindowTest::BoxesSeen() {
    return InWindow([&] { return boxes.Seen(); });
}

void WindowTest::WaitForDialog(const std::string& name) {
    WaitUntil(name + " is open", [&] {
        auto* dialog = RealDialog(name);
        return dialog != nullptr && dialog->IsShownOnScreen() && dialog->IsActive();
    });
}

void WindowTest::WaitForNoDialog(const std::string& name) {
    WaitUntil(name + " is gone", [&] { return RealDialog(name) == nullptr; });
}

void WindowTest::ClickIn(const std::string& control) {
    // The window before may still lie over one that has just come up, although that is the active one.
    WaitUntil("nothing lies over " + control, [&] {
        auto& wanted = RealNamed(control);
        auto* found = wxFindWindowAtPoint(MiddleOnScreen(wanted));
        return wxGetTopLevelParent(found) == wxGetTopLevelParent(&wanted);
    });
    hands->Click(InWindow([&] { return MiddleOnScreen(RealNamed(control)); }));
}

void WindowTest::ExpectRoomForEveryPart(const std::string& dialog) {
    InWindow([&] {
        const auto& inside = *RealDialog(dialog)->GetChildren().front();
        ASSERT_FALSE(inside.GetChildren().empty());
        EXPECT_EQ(inside.GetSize(), RealDialog(dialog)->GetClientSize());
        for (const auto* part : inside.GetChildren()) {
            if (!part->IsShown()) {
                continue;
            }
            const auto name = part->GetName().utf8_string();
            EXPECT_TRUE(wxRect(inside.GetSize()).Contains(part->GetRect())) << name;
            EXPECT_GE(part->GetSize().x, part->GetBestSize().x) << name;
            EXPECT_GE(part->GetSize().y, part->GetBestSize().y) << name;
        }
    });
}

void WindowTest::WaitForFocusIn(const std::string& control) {
    WaitUntil(control + " has the focus", [&] { return HoldsFocus(RealNamed(control)); });
}

bool WindowTest::IsEnabled(const Control& control) {
    return InWindow([&] { return Real(control).IsEnabled(); });
}

std::string WindowTest::Status() {
    return InWindow([&] { return RealFrame().GetStatusBar()->GetStatusText().utf8_string(); });
}

std::string WindowTest::OnClipboard() {
    return InWindow([] { return TextOnClipboard().utf8_string(); });
}

wxPoint WindowTest::PlaceOf(const Control& control) {
    return InWindow([&] { return MiddleOnScreen(Real(control)); });
}

wxPoint WindowTest::PlaceOfArrow(const UpDown& arrows, std::size_t arrow) {
    return InWindow([&] { return MiddleOnScreen(*Real(arrows).GetChildren()[arrow]); });
}

void WindowTest::WaitForFocus(const Control& control) {
    WaitUntil(control.Name() + " has the focus", [&] {
        return RealFrame().IsActive() && HoldsFocus(Real(control)) && program->form.Focused() == &control;
    });
}

void WindowTest::Resize(const wxSize& size) {
    constexpr int kBorders = 60;
    const auto isAbout = [](int is, int wanted) { return std::abs(is - wanted) < kBorders; };
    InWindow([&] { RealFrame().SetSize(size); });
    WaitUntil("the window is laid out in its new size", [&] {
        // Its own size is the new one before anything in it has moved. The status bar lies at its lower edge.
        const wxRect window = RealFrame().GetScreenRect();
        const wxRect bar = RealFrame().GetStatusBar()->GetScreenRect();
        return isAbout(window.width, size.x) && isAbout(window.height, size.y) &&
               isAbout(bar.width, window.width) && isAbout(bar.GetBottom(), window.GetBottom());
    });
}

void WindowTest::WaitForWindow() {
    WaitUntil("the window is open", [] {
        auto* frame = dynamic_cast<wxFrame*>(wxTheApp->GetTopWindow());
        return frame != nullptr && frame->IsShownOnScreen() && frame->IsActive();
    });
}

void WindowTest::WaitForStatus(const std::string& text) {
    WaitUntil("the status bar says \"" + text + "\"",
              [&] { return RealFrame().GetStatusBar()->GetStatusText() == text; });
}

wxWindow& WindowTest::Real(const Control& control) {
    return RealNamed(control.Name());
}

wxWindow& WindowTest::RealNamed(const std::string& name) {
    auto* window = wxWindow::FindWindowByName(ToShown(Windows1252(), name));
    if (window == nullptr) {
        throw GaveUp("No real control called " + name);
    }
    return *window;
}

wxDialog* WindowTest::RealDialog(const std::string& name) {
    return dynamic_cast<wxDialog*>(wxWindow::FindWindowByName(ToShown(Windows1252(), name)));
}

wxFrame& WindowTest::RealFrame() {
    return dynamic_cast<wxFrame&>(*wxTheApp->GetTopWindow());
}

} // namespace zy::test
