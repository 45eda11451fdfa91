#include "platform/TimeDigits.h"

#include <algorithm>

namespace zy {
namespace {

std::string Joined(std::chrono::year_month_day date, const char* between) {
    constexpr std::size_t kYearWidth = 4;
    return Digits(static_cast<std::uint64_t>(static_cast<int>(date.year())), kYearWidth) + between +
           Digits(static_cast<unsigned>(date.month()), 2) + between +
           Digits(static_cast<unsigned>(date.day()), 2);
}

std::string Joined(std::chrono::hh_mm_ss<std::chrono::seconds> clock, const char* between) {
    return Digits(static_cast<std::uint64_t>(clock.hours().count()), 2) + between +
           Digits(static_cast<std::uint64_t>(clock.minutes().count()), 2) + between +
           Digits(static_cast<std::uint64_t>(clock.seconds().count()), 2);
}

} // namespace

std::string Digits(std::uint64_t number, std::size_t width) {
    const auto digits = std::to_string(number);
    return std::string(width - std::min(width, digits.size()), '0') + digits;
}

std::string DateDigits(std::chrono::year_month_day date) {
    return Joined(date, "");
}

std::string ClockDigits(std::chrono::seconds sinceMidnight) {
    return Joined(std::chrono::hh_mm_ss(sinceMidnight), "");
}

std::string PlainTime(std::chrono::local_seconds time) {
    const auto day = std::chrono::floor<std::chrono::days>(time);
    return Joined(std::chrono::year_month_day(day), "-") + ' ' +
           Joined(std::chrono::hh_mm_ss<std::chrono::seconds>(time - day), ":");
}

} // namespace zy
