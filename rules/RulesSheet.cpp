#include "rules/RulesSheet.h"

#include <algorithm>
#include <iterator>

#include "basics/Text.h"
#include "rules/RuleDrawing.h"
#include "rules/RulePicture.h"

namespace zy {
namespace {

constexpr int kMargin = 400;
constexpr int kBetween = 300;
constexpr Size kPicture{8600, 2000};

void Move(Spot& spot, double x, double y) {
    spot.x += x;
    spot.y += y;
}

/// Puts a drawing into another one, with its left top corner there.
void Append(Drawing& drawing, Drawing added, double x, double y) {
    for (auto& line : added.lines) {
        Move(line.from, x, y);
        Move(line.to, x, y);
    }
    for (auto& mark : added.marks) {
        Move(mark.centre, x, y);
    }
    for (auto& text : added.texts) {
        Move(text.leftTop, x, y);
    }
    const auto append = [](auto& to, auto& from) {
        to.insert(to.end(), std::move_iterator(from.begin()), std::move_iterator(from.end()));
    };
    append(drawing.lines, added.lines);
    append(drawing.marks, added.marks);
    append(drawing.texts, added.texts);
}

std::string HeadingOf(const RunRule& rule, const Lettering& letters) {
    constexpr std::size_t kMost = 500; // of which the last are out of reach anyway
    std::string heading = std::string(Trim(rule.Code)) + ": ";
    heading += Trim(rule.Description).substr(0, kMost);
    if (letters.width(heading) > kPicture.width) {
        while (letters.width(heading + "...") > kPicture.width) {
            heading.pop_back();
        }
        heading += "...";
    }
    return heading;
}

/// Puts a rule's heading and its picture onto a drawing, with their left top corner there.
void AddRule(Drawing& drawing, const RunRule& rule, char decimalSeparator, const Lettering& letters,
             double left, double top) {
    drawing.texts.push_back({{left, top}, HeadingOf(rule, letters)});
    Append(drawing, DrawingOf(PictureOf(rule, decimalSeparator), kPicture, letters), left,
           top + letters.height);
}

/// How far the tops of two rules stand apart.
int StepOf(const Lettering& letters) {
    return letters.height + kPicture.height + kBetween;
}

/// How the rules are laid out on pages.
struct PageLayout {
    PageLayout(int rules, const Lettering& letters, const Size& page)
        : left(std::max(kMargin, (page.width - kPicture.width) / 2)),
          foot(page.height - kTop - letters.height), rulesOnOne(std::max(1, (foot - kTop) / StepOf(letters))),
          pages(std::max(1, (rules + rulesOnOne - 1) / rulesOnOne)) {}

    static constexpr int kTop = 700;

    int left;
    int foot; ///< the top of the line below the rules
    int rulesOnOne;
    int pages;
};

} // namespace

Sheet SheetOf(const RuleList& rules, char decimalSeparator, const Lettering& letters) {
    Sheet sheet;
    int top = kMargin;
    for (int i = 1; i <= rules.UBound(); ++i) {
        AddRule(sheet.drawing, rules(i), decimalSeparator, letters, kMargin, top);
        top += StepOf(letters);
    }
    sheet.size = {kPicture.width + 2 * kMargin, top - (rules.UBound() == 0 ? 0 : kBetween) + kMargin};
    return sheet;
}

Pages PagesOf(const RuleList& rules, char decimalSeparator, const Lettering& letters, const Size& page,
              const std::string& heading) {
    const PageLayout layout(rules.UBound(), letters, page);
    const auto make = [&rules, decimalSeparator, letters, heading, layout](int number) {
        Drawing drawing;
        const int first = (number - 1) * layout.rulesOnOne + 1;
        const int last = std::min(first + layout.rulesOnOne - 1, rules.UBound());
        for (int i = first; i <= last; ++i) {
            const int top = PageLayout::kTop + (i - first) * StepOf(letters);
            AddRule(drawing, rules(i), decimalSeparator, letters, layout.left, top);
        }
        const std::string place = "Page " + std::to_string(number) + " of " + std::to_string(layout.pages);
        const double right = layout.left + kPicture.width - letters.width(place);
        const double foot = layout.foot;
        drawing.texts.push_back({{layout.left + 0.0, foot}, heading});
        drawing.texts.push_back({{right, foot}, place});
        return drawing;
    };
    return {layout.pages, make};
}

} // namespace zy
