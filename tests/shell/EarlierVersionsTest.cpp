#include "shell/EarlierVersions.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "support/WorldTest.h"

namespace zy::test {
namespace {

using ::testing::ElementsAre;
using ::testing::ElementsAreArray;
using ::testing::IsEmpty;
using ::testing::Optional;
using ::testing::SizeIs;
using namespace std::chrono_literals;
using namespace std::string_literals;

constexpr auto kPath = R"(C:\SYS\ZYUNITS.SYS)";
constexpr auto kBackups = R"(C:\State\zysetup\backups)";
constexpr auto kNow = std::chrono::sys_days(2026y / 11 / 22) + 41min + 7s;
constexpr auto kName = "20261122T004107Z";
constexpr auto kUnfinished = "unfinished";

class EarlierVersionsTest : public WorldTest {
  protected:
    EarlierVersionsTest() { world.system.SetNow(kNow); }

    /// The folder of the versions of a file of this folder.
    std::string FolderOf(std::string_view folder, std::string_view name) const {
        return std::string(kBackups) + '\\' + world.journals.Fingerprint(folder).substr(0, 16) + '\\' +
               std::string(name);
    }
    std::string Folder() const { return FolderOf(R"(C:\SYS\)", "ZYUNITS.SYS"); }
    std::string At(std::string_view name) const { return Folder() + '\\' + std::string(name); }

    void Keep(std::string_view bytes) { EXPECT_EQ(versions.Keep(kPath, bytes), FileError::None); }
    /// One a second, each other bytes.
    void KeepMany(int count) {
        for (int i = 0; i < count; ++i) {
            Keep("version " + std::to_string(i));
        }
    }

    std::vector<std::string> Texts() {
        std::vector<std::string> texts;
        for (const auto& version : versions.Of(kPath)) {
            texts.push_back(versions.Read(kPath, version).value_or("<cannot be read>"));
        }
        return texts;
    }
    std::vector<std::string> NamesOf(std::string_view path) {
        std::vector<std::string> names;
        for (const auto& version : versions.Of(path)) {
            names.push_back(version.name);
        }
        return names;
    }

