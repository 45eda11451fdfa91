#include "platform/posix/PathResolver.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "support/OrdinaryUser.h"
#include "support/TemporaryFolder.h"

namespace zy::test {
namespace {

using ::testing::Optional;
using namespace std::string_literals;

class PathResolverTest : public ::testing::Test {
  protected:
    std::optional<std::string> Resolve(std::string_view name) {
        return resolver.Resolve(folder.InsidePath(name));
    }

    TemporaryFolder folder;
    PathResolver resolver{Windows1252()};
};

TEST_F(PathResolverTest, FindsANameAsItStands) {
    folder.Put("ZYRules.sys", "");
    EXPECT_THAT(Resolve("ZYRules.sys"), Optional(folder.Path("ZYRules.sys")));
}

TEST_F(PathResolverTest, FindsANameInAnotherCase) {
    folder.Put("ZYRules.sys", "");
    EXPECT_THAT(Resolve("zyrules.SYS"), Optional(folder.Path("ZYRules.sys")));
}

TEST_F(PathResolverTest, FindsEachFolderOnTheWayInAnotherCase) {
    folder.AddFolder("Data/Größe");
    folder.Put("Data/Größe/a.sys", "");
    EXPECT_THAT(Resolve("DATA\\gR\xD6\xDF\x65\\A.sys"), Optional(folder.Path("Data/Größe/a.sys")));
}

TEST_F(PathResolverTest, PrefersAnExactMatch) {
    folder.Put("A.sys", "");
    folder.Put("a.sys", "");
    EXPECT_THAT(Resolve("a.sys"), Optional(folder.Path("a.sys")));
    EXPECT_THAT(Resolve("A.sys"), Optional(folder.Path("A.sys")));
}

TEST_F(PathResolverTest, TakesTheFirstOfSeveralThatDifferInCase) {
    folder.Put("b.Sys", "");
    folder.Put("B.sys", "");
    folder.Put("b.sys", "");
    EXPECT_THAT(Resolve("B.SYS"), Optional(folder.Path("B.sys")));
}

TEST_F(PathResolverTest, KeepsTheCaseOfANameThatDoesNotExist) {
    EXPECT_THAT(Resolve("Rules.Tmp"), Optional(folder.Path("Rules.Tmp")));
    EXPECT_THAT(Resolve(R"(New\Rules.Tmp)"), Optional(folder.Path("New/Rules.Tmp")));
}

TEST_F(PathResolverTest, FindsANameThatTheCodePageCannotExpress) {
    folder.Put("Ω.sys", "");
    folder.Put("\xFF.sys", "");
    EXPECT_THAT(Resolve("\x1A"
                        "CE\x1A"
                        "A9.SYS"),
                Optional(folder.Path("Ω.sys")));
    EXPECT_THAT(Resolve("\x1A"
                        "FF.SYS"),
                Optional(folder.Path("\xFF.sys")));
}

TEST_F(PathResolverTest, DoesNotCompareLettersOutsideTheCodePageWithoutCase) {
    folder.Put("ω.sys", "");
    EXPECT_THAT(Resolve("\x1A"
                        "CE\x1A"
                        "A9.SYS"),
                Optional(folder.Path("Ω.SYS")));
}

TEST_F(PathResolverTest, FindsALinkThatLeadsNowhere) {
    std::filesystem::create_symlink("nowhere", folder.Path("Link.sys"));
    EXPECT_THAT(Resolve("LINK.SYS"), Optional(folder.Path("Link.sys")));
}

TEST_F(PathResolverTest, TakesEitherSlash) {
    folder.AddFolder("data");
    EXPECT_THAT(resolver.Resolve(folder.Path().string() + "/DATA\\x"), Optional(folder.Path("data/x")));
}

TEST_F(PathResolverTest, IgnoresRepeatedAndClosingSlashes) {
    EXPECT_THAT(resolver.Resolve(R"(\\tmp//x\)"), Optional("/tmp/x"s));
    EXPECT_THAT(resolver.Resolve(R"(\)"), Optional("/"s));
}

TEST_F(PathResolverTest, WalksUpADoubleDot) {
    folder.AddFolder("data");
    folder.Put("a.sys", "");
    EXPECT_THAT(Resolve(R"(DATA\..\A.SYS)"), Optional(folder.Path("data/../a.sys")));
}

TEST_F(PathResolverTest, HasNothingForAPathThatIsNotAbsolute) {
    for (const char* path : {"", "a.sys", R"(a\b)", R"(C:\SYS\a.sys)", "."}) {
        EXPECT_EQ(resolver.Resolve(path), std::nullopt) << path;
    }
}

TEST_F(PathResolverTest, HasNothingForAPathThatNoFileCanHave) {
    EXPECT_EQ(Resolve("a\0b"s), std::nullopt);
    EXPECT_EQ(Resolve("a\x1A"), std::nullopt);
    EXPECT_EQ(Resolve("\x1A"
                      "2F\\b"),
              std::nullopt);
}

TEST_F(PathResolverTest, FindsAnExactNameInAFolderThatCannotBeListed) {
    folder.AddFolder("locked");
    folder.Put("locked/a.sys", "");
    std::filesystem::permissions(folder.Path("locked"), std::filesystem::perms::owner_exec);
    const OrdinaryUser user(folder.Path());
    EXPECT_THAT(Resolve(R"(locked\a.sys)"), Optional(folder.Path("locked/a.sys")));
    EXPECT_THAT(Resolve(R"(locked\A.SYS)"), Optional(folder.Path("locked/A.SYS")));
}

} // namespace
} // namespace zy::test
