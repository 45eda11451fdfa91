#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "rules/RunRule.h"

namespace zy {

/// A line of a control chart at its height, in standard deviations above the average.
struct ChartLine {
    std::string_view zone; ///< its code, such as "UCL"
    double height = 0;
};

/// An example of points that break a rule, as a control chart would show them, and the same in words.
///
/// Of the last Max points Min are marked: those on the side of the line that the rule asks for. The others
/// stand on its other side, without crossing a further line, for the rule says nothing of them. A rule that
/// compares each point with the one before it has that one in front of the others.
struct RulePicture {
    std::vector<ChartLine> lines;    ///< from the top down; none where points are compared with points
    std::vector<double> points;      ///< in the order of time, by the lines' measure
    std::vector<std::size_t> marked; ///< their numbers among the points, counted from 0, rising
    std::string_view zone;           ///< the line that the points are compared with
    double bottom = 0;               ///< between these two all of it lies
    double top = 0;
    std::string sentence; ///< what the rule says, or why there is nothing to be drawn

    bool IsDrawn() const { return !points.empty(); }
};

/// The picture of a rule as its fields stand, with the locale's decimal separator. Where a field that matters
/// has no value that can be drawn, there are no lines and points, and the sentence names the first such
/// field.
RulePicture PictureOf(const RunRule& rule, char decimalSeparator);

} // namespace zy
