#include "platform/windows/RootedPath.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/TemporaryFolder.h"

namespace zy::test {
namespace {

using ::testing::Optional;
using namespace std::string_literals;

TEST(RootedPath, StartsAtADriveARootOrAServer) {
    for (const auto& path : {R"(C:\ZYRules.sys)"s, R"(c:/zyrules.sys)"s, R"(\ZYRules.sys)"s, "/ZYRules.sys"s,
                             R"(\\server\share\ZYRules.sys)"s, R"(C:\)"s}) {
        EXPECT_THAT(RootedPath(path), Optional(path));
    }
}

TEST(RootedPath, DoesNotDependOnTheCurrentFolder) {
    for (const auto& path :
         {""s, "ZYRules.sys"s, R"(folder\ZYRules.sys)"s, "C:ZYRules.sys"s, "C:"s, R"(..\a.sys)"s}) {
        EXPECT_EQ(RootedPath(path), std::nullopt) << path;
    }
}

TEST(RootedPath, HoldsNoNul) {
    EXPECT_EQ(RootedPath("C:\\a.sys\0"s), std::nullopt);
    EXPECT_EQ(RootedPath("C:\\a\0.sys"s), std::nullopt);
}

TEST(RootedPath, LeadsToAFileOrAFolderOrNothing) {
    const TemporaryFolder folder;
    folder.Put("a.sys", "");
    EXPECT_TRUE(IsFile(folder.InsidePath("a.sys")));
    EXPECT_FALSE(IsFolder(folder.InsidePath("a.sys")));
    EXPECT_TRUE(IsFolder(folder.InsidePath()));
    EXPECT_FALSE(IsFile(folder.InsidePath()));
    EXPECT_FALSE(IsFile(folder.InsidePath("missing")));
    EXPECT_FALSE(IsFolder(folder.InsidePath("missing")));
}

} // namespace
} // namespace zy::test
