#include "history/VersionPlan.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>
#include <random>
#include <vector>

namespace zy::test {
namespace {

using std::chrono::days;
using std::chrono::sys_seconds;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using namespace std::chrono_literals;

/// A Sunday, the last day of its week.
constexpr auto kSunday = std::chrono::sys_days(2026y / 11 / 22);
constexpr auto kMonday = std::chrono::sys_days(2026y / 11 / 16);

constexpr std::uint64_t kMegabyte = std::uint64_t{1} << 20U;

/// As many versions as are kept without looking at their days, a second apart.
std::vector<KeptVersion> Latest(sys_seconds newest, std::size_t count = kLatestVersions) {
    std::vector<KeptVersion> versions;
    for (std::size_t i = 0; i < count; ++i) {
        versions.push_back({.time = newest - std::chrono::seconds(i), .size = 1});
    }
    return versions;
}

/// Whether each of these versions is kept behind the latest ones, the newest of which is from that time.
std::vector<bool> AreKeptBehind(sys_seconds newest, const std::vector<sys_seconds>& times) {
    auto versions = Latest(newest);
    for (const auto time : times) {
        versions.push_back({.time = time, .size = 1});
    }
    std::vector<bool> kept(times.size(), true);
    for (const auto place : SuperfluousVersions(versions)) {
        kept.at(place - kLatestVersions) = false;
    }
    return kept;
}

TEST(VersionPlan, HasNothingToRemoveOfNothing) {
    EXPECT_THAT(SuperfluousVersions({}), IsEmpty());
}

// The latest

TEST(VersionPlan, KeepsTheLatestVersionsThoughTheyAreOfOneMinute) {
    EXPECT_THAT(SuperfluousVersions(Latest(kSunday + 12h)), IsEmpty());
    EXPECT_THAT(SuperfluousVersions(Latest(kSunday + 12h, kLatestVersions + 2)),
                ElementsAre(kLatestVersions, kLatestVersions + 1));
}

TEST(VersionPlan, KeepsTheLatestVersionsThoughTheyAreFarApart) {
    std::vector<KeptVersion> versions;
    for (int i = 0; i < static_cast<int>(kLatestVersions); ++i) {
        versions.push_back({.time = kSunday - i * days(1000), .size = 1});
    }
    EXPECT_THAT(SuperfluousVersions(versions), IsEmpty());
}

// Days

TEST(VersionPlan, KeepsTheNewestVersionOfADayAndNoOther) {
    EXPECT_THAT(AreKeptBehind(kSunday + 12h, {kSunday, kSunday - 1s, kSunday - 2s, kSunday - days(1)}),
                ElementsAre(false, true, false, false));
}

TEST(VersionPlan, KeepsAVersionOfEachOfThirtyDays) {
    for (const auto newest : {sys_seconds(kSunday), kSunday + days(1) - 1s}) {
        // A day of the week before's, which has a newer version.
        const auto thirtieth = kSunday - days(29);
        EXPECT_THAT(AreKeptBehind(newest, {thirtieth + days(1), thirtieth + 1s, thirtieth, thirtieth - 1s,
                                           thirtieth - days(1)}),
                    ElementsAre(true, true, false, false, false))
            << newest.time_since_epoch();
    }
}

// Weeks

TEST(VersionPlan, KeepsTheNewestVersionOfAWeekThatBeginsOnMonday) {
    const auto monday = kMonday - days(70);
    EXPECT_THAT(AreKeptBehind(kSunday, {monday + days(7), monday + days(7) - 1s, monday + days(3), monday,
                                        monday - 1s}),
                ElementsAre(true, true, false, false, true));
}

TEST(VersionPlan, KeepsAVersionOfEachWeekOfAYear) {
    const auto yearAgo = kSunday - days(365); // a Saturday
    for (const auto newest : {sys_seconds(kSunday), kSunday + days(1) - 1s}) {
        EXPECT_THAT(AreKeptBehind(newest, {yearAgo + days(7), yearAgo + 1s, yearAgo}),
                    ElementsAre(true, true, false))
            << newest.time_since_epoch();
        EXPECT_THAT(AreKeptBehind(newest, {yearAgo}), ElementsAre(true));
        EXPECT_THAT(AreKeptBehind(newest, {yearAgo - 1s}), ElementsAre(false));
    }
}

TEST(VersionPlan, CountsDaysAndWeeksBefore1970Too) {
    const auto newest = std::chrono::sys_days(1969y / 12 / 28) + 12h; // a Sunday
    EXPECT_THAT(AreKeptBehind(
                    newest, {newest - days(1), newest - days(1) - 1s, newest - days(41), newest - days(42)}),
                ElementsAre(true, false, true, true));
}

// Room

std::vector<KeptVersion> OfSizes(const std::vector<std::uint64_t>& sizes) {
    std::vector<KeptVersion> versions;
    for (const auto size : sizes) {
        versions.push_back({.time = kSunday - std::chrono::seconds(versions.size()), .size = size});
    }
    return versions;
}

TEST(VersionPlan, KeepsWhatFitsToTheByte) {
    EXPECT_THAT(SuperfluousVersions(OfSizes({30 * kMegabyte, 34 * kMegabyte, 0})), IsEmpty());
    EXPECT_THAT(SuperfluousVersions(OfSizes({30 * kMegabyte, 34 * kMegabyte, 1})), ElementsAre(2));
    EXPECT_THAT(SuperfluousVersions(OfSizes({30 * kMegabyte, 34 * kMegabyte + 1})), ElementsAre(1));
}

TEST(VersionPlan, GivesUpTheOldestFirst) {
    EXPECT_THAT(SuperfluousVersions(OfSizes({kMegabyte, 64 * kMegabyte, 1, 0})), ElementsAre(1, 2, 3));
}

TEST(VersionPlan, KeepsTheNewestWhateverItsSize) {
    EXPECT_THAT(SuperfluousVersions(OfSizes({kMostVersionBytes + 1})), IsEmpty());
    EXPECT_THAT(SuperfluousVersions(OfSizes({kMostVersionBytes + 1, 0, 1})), ElementsAre(1, 2));
    EXPECT_THAT(SuperfluousVersions(OfSizes({UINT64_MAX, UINT64_MAX})), ElementsAre(1));
}

TEST(VersionPlan, LeavesRoomForOlderVersionsWhereOthersAreNotKeptAnyway) {
    auto versions = Latest(kSunday + 12h);
    versions.push_back({.time = kSunday + 1h, .size = kMostVersionBytes});
    versions.push_back({.time = kSunday - 1s, .size = 1});
    EXPECT_THAT(SuperfluousVersions(versions), ElementsAre(kLatestVersions));
}

// Whatever was kept

class AnyVersions : public ::testing::TestWithParam<unsigned> {
  protected:
    std::uint64_t Below(std::uint64_t end) {
        return std::uniform_int_distribution<std::uint64_t>(0, end - 1)(random);
    }

