#pragma once

#include <algorithm>
#include <vector>

namespace zy::bench {

/// The number that the given share of the numbers does not exceed: 0.5 for the median.
inline double Quantile(std::vector<double> numbers, double share) {
    const auto place = static_cast<std::ptrdiff_t>(static_cast<double>(numbers.size()) * share);
    const auto wanted = numbers.begin() + std::min(place, static_cast<std::ptrdiff_t>(numbers.size()) - 1);
    std::nth_element(numbers.begin(), wanted, numbers.end());
    return *wanted;
}

inline double Median(const std::vector<double>& numbers) {
    return Quantile(numbers, 0.5);
}

/// The median of the ratios of two series, round by round.
inline double MedianRatio(const std::vector<double>& ours, const std::vector<double>& theirs) {
    std::vector<double> ratios(ours.size());
    std::transform(ours.begin(), ours.end(), theirs.begin(), ratios.begin(),
                   [](double a, double b) { return a / b; });
    return Median(ratios);
}

} // namespace zy::bench
