#include "rules/SvgText.h"

#include <array>
#include <charconv>
#include <cmath>
#include <vector>

namespace zy {
namespace {

constexpr int kFontSize = 200; // in twips
constexpr int kLineHeight = 240;
constexpr int kBaseline = 180; // below the top of a line

/// How wide the letters from the blank to "~" are, in thousandths of the font's size. Helvetica, Arial and
/// Liberation Sans agree on that.
constexpr std::array<short, 95> kWidths{
    278, 278, 355, 556, 556, 889, 667, 191, 333, 333, 389, 584, 278, 333,  278, 278, 556, 556, 556,
    556, 556, 556, 556, 556, 556, 556, 278, 278, 584, 584, 584, 556, 1015, 667, 667, 722, 722, 667,
    611, 778, 722, 278, 500, 667, 556, 833, 722, 778, 667, 778, 722, 667,  611, 722, 667, 944, 667,
    667, 611, 278, 278, 278, 469, 556, 333, 556, 556, 500, 556, 556, 278,  556, 556, 222, 222, 500,
    222, 833, 556, 556, 556, 556, 333, 500, 278, 556, 500, 722, 500, 500,  500, 334, 260, 334, 584};
constexpr short kUsualWidth = 556;

int WidthOf(std::string_view text) {
    constexpr double kThousand = 1000;
    double width = 0;
    for (const char character : text) {
        const bool isKnown = character >= ' ' && character <= '~';
        width += isKnown ? kWidths[static_cast<std::size_t>(character - ' ')] : kUsualWidth;
    }
    return static_cast<int>(std::ceil(width * kFontSize / kThousand));
}

/// Shades that can be noticed on white.
std::string_view ColourOf(Ink ink) {
    switch (ink) {
    case Ink::White:
        return "#767676";
    case Ink::Yellow:
        return "#8F6F00";
    case Ink::Red:
        return "#C01818";
    case Ink::Green:
        return "#187A38";
    case Ink::Text:
        break;
    }
    return "#000000";
}

std::string Escaped(std::string_view utf8) {
    std::string escaped;
    for (const char character : utf8) {
        const auto isControl = static_cast<unsigned char>(character) < ' ';
        escaped += character == '&'   ? "&amp;"
                   : character == '<' ? "&lt;"
                   : character == '>' ? "&gt;"
                   : isControl        ? std::string(" ") // XML knows no other way to hold one
                                      : std::string(1, character);
    }
    return escaped;
}

/// A picture's text as it grows.
class Svg {
  public:
    Svg(const Size& size, const std::string& title, const CodePage& codePage) : codePage_(codePage) {
        constexpr double kTwipsPerPoint = 20;
        text_ = R"(<?xml version="1.0" encoding="UTF-8"?>)"
                "\n"
                R"(<svg xmlns="http://www.w3.org/2000/svg" version="1.1" width=")";
        Number(size.width / kTwipsPerPoint).Literal(R"(pt" height=")").Number(size.height / kTwipsPerPoint);
        Literal(R"(pt" viewBox="0 0 )")
            .Number(size.width)
            .Literal(" ")
            .Number(size.height)
            .Literal("\">\n<title>");
        Words(title).Literal("</title>\n"
                             R"(<rect width="100%" height="100%" fill="#FFFFFF"/>)"
                             "\n");
        Literal(R"(<g font-family="Helvetica, Arial, 'Liberation Sans', sans-serif" font-size=")");
        Number(kFontSize).Literal("\" fill=\"#000000\">\n");
    }

    void Add(const DrawnLine& line) {
        Literal("<path d=\"M").At(line.from).Literal(" L").At(line.to).Literal("\" stroke=\"");
        Literal(ColourOf(line.ink)).Literal("\" stroke-width=\"").Number(line.width);
        if (const auto dashes = DashesOf(line.stroke); !dashes.empty()) {
            Literal("\" stroke-dasharray=\"").Lengths(dashes, line.width);
        }
        Literal("\"/>\n");
    }

    void Add(const DrawnMark& mark) {
        const auto& [x, y] = mark.centre;
        if (mark.shape == DrawnMark::Shape::Ring) {
            Literal("<circle cx=\"")
                .Number(x)
                .Literal("\" cy=\"")
                .Number(y)
                .Literal("\" r=\"")
                .Number(mark.radius);
            Literal(R"(" fill="#FFFFFF" stroke=")")
                .Literal(ColourOf(mark.ink))
                .Literal("\" stroke-width=\"15\"/>\n");
        } else {
            Literal("<path d=\"M")
                .At({x, y - mark.radius})
                .Literal(" L")
                .At({x + mark.radius, y})
                .Literal(" L");
            At({x, y + mark.radius}).Literal(" L").At({x - mark.radius, y}).Literal(" Z\" fill=\"");
            Literal(ColourOf(mark.ink)).Literal("\"/>\n");
        }
    }

    void Add(const DrawnText& text) {
        Literal("<text x=\"").Number(text.leftTop.x).Literal("\" y=\"").Number(text.leftTop.y + kBaseline);
        Literal("\">").Words(text.text).Literal("</text>\n");
    }

    std::string Finish() {
        Literal("</g>\n</svg>\n");
        return std::move(text_);
    }

  private:
    Svg& Literal(std::string_view text) {
        text_ += text;
        return *this;
    }
    Svg& Words(std::string_view text) { return Literal(Escaped(codePage_.ToUtf8(text))); }
    Svg& At(const Spot& spot) { return Number(spot.x).Literal(" ").Number(spot.y); }
    Svg& Lengths(const std::vector<double>& lengths, double unit) {
        for (std::size_t i = 0; i < lengths.size(); ++i) {
            Literal(i == 0 ? "" : " ").Number(lengths[i] * unit);
        }
        return *this;
    }
    /// To a tenth, with a point, whatever the locale is.
    Svg& Number(double number) {
        constexpr int kDigits = 1;
        std::array<char, 32> digits{};
        const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number,
                                       std::chars_format::fixed, kDigits);
        std::string_view shown(digits.data(), static_cast<std::size_t>(end.ptr - digits.data()));
        if (shown.ends_with(".0")) {
            shown.remove_suffix(2);
        }
        return Literal(shown);
    }

    const CodePage& codePage_;
    std::string text_;
};

} // namespace

Lettering SvgLettering() {
    return {kLineHeight, WidthOf};
}

std::string SvgOf(const Drawing& drawing, const Size& size, const std::string& title,
                  const CodePage& codePage) {
    Svg svg(size, title, codePage);
    for (const auto& line : drawing.lines) {
        svg.Add(line);
    }
    for (const auto& mark : drawing.marks) {
        svg.Add(mark);
    }
    for (const auto& text : drawing.texts) {
        svg.Add(text);
    }
    return svg.Finish();
}

} // namespace zy
