#include "history/VersionPlan.h"

namespace zy {
namespace {

std::chrono::sys_days DayOf(const KeptVersion& version) {
    return std::chrono::floor<std::chrono::days>(version.time);
}

/// The Monday that its week begins with.
std::chrono::sys_days WeekOf(const KeptVersion& version) {
    const auto day = DayOf(version);
    return day - (std::chrono::weekday(day) - std::chrono::Monday);
}

bool IsKept(std::span<const KeptVersion> versions, std::size_t place) {
    if (place < kLatestVersions) {
        return true;
    }
    const auto& newest = versions.front();
    const auto& newer = versions[place - 1];
    const auto& version = versions[place];
    const auto age = DayOf(newest) - DayOf(version);
    return (DayOf(version) != DayOf(newer) && age < kDailyVersions) ||
           (WeekOf(version) != WeekOf(newer) && age < kWeeklyVersions);
}

} // namespace

std::vector<std::size_t> SuperfluousVersions(std::span<const KeptVersion> versions) {
    std::vector<std::size_t> superfluous;
    std::uint64_t room = kMostVersionBytes;
    bool isFull = false;
    for (std::size_t place = 0; place < versions.size(); ++place) {
        const bool isKept = IsKept(versions, place);
        const auto size = isKept ? versions[place].size : 0;
        isFull = isFull || size > room;
        room -= isFull ? 0 : size;
        if (place > 0 && (isFull || !isKept)) {
            superfluous.push_back(place);
        }
    }
    return superfluous;
}

} // namespace zy
