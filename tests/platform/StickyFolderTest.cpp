// Folders whose files are removed by their owners alone.

#include "platform/posix/StickyFolder.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "support/TemporaryFolder.h"

namespace zy::test {
namespace {

constexpr uid_t kRoot = 0;
constexpr uid_t kAnna = 1000;
constexpr uid_t kBert = 1001;
constexpr uid_t kCleo = 1002;

TEST(StickyFolderTest, KeepsAFileFromWhoeverOwnsNeitherItNorTheFolder) {
    const Ownership owners{.isFolderSticky = true, .folder = kAnna, .file = kBert};
    EXPECT_FALSE(MayTakeAway(owners, kCleo));
    EXPECT_FALSE(MayTakeAway({.isFolderSticky = true, .folder = kRoot, .file = kRoot}, kCleo));
}

TEST(StickyFolderTest, KeepsAFileNeitherFromTheOwnersNorFromRoot) {
    const Ownership owners{.isFolderSticky = true, .folder = kAnna, .file = kBert};
    for (const auto user : {kAnna, kBert, kRoot}) {
        EXPECT_TRUE(MayTakeAway(owners, user)) << user;
    }
}

TEST(StickyFolderTest, IsTheOnlyKindThatKeepsAFileForItsOwner) {
    EXPECT_TRUE(MayTakeAway({.isFolderSticky = false, .folder = kAnna, .file = kBert}, kCleo));
}

TEST(StickyFolderTest, KeepsNothingFromTheUserWhoMadeIt) {
    const TemporaryFolder folder;
    folder.Put("a.sys", "");
    std::filesystem::permissions(folder.Path(), std::filesystem::perms(01777));
    EXPECT_EQ(StickyBitError(folder.Path("a.sys")), FileError::None);
    EXPECT_EQ(StickyBitError(folder.Path("missing.sys")), FileError::None);
    EXPECT_EQ(StickyBitError(folder.Path("missing/a.sys")), FileError::None);
}

} // namespace
} // namespace zy::test
