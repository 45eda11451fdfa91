#pragma once

#include <functional>
#include <memory>
#include <optional>
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

class wxDataViewCtrl;
class wxFrame;
class wxWindow;

namespace zy::test {

/// The rules editor in its real window, over a disk in memory, used by a person who looks, types and clicks.
///
/// A test starts it with Play and a script. Verbs are for the script's own thread; they wait for what they need and
/// give the test up when it does not come.
class WindowTest : public ::testing::Test {
  protected:
    WindowTest();

    /// Puts a rules file on the disk, each rule given as "code|min|max|cond|zone|description".
    void PutRules(const std::vector<std::string>& rules);
    /// Some rules that differ in all their fields.
    static std::vector<std::string> ThreeRules();
    static std::vector<std::string> ManyRules(int count);
    /// The bytes of a rules file.
    static std::string FileOf(const std::vector<std::string>& rules);
    std::optional<std::string> File() const { return world.files.Get(R"(C:\SYS\ZYRules.sys)"); }

    /// Starts the program, plays the script once the window has the keyboard, and closes the window if the script did
    /// not. Returns the exit status.
    int Play(const std::function<void()>& script);
    /// The same for a program that may not come to open its window.
    int PlayFromTheStart(const std::function<void()>& script);

    // What the person does.
    void Press(int key, int modifiers = wxMOD_NONE) { hands->Press(key, modifiers); }
    void Type(const std::string& text) { hands->Type(text); }
    /// Pastes by Ctrl+V.
    void Paste(const wxString& text);
    void Click(const Control& control) { hands->Click(PlaceOf(control)); }
    void ClickRow(int item) { hands->Click(PlaceOfRow(item)); }
    void ClickUp() { hands->Click(PlaceOfArrow(0)); }
    void ClickDown() { hands->Click(PlaceOfArrow(1)); }
    /// Clicks into a control and waits until it has the focus.
    void Enter(const Control& control);
    /// Replaces the text of a box, as typed.
    void Fill(const TextBox& box, const std::string& text);
    /// Picks an item of a drop-down list with the mouse.
    void PickItem(const ComboBox& box, int index);
    /// Chooses from the menu bar by the access keys.
    void ChooseSave();
    void ChooseExit();
    /// Closes the window as its close box does, by way of the window manager.
    void CloseWindow();

    // Message boxes.
    /// Waits for the box and checks its text and its title.
    void ExpectBox(const std::string& text, const std::string& title);
    /// Presses a key in the box and waits until it is gone.
    void PressInBox(int key, int modifiers = wxMOD_NONE);
    void ClickInBox(int answer);
    std::vector<std::string> BoxesSeen();

    // What the person sees.
    std::string TextIn(const TextBox& box);
    std::string ItemIn(const ComboBox& box);
    bool IsEnabled(const Control& control);
    std::vector<std::string> Row(int item);
    int SelectedRow();
    bool IsRowVisible(int item);
    std::string Status();
    wxPoint PlaceOf(const Control& control);
    wxPoint PlaceOfRow(int item);
    wxPoint PlaceOfArrow(std::size_t arrow);

    void WaitForFocus(const Control& control);
    void WaitForStatus(const std::string& text);
    void WaitForSelection(int item);

    /// The real control that shows a model. For the window's thread.
    static wxWindow& Real(const Control& control);
    static wxFrame& RealFrame();
    wxDataViewCtrl& RealList();

    RulesControls& page() { return program->rulesPage.controls; }

    MemoryWorld world;
    Desktop desktop;
    MessageBoxes boxes;
    std::unique_ptr<Program> program;
    std::unique_ptr<Hands> hands;
  private:
    World OutsideWorld();
    int RunProgram();
    void RunScript(const std::function<void()>& script);
    /// Closes the window without saving.
    void LeaveWindow();

};

} // namespace zy::test
