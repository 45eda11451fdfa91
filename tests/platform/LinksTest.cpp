#include "platform/posix/Links.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "support/TemporaryFolder.h"

namespace zy::test {
namespace {

class FollowLinksTest : public ::testing::Test {
  protected:
    void Link(const std::string& name, const std::string& target) {
        std::filesystem::create_symlink(target, folder.Path(name));
    }
    std::string End(const std::string& name) {
        const auto end = FollowLinks(folder.Path(name));
        EXPECT_EQ(end.error, FileError::None);
        return end.path;
    }

    TemporaryFolder folder;
};

TEST_F(FollowLinksTest, LeavesAPathThatEndsInNoLink) {
    folder.Put("a.sys", "");
    EXPECT_EQ(End("a.sys"), folder.Path("a.sys"));
    EXPECT_EQ(End("missing/a.sys"), folder.Path("missing/a.sys"));
}

TEST_F(FollowLinksTest, GoesToAnotherFolderFromTheRootOrFromTheLinkOn) {
    folder.AddFolder("shared");
    folder.Put("shared/a.sys", "");
    Link("whole.sys", folder.Path("shared/a.sys"));
    Link("relative.sys", "shared/a.sys");
    EXPECT_EQ(End("whole.sys"), folder.Path("shared/a.sys"));
    EXPECT_EQ(End("relative.sys"), folder.Path("shared/a.sys"));
}

TEST_F(FollowLinksTest, TakesEachLinkOfAChainFromItsOwnFolderOn) {
    folder.AddFolder("one/two");
    Link("first", "one/second");
    Link("one/second", "two/third");
    Link("one/two/third", "../../end.sys");
    folder.Put("end.sys", "");
    EXPECT_EQ(End("first"), folder.Path("one/two/../../end.sys"));
}

TEST_F(FollowLinksTest, GoesToAPlaceWhereNoFileIsYet) {
    Link("a.sys", "new.sys");
    EXPECT_EQ(End("a.sys"), folder.Path("new.sys"));
}

TEST_F(FollowLinksTest, SaysThatLinksLeadInACircle) {
    Link("a.sys", "b.sys");
    Link("b.sys", "a.sys");
    Link("self.sys", "self.sys");
    EXPECT_EQ(FollowLinks(folder.Path("a.sys")).error, FileError::LinkLoop);
    EXPECT_EQ(FollowLinks(folder.Path("self.sys")).error, FileError::LinkLoop);
}

TEST_F(FollowLinksTest, FollowsAsManyLinksAsTheSystemDoes) {
    folder.Put("0", "");
    for (int link = 1; link <= 41; ++link) {
        Link(std::to_string(link), std::to_string(link - 1));
    }
    EXPECT_EQ(End("40"), folder.Path("0"));
    EXPECT_TRUE(std::filesystem::exists(folder.Path("40")));
    EXPECT_EQ(FollowLinks(folder.Path("41")).error, FileError::LinkLoop);
    std::error_code loop;
    EXPECT_FALSE(std::filesystem::exists(folder.Path("41"), loop));
}

} // namespace
} // namespace zy::test
