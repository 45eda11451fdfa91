#include "desktop/PageCells.h"

#include <wx/html/htmlcell.h>

#include <algorithm>
#include <cwctype>
#include <functional>
#include <string>
#include <utility>

namespace zy {
namespace {

wxString TargetOf(const wxHtmlCell& cell) {
    const auto* link = cell.GetLink();
    return link == nullptr ? wxString() : link->GetHref();
}

/// A text in which each run of blanks and line ends is made one blank.
class SpacedText {
  public:
    void Append(const wxString& text) {
        for (const wchar_t character : text.ToStdWstring()) {
            Append(character);
        }
    }
    const std::wstring& Text() const { return text_; }

  private:
    void Append(wchar_t character) {
        const bool isBlank = std::iswspace(static_cast<std::wint_t>(character)) != 0;
        if (!isBlank || !text_.ends_with(L' ')) {
            text_ += isBlank ? L' ' : character;
        }
    }

    std::wstring text_;
};

/// The text of a page with one blank wherever a cell begins or ends.
class PageText {
  public:
    PageText(const wxHtmlCell& page, bool caseSensitive) {
        text_.Append(" ");
        VisitCells(page, [&](const wxHtmlCell& cell) {
            const wxString text = cell.ConvertToText(nullptr);
            Append(cell, caseSensitive ? text : text.Lower());
        });
    }

    std::optional<PageRange> Find(const std::wstring& words) const {
        const auto place = text_.Text().find(words);
        if (place == std::wstring::npos) {
            return std::nullopt;
        }
        const auto firstLetter = words.find_first_not_of(L' ');
        const auto lastLetter = words.find_last_not_of(L' ');
        return PageRange{.first = CellAt(place + firstLetter), .last = CellAt(place + lastLetter)};
    }

  private:
    void Append(const wxHtmlCell& cell, const wxString& text) {
        cells_.emplace_back(text_.Text().size(), &cell);
        text_.Append(text + ' ');
    }
    const wxHtmlCell* CellAt(std::size_t place) const {
        const auto behind =
            std::upper_bound(cells_.begin(), cells_.end(), place,
                             [](std::size_t at, const auto& cell) { return at < cell.first; });
        return std::prev(behind)->second;
    }

    SpacedText text_;
    /// Where the text of each cell begins.
    std::vector<std::pair<std::size_t, const wxHtmlCell*>> cells_;
};

} // namespace

bool StandsBefore(const wxHtmlCell& one, const wxHtmlCell& other) {
    return &one != &other && one.IsBefore(const_cast<wxHtmlCell*>(&other));
}

void VisitCells(const wxHtmlCell& page, const std::function<void(const wxHtmlCell&)>& visit) {
    for (wxHtmlTerminalCellsInterator cell(page.GetFirstTerminal(), page.GetLastTerminal()); cell; ++cell) {
        if (!cell->IsFormattingCell()) {
            visit(**cell);
        }
    }
}

std::vector<PageRange> LinksOn(const wxHtmlCell& page) {
    std::vector<PageRange> links;
    wxString open;
    VisitCells(page, [&](const wxHtmlCell& cell) {
        const wxString target = TargetOf(cell);
        if (!target.empty() && target == open) {
            links.back().last = &cell;
        } else if (!target.empty()) {
            links.push_back({.first = &cell, .last = &cell});
        }
        open = target;
    });
    return links;
}

std::optional<PageRange> FindOn(const wxHtmlCell& page, const SoughtWords& words) {
    const wxString text = words.caseSensitive ? words.text : words.text.Lower();
    SpacedText sought;
    sought.Append(words.wholeWords ? ' ' + text + ' ' : text);
    return PageText(page, words.caseSensitive).Find(sought.Text());
}

} // namespace zy
