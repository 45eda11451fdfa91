#include "platform/RecycleBin.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace zy::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using namespace std::string_literals;

TEST(SplitPathList, GivesThePathsInTheirOrder) {
    EXPECT_THAT(SplitPathList("C:\\b\0C:\\a\0\0"s), ElementsAre("C:\\b", "C:\\a"));
}

TEST(SplitPathList, EndsAtTheFirstEmptyPath) {
    EXPECT_THAT(SplitPathList("a\0\0b\0\0"s), ElementsAre("a"));
}

TEST(SplitPathList, EndsWithTheTextWhenTheClosingNulsAreMissing) {
    EXPECT_THAT(SplitPathList("a\0b\0"s), ElementsAre("a", "b"));
    EXPECT_THAT(SplitPathList("a\0b"s), ElementsAre("a", "b"));
}

TEST(SplitPathList, GivesNothingForAnEmptyList) {
    EXPECT_THAT(SplitPathList(""), IsEmpty());
    EXPECT_THAT(SplitPathList("\0"s), IsEmpty());
    EXPECT_THAT(SplitPathList("\0\0"s), IsEmpty());
}

} // namespace
} // namespace zy::test
