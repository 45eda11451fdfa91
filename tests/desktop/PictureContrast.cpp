#include "PictureContrast.h"

#include <algorithm>
#include <array>
#include <functional>
#include <map>
#include <vector>

#include "desktop/Contrast.h"

namespace zy::test {
namespace {

using Colour = std::array<unsigned char, 3>;

double ContrastOf(const Colour& one, const Colour& other) {
    return Contrast({one[0], one[1], one[2]}, {other[0], other[1], other[2]});
}

std::vector<Colour> PointsOf(const wxImage& picture) {
    const auto count = static_cast<std::size_t>(picture.GetWidth() * picture.GetHeight());
    std::vector<Colour> points(count);
    for (std::size_t i = 0; i < count; ++i) {
        std::copy_n(picture.GetData() + 3 * i, 3, points[i].begin());
    }
    return points;
}

Colour Commonest(const std::vector<Colour>& points) {
    std::map<Colour, int> counts;
    for (const auto& point : points) {
        ++counts[point];
    }
    return std::max_element(counts.begin(), counts.end(),
                            [](const auto& a, const auto& b) { return a.second < b.second; })
        ->first;
}

/// The contrast that so many points have at least: those of a letter's edge are paler than it is.
double ReachedBy(std::size_t points, std::vector<double> contrasts) {
    if (contrasts.size() < points) {
        return 1;
    }
    std::nth_element(contrasts.begin(), contrasts.begin() + static_cast<std::ptrdiff_t>(points) - 1,
                     contrasts.end(), std::greater<>());
    return contrasts[points - 1];
}

} // namespace

double TextContrast(const wxImage& picture) {
    const auto points = PointsOf(picture);
    const auto background = Commonest(points);
    std::vector<double> contrasts;
    for (const auto& point : points) {
        contrasts.push_back(ContrastOf(point, background));
    }
    constexpr std::size_t kAStroke = 4;
    return ReachedBy(kAStroke, contrasts);
}

double ChangeContrast(const wxImage& before, const wxImage& after) {
    const auto then = PointsOf(before);
    const auto now = PointsOf(after);
    std::vector<double> contrasts;
    for (std::size_t i = 0; i < std::min(then.size(), now.size()); ++i) {
        contrasts.push_back(ContrastOf(then[i], now[i]));
    }
    constexpr std::size_t kAMark = 12; // the caret of a line of text is that high
    return ReachedBy(kAMark, contrasts);
}

} // namespace zy::test
