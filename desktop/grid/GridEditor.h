#pragma once

#include <wx/textctrl.h>

#include "controls/Grid.h"
#include "desktop/GridCellButton.h"
#include "desktop/GridWidget.h"
#include "desktop/ViewContext.h"

namespace zy {

/// The editor over the current cell of a grid: a line of text, and a button beside it where the cell has one.
///
/// The model says when it is open and holds its text and selection. What the user types is passed to the
/// model at once, and keys are the model's before they are the text's. Where a cell has a list, its text is
/// picked and not typed.
class GridEditor {
  public:
    GridEditor(const ViewContext& context, Grid& model, GridWidget& grid);

    /// Opens, moves or closes the real editor as the model's.
    void Show();
    /// Gives the text the focus.
    void TakeFocus();
    /// Drops the list of the open cell down; nothing where it has none.
    void DropList();
    /// The height that its line of text needs.
    int NeededHeight() const { return text_->GetBestSize().y; }

  private:
    void BindText();
    void CommitWhenLeft();
    /// Whether the mouse is over neither the open cell nor what scrolls the grid below it.
    bool IsMouseBeside() const;
    void Open();
    /// What assistive technology calls the editor.
    wxString NameOfCell() const;
    void Close();
    void Place();
    /// A cell's place, made as wide as the editor needs it for its whole text, over its neighbours and as far
    /// as the grid has room.
    wxRect WideEnough(wxRect cell);
    int NeededWidth() const;
    /// Shows the model's text; false when it is shown already.
    bool ShowText();
    void ShowTextAndCaret();

    void PressKey(wxKeyEvent& event);
    bool Press(const KeyPress& press);
    void TakeText();
    void TakeCaret();
    void Refuse();
    void RememberSelection() { text_->GetSelection(&selectionStart_, &selectionEnd_); }

    const ViewContext& context_;
    Grid& model_;
    CellEditor& editor_;
    GridWidget& grid_;
    wxTextCtrl* text_;
    GridCellButton button_;
    bool changed_ = false;
    // The selection before the user's change, put back when the change is refused.
    long selectionStart_ = 0;
    long selectionEnd_ = 0;
    Subscription openChanged_;
    Subscription textChanged_;
};

} // namespace zy
