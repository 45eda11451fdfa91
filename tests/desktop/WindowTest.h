#pragma once

#include <functional>
#include <future>
#include <memory>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Hands.h"
#include "MessageBoxes.h"
#include "WindowThread.h"
#include "desktop/Desktop.h"
#include "platform/memory/MemoryWorld.h"
#include "shell/Program.h"

class wxDialog;
class wxFrame;
class wxWindow;

namespace zy::test {

/// The program in its real window, over a disk in memory, used by the user who looks, types and clicks.
///
/// A test starts it with Play and a script. Verbs are for the script's own thread; they wait for what they
/// need and give the test up when it does not come.
class WindowTest : public ::testing::Test {
  protected:
    /// Starts with this argument, which names the editor.
    explicit WindowTest(const std::string& argument);

    /// Starts the program, plays the script once the window has the keyboard, and closes the window if the
    /// script did not. Returns the exit status.
    int Play(const std::function<void()>& script);
    /// The same for a program that may not come to open its window.
    int PlayFromTheStart(const std::function<void()>& script);
    /// Called before the program starts its editor.
    std::function<void()> prepare = [] {};

    // What the user does.
    void Press(int key, int modifiers = wxMOD_NONE) { hands->Press(key, modifiers); }
    void Type(const std::string& text) { hands->Type(text); }
    void PutOnClipboard(const wxString& text);
    /// Pastes by Ctrl+V.
    void Paste(const wxString& text);
    void Click(const Control& control) { hands->Click(PlaceOf(control)); }
    /// Clicks into a control and waits until it has the focus.
    void Enter(const Control& control);
    /// Clicks the upper of two arrows, or the lower.
    void ClickUp(const UpDown& arrows) { hands->Click(PlaceOfArrow(arrows, 0)); }
    void ClickDown(const UpDown& arrows) { hands->Click(PlaceOfArrow(arrows, 1)); }
    /// Chooses from the menu bar by the access keys. Exit has to end the program, without a question.
    void ChooseSave();
    void ChooseExit();
    void WaitForMenu();
    void WaitForNoMenu();
    /// Goes out of a menu, and where that takes a key of its own, out of the menu bar.
    void LeaveMenu();
    /// Gives the window a size and waits until it is laid out in it.
    void Resize(const wxSize& size);
    /// Closes the window as its close box does, by way of the window manager.
    void CloseWindow();

    // Message boxes.
    /// Waits for the box and checks its text and its title.
    void ExpectBox(const std::string& text, const std::string& title);
    /// Presses a key in the box and waits until it is gone.
    void PressInBox(int key, int modifiers = wxMOD_NONE);
    /// Presses a key in a box that it does not close, and leaves the box the time to close in spite of that.
    void PressWhereItDoesNothing(int key, int modifiers = wxMOD_NONE);
    void ClickInBox(int answer);
    /// Clicks in a box behind which the program ends.
    void ClickInLastBox(int answer);
    std::vector<std::string> BoxesSeen();

    // The program's own dialogs, by the names of dialog and control.
    void WaitForDialog(const std::string& name);
    void WaitForNoDialog(const std::string& name);
    void ClickIn(const std::string& control);
    /// Each of its controls can be seen whole and has the room it needs.
    static void ExpectRoomForEveryPart(const std::string& dialog);
    void WaitForFocusIn(const std::string& control);

    // What the user sees.
    bool IsEnabled(const Control& control);
    std::string Status();
    std::string OnClipboard();
    wxPoint PlaceOf(const Control& control);

    /// Waits until the main window is open and has the keyboard.
    void WaitForWindow();
    void WaitForFocus(const Control& control);
    void WaitForStatus(const std::string& text);

    /// The real control that shows a model. For the window's thread.
    static wxWindow& Real(const Control& control);
    static wxWindow& RealNamed(const std::string& name);
    static wxDialog* RealDialog(const std::string& name);
    static wxFrame& RealFrame();

    MemoryWorld world;
    Desktop desktop;
    MessageBoxes boxes;
    std::unique_ptr<Program> program;
    std::unique_ptr<Hands> hands;

  private:
    World OutsideWorld();
    int RunProgram();
    void OpenFileMenu();
    void RunScript(const std::function<void()>& script);
    /// Closes the window without saving.
    void LeaveWindow();
    wxPoint PlaceOfArrow(const UpDown& arrows, std::size_t arrow);

    std::promise<void> ended_;
};

} // namespace zy::test
