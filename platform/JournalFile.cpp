#include "platform/JournalFile.h"

#include <algorithm>
#include <functional>

namespace zy {
namespace {

constexpr std::size_t kDateWidth = 8;
constexpr std::size_t kTimeWidth = 12;
constexpr std::string_view kEnding = ".journal";

std::string Digits(unsigned long number, std::size_t width) {
    const auto digits = std::to_string(number);
    return std::string(width - std::min(width, digits.size()), '0') + digits;
}

/// As in "20261122".
std::string DateDigits(std::chrono::year_month_day date) {
    return Digits(static_cast<unsigned long>(static_cast<int>(date.year())), 4) +
           Digits(static_cast<unsigned>(date.month()), 2) + Digits(static_cast<unsigned>(date.day()), 2);
}

/// As in "140759000042".
std::string TimeDigits(std::chrono::hh_mm_ss<std::chrono::microseconds> time) {
    constexpr std::size_t kMicroseconds = 6;
    return Digits(static_cast<unsigned long>(time.hours().count()), 2) +
           Digits(static_cast<unsigned long>(time.minutes().count()), 2) +
           Digits(static_cast<unsigned long>(time.seconds().count()), 2) +
           Digits(static_cast<unsigned long>(time.subseconds().count()), kMicroseconds);
}

/// Takes a text from the beginning of another; false when that does not begin so.
bool Take(std::string_view& text, std::string_view what) {
    const bool begins = text.starts_with(what);
    text.remove_prefix(begins ? what.size() : 0);
    return begins;
}

/// Takes the digits from the beginning of a text, and says how many there were.
std::size_t TakeDigits(std::string_view& text) {
    const auto end = std::min(text.find_first_not_of("0123456789"), text.size());
    text.remove_prefix(end);
    return end;
}

bool IsJournalFileName(std::string_view name, std::string_view kind) {
    return Take(name, kind) && Take(name, "-") && TakeDigits(name) == kDateWidth && Take(name, "T") &&
           TakeDigits(name) == kTimeWidth && Take(name, "Z-") && TakeDigits(name) > 0 && name == kEnding;
}

} // namespace

std::string JournalFileName(std::string_view kind, std::chrono::sys_time<std::chrono::microseconds> made,
                            unsigned long process) {
    const auto day = std::chrono::floor<std::chrono::days>(made);
    return std::string(kind) + '-' + DateDigits(day) + 'T' + TimeDigits(std::chrono::hh_mm_ss(made - day)) +
           "Z-" + std::to_string(process) + std::string(kEnding);
}

std::vector<std::string> JournalFileNames(std::vector<std::string> names, std::string_view kind) {
    std::erase_if(names, [&](const std::string& name) { return !IsJournalFileName(name, kind); });
    std::sort(names.begin(), names.end(), std::greater<>());
    return names;
}

} // namespace zy