    EarlierVersions versions{world.files, world.journals, world.system};
};

// Keeping

TEST_F(EarlierVersionsTest, AreNoneBeforeOneIsKeptAndLookingMakesNoFolder) {
    EXPECT_THAT(versions.Of(kPath), IsEmpty());
    versions.Prune(kPath);
    EXPECT_FALSE(world.files.PathExists(R"(C:\State)"));
}

TEST_F(EarlierVersionsTest, AreFilesNamedByTheirTimeThatTheUserAloneMayRead) {
    Keep("Kilograms,kg\r\n");
    EXPECT_THAT(world.files.Names(Folder()), ElementsAre(kName));
    EXPECT_THAT(world.files.Get(At(kName)), Optional("Kilograms,kg\r\n"s));
    EXPECT_THAT(world.files.Permissions(At(kName)), Optional(0600U));
}

TEST_F(EarlierVersionsTest, LieInFoldersThatTheUserAloneMayEnter) {
    world.files.AddFolder(kBackups);
    Keep("bytes");
    for (std::string folder = Folder(); folder != R"(C:\State)"; folder.resize(folder.rfind('\\'))) {
        EXPECT_THAT(world.files.Permissions(folder), Optional(0700U)) << folder;
    }
}

TEST_F(EarlierVersionsTest, HoldEveryByteThatWasKept) {
    std::string bytes;
    for (int byte = 0; byte < 256; ++byte) {
        bytes += static_cast<char>(byte);
    }
    Keep(bytes);
    Keep("");
    EXPECT_THAT(Texts(), ElementsAre("", bytes));
}

TEST_F(EarlierVersionsTest, ComeFromTheNewestOnWithTheirTimesAndSizes) {
    Keep("a");
    world.system.SetNow(kNow + 24h);
    Keep("bb");
    const auto found = versions.Of(kPath);
    ASSERT_THAT(found, SizeIs(2));
    EXPECT_EQ(found[0].time, kNow + 24h);
    EXPECT_EQ(found[0].name, "20261123T004107Z");
    EXPECT_EQ(found[0].size, 2U);
    EXPECT_EQ(found[1].time, kNow);
    EXPECT_EQ(found[1].name, kName);
    EXPECT_EQ(found[1].size, 1U);
}

TEST_F(EarlierVersionsTest, AreNotKeptTwiceInSuccession) {
    for (const char* bytes : {"a", "a", "b", "b", "a"}) {
        Keep(bytes);
    }
    EXPECT_THAT(Texts(), ElementsAre("a", "b", "a"));
}

TEST_F(EarlierVersionsTest, AreKeptApartByFolderAndName) {
    Keep("units");
    EXPECT_EQ(versions.Keep(R"(C:\SYS\ZYRules.sys)", "rules"), FileError::None);
    EXPECT_EQ(versions.Keep(R"(D:\SYS\ZYUNITS.SYS)", "others"), FileError::None);
    EXPECT_THAT(Texts(), ElementsAre("units"));
    EXPECT_THAT(world.files.Get(FolderOf(R"(C:\SYS\)", "ZYRules.sys") + '\\' + kName), Optional("rules"s));
    EXPECT_THAT(world.files.Get(FolderOf(R"(D:\SYS\)", "ZYUNITS.SYS") + '\\' + kName), Optional("others"s));
}

TEST_F(EarlierVersionsTest, ReplaceOneThatWasNeverFinished) {
    world.files.Put(At(kUnfinished), "half");
    EXPECT_THAT(versions.Of(kPath), IsEmpty());
    Keep("whole");
    EXPECT_THAT(world.files.Names(Folder()), ElementsAre(kName));
    EXPECT_THAT(Texts(), ElementsAre("whole"));
}

// Clocks

TEST_F(EarlierVersionsTest, StayInTheirOrderWhenTheClockStandsStillOrGoesBack) {
    Keep("a");
    Keep("b");
    world.system.SetNow(kNow - 24h * 400);
    Keep("c");
    world.system.SetNow(kNow + 1min);
    Keep("d");
    EXPECT_THAT(Texts(), ElementsAre("d", "c", "b", "a"));
    EXPECT_THAT(NamesOf(kPath),
                ElementsAre("20261122T004207Z", "20261122T004109Z", "20261122T004108Z", kName));
}

TEST_F(EarlierVersionsTest, AreNotKeptUnderATimeByWhichTheyWouldNotBeFoundAgain) {
    world.system.SetNow(std::chrono::sys_days(9999y / 12 / 31) + 24h - 1s);
    Keep("last");
    EXPECT_EQ(versions.Keep(kPath, "one more"), FileError::Other);
    EXPECT_THAT(world.files.Names(Folder()), ElementsAre("99991231T235959Z"));
    EXPECT_THAT(Texts(), ElementsAre("last"));
}

// What is no version

/// Names that are much like those of versions.
const std::vector<std::string>& OthersNames() {
    static const std::vector<std::string> names{
        "+0261122T004107Z", "20260230T000000Z", "20261122 004107Z",     "20261122T004060Z",
        "20261122T006007Z", "20261122T00410",   "20261122T004107",      "20261122T004107X",
        "20261122T240000Z", "20261122X004107Z", "20261122T004107Z.bak", "20261300T004107Z",
        "2026112AT004107Z", "NOTES.TXT",        "UNFINISHED.TXT"};
    return names;
}

TEST_F(EarlierVersionsTest, HaveNamesOfOneFormAndLeaveAllOthersAlone) {
    for (const auto& name : OthersNames()) {
        world.files.Put(At(name), "another's");
    }
    EXPECT_THAT(versions.Of(kPath), IsEmpty());
    KeepMany(22);
    versions.Prune(kPath);
    EXPECT_THAT(versions.Of(kPath), SizeIs(20));
    EXPECT_THAT(world.files.Names(Folder()), SizeIs(20 + OthersNames().size()));
    for (const auto& name : OthersNames()) {
        EXPECT_THAT(world.files.Get(At(name)), Optional("another's"s)) << name;
    }
}

// No place for them

class NoFingerprints final : public Journals {
  public:
    OpenedJournal Create(std::string_view /*kind*/, Secrecy /*secrecy*/) override { return {}; }
    std::vector<std::unique_ptr<Journal>> Orphans(std::string_view /*kind*/, Secrecy /*secrecy*/) override {
        return {};
    }
    std::string Fingerprint(std::string_view /*bytes*/) const override { return {}; }
};

/// That there are none, and that no file or folder is so much as looked at.
void ExpectNoPlace(EarlierVersions& versions, MemoryFileSystem& files) {
    files.Plan({});
    EXPECT_EQ(versions.Keep(kPath, "bytes"), FileError::NotFound);
    EXPECT_THAT(versions.Of(kPath), IsEmpty());
    EXPECT_EQ(versions.Read(kPath, {.time = kNow, .name = kName, .size = 5}), std::nullopt);
    versions.Prune(kPath);
    EXPECT_EQ(files.Operations().Count(), 0U);
}

TEST_F(EarlierVersionsTest, AreNoneWhereTheUserHasNoFolderForTheStateOfPrograms) {
    world.system.SetStateFolder("");
    ExpectNoPlace(versions, world.files);
}

TEST_F(EarlierVersionsTest, AreNoneWhereTheSystemGivesNoFingerprints) {
    const NoFingerprints none;
    EarlierVersions without(world.files, none, world.system);
    ExpectNoPlace(without, world.files);
}

TEST_F(EarlierVersionsTest, SayWhyTheyCannotBeKept) {
    world.files.AddFolder(R"(C:\State)");
    world.files.SetFolderReadOnly(R"(C:\State)");
    EXPECT_EQ(versions.Keep(kPath, "bytes"), FileError::AccessDenied);
    world.files.SetFolderReadOnly(R"(C:\State)", false);
    world.files.Put(kBackups, "another's");
    EXPECT_EQ(versions.Keep(kPath, "bytes"), FileError::Exists);
    EXPECT_THAT(versions.Of(kPath), IsEmpty());
    EXPECT_THAT(world.files.Get(kBackups), Optional("another's"s));
}

TEST_F(EarlierVersionsTest, AreNoneInAFolderThatCannotBeKeptToTheUser) {
    KeepMany(22);
    for (std::size_t folder = 1; folder <= 4; ++folder) {
        world.files.Plan({.operation = 1 + folder, .error = FileError::AccessDenied});
        EXPECT_THAT(versions.Of(kPath), IsEmpty());
        world.files.Plan({.operation = 1 + folder, .error = FileError::AccessDenied});
        versions.Prune(kPath);
    }
    world.files.Plan({});
    EXPECT_THAT(versions.Of(kPath), SizeIs(22));
}

// Reading

TEST_F(EarlierVersionsTest, AreReadWholeOrNotAtAll) {
    Keep("12345");
    const auto version = versions.Of(kPath).front();
    world.files.Plan({.operation = 2});
    EXPECT_EQ(versions.Read(kPath, version), std::nullopt) << "the disk fails";
    world.files.Plan({});
    world.files.SetUnreadable(At(kName));
    EXPECT_EQ(versions.Read(kPath, version), std::nullopt) << "may not be read";
    world.files.SetUnreadable(At(kName), false);
    for (const char* bytes : {"1234", "123456", ""}) {
        world.files.Put(At(kName), bytes);
        EXPECT_EQ(versions.Read(kPath, version), std::nullopt) << bytes;
    }
    world.files.Take(At(kName));
    EXPECT_EQ(versions.Read(kPath, version), std::nullopt) << "gone";
}

// Pruning

TEST_F(EarlierVersionsTest, AreRemovedWhenThereAreTooMany) {
    KeepMany(23);
    auto expected = Texts();
    expected.resize(20);
    versions.Prune(kPath);
    EXPECT_THAT(Texts(), ElementsAreArray(expected));
    versions.Prune(kPath);
    EXPECT_THAT(Texts(), ElementsAreArray(expected));
}

TEST_F(EarlierVersionsTest, AreRemovedByTheirAgeAndNotByTheClock) {
    for (int day = 0; day < 60; ++day) {
        world.system.SetNow(kNow + 24h * day);
        Keep("day " + std::to_string(day));
    }
    world.system.SetNow(kNow + 24h * 10000);
    versions.Prune(kPath);
    // 30 days and, before them, the last days of five weeks, the first of which had begun before.
    EXPECT_THAT(versions.Of(kPath), SizeIs(30 + 5));
    EXPECT_EQ(Texts().front(), "day 59");
}

TEST_F(EarlierVersionsTest, AreRemovedWhenTheyAreTooLargeAltogether) {
    const std::string large(std::size_t{40} << 20U, 'x');
    Keep("small");
    Keep(large);
    Keep(large + 'y');
    versions.Prune(kPath);
    EXPECT_THAT(NamesOf(kPath), ElementsAre("20261122T004109Z"));
}

TEST_F(EarlierVersionsTest, OfOneFileAreRemovedWithoutThoseOfAnother) {
    KeepMany(25);
    versions.Prune(R"(C:\SYS\ZYRules.sys)");
    EXPECT_THAT(versions.Of(kPath), SizeIs(25));
}

// Over a disk that fails

class VersionsOverAFailingDisk : public EarlierVersionsTest {
  protected:
    /// What the files of the versions' folder hold, by name.
    std::map<std::string, std::string> Held() const {
        std::map<std::string, std::string> held;
        for (const auto& name : world.files.Names(Folder())) {
            held[name] = world.files.Get(At(name)).value_or("");
        }
        return held;
    }

