#include "desktop/HelpWindow.h"

#include <wx/settings.h>
#include <wx/sizer.h>
#include <wx/stattext.h>
#include <wx/treectrl.h>

#include <algorithm>
#include <functional>
#include <string>

#include "desktop/HelpTools.h"
#include "desktop/Native.h"
#include "desktop/Pictures.h"

namespace zy {
namespace {

constexpr int kListsWidth = 260;

constexpr const char* kBookPicture = "M2 1 H14 V15 H2 Z M4.5 2.5 V13.5 H12.5 V2.5 Z M6 4.5 H11 V6 H6 Z";
constexpr const char* kChapterPicture = "M1 3 H6 L8 5 H15 V14 H1 Z M2.5 6.5 V12.5 H13.5 V6.5 Z";
constexpr const char* kPagePicture = "M3 1 H10 L13 4 V15 H3 Z M4.5 2.5 V13.5 H11.5 V5.5 H9 V2.5 Z";

/// The pictures of the contents in the order that the toolkit knows them by.
wxVector<wxBitmapBundle> ContentsPictures() {
    constexpr int kSize = 16;
    const auto colour = wxSystemSettings::GetColour(wxSYS_COLOUR_WINDOWTEXT);
    wxVector<wxBitmapBundle> pictures;
    for (const char* path : {kBookPicture, kChapterPicture, kPagePicture}) {
        pictures.push_back(Silhouette(path, kSize, colour));
    }
    return pictures;
}

void ListEntries(const wxTreeCtrl& contents, const wxTreeItemId& above, std::vector<wxTreeItemId>& entries) {
    wxTreeItemIdValue cookie{};
    for (auto entry = contents.GetFirstChild(above, cookie); entry.IsOk();
         entry = contents.GetNextChild(above, cookie)) {
        entries.push_back(entry);
        ListEntries(contents, entry, entries);
    }
}

std::string CountText(std::size_t pages) {
    if (pages == 0) {
        return "Not found";
    }
    return pages == 1 ? "Found on 1 page" : "Found on " + std::to_string(pages) + " pages";
}

} // namespace

HelpWindow::HelpWindow(wxWindow* frame, wxHtmlHelpData& book) {
    delete m_Data;
    m_Data = &book;
    m_DataCreated = false;
    m_Cfg.sashpos = frame->FromDIP(kListsWidth);
    Create(frame, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxTAB_TRAVERSAL | wxBORDER_NONE,
           wxHF_CONTENTS | wxHF_INDEX | wxHF_SEARCH);
    PutPage();
    DressContents();
    DressSearch();
    NameParts();
    GetSizer()->Prepend(new HelpTools(this), wxSizerFlags().Expand());
    BindTools();
    Layout();
}

void HelpWindow::PutPage() {
    page_ = new HelpPage(m_Splitter, [this] { ShowPlace(); });
    m_Splitter->ReplaceWindow(m_HtmlWin, page_);
    m_HtmlWin->Destroy();
    m_HtmlWin = page_;
}

void HelpWindow::DressContents() {
    m_ContentsBox->SetImages(ContentsPictures());
    ListEntries(*m_ContentsBox, m_ContentsBox->GetRootItem(), entries_);
    // It begins with the book's title, closed.
    m_ContentsBox->Expand(entries_.front());
    m_ContentsBox->Bind(wxEVT_TREE_ITEM_ACTIVATED, [this](wxTreeEvent& event) {
        event.Skip();
        OnContentsSel(event);
        page_->SetFocus();
    });
}

void HelpWindow::DressSearch() {
    m_SearchChoice->Hide(); // there is one book
    found_ = new wxStaticText(m_SearchList->GetParent(), wxID_ANY, "");
    auto& panel = *m_SearchList->GetContainingSizer();
    panel.Insert(panel.GetItemCount() - 1, found_, wxSizerFlags().Expand().Border());
    Bind(
        wxEVT_BUTTON, [this](wxCommandEvent&) { Search(); }, wxID_HTML_SEARCHBUTTON);
    Bind(
        wxEVT_TEXT_ENTER, [this](wxCommandEvent&) { Search(); }, wxID_HTML_SEARCHTEXT);
    Bind(
        wxEVT_LISTBOX, [this](wxCommandEvent&) { OpenFound(); }, wxID_HTML_SEARCHLIST);
}

void HelpWindow::NameParts() {
    SetAccessibleTreeName(*m_ContentsBox, "Contents");
    SetAccessibleName(*m_IndexText, "Keyword");
    SetAccessibleName(*m_IndexList, "Keywords");
    SetAccessibleName(*m_SearchText, "Words to look for");
    SetAccessibleName(*m_SearchList, "Pages found");
}

void HelpWindow::BindTools() {
    for (const int id : {wxID_HTML_PANEL, wxID_HTML_BACK, wxID_HTML_FORWARD, wxID_HTML_PRINT}) {
        Bind(wxEVT_BUTTON, &HelpWindow::OnToolbar, this, id);
    }
    const auto bind = [this](int tool, const std::function<void()>& press) {
        Bind(
            wxEVT_BUTTON, [press](wxCommandEvent&) { press(); }, tool);
    };
    bind(wxID_HTML_UPNODE, [this] { GoOut(); });
    bind(wxID_HTML_UP, [this] { TurnPage(-1); });
    bind(wxID_HTML_DOWN, [this] { TurnPage(1); });
    bind(wxID_ZOOM_IN, [this] { page_->EnlargeText(); });
    bind(wxID_ZOOM_OUT, [this] { page_->ReduceText(); });
}

void HelpWindow::ShowContents() {
    DisplayContents();
    page_->SetFocus();
}

void HelpWindow::ShowIndex() {
    DisplayIndex();
    m_IndexText->SetFocus();
}

bool HelpWindow::IsOpened(std::size_t entry) const {
    return m_Data->GetContentsArray()[entry].GetFullPath() == page_->GetOpenedPage();
}

std::size_t HelpWindow::SelectedEntry() const {
    const auto selected = std::find(entries_.begin(), entries_.end(), m_ContentsBox->GetSelection());
    return static_cast<std::size_t>(selected - entries_.begin());
}

void HelpWindow::ShowPlace() {
    const auto selected = SelectedEntry();
    if (selected < entries_.size() && IsOpened(selected)) {
        return; // a page can stand in the contents twice
    }
    for (std::size_t entry = 0; entry < entries_.size(); ++entry) {
        if (IsOpened(entry)) {
            m_UpdateContents = false;
            m_ContentsBox->SelectItem(entries_[entry]);
            m_ContentsBox->EnsureVisible(entries_[entry]);
            m_UpdateContents = true;
            return;
        }
    }
}

void HelpWindow::TurnPage(int direction) {
    auto entry = SelectedEntry();
    while (entry < entries_.size() && IsOpened(entry)) {
        entry += static_cast<std::size_t>(direction);
    }
    if (entry < entries_.size()) {
        m_ContentsBox->SelectItem(entries_[entry]);
    }
}

void HelpWindow::GoOut() {
    const auto above = m_ContentsBox->GetItemParent(m_ContentsBox->GetSelection());
    if (above.IsOk() && above != m_ContentsBox->GetRootItem()) {
        m_ContentsBox->SelectItem(above);
    }
}

void HelpWindow::Search() {
    sought_ = {.text = m_SearchText->GetValue().Strip(wxString::both),
               .caseSensitive = m_SearchCaseSensitive->GetValue(),
               .wholeWords = m_SearchWholeWords->GetValue()};
    m_SearchList->Clear();
    found_->SetLabel("");
    if (!sought_.text.empty()) {
        ListFound();
    }
}

void HelpWindow::ListFound() {
    wxHtmlSearchStatus search(m_Data, sought_.text, sought_.caseSensitive, sought_.wholeWords);
    while (search.IsActive()) {
        if (search.Search()) {
            m_SearchList->Append(search.GetName(), const_cast<wxHtmlHelpDataItem*>(search.GetCurItem()));
        }
    }
    found_->SetLabel(CountText(m_SearchList->GetCount()));
    if (!m_SearchList->IsEmpty()) {
        m_SearchList->SetSelection(0);
        m_SearchList->SetFocus();
        OpenFound();
    }
}

void HelpWindow::OpenFound() {
    wxCommandEvent chosen(wxEVT_LISTBOX, wxID_HTML_SEARCHLIST);
    OnSearchSel(chosen);
    page_->ShowWords(sought_);
}

} // namespace zy
