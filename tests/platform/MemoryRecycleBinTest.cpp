#include "platform/memory/MemoryRecycleBin.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace zy::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Optional;
using namespace std::string_literals;

class MemoryRecycleBinTest : public ::testing::Test {
  protected:
    MemoryFileSystem disk{Windows1252()};
    MemoryRecycleBin bin{disk};
};

TEST_F(MemoryRecycleBinTest, KeepsThePathAsItWasGivenWithTheBytes) {
    disk.Put(R"(\SYS\a.dbf)", "users");
    EXPECT_EQ(bin.Delete("\\sys\\A.DBF\0\0"s), 0);
    EXPECT_THAT(bin.Recycled(), ElementsAre(RecycledFile{.path = R"(\sys\A.DBF)", .bytes = "users"}));
}

TEST_F(MemoryRecycleBinTest, LeavesEverythingWhereItIsWhenItIsMadeToFail) {
    disk.Put(R"(\SYS\a.dbf)", "users");
    bin.SetResult(124);
    EXPECT_EQ(bin.Delete("\\SYS\\a.dbf\0\0"s), 124);
    EXPECT_THAT(disk.Get(R"(\SYS\a.dbf)"), Optional("users"s));
    EXPECT_THAT(bin.Recycled(), IsEmpty());
}

TEST_F(MemoryRecycleBinTest, IsRecordedAmongTheOperationsOfTheDiskWithoutBeingCounted) {
    disk.Put(R"(\a.dbf)", "users");
    disk.Exists(R"(\a.dbf)");
    bin.Delete("\\a.dbf\0\\b.dbf\0\0"s);
    EXPECT_THAT(disk.Operations().Lines(),
                ElementsAre(R"(Exists \a.dbf)", R"(Recycle \a.dbf)",
                            R"(Recycle \b.dbf: the file or folder does not exist)"));
    EXPECT_EQ(disk.Operations().Count(), 1U);
}

} // namespace
} // namespace zy::test
