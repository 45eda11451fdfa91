#pragma once

#include <gtest/gtest.h>
#include <wx/window.h>

#include <functional>
#include <map>
#include <string>
#include <thread>
#include <vector>

#include "HelpBook.h"
#include "NativeLook.h"
#include "PictureContrast.h"
#include "ScreenPicture.h"
#include "WindowThread.h"
#include "controls/Control.h"
#include "desktop/Contrast.h"

namespace zy::test {

/// An editor's window that is used without a mouse, by somebody who has to see where the keyboard is.
template <typename EditorWindow>
class KeyboardWalk : public EditorWindow {
  protected:
    using Stops = std::vector<const Control*>;

    /// Help can be opened in it.
    KeyboardWalk() { this->world.files.Put(kHelpFile, HelpBook()); }

    /// Goes by Tab from `first`, which `leave` leaves, to the other stops and round to it again: each is
    /// reached, and looks different while it has the keyboard.
    void ExpectFocusSeen(const Control& first, const std::function<void()>& leave, const Stops& others) {
        std::map<const Control*, wxImage> atRest;
        for (const auto* stop : others) {
            atRest[stop] = PictureOf(*stop);
        }
        this->WaitForFocus(first);
        leave();
        for (const auto* stop : others) {
            this->WaitForFocus(*stop);
            ExpectSeen(*stop, atRest[stop]);
            this->Press(WXK_TAB);
        }
        this->WaitForFocus(first);
        leave();
        this->WaitForFocus(*others.front());
        ExpectSeen(*others.front(), atRest[others.front()]); // by then both are painted
        atRest[&first] = PictureOf(first);
        this->Press(WXK_TAB, wxMOD_SHIFT);
        this->WaitForFocus(first);
        ExpectSeen(first, atRest[&first]);
    }

    /// Leaves a grid from whatever cell.
    void LeaveGrid() { this->Press(WXK_TAB, wxMOD_CONTROL); }

    /// Opens the help and goes back.
    void ReadHelp() {
        this->Press(WXK_F1);
        WaitUntil("the help is open", [] { return ShownHelp() != nullptr && ShownHelp()->IsActive(); });
        std::this_thread::sleep_for(UntilNewWindowKeepsKeyboard());
        this->Press(WXK_ESCAPE);
        WaitUntil("the help is closed", [] { return ShownHelp() == nullptr; });
        this->WaitForWindow();
    }
    /// Opens About and goes back.
    void ReadAbout() {
        this->Press('H', wxMOD_ALT);
        this->WaitForMenu();
        this->Press('A');
        this->WaitForDialog("frmAbout");
        this->Press(WXK_ESCAPE);
        this->WaitForNoDialog("frmAbout");
    }

  private:
    void ExpectSeen(const Control& control, const wxImage& atRest) {
        double contrast = 0;
        try {
            WaitUntil("the mark of the keyboard is seen", [&] {
                contrast = ChangeContrast(atRest, Picture(control));
                return contrast >= kNoticeable;
            });
        } catch (const GaveUp&) {
            ADD_FAILURE() << control.Name() << " stands out by " << contrast << " while it has the keyboard";
        }
    }
    /// The picture of a control at rest, of which nothing is still to be painted.
    wxImage PictureOf(const Control& control) {
        InWindow([&] { Paint(this->Real(control)); });
        return InWindow([&] { return Picture(control); });
    }
    static void Paint(wxWindow& window) {
        window.Update();
        for (auto* child : window.GetChildren()) {
            Paint(*child);
        }
    }
    wxImage Picture(const Control& control) {
        const auto& window = this->Real(control);
        return PictureOnScreen({window.GetScreenPosition(), window.GetSize()});
    }
};

} // namespace zy::test
