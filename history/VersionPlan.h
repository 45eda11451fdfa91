#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace zy {

/// A version of a file that was kept: when, and how many bytes it has.
struct KeptVersion {
    std::chrono::sys_seconds time;
    std::uint64_t size = 0;
};

// Which of the versions of a file are kept: the latest ones, and of the others the newest of each day and of
// each week, which begins on a Monday, in UTC. No clock is asked: ages count from the newest version, so that
// whoever comes back to a file after years finds what it was like then.

inline constexpr std::size_t kLatestVersions = 20;
/// So many days back, of which the newest version's is the first, one of each day is kept.
inline constexpr std::chrono::days kDailyVersions{30};
/// So many days back one of each week is kept.
inline constexpr std::chrono::days kWeeklyVersions{366};
inline constexpr std::uint64_t kMostVersionBytes = std::uint64_t{64} << 20U;

/// The versions that need not be kept, by their places in the list, which goes from the newest to the oldest.
/// Those that are left have no more than kMostVersionBytes altogether, the oldest being given up first; but
/// the newest stays whatever its size.
std::vector<std::size_t> SuperfluousVersions(std::span<const KeptVersion> versions);

} // namespace zy
