#include "platform/JournalFile.h"

#include <algorithm>
#include <functional>

#include "platform/TimeDigits.h"

namespace zy {
namespace {

constexpr std::size_t kDateWidth = 8;
constexpr std::size_t kFractionWidth = 6;
constexpr std::size_t kTimeWidth = 6 + kFractionWidth;
constexpr std::string_view kEnding = ".journal";

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
    const auto clock = std::chrono::floor<std::chrono::seconds>(made - day);
    const auto fraction = Digits(static_cast<std::uint64_t>((made - day - clock).count()), kFractionWidth);
    return std::string(kind) + '-' + DateDigits(day) + 'T' + ClockDigits(clock) + fraction + "Z-" +
           std::to_string(process) + std::string(kEnding);
}

std::vector<std::string> JournalFileNames(std::vector<std::string> names, std::string_view kind) {
    std::erase_if(names, [&](const std::string& name) { return !IsJournalFileName(name, kind); });
    std::sort(names.begin(), names.end(), std::greater<>());
    return names;
}

} // namespace zy
