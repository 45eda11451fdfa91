#include "platform/posix/Renaming.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cerrno>
#include <string>

#include "support/OrdinaryUser.h"
#include "support/TemporaryFolder.h"

namespace zy::test {
namespace {

using ::testing::ElementsAre;
using ::testing::Optional;
using namespace std::string_literals;

struct Way {
    const char* name;
    int (*rename)(const std::string& from, const std::string& to);
};

void PrintTo(const Way& way, std::ostream* out) {
    *out << way.name;
}

class Renaming : public ::testing::TestWithParam<Way> {
  protected:
    int Rename(const char* from, const char* to) {
        return GetParam().rename(folder.Path(from), folder.Path(to));
    }

    TemporaryFolder folder;
};

INSTANTIATE_TEST_SUITE_P(Ways, Renaming,
                         ::testing::Values(Way{"ByFlag", RenameByFlag}, Way{"ByLink", RenameByLink},
                                           Way{"AfterCheck", RenameAfterCheck},
                                           Way{"InTheBestWay", RenameWithoutReplacing}),
                         [](const auto& test) { return test.param.name; });

TEST_P(Renaming, MovesTheFile) {
    folder.Put("old", "bytes");
    EXPECT_EQ(Rename("old", "new"), 0);
    EXPECT_THAT(folder.Names(), ElementsAre("new"));
    EXPECT_THAT(folder.Get("new"), Optional("bytes"s));
}

TEST_P(Renaming, NeverReplacesAFile) {
    folder.Put("old", "first");
    folder.Put("new", "second");
    EXPECT_EQ(Rename("old", "new"), EEXIST);
    EXPECT_THAT(folder.Get("old"), Optional("first"s));
    EXPECT_THAT(folder.Get("new"), Optional("second"s));
}

TEST_P(Renaming, NeverReplacesALinkThatLeadsNowhere) {
    folder.Put("old", "first");
    std::filesystem::create_symlink("nowhere", folder.Path("new"));
    EXPECT_EQ(Rename("old", "new"), EEXIST);
    EXPECT_TRUE(std::filesystem::is_symlink(folder.Path("new")));
}

TEST_P(Renaming, ReportsAMissingFile) {
    EXPECT_EQ(Rename("missing", "new"), ENOENT);
}

TEST_P(Renaming, ReportsAMissingFolder) {
    folder.Put("old", "bytes");
    EXPECT_EQ(Rename("old", "missing/new"), ENOENT);
    EXPECT_THAT(folder.Get("old"), Optional("bytes"s));
}

TEST_P(Renaming, LeavesTheFileWhereItIsWhenItsFolderMayNotBeChanged) {
    folder.AddFolder("locked");
    folder.AddFolder("open");
    folder.Put("locked/old", "bytes");
    std::filesystem::permissions(folder.Path("locked"), std::filesystem::perms{0555});
    {
        const OrdinaryUser user(folder.Path());
        EXPECT_EQ(Rename("locked/old", "open/new"), EACCES);
    }
    std::filesystem::permissions(folder.Path("locked"), std::filesystem::perms{0755});
    EXPECT_THAT(folder.Get("locked/old"), Optional("bytes"s));
    EXPECT_EQ(folder.Get("open/new"), std::nullopt);
}

// Choosing the way

int RefusesAsUnsupported(const std::string& /*from*/, const std::string& /*to*/) {
    return EINVAL;
}
bool IsUnsupported(int errorNumber) {
    return errorNumber == EINVAL;
}

TEST(RenameInFirstWayTest, GoesOnToTheNextWayWhereOneIsNotSupported) {
    const TemporaryFolder folder;
    folder.Put("old", "bytes");
    constexpr RenamingWay kWays[] = {{.rename = RefusesAsUnsupported, .isUnsupported = IsUnsupported},
                                     {.rename = RenameByLink, .isUnsupported = IsUnsupported}};
    EXPECT_EQ(RenameInFirstWay(kWays, folder.Path("old"), folder.Path("new")), 0);
    EXPECT_THAT(folder.Names(), ElementsAre("new"));
}

TEST(RenameInFirstWayTest, StopsAtAWayThatIsSupportedAlthoughItFails) {
    const TemporaryFolder folder;
    folder.Put("old", "first");
    folder.Put("new", "second");
    constexpr RenamingWay kWays[] = {
        {.rename = RenameByFlag, .isUnsupported = IsUnsupported},
        {.rename = [](const std::string&, const std::string&) { return 0; }, .isUnsupported = IsUnsupported}};
    EXPECT_EQ(RenameInFirstWay(kWays, folder.Path("old"), folder.Path("new")), EEXIST);
}

TEST(RenameInFirstWayTest, ReportsTheErrorOfTheLastWayWhereNoneIsSupported) {
    constexpr RenamingWay kWays[] = {{.rename = RefusesAsUnsupported, .isUnsupported = IsUnsupported}};
    EXPECT_EQ(RenameInFirstWay(kWays, "old", "new"), EINVAL);
    EXPECT_EQ(RenameInFirstWay({}, "old", "new"), ENOSYS);
}

} // namespace
} // namespace zy::test