    /// Two versions, and one that was never finished.
    void StartAnew() {
        world.files.Plan({});
        for (const auto& name : world.files.Names(Folder())) {
            world.files.Take(At(name));
        }
        world.system.SetNow(kNow);
        Keep("oldest");
        Keep("older");
        world.files.Put(At(kUnfinished), "half");
        world.system.SetNow(kNow + 1h);
    }

    /// Keeps one more. What was kept before is there still; the new one is there exactly when that was said,
    /// and the next attempt succeeds.
    void ExpectWholeVersions(const FaultPlan& plan) {
        SCOPED_TRACE("operation " + std::to_string(plan.operation));
        StartAnew();
        world.files.Plan(plan);
        const auto error = versions.Keep(kPath, "newest");
        faults = world.files.Operations().Faults();
        world.files.Plan({});
        const auto held = Held();
        EXPECT_EQ(held.at(kName), "oldest");
        EXPECT_EQ(held.at("20261122T004108Z"), "older");
        std::vector<std::string> expected{"older", "oldest"};
        if (error == FileError::None) {
            expected.insert(expected.begin(), "newest");
        }
        EXPECT_EQ(Texts(), expected);
        EXPECT_THAT(versions.Of(kPath), SizeIs(held.size() - held.count(kUnfinished)));
        Keep("the next one");
        EXPECT_EQ(Texts().front(), "the next one");
        EXPECT_EQ(Held().count(kUnfinished), 0U);
    }

