#pragma once

#include <wx/modalhook.h>
#include <wx/msgdlg.h>

#include <string>
#include <vector>

namespace zy::test {

/// Knows of every message box of the toolkit. For the window's own thread alone.
class MessageBoxes : private wxModalDialogHook {
  public:
    MessageBoxes() { Register(); }

    /// The box that has the keyboard, once the window manager has given it to it; null when there is none.
    wxMessageDialog* Active() const;
    bool AnyOpen() const { return !open_.empty(); }
    /// The texts of all boxes that opened so far.
    const std::vector<std::string>& Seen() const { return seen_; }
    std::size_t ClosedCount() const { return seen_.size() - open_.size(); }

  private:
    int Enter(wxDialog* dialog) override;
    void Exit(wxDialog* dialog) override;

    std::vector<wxMessageDialog*> open_;
    std::vector<std::string> seen_;
};

} // namespace zy::test
