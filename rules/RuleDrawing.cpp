#include "rules/RuleDrawing.h"

#include <algorithm>
#include <array>
#include <utility>

namespace zy {
namespace {

constexpr double kMargin = 60;
constexpr double kHair = 12; // the width of a thin line
constexpr double kLine = 18;
constexpr double kRulesLine = 36; // of the line that the points are compared with

/// How a line looks: in the colour that the list of zones names, where it names one.
struct LineLook {
    std::string_view zone;
    Ink ink;
    Stroke stroke;
};

constexpr std::array<LineLook, 8> kLooks{{{"USL", Ink::White, Stroke::DashDotted},
                                          {"LSL", Ink::White, Stroke::DashDotted},
                                          {"UCL", Ink::Red, Stroke::Dashed},
                                          {"LCL", Ink::Red, Stroke::Dashed},
                                          {"UWL", Ink::Yellow, Stroke::Dotted},
                                          {"LWL", Ink::Yellow, Stroke::Dotted},
                                          {"TARG", Ink::Green, Stroke::Solid},
                                          {"AVG", Ink::Text, Stroke::Solid}}};
constexpr LineLook kDeviations{"", Ink::Text, Stroke::LongDashed};

const LineLook& LookOf(std::string_view zone) {
    const auto* const found =
        std::find_if(kLooks.begin(), kLooks.end(), [&](const LineLook& look) { return look.zone == zone; });
    return found == kLooks.end() ? kDeviations : *found;
}

/// A text in lines of at most that width; the last one of so many is cut where it is too long.
std::vector<std::string> Wrapped(std::string_view text, const Lettering& letters, double width,
                                 std::size_t most) {
    constexpr std::string_view kCut = "...";
    std::vector<std::string> lines;
    while (!text.empty()) {
        const bool isLast = lines.size() + 1 == most;
        std::size_t end = text.size();
        while (
            end > 0 &&
            letters.width(std::string(text.substr(0, end)).append(isLast && end < text.size() ? kCut : "")) >
                width) {
            const auto blank = text.rfind(' ', end - 1);
            end = isLast || blank == std::string_view::npos ? end - 1 : blank;
        }
        end = std::max<std::size_t>(end, 1);
        lines.emplace_back(text.substr(0, end));
        if (isLast) {
            lines.back().append(end < text.size() ? kCut : "");
            break;
        }
        text.remove_prefix(std::min(text.size(), text.find_first_not_of(' ', end)));
    }
    return lines;
}

/// One picture on its way to being a drawing.
class Canvas {
  public:
    Canvas(const RulePicture& picture, const Size& room, const Lettering& letters)
        : picture_(picture), room_(room), letters_(letters) {}

    Drawing Make() {
        constexpr std::size_t kMostLines = 2;
        const auto words = Wrapped(picture_.sentence, letters_, room_.width - 2 * kMargin, kMostLines);
        const double height = static_cast<double>(words.size()) * letters_.height;
        if (picture_.IsDrawn()) {
            bottom_ = room_.height - height - 1.5 * kMargin;
            AddLines();
            AddPoints();
            AddWords(words, bottom_ + kMargin / 2);
        } else {
            AddWords(words, (room_.height - height) / 2);
        }
        return std::move(drawing_);
    }

  private:
    double Y(double value) const {
        const double share = (picture_.top - value) / (picture_.top - picture_.bottom);
        return kMargin + share * (bottom_ - kMargin);
    }

    /// The codes stand at the heights of their lines, as far as they are not in each other's way.
    void AddLines() {
        for (const auto& line : picture_.lines) {
            left_ = std::max<double>(left_, letters_.width(line.zone) + 2 * kMargin);
        }
        for (const auto& [zone, height] : picture_.lines) {
            const auto& look = LookOf(zone);
            const double y = Y(height);
            const double width = zone == picture_.zone ? kRulesLine : kLine;
            drawing_.lines.push_back({{left_, y}, {room_.width - kMargin, y}, width, look.ink, look.stroke});
            drawing_.texts.push_back({{kMargin, y - letters_.height / 2.0}, std::string(zone)});
        }
        KeepCodesApart();
    }

    /// From the top down, and where that takes one out of the chart, back from its foot.
    void KeepCodesApart() {
        double free = 0;
        for (auto& code : drawing_.texts) {
            code.leftTop.y = std::max(code.leftTop.y, free);
            free = code.leftTop.y + letters_.height;
        }
        double end = bottom_;
        for (auto code = drawing_.texts.rbegin(); code != drawing_.texts.rend(); ++code) {
            code->leftTop.y = std::min(code->leftTop.y, end - letters_.height);
            end = code->leftTop.y;
        }
    }

    void AddPoints() {
        constexpr double kSmallest = 22;
        constexpr double kLargest = 60;
        constexpr double kDiamond = 1.4; // as wide as a ring
        const double apart = (room_.width - kMargin - left_) / static_cast<double>(picture_.points.size());
        const double radius = std::clamp(apart * 0.3, kSmallest, kLargest);
        for (std::size_t number = 0; number < picture_.points.size(); ++number) {
            const Spot spot{left_ + (static_cast<double>(number) + 0.5) * apart, Y(picture_.points[number])};
            const bool isMarked = std::binary_search(picture_.marked.begin(), picture_.marked.end(), number);
            if (number > 0) {
                drawing_.lines.push_back({drawing_.marks.back().centre, spot, kHair});
            }
            drawing_.marks.push_back(
                isMarked ? DrawnMark{spot, kDiamond * radius, Ink::Red, DrawnMark::Shape::Diamond}
                         : DrawnMark{spot, radius});
        }
    }

    void AddWords(const std::vector<std::string>& words, double top) {
        for (const auto& line : words) {
            drawing_.texts.push_back({{(room_.width - letters_.width(line)) / 2.0, top}, line});
            top += letters_.height;
        }
    }

    const RulePicture& picture_;
    const Size& room_;
    const Lettering& letters_;
    Drawing drawing_;
    double left_ = kMargin;
    double bottom_ = 0; ///< of the chart
};

} // namespace

Drawing DrawingOf(const RulePicture& picture, const Size& room, const Lettering& letters) {
    return Canvas(picture, room, letters).Make();
}

void Show(DrawingBox& box, RulePicture picture) {
    const std::string sentence = picture.sentence;
    box.Show(sentence, [picture = std::move(picture)](const Size& room, const Lettering& letters) {
        return DrawingOf(picture, room, letters);
    });
}

} // namespace zy
