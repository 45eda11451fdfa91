#include <set>

#include "UsersTest.h"
#include "support/Samples.h"

namespace zy::test {
namespace {

using ::testing::SizeIs;

/// The users of the sample settings, loaded as the program loads them.
class SampleUsers : public UsersTest {
  protected:
    SampleUsers() {
        world.files.Put(kUsersTable, table);
        world.files.Put(kUsersIndex, index);
    }

    /// A table's bytes without the date of the last change.
    static std::string WithoutDate(std::string bytes) { return bytes.replace(1, 3, "..."); }

    const std::string table = SampleBytes("ZYSECURE.DBF");
    const std::string index = SampleBytes("ZYSECURE.NDX");
};

TEST_F(SampleUsers, AreFiveAndComeWithoutALogin) {
    EXPECT_EQ(Start("@SECURITY"), StartUp::WindowShown);
    EXPECT_THAT(Rows(), SizeIs(5));
    EXPECT_EQ(Status(), "5 users");
}

TEST_F(SampleUsers, AreTheSameBytesAfterALoadAndASave) {
    ASSERT_FALSE(table.empty());
    ASSERT_FALSE(index.empty());
    Start("@SECURITY");
    ChooseSave();
    EXPECT_EQ(Status(), "Saved") << "every check is passed";
    EXPECT_EQ(WithoutDate(world.files.Get(kUsersTable).value()), WithoutDate(table));
    EXPECT_EQ(world.files.Get(kUsersIndex), index);
    EXPECT_THAT(world.recycleBin.Recycled(), SizeIs(2)) << "they were written anew";
}

TEST_F(SampleUsers, ShowWhatAUserCanBe) {
    Start("@SECURITY");
    std::set<std::string> states;
    std::set<bool> expire;
    for (int row = 1; row < grid().cells.Rows(); ++row) {
        states.emplace(grid().cells.Text(row, kStatus));
        expire.insert(!grid().cells.Text(row, kExpiryDate).empty());
    }
    EXPECT_EQ(states, (std::set<std::string>{"A", "I"}));
    EXPECT_THAT(expire, SizeIs(2));
}

} // namespace
} // namespace zy::test
