#include "shell/ListFile.h"

#include <gtest/gtest.h>

#include "support/WorldTest.h"

namespace zy::test {
namespace {

constexpr auto kPath = R"(C:\SYS\ZYUNITS.SYS)";
/// Of more than the few blocks that are compared at a time.
constexpr std::size_t kSize = 200000;

class ListFileTest : public WorldTest {
  protected:
    ListFileTest() {
        world.files.Put(kPath, text);
        file.TakeUp(file.Read());
    }

    std::string text = std::string(kSize, 'x');
    ListFile file{world.files, kPath};
};

TEST_F(ListFileTest, IsFoundOnADiskThatFailsAtLooking) {
    for (const bool lasting : {false, true}) {
        world.files.Plan({.operation = 1, .lasting = lasting});
        EXPECT_TRUE(FindsFile(world.files, kPath)) << lasting;
    }
}

TEST_F(ListFileTest, IsNotFoundWhereThereIsNone) {
    world.files.Take(kPath);
    EXPECT_FALSE(FindsFile(world.files, kPath));
    world.files.AddFolder(kPath);
    EXPECT_FALSE(FindsFile(world.files, kPath)) << "a folder";
}

TEST_F(ListFileTest, SaysWhyItWasNotRead) {
    world.files.SetUnreadable(kPath);
    EXPECT_EQ(file.ReasonNotRead(), FileError::AccessDenied);
    world.files.SetUnreadable(kPath, false);
    EXPECT_EQ(file.ReasonNotRead(), FileError::Other) << "at that moment";
    world.files.SetUncertain(kPath, FileError::Ambiguous);
    EXPECT_EQ(file.ReasonNotRead(), FileError::Ambiguous);
    world.files.SetUncertain(kPath, FileError::None);
    world.files.Take(kPath);
    EXPECT_EQ(file.ReasonNotRead(), FileError::None) << "nothing to read";
}

TEST_F(ListFileTest, IsNotChangedWhereItHoldsWhatIsKnown) {
    EXPECT_FALSE(file.IsChanged());
    world.files.Put(kPath, text);
    EXPECT_FALSE(file.IsChanged()) << "by being written anew";
}

TEST_F(ListFileTest, IsChangedByEveryByte) {
    for (const std::size_t place : {std::size_t{0}, std::size_t{65535}, std::size_t{65536}, kSize - 1}) {
        auto other = text;
        other[place] = 'y';
        world.files.Put(kPath, other);
        EXPECT_TRUE(file.IsChanged()) << place;
    }
}

TEST_F(ListFileTest, IsChangedByOneByteMoreOrLess) {
    world.files.Put(kPath, text + 'x');
    EXPECT_TRUE(file.IsChanged());
    world.files.Put(kPath, text.substr(1));
    EXPECT_TRUE(file.IsChanged());
    world.files.Put(kPath, "");
    EXPECT_TRUE(file.IsChanged());
}

TEST_F(ListFileTest, ThatWasNotThereIsChangedOnceItIs) {
    ListFile other(world.files, R"(C:\SYS\OTHER.SYS)");
    other.TakeUp(other.Read());
    EXPECT_FALSE(other.IsChanged());
    world.files.Put(other.Path(), "");
    EXPECT_TRUE(other.IsChanged());
}

TEST_F(ListFileTest, ThatIsGoneOrCannotBeReadIsNotChanged) {
    auto other = text;
    other.back() = 'y';
    world.files.Put(kPath, other);
    std::size_t operation = 0;
    do {
        world.files.Plan({.operation = ++operation});
        const bool isChanged = file.IsChanged();
        EXPECT_EQ(isChanged, world.files.Operations().Faults() == 0) << "operation " << operation;
    } while (world.files.Operations().Faults() != 0);
    EXPECT_GT(operation, 5U) << "it is found, opened and read block by block";
    world.files.Plan({});
    ASSERT_EQ(world.files.Delete(kPath), FileError::None);
    EXPECT_FALSE(file.IsChanged());
}

} // namespace
} // namespace zy::test
