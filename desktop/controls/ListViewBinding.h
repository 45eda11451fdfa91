#pragma once

#include <functional>
#include <vector>

#include "controls/ListView.h"
#include "desktop/ControlBinding.h"
#include "desktop/ListRows.h"

namespace zy {

/// A list. What the program does to it is shown once, at the end of the action, so that a list that is filled
/// anew and selected in several steps does not flicker or scroll about.
class ListViewBinding : public ControlBinding {
  public:
    ListViewBinding(const ViewContext& context, const Inside& inside, ListView& model);

    void ShowAppearance() override;
    void Rescale() override;

  private:
    void MakeColumns();
    void ShowColumnWidths();
    /// The text at a place on the screen if its column is too narrow for it, and what there is to tell of its
    /// item.
    wxString TipAt(const wxPoint& onScreen) const;
    wxString CutTextIn(const wxDataViewItem& item, const wxDataViewColumn& column) const;
    wxString HintOf(int item) const;
    void TakePick();
    void PressKey(wxKeyEvent& event);
    /// By a key where the place is the default one.
    void AskForMenu(const wxPoint& place);
    void ShowChanges();
    void ShowSelection();
    void ShowVisibleRows();
    void ChangeList(const std::function<void()>& change);
    /// The item selected in the real list; 0 when none is.
    int RealSelection() const;

    ListView& model_;
    wxDataViewCtrl* list_;
    wxObjectDataPtr<ListRows> rows_;
    std::vector<int> shownWidths_;
    bool rowsChanged_ = false;
    bool reveals_ = false;  ///< the selected item is to be seen, be it the one that was selected last
    bool changing_ = false; ///< the program changes the real list
};

} // namespace zy
