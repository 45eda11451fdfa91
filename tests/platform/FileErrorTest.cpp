#include "platform/FileError.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace zy::test {
namespace {

TEST(DescribeFileError, HasWordsOfItsOwnForEachError) {
    std::set<std::string_view> descriptions;
    for (int error = 0; error <= static_cast<int>(FileError::Other); ++error) {
        const auto description = Describe(static_cast<FileError>(error));
        EXPECT_FALSE(description.empty());
        EXPECT_TRUE(descriptions.insert(description).second) << description;
    }
}

TEST(DescribeFileError, SaysThatTheDiskIsFull) {
    EXPECT_EQ(Describe(FileError::DiskFull), "the disk is full");
}

} // namespace
} // namespace zy::test
