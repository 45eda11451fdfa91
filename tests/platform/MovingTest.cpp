#include "platform/posix/Moving.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <cerrno>
#include <filesystem>
#include <string>

#include "platform/posix/Renaming.h"
#include "support/AnotherDisk.h"
#include "support/FileSizeLimit.h"
#include "support/OrdinaryUser.h"
#include "support/TemporaryFolder.h"

namespace zy::test {
namespace {

namespace fs = std::filesystem;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Optional;
using namespace std::string_literals;

int RefusesAsAnotherDisk(const std::string& /*from*/, const std::string& /*to*/) {
    return EXDEV;
}

dev_t DiskOf(const fs::path& path) {
    struct stat status {};
    EXPECT_EQ(::stat(path.c_str(), &status), 0);
    return status.st_dev;
}

/// One way to get from a folder to another, and where the other one is.
struct Journey {
    const char* name;
    int (*rename)(const std::string& from, const std::string& to);
    const char* below;
};

void PrintTo(const Journey& journey, std::ostream* out) {
    *out << journey.name;
}

/// A disk that says it is another one makes sure of the copy even where the temporary folders lie on what is
/// kAnotherDisk elsewhere.
class Moving : public ::testing::TestWithParam<Journey> {
  protected:
    Moving() {
        // For those who become an ordinary user.
        fs::permissions(target.Path(), fs::perms{0777});
    }

    FileError Move(const char* from, const char* to) {
        return MoveBy(GetParam().rename, source.Path(from), target.Path(to));
    }

    /// Everything in the folder that files move into, whatever it is called.
    std::vector<std::string> Arrived() const { return target.Names(); }

    TemporaryFolder source;
    TemporaryFolder target{GetParam().below};
};

INSTANTIATE_TEST_SUITE_P(Journeys, Moving,
                         ::testing::Values(Journey{"OnOneDisk", RenameWithoutReplacing, "/tmp"},
                                           Journey{"ToAnotherDisk", RenameWithoutReplacing, kAnotherDisk},
                                           Journey{"ToWhatSaysItIsAnotherDisk", RefusesAsAnotherDisk,
                                                   "/tmp"}),
                         [](const auto& test) { return test.param.name; });

TEST_P(Moving, TakesTheBytesAndPermissionsAlong) {
    std::string bytes(200000, 'x');
    bytes += "end\0"s;
    source.Put("old", bytes);
    fs::permissions(source.Path("old"), fs::perms{0640});
    EXPECT_EQ(Move("old", "new"), FileError::None);
    EXPECT_THAT(source.Names(), IsEmpty());
    EXPECT_THAT(Arrived(), ElementsAre("new"));
    EXPECT_THAT(target.Get("new"), Optional(bytes));
    EXPECT_EQ(fs::status(target.Path("new")).permissions(), fs::perms{0640});
}

TEST_P(Moving, TakesAnEmptyFile) {
    source.Put("old", "");
    EXPECT_EQ(Move("old", "new"), FileError::None);
    EXPECT_THAT(target.Get("new"), Optional(""s));
}

TEST_P(Moving, NeverReplacesAFile) {
    source.Put("old", "first");
    target.Put("new", "second");
    EXPECT_EQ(Move("old", "new"), FileError::Exists);
    EXPECT_THAT(source.Get("old"), Optional("first"s));
    EXPECT_THAT(target.Get("new"), Optional("second"s));
    EXPECT_THAT(Arrived(), ElementsAre("new"));
}

TEST_P(Moving, NeverReplacesALinkThatLeadsNowhere) {
    source.Put("old", "first");
    fs::create_symlink("nowhere", target.Path("new"));
    EXPECT_EQ(Move("old", "new"), FileError::Exists);
    EXPECT_TRUE(fs::is_symlink(target.Path("new")));
    EXPECT_THAT(source.Get("old"), Optional("first"s));
}

TEST_P(Moving, ReportsAMissingFileAndAMissingFolder) {
    EXPECT_EQ(Move("missing", "new"), FileError::NotFound);
    source.Put("old", "bytes");
    EXPECT_EQ(Move("old", "missing/new"), FileError::NotFound);
    EXPECT_THAT(source.Get("old"), Optional("bytes"s));
    EXPECT_THAT(Arrived(), IsEmpty());
}

TEST_P(Moving, LeavesAFileThatCannotBeRemovedAndNoCopyOfIt) {
    source.Put("old", "bytes");
    fs::permissions(source.Path(), fs::perms{0555});
    {
        const OrdinaryUser user(source.Path());
        EXPECT_EQ(Move("old", "new"), FileError::AccessDenied);
    }
    EXPECT_THAT(source.Get("old"), Optional("bytes"s));
    EXPECT_THAT(Arrived(), IsEmpty());
}

TEST_P(Moving, LeavesAFileThatMayNotGoWhereItShould) {
    source.Put("old", "bytes");
    fs::permissions(target.Path(), fs::perms{0555});
    {
        const OrdinaryUser user(source.Path());
        EXPECT_EQ(Move("old", "new"), FileError::AccessDenied);
    }
    EXPECT_THAT(source.Get("old"), Optional("bytes"s));
    EXPECT_THAT(Arrived(), IsEmpty());
}

/// The journeys on which the file is copied.
using MovingByCopy = Moving;

INSTANTIATE_TEST_SUITE_P(Journeys, MovingByCopy,
                         ::testing::Values(Journey{"ToAnotherDisk", RenameWithoutReplacing, kAnotherDisk},
                                           Journey{"ToWhatSaysItIsAnotherDisk", RefusesAsAnotherDisk,
                                                   "/tmp"}),
                         [](const auto& test) { return test.param.name; });

TEST_P(MovingByCopy, LeavesAFileThatFindsNoRoomAndNoCopyOfIt) {
    source.Put("old", "bytes");
    {
        const FileSizeLimit limit(3);
        EXPECT_EQ(Move("old", "new"), FileError::DiskFull);
    }
    EXPECT_THAT(source.Get("old"), Optional("bytes"s));
    EXPECT_THAT(Arrived(), IsEmpty());
}

TEST_P(MovingByCopy, LeavesAFileThatCannotBeReadAndNoCopyOfIt) {
    source.Put("old", "bytes");
    fs::permissions(source.Path("old"), fs::perms{0200});
    {
        const OrdinaryUser user(source.Path());
        EXPECT_EQ(Move("old", "new"), FileError::AccessDenied);
    }
    EXPECT_EQ(fs::file_size(source.Path("old")), 5U);
    EXPECT_THAT(Arrived(), IsEmpty());
}

TEST_P(MovingByCopy, LeavesWhatIsNoFile) {
    source.AddFolder("old");
    EXPECT_EQ(Move("old", "new"), FileError::IsFolder);
    EXPECT_TRUE(fs::is_directory(source.Path("old")));
    EXPECT_THAT(Arrived(), IsEmpty());
}

TEST(MovingTest, KnowsSharedMemoryForAnotherDiskUnlessTemporaryFilesLieThere) {
    const TemporaryFolder source;
    const TemporaryFolder target(kAnotherDisk);
    source.Put("old", "");
    const bool isAnother = DiskOf(source.Path()) != DiskOf(target.Path());
    EXPECT_EQ(RenameWithoutReplacing(source.Path("old"), target.Path("new")), isAnother ? EXDEV : 0);
}

} // namespace
} // namespace zy::test