    /// From minutes to years apart, most of them small.
    std::vector<KeptVersion> Versions() {
        std::vector<KeptVersion> versions;
        auto time = kSunday + std::chrono::seconds(Below(86400));
        for (auto left = Below(120); left > 0; --left) {
            const std::uint64_t most[] = {100, 86400, 10 * 86400, 100 * 86400};
            time -= std::chrono::seconds(1 + Below(most[Below(4)]));
            versions.push_back({.time = time, .size = Below(Below(10) == 0 ? 20 * kMegabyte : 1000)});
        }
        return versions;
    }

    static std::vector<KeptVersion> Without(std::vector<KeptVersion> versions,
                                            const std::vector<std::size_t>& places) {
        for (auto place = places.rbegin(); place != places.rend(); ++place) {
            versions.erase(versions.begin() + static_cast<std::ptrdiff_t>(*place));
        }
        return versions;
    }

    static std::uint64_t Bytes(const std::vector<KeptVersion>& versions) {
        return std::accumulate(versions.begin(), versions.end(), std::uint64_t{0},
                               [](std::uint64_t sum, const auto& version) { return sum + version.size; });
    }

    std::mt19937 random{GetParam()};
};

INSTANTIATE_TEST_SUITE_P(Seeds, AnyVersions, ::testing::Range(1U, 41U));

TEST_P(AnyVersions, LoseNeitherTheNewestNorTheOrderOfTheirPlaces) {
    for (int times = 0; times < 25; ++times) {
        const auto versions = Versions();
        const auto superfluous = SuperfluousVersions(versions);
        EXPECT_TRUE(superfluous.empty() || superfluous.front() > 0);
        EXPECT_TRUE(std::is_sorted(superfluous.begin(), superfluous.end(), std::less_equal<>()));
        EXPECT_TRUE(superfluous.empty() || superfluous.back() < versions.size());
    }
}

TEST_P(AnyVersions, AreNeitherTooManyNorTooLargeAfterwards) {
    for (int times = 0; times < 25; ++times) {
        const auto versions = Versions();
        const auto left = Without(versions, SuperfluousVersions(versions));
        EXPECT_LE(left.size(), kLatestVersions + 30 + 54);
        EXPECT_TRUE(left.size() <= 1 || Bytes(left) <= kMostVersionBytes);
    }
}

TEST_P(AnyVersions, HaveNothingMoreToRemoveAfterwards) {
    for (int times = 0; times < 25; ++times) {
        const auto versions = Versions();
        const auto left = Without(versions, SuperfluousVersions(versions));
        EXPECT_THAT(SuperfluousVersions(left), IsEmpty());
    }
}

TEST_P(AnyVersions, KeepTheNewestOfEachDayAndWeekWhileThereIsRoom) {
    for (int times = 0; times < 25; ++times) {
        auto versions = Versions();
        for (auto& version : versions) {
            version.size = 1;
        }
        const auto left = Without(versions, SuperfluousVersions(versions));
        for (const auto& version : versions) {
            const auto age = versions.front().time - version.time;
            const bool isOfItsDay = std::any_of(left.begin(), left.end(), [&](const auto& other) {
                return other.time >= version.time && other.time - version.time < days(1);
            });
            const bool isOfItsWeek = std::any_of(left.begin(), left.end(), [&](const auto& other) {
                return other.time >= version.time && other.time - version.time < days(7);
            });
            EXPECT_TRUE(isOfItsDay || age > days(29));
            EXPECT_TRUE(isOfItsWeek || age > days(365));
        }
    }
}

} // namespace
} // namespace zy::test
