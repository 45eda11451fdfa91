#include "basics/Number.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <limits>
#include <string>
#include <system_error>

#include "basics/Text.h"

namespace zy {
namespace {

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

/// Moves past the digits at `at` and returns how many there were.
std::size_t SkipDigits(std::string_view text, std::size_t& at) {
    const auto start = at;
    while (at < text.size() && IsDigit(text[at])) {
        ++at;
    }
    return at - start;
}

bool SkipOneOf(std::string_view text, std::size_t& at, char a, char b) {
    if (at < text.size() && (text[at] == a || text[at] == b)) {
        ++at;
        return true;
    }
    return false;
}

/// Checks the syntax of an unsigned number and puts a "." where its decimal separator stands.
bool Normalise(std::string& number, char decimalSeparator) {
    std::size_t at = 0;
    auto digits = SkipDigits(number, at);
    const auto separator = at;
    if (SkipOneOf(number, at, '.', decimalSeparator)) {
        number[separator] = '.';
        digits += SkipDigits(number, at);
    }
    if (digits == 0) {
        return false;
    }
    if (SkipOneOf(number, at, 'e', 'E')) {
        SkipOneOf(number, at, '+', '-');
        if (SkipDigits(number, at) == 0) {
            return false;
        }
    }
    return at == number.size();
}

/// The number behind the "e" of a text such as "e+5"; 0 when there is none. One that is very large counts as
/// smaller than it is, so that a little can be added to it.
std::int64_t ExponentOf(std::string_view text) {
    constexpr auto kVeryLarge = std::numeric_limits<std::int64_t>::max() / 2;
    text.remove_prefix(std::min(text.find_first_of("-0123456789"), text.size()));
    std::int64_t exponent = text.empty() ? 0 : text.front() == '-' ? -kVeryLarge : kVeryLarge;
    std::from_chars(text.data(), text.data() + text.size(), exponent);
    return std::clamp(exponent, -kVeryLarge, kVeryLarge);
}

/// What a number that no double can hold comes out as: zero when it is too small, else infinity.
double OutOfRangeValue(std::string_view number) {
    const auto mantissa = number.substr(0, number.find_first_of("eE"));
    const auto point = std::min(mantissa.find('.'), mantissa.size());
    const auto firstDigit = std::min(mantissa.find_first_of("123456789"), mantissa.size());
    const auto magnitude = static_cast<std::int64_t>(point) - static_cast<std::int64_t>(firstDigit);
    const bool tooSmall = magnitude + ExponentOf(number.substr(mantissa.size())) < 0;
    return tooSmall ? 0.0 : std::numeric_limits<double>::infinity();
}

} // namespace

std::optional<double> ParseNumber(std::string_view text, char decimalSeparator) {
    text = Trim(text);
    const bool negative = !text.empty() && text.front() == '-';
    if (negative || (!text.empty() && text.front() == '+')) {
        text.remove_prefix(1);
    }
    std::string number(text);
    if (!Normalise(number, decimalSeparator)) {
        return std::nullopt;
    }
    double value = 0;
    const auto [end, error] = std::from_chars(number.data(), number.data() + number.size(), value);
    if (error == std::errc::result_out_of_range) {
        value = OutOfRangeValue(number);
    }
    return negative ? -value : value;
}

} // namespace zy
