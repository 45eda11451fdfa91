#pragma once

#include <wx/containr.h>
#include <wx/html/helpwnd.h>
#include <wx/treebase.h>

#include <vector>

#include "desktop/HelpPage.h"

class wxStaticText;

namespace zy {

/// The inside of the help's window: buttons, the lists of contents, index and search, and the page.
class HelpWindow : public wxNavigationEnabled<wxHtmlHelpWindow> {
  public:
    /// The book must outlive the window.
    HelpWindow(wxWindow* frame, wxHtmlHelpData& book);

    /// Shows the contents in front and the book's first page, which gets the keyboard.
    void ShowContents();
    /// Shows the index in front, and gives the keyboard to its text box.
    void ShowIndex();
    void GoBack() { page_->HistoryBack(); }
    void GoForward() { page_->HistoryForward(); }

  private:
    void PutPage();
    void NameParts();
    void DressContents();
    void DressSearch();
    void BindTools();

    /// Has the contents show where the opened page stands.
    void ShowPlace();
    /// Whether an entry of the contents opens the opened page.
    bool IsOpened(std::size_t entry) const;
    std::size_t SelectedEntry() const;
    /// Opens the next page in the direction, which is 1 or -1.
    void TurnPage(int direction);
    /// Opens the page that the opened one belongs to in the contents.
    void GoOut();

    void Search();
    void ListFound();
    /// Opens the page that is selected among those found, at the words that were looked for.
    void OpenFound();

    HelpPage* page_ = nullptr;
    /// The entries of the contents, in their order.
    std::vector<wxTreeItemId> entries_;
    wxStaticText* found_ = nullptr;
    SoughtWords sought_;
};

} // namespace zy