    /// Each operation fails in that way, the first, the second, the third ... until there is none left.
    void FailEachOperation(FaultPlan how) {
        do {
            ++how.operation;
            ExpectWholeVersions(how);
        } while (faults > 0);
        EXPECT_GT(how.operation, 10U);
    }

    std::size_t faults = 0;
};

TEST_F(VersionsOverAFailingDisk, AreWrittenInTheseSteps) {
    StartAnew();
    world.files.Plan({});
    Keep("newer");
    const auto folder = Folder();
    const std::string name = "20261122T014107Z";
    EXPECT_THAT(world.files.Operations().Lines(),
                ElementsAre(R"(MakePrivateFolder C:\State\zysetup)", "MakePrivateFolder "s + kBackups,
                            "MakePrivateFolder " + folder.substr(0, folder.rfind('\\')),
                            "MakePrivateFolder " + folder, "FilesIn " + folder,
                            "OpenForReading " + At("20261122T004108Z"), "Read " + At("20261122T004108Z"),
                            "Delete " + At(kUnfinished), "CreatePrivate " + At(kUnfinished),
                            "Write " + At(kUnfinished), "Flush " + At(kUnfinished),
                            "Close " + At(kUnfinished), "Rename " + At(kUnfinished) + " -> " + At(name)));
}

TEST_F(VersionsOverAFailingDisk, AreWholeWhenAnyOperationFailsOnce) {
    FailEachOperation({});
}

TEST_F(VersionsOverAFailingDisk, AreWholeWhenTheDiskFailsForGood) {
    FailEachOperation({.lasting = true});
}

TEST_F(VersionsOverAFailingDisk, AreWholeWhenAWriteIsCutShort) {
    FailEachOperation({.cutShort = true, .error = FileError::DiskFull});
    FailEachOperation({.lasting = true, .cutShort = true, .error = FileError::DiskFull});
}

TEST_F(VersionsOverAFailingDisk, LeaveNothingBehindOnAFullDisk) {
    StartAnew();
    world.files.Take(At(kUnfinished));
    const auto before = Held();
    world.files.SetCapacity(13);
    EXPECT_EQ(versions.Keep(kPath, "newest"), FileError::DiskFull);
    EXPECT_EQ(Held(), before);
}

TEST_F(VersionsOverAFailingDisk, ArePrunedAsFarAsTheDiskLets) {
    for (std::size_t operation = 1; operation <= 10; ++operation) {
        for (const bool lasting : {false, true}) {
            StartAnew();
            KeepMany(24);
            const auto before = Held();
            world.files.Plan({.operation = operation, .lasting = lasting});
            versions.Prune(kPath);
            world.files.Plan({});
            for (const auto& [name, bytes] : Held()) {
                EXPECT_EQ(before.at(name), bytes);
            }
            EXPECT_GE(versions.Of(kPath).size(), 20U);
            EXPECT_EQ(Texts().front(), "version 23");
            versions.Prune(kPath);
            EXPECT_THAT(versions.Of(kPath), SizeIs(20));
        }
    }
}

} // namespace
} // namespace zy::test
