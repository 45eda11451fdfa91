#include "rules/RulesSheet.h"

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

} // namespace

RulesSheet SheetOf(const RuleList& rules, char decimalSeparator, const Lettering& letters) {
    RulesSheet sheet;
    int top = kMargin;
    for (int i = 1; i <= rules.UBound(); ++i) {
        sheet.drawing.texts.push_back({{kMargin, top + 0.0}, HeadingOf(rules(i), letters)});
        top += letters.height;
        Append(sheet.drawing, DrawingOf(PictureOf(rules(i), decimalSeparator), kPicture, letters), kMargin,
               top);
        top += kPicture.height + kBetween;
    }
    sheet.size = {kPicture.width + 2 * kMargin, top - (rules.UBound() == 0 ? 0 : kBetween) + kMargin};
    return sheet;
}

} // namespace zy
