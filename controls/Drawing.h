#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "controls/Geometry.h"

namespace zy {

// A picture as the shapes that it consists of, for whatever it is painted on: a window, a file, paper.
// Lengths are in twips, places count from the left top corner.

/// The colour of a shape. What is painted on decides which shade of it can be seen there.
enum class Ink : char { Text, White, Yellow, Red, Green };

/// How a line is broken up, so that lines are told apart without their colours.
enum class Stroke : char { Solid, Dashed, Dotted, DashDotted, LongDashed };
/// The lengths of the dashes and of the gaps behind them, in widths of the line; none of a solid one.
std::vector<double> DashesOf(Stroke stroke);

struct Spot {
    double x = 0;
    double y = 0;
};

struct DrawnLine {
    Spot from;
    Spot to;
    double width = 0;
    Ink ink = Ink::Text;
    Stroke stroke = Stroke::Solid;
};

struct DrawnMark {
    enum class Shape : char { Ring, Diamond };

    Spot centre;
    double radius = 0;
    Ink ink = Ink::Text;
    Shape shape = Shape::Ring;
};

struct DrawnText {
    Spot leftTop;
    std::string text;
};

/// To be painted in this order.
struct Drawing {
    std::vector<DrawnLine> lines;
    std::vector<DrawnMark> marks;
    std::vector<DrawnText> texts;
};

/// A drawing of its own size, in twips.
struct Sheet {
    Drawing drawing;
    Size size;
};

/// Drawings for the pages of one size, made one by one.
struct Pages {
    int count = 0;
    std::function<Drawing(int page)> make; ///< of a page, counted from 1
};

/// The letters that the texts will be painted with: the height of a line of text and the width of a text.
struct Lettering {
    int height = 0;
    std::function<int(std::string_view text)> width;
};

} // namespace zy
