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

TEST_F(PathResolverTest, IgnoresRepeatedAndClosingSlashesAndDots) {
    EXPECT_THAT(resolver.Resolve(R"(\\tmp//x\)"), Optional("/tmp/x"s));
    EXPECT_THAT(resolver.Resolve(R"(\)"), Optional("/"s));
    EXPECT_THAT(resolver.Resolve(R"(\.\tmp\.)"), Optional("/tmp"s));
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

// Known folders

class KnownFoldersTest : public PathResolverTest {
  protected:
    /// Makes a folder that the program knows from its start.
    void Know(const std::string& name) {
        folder.AddFolder(name);
        known.push_back({.inside = PathText(Windows1252()).PathToInside(folder.Path(name)),
                         .outside = folder.Path(name)});
    }

    /// The path of a name in the test's folder, in capitals.
    std::string Capitals(std::string_view name) const { return Windows1252().UCase(folder.InsidePath(name)); }

    std::optional<std::string> ResolveKnown(const std::string& path) const {
        return PathResolver(Windows1252(), known).Resolve(path);
    }

    std::vector<KnownFolder> known;
};

TEST_F(KnownFoldersTest, AreReachedInCapitalsWhateverStandsBesideThem) {
    Know("w/sys");
    folder.Put("w/sys/ZYSECURE.DBF", "");
    for (const char* other : {"W", "W/SYS", "w/SYS", "w/Sys"}) {
        folder.AddFolder(other);
    }
    EXPECT_THAT(ResolveKnown(Capitals(R"(w\sys\ZYSECURE.DBF)")), Optional(folder.Path("w/sys/ZYSECURE.DBF")));
    EXPECT_THAT(ResolveKnown(Capitals(R"(w\sys\ZYSECURE.TMP)")), Optional(folder.Path("w/sys/ZYSECURE.TMP")));
    EXPECT_THAT(ResolveKnown(Capitals(R"(w\sys)")), Optional(folder.Path("w/sys")));
}

TEST_F(KnownFoldersTest, AreReachedWhereTheFolderAboveThemCannotBeListed) {
    Know("home/anna");
    folder.Put("home/anna/ZYSECURE.DBF", "");
    std::filesystem::permissions(folder.Path("home"), std::filesystem::perms::owner_exec);
    const OrdinaryUser user(folder.Path());
    EXPECT_THAT(ResolveKnown(Capitals(R"(home\anna\ZYSECURE.DBF)")),
                Optional(folder.Path("home/anna/ZYSECURE.DBF")));
}

TEST_F(KnownFoldersTest, HaveTheirFilesFoundAsInEveryFolder) {
    Know("sys");
    folder.Put("sys/Users.dbf", "");
    folder.Put("sys/a.sys", "");
    folder.Put("sys/A.sys", "");
    EXPECT_THAT(ResolveKnown(Capitals(R"(sys\users.dbf)")), Optional(folder.Path("sys/Users.dbf")));
    EXPECT_THAT(ResolveKnown(folder.InsidePath(R"(SYS\a.sys)")), Optional(folder.Path("sys/a.sys")));
    EXPECT_THAT(ResolveKnown(folder.InsidePath(R"(SYS\New.sys)")), Optional(folder.Path("sys/New.sys")));
}

TEST_F(KnownFoldersTest, AreNoneOfThoseWhoseNamesGoOn) {
    Know("sys");
    folder.AddFolder("SYSTEM");
    EXPECT_THAT(ResolveKnown(Capitals(R"(system\a.sys)")), Optional(folder.Path("SYSTEM/A.SYS")));
}

TEST_F(KnownFoldersTest, AreReachedThroughRepeatedSlashesAndDots) {
    Know("w/sys");
    folder.AddFolder("W/SYS");
    known.front().outside += '/';
    EXPECT_THAT(ResolveKnown(Capitals(R"(w\.\\sys\a.sys)")), Optional(folder.Path("w/sys//A.SYS")));
    known.front().inside += R"(\.\)";
    EXPECT_THAT(ResolveKnown(Capitals(R"(w\sys/a.sys)")), Optional(folder.Path("w/sys//A.SYS")));
}

TEST_F(KnownFoldersTest, AreReachedAsTheyWereNamedThroughLinksAndUpwards) {
    folder.AddFolder("real/sys");
    folder.AddFolder("LINK");
    std::filesystem::create_directory_symlink("real", folder.Path("link"));
    Know("link/../real/sys");
    EXPECT_THAT(ResolveKnown(Capitals(R"(link\..\real\sys\a.sys)")),
                Optional(folder.Path("link/../real/sys/A.SYS")));
}

TEST_F(KnownFoldersTest, LeadToTheOneFurthestDown) {
    for (const char* name : {"w/sys", "w/sys/deep", "w"}) {
        Know(name);
    }
    folder.AddFolder("w/sys/DEEP");
    folder.AddFolder("w/SYS");
    EXPECT_THAT(ResolveKnown(Capitals(R"(w\sys\deep\a)")), Optional(folder.Path("w/sys/deep/A")));
    EXPECT_THAT(ResolveKnown(Capitals(R"(w\sys\a)")), Optional(folder.Path("w/sys/A")));
    EXPECT_THAT(ResolveKnown(Capitals(R"(w\a)")), Optional(folder.Path("w/A")));
}

TEST_F(KnownFoldersTest, LeadToTheExactOneOfTwoThatDifferInCase) {
    Know("Anna");
    Know("anna");
    Know("ANNA2");
    EXPECT_THAT(ResolveKnown(folder.InsidePath(R"(anna\a)")), Optional(folder.Path("anna/a")));
    EXPECT_THAT(ResolveKnown(folder.InsidePath(R"(Anna\a)")), Optional(folder.Path("Anna/a")));
    EXPECT_THAT(ResolveKnown(Capitals(R"(anna\a)")), Optional(folder.Path("Anna/A")));
}

TEST_F(KnownFoldersTest, DoNotIncludeTheRootFolder) {
    known.push_back({.inside = "", .outside = "/nowhere"});
    folder.Put("a.sys", "");
    EXPECT_THAT(ResolveKnown(Capitals("a.sys")), Optional(folder.Path("a.sys")));
}

// Certainty

class LocateTest : public KnownFoldersTest {
  protected:
    FileError Locate(const std::string& path) const {
        return PathResolver(Windows1252(), known).Locate(path);
    }
    void Lock(std::string_view name, std::filesystem::perms left) const {
        std::filesystem::permissions(folder.Path(name), left);
    }

    static constexpr auto kListOnly = std::filesystem::perms::owner_read;
    static constexpr auto kEnterOnly = std::filesystem::perms::owner_exec;
};

TEST_F(LocateTest, DoubtsANameThatMatchesExactlyWhereAnotherDiffersInCaseAlone) {
    folder.Put("ZYSECURE.DBF", "");
    EXPECT_EQ(Locate(Capitals("ZYSECURE.DBF")), FileError::None);
    folder.Put("zysecure.dbf", "");
    EXPECT_EQ(Locate(Capitals("ZYSECURE.DBF")), FileError::Ambiguous);
}

TEST_F(LocateTest, DoubtsAFolderOnTheWayOfWhichThereAreTwo) {
    folder.AddFolder("w/sys");
    folder.AddFolder("w/SYS");
    folder.Put("w/sys/a.sys", "");
    EXPECT_EQ(Locate(folder.InsidePath(R"(w\sys\a.sys)")), FileError::Ambiguous);
    EXPECT_EQ(Locate(folder.InsidePath(R"(w\sys\missing.sys)")), FileError::Ambiguous);
}

TEST_F(LocateTest, TrustsAKnownFolderAndDoubtsWhatStandsInIt) {
    Know("w/sys");
    folder.AddFolder("w/SYS");
    folder.Put("w/sys/ZYSECURE.DBF", "");
    EXPECT_EQ(Locate(Capitals(R"(w\sys\ZYSECURE.DBF)")), FileError::None);
    folder.Put("w/sys/zysecure.dbf", "");
    EXPECT_EQ(Locate(Capitals(R"(w\sys\ZYSECURE.DBF)")), FileError::Ambiguous);
}

TEST_F(LocateTest, IsCertainOfWhatIsMissing) {
    folder.AddFolder("data");
    folder.Put("a.sys", "");
    for (const char* name : {"missing.sys", R"(DATA\MISSING.SYS)", R"(missing\a.sys)", R"(missing\..\a.sys)",
                             R"(a.sys\b.sys)"}) {
        EXPECT_EQ(Locate(folder.InsidePath(name)), FileError::None) << name;
    }
}

TEST_F(LocateTest, IsCertainThatNoFileHasAPathThatIsNone) {
    for (const auto& path : {""s, "a.sys"s, R"(C:\SYS\a.sys)"s, R"(\)"s, folder.InsidePath("a\0b"s)}) {
        EXPECT_EQ(Locate(path), FileError::None) << path;
    }
}

TEST_F(LocateTest, CannotTellBelowAFolderThatHidesItsNames) {
    folder.AddFolder("home/anna");
    folder.Put("home/anna/a.sys", "");
    Lock("home", kEnterOnly);
    const OrdinaryUser user(folder.Path());
    EXPECT_EQ(Locate(folder.InsidePath(R"(home\anna\a.sys)")), FileError::AccessDenied);
    EXPECT_EQ(Locate(Capitals(R"(home\anna\a.sys)")), FileError::AccessDenied);
    EXPECT_EQ(Locate(folder.InsidePath(R"(home\missing)")), FileError::AccessDenied);
}

TEST_F(LocateTest, CannotTellBelowAFolderThatMayNotBeEntered) {
    folder.AddFolder("home/anna");
    folder.Put("home/anna/a.sys", "");
    folder.Put("home/b.sys", "");
    Lock("home", kListOnly);
    const OrdinaryUser user(folder.Path());
    EXPECT_EQ(Locate(folder.InsidePath(R"(home\anna\a.sys)")), FileError::AccessDenied);
    EXPECT_EQ(Locate(folder.InsidePath(R"(home\b.sys)")), FileError::AccessDenied);
}

TEST_F(LocateTest, TrustsAKnownFolderBelowOneThatHidesItsNames) {
    Know("home/anna");
    folder.Put("home/anna/a.sys", "");
    Lock("home", kEnterOnly);
    const OrdinaryUser user(folder.Path());
    EXPECT_EQ(Locate(Capitals(R"(home\anna\a.sys)")), FileError::None);
    EXPECT_EQ(Locate(Capitals(R"(home\anna\missing.sys)")), FileError::None);
}

TEST_F(LocateTest, CannotTellWhatAKnownFolderHoldsThatHidesItsNames) {
    Know("sys");
    folder.Put("sys/A.SYS", "");
    Lock("sys", kEnterOnly);
    const OrdinaryUser user(folder.Path());
    EXPECT_EQ(Locate(Capitals(R"(sys\a.sys)")), FileError::AccessDenied);
}

TEST_F(LocateTest, FollowsLinksOnTheWay) {
    folder.AddFolder("real");
    folder.Put("real/a.sys", "");
    std::filesystem::create_directory_symlink("real", folder.Path("Link"));
    EXPECT_EQ(Locate(Capitals(R"(link\a.sys)")), FileError::None);
    folder.Put("real/A.sys", "");
    EXPECT_EQ(Locate(Capitals(R"(link\a.sys)")), FileError::Ambiguous);
}

TEST_F(LocateTest, CannotTellWhereALinkLeadsThatEndsOutOfReach) {
    folder.AddFolder("locked");
    folder.Put("locked/a.sys", "");
    std::filesystem::create_symlink("locked/a.sys", folder.Path("link.sys"));
    Lock("locked", kListOnly);
    const OrdinaryUser user(folder.Path());
    EXPECT_EQ(Locate(folder.InsidePath("link.sys")), FileError::AccessDenied);
}

TEST_F(LocateTest, IsCertainThatALinkLeadsNowhere) {
    std::filesystem::create_symlink("nowhere", folder.Path("link.sys"));
    EXPECT_EQ(Locate(folder.InsidePath("link.sys")), FileError::None);
}

TEST_F(LocateTest, DoesNotTakeLinksInACircleForAMissingFile) {
    std::filesystem::create_symlink("b.sys", folder.Path("a.sys"));
    std::filesystem::create_symlink("a.sys", folder.Path("b.sys"));
    EXPECT_EQ(Locate(folder.InsidePath("a.sys")), FileError::LinkLoop);
    EXPECT_EQ(Locate(folder.InsidePath(R"(a.sys\c.sys)")), FileError::LinkLoop);
}

TEST_F(LocateTest, WalksUpADoubleDot) {
    folder.AddFolder("data");
    folder.Put("a.sys", "");
    EXPECT_EQ(Locate(Capitals(R"(data\..\a.sys)")), FileError::None);
    folder.Put("A.sys", "");
    EXPECT_EQ(Locate(Capitals(R"(data\..\a.sys)")), FileError::Ambiguous);
}

} // namespace
} // namespace zy::test
