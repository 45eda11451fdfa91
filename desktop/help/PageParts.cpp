#include "desktop/PageParts.h"

#include <wx/html/htmlcell.h>
#include <wx/html/htmlpars.h>
#include <wx/regex.h>

#include <utility>

namespace zy {
namespace {

using Kind = PageContent::Kind;

wxString Trimmed(wxString text) {
    constexpr wchar_t kFixedBlank = 0xA0;
    text.Replace(wxString(kFixedBlank), " ");
    return text.Trim().Trim(false);
}

wxString WithoutTags(wxString source) {
    wxRegEx("<[^>]*>").ReplaceAll(&source, "");
    wxRegEx("[[:space:]]+").ReplaceAll(&source, " ");
    return Trimmed(wxHtmlEntitiesParser().Parse(source));
}

/// Takes the words and pictures of a page one after the other and makes parts of them.
class PartsMaker {
  public:
    explicit PartsMaker(const std::set<wxString>& headings) : headings_(headings) {}

    void Take(const wxHtmlCell& cell) {
        if (paragraph_.cells.first == nullptr || paragraph_.cells.first->GetParent() != cell.GetParent()) {
            EndParagraph();
            paragraph_.cells.first = &cell;
        }
        Add(paragraph_, cell);
        TakeLink(cell);
    }
    std::vector<PagePart> Finish() {
        EndParagraph();
        return std::move(parts_);
    }

  private:
    static void Add(PagePart& part, const wxHtmlCell& cell) {
        part.cells.last = &cell;
        part.text += cell.ConvertToText(nullptr);
    }
    void TakeLink(const wxHtmlCell& cell) {
        const auto* link = cell.GetLink();
        const wxString target = link == nullptr ? wxString() : link->GetHref();
        if (!target.empty() && target != target_) {
            links_.push_back({.kind = Kind::Link,
                              .text = {},
                              .cells = {.first = &cell, .last = &cell},
                              .isInside = false});
        }
        if (!target.empty()) {
            Add(links_.back(), cell);
        }
        target_ = target;
    }
    Kind KindOf(const wxString& text) const {
        if (parts_.empty()) {
            return Kind::Title;
        }
        return headings_.contains(text) ? Kind::Heading : Kind::Paragraph;
    }
    void EndParagraph() {
        paragraph_.text = Trimmed(paragraph_.text);
        paragraph_.kind = KindOf(paragraph_.text);
        const bool isLink = links_.size() == 1 && links_.front().cells == paragraph_.cells;
        if (!isLink && !paragraph_.text.empty()) {
            parts_.push_back(paragraph_);
        }
        for (auto& link : links_) {
            link.text = Trimmed(link.text);
            link.isInside = !isLink;
            parts_.push_back(link);
        }
        paragraph_ = {};
        links_.clear();
        target_.clear();
    }

    const std::set<wxString>& headings_;
    std::vector<PagePart> parts_;
    PagePart paragraph_;
    std::vector<PagePart> links_; ///< those of the paragraph
    wxString target_;             ///< where the last word leads to
};

} // namespace

std::set<wxString> HeadingsIn(const wxString& source) {
    const wxRegEx heading("<h[1-6]>(.*?)</h[1-6]>", wxRE_ADVANCED | wxRE_ICASE);
    std::set<wxString> headings;
    wxString rest = source;
    std::size_t start = 0;
    std::size_t length = 0;
    while (heading.Matches(rest) && heading.GetMatch(&start, &length)) {
        headings.insert(WithoutTags(heading.GetMatch(rest, 1)));
        rest = rest.Mid(start + length);
    }
    return headings;
}

std::vector<PagePart> PartsOf(const wxHtmlCell& page, const std::set<wxString>& headings) {
    PartsMaker maker(headings);
    VisitCells(page, [&](const wxHtmlCell& cell) { maker.Take(cell); });
    return maker.Finish();
}

} // namespace zy
