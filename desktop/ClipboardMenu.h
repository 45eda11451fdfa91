#pragma once

#include <vector>

#include "controls/Event.h"
#include "controls/Form.h"
#include "desktop/ViewContext.h"
#include "shell/MainMenu.h"

class wxFrame;
class wxTextCtrl;

namespace zy {

/// Cut, Copy, Paste and Select All of the Edit menu. They work on whatever has the keyboard: the text of a
/// field or an open cell, the cells of a grid, or the item of a list.
///
/// What is possible shows while the menu is open. At any other time the keys of the entries come through.
class ClipboardMenu {
  public:
    ClipboardMenu(const ViewContext& context, const Form& form, MainMenu& menu, wxFrame& frame);

  private:
    /// Which of the entries have something to work on.
    struct Possible {
        bool cut = true;
        bool copy = true;
        bool paste = true;
        bool selectAll = true;
    };

    void Connect(wxFrame& frame);
    void Show(const Possible& possible);
    Possible FindPossible() const;
    /// The text that has the keyboard, or has it again once the menu is closed; null when none has.
    wxTextCtrl* FocusedText() const;
    /// The model of the control that has the keyboard, if it is one of that kind; else null.
    template <typename Kind>
    Kind* Focused() const {
        return dynamic_cast<Kind*>(form_.Focused());
    }

    void Cut();
    void Copy();
    void Paste();
    void SelectAll();

    const ViewContext& context_;
    const Form& form_;
    MainMenu& menu_;
    std::vector<Subscription> subscriptions_;
};

} // namespace zy
