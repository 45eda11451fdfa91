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

std::string TwoDecimals(double number) {
    return Fixed(number, 2);
}

} // namespace zy::bench
