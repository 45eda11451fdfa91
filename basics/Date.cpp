#include "basics/Date.h"

#include <algorithm>
#include <charconv>

#include "basics/Text.h"

namespace zy {
namespace {

constexpr int kCentury = 100;

/// The number that the digits at the front of a text make, between `least` and `most` of them; they are taken
/// off. Nothing when there are fewer.
std::optional<int> TakeDigits(std::string_view& text, std::size_t least, std::size_t most) {
    const auto length = std::min(text.find_first_not_of("0123456789"), text.size());
    if (length < least || length > most) {
        return std::nullopt;
    }
    int number = 0;
    std::from_chars(text.data(), text.data() + length, number);
    text.remove_prefix(length);
    return number;
}

bool TakeSeparator(std::string_view& text, char separator) {
    const bool found = text.starts_with(separator);
    text.remove_prefix(found ? 1 : 0);
    return found;
}

std::optional<int> TakeYear(std::string_view& text) {
    constexpr std::size_t kLong = 4;
    constexpr int kFirstYear = 100; // as the system's dates begin
    const auto before = text.size();
    const auto year = TakeDigits(text, 2, kLong);
    const auto length = before - text.size();
    if (!year || (length != 2 && (length != kLong || *year < kFirstYear))) {
        return std::nullopt;
    }
    return length == 2 ? FullYear(*year) : *year;
}

void AppendTwoDigits(std::string& text, unsigned number) {
    text += static_cast<char>('0' + number / 10 % 10);
    text += static_cast<char>('0' + number % 10);
}

} // namespace

int FullYear(int twoDigits) {
    constexpr int kFirstOfLastCentury = 50;
    return twoDigits + (twoDigits < kFirstOfLastCentury ? 20 : 19) * kCentury;
}

std::optional<std::chrono::year_month_day> ParseDate(std::string_view text) {
    const auto year = TakeYear(text);
    const char separator = text.empty() ? '\0' : text.front();
    if (!year || !Contains("-/.", separator) || !TakeSeparator(text, separator)) {
        return std::nullopt;
    }
    const auto month = TakeDigits(text, 1, 2);
    if (!month || !TakeSeparator(text, separator)) {
        return std::nullopt;
    }
    const auto day = TakeDigits(text, 1, 2);
    if (!day || !text.empty()) {
        return std::nullopt;
    }
    const std::chrono::year_month_day date{std::chrono::year(*year),
                                           std::chrono::month(static_cast<unsigned>(*month)),
                                           std::chrono::day(static_cast<unsigned>(*day))};
    return date.ok() ? std::optional(date) : std::nullopt;
}

std::optional<std::chrono::year_month_day> ParseShortDate(std::string_view text) {
    constexpr std::string_view kShape = "yy-mm-dd";
    const auto date = ParseDate(text);
    const bool isShort = text.size() == kShape.size() && text[2] == '-' && text[5] == '-';
    return isShort ? date : std::nullopt;
}

std::string ShortDate(std::chrono::year_month_day date) {
    std::string text;
    AppendTwoDigits(text, static_cast<unsigned>(static_cast<int>(date.year()) % kCentury));
    text += '-';
    AppendTwoDigits(text, static_cast<unsigned>(date.month()));
    text += '-';
    AppendTwoDigits(text, static_cast<unsigned>(date.day()));
    return text;
}

} // namespace zy
