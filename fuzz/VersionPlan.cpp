#include "history/VersionPlan.h"

#include <algorithm>
#include <string>

#include "Targets.h"
#include "history/Bytes.h"

namespace zy::fuzz {
namespace {

using Versions = std::vector<KeptVersion>;

/// Each version is so many seconds older than the one before, and has so many bytes.
Versions VersionsOf(std::string_view input) {
    constexpr int kMostSeconds = 100'000'000;
    using namespace std::chrono;
    auto time = sys_seconds(sys_days(2026y / November / 22) + 12h);
    ByteReader reader(input);
    Versions versions;
    while (const auto older = reader.Small(kMostSeconds)) {
        const auto size = reader.Number();
        time -= seconds(*older);
        versions.push_back({.time = time, .size = size.value_or(0)});
    }
    return versions;
}

Versions Without(const Versions& versions, const std::vector<std::size_t>& places) {
    Versions left;
    for (std::size_t place = 0; place < versions.size(); ++place) {
        if (!std::binary_search(places.begin(), places.end(), place)) {
            left.push_back(versions[place]);
        }
    }
    return left;
}

/// Whether no more bytes are kept than may be, unless the newest version alone has more.
bool FitsInBytes(const Versions& kept) {
    std::uint64_t room = kMostVersionBytes;
    return std::all_of(kept.begin(), kept.end(), [&](const KeptVersion& version) {
        const bool fits = version.size <= room;
        room -= fits ? version.size : 0;
        return fits || kept.size() == 1;
    });
}

} // namespace

void VersionPlan(std::string_view input) {
    const auto versions = VersionsOf(input);
    const auto superfluous = SuperfluousVersions(versions);
    Require(std::is_sorted(superfluous.begin(), superfluous.end(), std::less_equal<>()),
            "no version is named twice");
    Require(superfluous.empty() || superfluous.back() < versions.size(), "only versions are removed");
    const auto kept = Without(versions, superfluous);
    Require(versions.empty() || (superfluous.empty() || superfluous.front() > 0), "the newest version stays");
    Require(FitsInBytes(kept), "those that stay have no more bytes than they may");
    Require(SuperfluousVersions(kept).empty(), "those that stay need not go the next time");
    const auto latest = std::min(kept.size(), kLatestVersions);
    Require(std::equal(kept.begin(), kept.begin() + static_cast<std::ptrdiff_t>(latest), versions.begin(),
                       [](const auto& a, const auto& b) { return a.time == b.time && a.size == b.size; }),
            "the latest versions stay");
}

} // namespace zy::fuzz
