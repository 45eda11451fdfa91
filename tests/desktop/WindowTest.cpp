#include "WindowTest.h"

#include <wx/choice.h>
#include <wx/clipbrd.h>
#include <wx/dataview.h>
#include <wx/frame.h>
#include <wx/textctrl.h>

#include <cstdio>
#include <cstdlib>
#include <thread>

#include "desktop/MainWindowView.h"
#include "desktop/Native.h"
#include "desktop/ShownText.h"
#include "shell/mMain.h"

namespace zy::test {
namespace {

std::vector<std::string> Split(const std::string& text) {
    std::vector<std::string> fields(1);
    for (const char character : text) {
        if (character == '|') {
            fields.emplace_back();
        } else {
            fields.back() += character;
        }
    }
    return fields;
}

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

WindowTest::WindowTest() : desktop(Windows1252()) {
    wxSetAssertHandler(FailOnAssertion);
    world.system.SetCommandLine("@RULES");
}

void WindowTest::PutRules(const std::vector<std::string>& rules) {
    world.files.Put(R"(C:\SYS\ZYRules.sys)", FileOf(rules));
}

std::vector<std::string> WindowTest::ThreeRules() {
    return {"R1|1|2|>|UCL|First rule", "R2|3|4|<=|LWL|Second rule", "R3|5|6|=|-3S|Third rule"};
}

std::vector<std::string> WindowTest::ManyRules(int count) {
    std::vector<std::string> rules;
    for (int i = 1; i <= count; ++i) {
        rules.push_back(std::to_string(i % 1000) + "|1|2|>|UCL|Rule number " + std::to_string(i));
    }
    return rules;
}

std::string WindowTest::FileOf(const std::vector<std::string>& rules) {
    std::string text;
    for (const auto& rule : rules) {
        const auto fields = Split(rule);
        text += "[RULE]\r\n   CODE         = " + fields[0] + "\r\n   MIN          = " + fields[1] +
                "\r\n   MAX          = " + fields[2] + "\r\n   COND         = " + fields[3] +
                "\r\n   ZONE         = " + fields[4] + "\r\n   DESC1        = " + fields[5] +
                "\r\n   DESC2        = \r\n   DESC3        = \r\n";
    }
    return text;
}

World WindowTest::OutsideWorld() {
    return {.files = world.files,
            .system = world.system,
            .traceServers = world.traceServers,
            .recycleBin = world.recycleBin,
            .dialogs = desktop.MessageBoxes(),
            .codePage = world.codePage};
}

int WindowTest::Play(const std::function<void()>& script) {
    return PlayFromTheStart([&] {
        WaitUntil("the window is open", [] {
            const auto* frame = wxTheApp->GetTopWindow();
            return frame != nullptr && frame->IsShownOnScreen() && RealFrame().IsActive();
        });
        script();
    });
}

int WindowTest::PlayFromTheStart(const std::function<void()>& script) {
    desktop.StartToolkit();
    std::thread person([&] { RunScript(script); });
    const int status = desktop.Run([&] { return RunProgram(); });
    person.join();
    return status;
}

int WindowTest::RunProgram() {
    program = std::make_unique<Program>(OutsideWorld());
    const MainWindowView view(desktop, program->window);
    return mMain(*program) == StartUp::WindowShown ? desktop.RunUntilClosed() : 0;
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
    wxTheApp->CallAfter([this] {
        if (program->window.IsLoaded()) {
            program->form.ChangeFlag = false;
            program->window.Unload();
        }
    });
}

void WindowTest::Paste(const wxString& text) {
    InWindow([&] {
        wxTheClipboard->Open();
        wxTheClipboard->SetData(new wxTextDataObject(text));
        wxTheClipboard->Close();
    });
    Press('V', wxMOD_CONTROL);
}

void WindowTest::Enter(const Control& control) {
    Click(control);
    WaitForFocus(control);
}

void WindowTest::Fill(const TextBox& box, const std::string& text) {
    Enter(box);
    Press('A', wxMOD_CONTROL);
    Press(WXK_DELETE);
    WaitUntil("the box is empty", [&] { return box.Text().empty(); });
    Type(text);
    WaitUntil("the box holds \"" + text + "\"", [&] { return box.Text() == text; });
}

void WindowTest::PickItem(const ComboBox& box, int index) {
    Enter(box);
    Press(WXK_ESCAPE); // closes the list that the click has dropped down
    Press(WXK_HOME);
    for (int i = 0; i < index; ++i) {
        Press(WXK_DOWN);
    }
    WaitUntil("the item is picked", [&] { return box.ListIndex() == index; });
}

void WindowTest::ChooseSave() {
    Press('F', wxMOD_ALT);
    Press('S');
}

void WindowTest::ChooseExit() {
    Press('F', wxMOD_ALT);
    Press('X');
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

void WindowTest::ClickInBox(int answer) {
    const auto closed = InWindow([&] { return boxes.ClosedCount(); });
    hands->Click(InWindow([&] { return ButtonOf(*boxes.Active(), answer); }));
    WaitUntil("the box is gone", [&] { return boxes.ClosedCount() > closed; });
}

std::vector<std::string> WindowTest::BoxesSeen() {
    return InWindow([&] { return boxes.Seen(); });
}

std::string WindowTest::TextIn(const TextBox& box) {
    return InWindow([&] { return dynamic_cast<wxTextCtrl&>(Real(box)).GetValue().utf8_string(); });
}

std::string WindowTest::ItemIn(const ComboBox& box) {
    return InWindow([&] { return dynamic_cast<wxChoice&>(Real(box)).GetStringSelection().utf8_string(); });
}

bool WindowTest::IsEnabled(const Control& control) {
    return InWindow([&] { return Real(control).IsEnabled(); });
}

std::vector<std::string> WindowTest::Row(int item) {
    return InWindow([&] {
        std::vector<std::string> cells;
        for (unsigned column = 0; column < RealList().GetColumnCount(); ++column) {
            wxVariant value;
            const auto& rows = static_cast<wxDataViewVirtualListModel&>(*RealList().GetModel());
            rows.GetValueByRow(value, static_cast<unsigned>(item - 1), column);
            cells.push_back(value.GetString().utf8_string());
        }
        return cells;
    });
}

int WindowTest::SelectedRow() {
    return InWindow([&] {
        const auto selected = RealList().GetSelection();
        return selected.IsOk() ? static_cast<int>(wxPtrToUInt(selected.GetID())) : 0;
    });
}

bool WindowTest::IsRowVisible(int item) {
    const auto place = PlaceOfRow(item);
    return InWindow([&] { return RealList().GetScreenRect().Contains(place); });
}

std::string WindowTest::Status() {
    return InWindow([&] { return RealFrame().GetStatusBar()->GetStatusText().utf8_string(); });
}

wxPoint WindowTest::PlaceOf(const Control& control) {
    return InWindow([&] { return MiddleOnScreen(Real(control)); });
}

wxPoint WindowTest::PlaceOfRow(int item) {
    return InWindow([&] {
        const wxDataViewItem row(wxUIntToPtr(static_cast<unsigned>(item)));
        const wxRect place = RealList().GetItemRect(row, RealList().GetColumn(0));
        return RealList().ClientToScreen(wxPoint(place.x + place.width / 2, place.y + place.height / 2));
    });
}

wxPoint WindowTest::PlaceOfArrow(std::size_t arrow) {
    return InWindow([&] { return MiddleOnScreen(*Real(page().cmdUpDown).GetChildren()[arrow]); });
}

void WindowTest::WaitForFocus(const Control& control) {
    WaitUntil(control.Name() + " has the focus", [&] {
        return RealFrame().IsActive() && HoldsFocus(Real(control)) && program->form.Focused() == &control;
    });
}

void WindowTest::WaitForStatus(const std::string& text) {
    WaitUntil("the status bar says \"" + text + "\"",
              [&] { return RealFrame().GetStatusBar()->GetStatusText() == text; });
}

void WindowTest::WaitForSelection(int item) {
    WaitUntil("row " + std::to_string(item) + " is selected", [&] {
        const auto selected = RealList().GetSelection();
        return page().lstRulesList.Selected() == item && selected.IsOk() &&
               wxPtrToUInt(selected.GetID()) == static_cast<unsigned>(item);
    });
}

wxWindow& WindowTest::Real(const Control& control) {
    auto* window = wxWindow::FindWindowByName(ToShown(Windows1252(), control.Name()));
    if (window == nullptr) {
        throw GaveUp("No real control called " + control.Name());
    }
    return *window;
}

wxFrame& WindowTest::RealFrame() {
    return dynamic_cast<wxFrame&>(*wxTheApp->GetTopWindow());
}

wxDataViewCtrl& WindowTest::RealList() {
    return dynamic_cast<wxDataViewCtrl&>(Real(page().lstRulesList));
}

} // namespace zy::test
