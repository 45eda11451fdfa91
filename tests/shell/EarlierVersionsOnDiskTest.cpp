// Earlier versions on the disk of the system that the tests run on.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "platform/memory/MemoryJournals.h"
#include "platform/memory/MemorySystemInfo.h"
#include "shell/EarlierVersions.h"
#include "support/TemporaryFolder.h"
#include "support/ThisSystem.h"

namespace zy::test {
namespace {

using ::testing::SizeIs;
using namespace std::chrono_literals;

TEST(EarlierVersionsOnDisk, AreKeptListedReadAndRemoved) {
    const TemporaryFolder folder;
    const auto files = SystemFiles();
    const MemoryJournals journals;
    MemorySystemInfo system;
    system.SetStateFolder(folder.InsidePath("state"));
    system.SetNow(std::chrono::sys_days(2026y / 11 / 22));
    const auto path = folder.InsidePath("ZYUNITS.SYS");
    EarlierVersions versions(*files, journals, system);
    for (int i = 0; i < 25; ++i) {
        const auto bytes = std::string(static_cast<std::size_t>(i) * 1000, 'x') + "\r\n\x1A";
        EXPECT_EQ(versions.Keep(path, bytes), FileError::None);
        EXPECT_EQ(versions.Keep(path, bytes), FileError::None);
    }
    EXPECT_THAT(versions.Of(path), SizeIs(25));
    versions.Prune(path);
    const auto left = versions.Of(path);
    ASSERT_THAT(left, SizeIs(20));
    EXPECT_EQ(left.front().time, system.Now() + 24s);
    EXPECT_EQ(left.front().name, "20261122T000024Z");
    EXPECT_EQ(versions.Read(path, left.front()), std::string(24000, 'x') + "\r\n\x1A");
    EXPECT_EQ(versions.Read(path, left.back()), std::string(5000, 'x') + "\r\n\x1A");
}

} // namespace
} // namespace zy::test
