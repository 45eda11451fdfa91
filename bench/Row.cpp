#include "Row.h"

#include <iostream>
#include <sstream>

namespace zy::bench {
namespace {

std::string Fixed(double number, int decimals) {
    std::ostringstream text;
    text.precision(decimals);
    text << std::fixed << number;
    return text.str();
}

} // namespace

void PrintRow(const std::string& work, const std::string& ours, const std::string& peer, double ratio,
              std::optional<double> goal) {
    const std::string limit = goal ? "<= " + TwoDecimals(*goal) : "";
    const std::string outcome = !goal ? "" : ratio <= *goal ? "met" : "NOT MET";
    std::cout << work << '\t' << ours << '\t' << peer << '\t' << TwoDecimals(ratio) << '\t' << limit << '\t'
              << outcome << std::endl;
}

std::string Milliseconds(double seconds) {
    const double milliseconds = seconds * 1000;
    return Fixed(milliseconds, milliseconds < 1 ? 4 : 1) + " ms";
}

std::string Mebibytes(double bytes) {
    return Fixed(bytes / (1024 * 1024), 1) + " MiB";
}

std::string Millions(double count) {
    return Fixed(count / 1e6, 0) + " million";
}

std::string TwoDecimals(double number) {
    return Fixed(number, 2);
}

std::string CountOf(int number, const std::string& things) {
    auto digits = std::to_string(number);
    for (auto comma = digits.size(); comma > 3;) {
        comma -= 3;
        digits.insert(comma, ",");
    }
    return digits + " " + things;
}

} // namespace zy::bench
