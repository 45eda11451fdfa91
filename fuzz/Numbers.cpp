#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <optional>
#include <string>

#include "Targets.h"
#include "basics/Number.h"
#include "basics/Text.h"

namespace zy::fuzz {
namespace {

/// What the C library, in the locale that every program starts with, makes of a text of nothing but digits,
/// signs, points and exponents. It takes no other numbers of these characters than the parser does.
std::optional<double> NumberOfTheCLibrary(const std::string& text) {
    if (text.empty() || text.find_first_not_of("0123456789+-.eE") != std::string::npos) {
        return std::nullopt;
    }
    char* end = nullptr;
    const double value = std::strtod(text.c_str(), &end);
    return end == text.c_str() + text.size() ? std::optional(value) : std::nullopt;
}

bool IsTheSame(double ours, double theirs) {
    return ours == theirs && std::signbit(ours) == std::signbit(theirs);
}

} // namespace

// The first character of an input is the locale's decimal separator.
void Numbers(std::string_view input) {
    const char separator = input.starts_with(',') ? ',' : '.';
    const auto typed = input.substr(std::min<std::size_t>(1, input.size()));
    std::string text(Trim(typed));
    std::replace(text.begin(), text.end(), separator, '.');
    const auto ours = ParseNumber(typed, separator);
    const auto theirs = NumberOfTheCLibrary(text);
    Require(ours.has_value() == theirs.has_value(), "the same texts are numbers");
    Require(!ours || IsTheSame(*ours, *theirs), "the numbers are the same");
}

} // namespace zy::fuzz
