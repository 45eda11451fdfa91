// Indexes of all sizes and orders, walked and searched, beside the plainest way to sort.

#include <algorithm>
#include <numeric>
#include <random>

#include "IndexTest.h"

namespace zy::dbase::test {
namespace {

constexpr unsigned kOrders = 100;

/// Keys in a random order: all different, or few that are repeated.
Values RandomKeys(std::size_t count, unsigned seed, bool repeated) {
    std::mt19937 random(seed);
    Values values;
    for (std::size_t i = 0; i < count; ++i) {
        values.push_back(std::to_string(repeated ? random() % (count / 10 + 1) : i * 7919 % 1000003));
    }
    std::shuffle(values.begin(), values.end(), random);
    return values;
}

/// The records in the order of their keys.
std::vector<std::uint32_t> OrderOf(Values keys) {
    for (auto& key : keys) {
        key.resize(10, ' ');
    }
    std::vector<std::uint32_t> order(keys.size());
    std::iota(order.begin(), order.end(), 1U);
    std::stable_sort(order.begin(), order.end(), [&](auto a, auto b) { return keys[a - 1] < keys[b - 1]; });
    return order;
}

std::vector<std::uint32_t> RecordsOf(const IndexFile& index) {
    std::vector<std::uint32_t> records;
    for (const auto& entry : index.Walk()) {
        records.push_back(entry.record);
    }
    return records;
}

class IndexWalk : public ::testing::TestWithParam<std::size_t> {
  protected:
    static void ExpectSound(const Values& values) {
        const auto table = TableOf(values);
        const auto index = IndexOf(table);
        RequireIndexOf(table, index);
        const auto order = OrderOf(values);
        ASSERT_EQ(RecordsOf(index), order);
        // Every key that is there, and one that is not.
        const std::string* before = nullptr;
        for (const auto record : order) {
            const auto& key = values[record - 1];
            if (before == nullptr || key != *before) {
                ASSERT_EQ(index.Find(key), record) << key;
            }
            before = &key;
        }
        EXPECT_EQ(index.Find("NONE"), std::nullopt);
        EXPECT_EQ(index.Find("!"), std::nullopt);
    }
};

INSTANTIATE_TEST_SUITE_P(Sizes, IndexWalk, ::testing::Values(1, 24, 25, 26, 5000, 32767),
                         [](const auto& test) { return std::to_string(test.param); });

TEST_P(IndexWalk, HasEveryKeyInItsPlaceAfter100RandomOrders) {
    for (unsigned seed = 0; seed < kOrders; ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        ExpectSound(RandomKeys(GetParam(), seed, false));
    }
}

TEST_P(IndexWalk, HasEveryRecordInItsPlaceAfter100RandomOrdersOfEqualKeys) {
    for (unsigned seed = 0; seed < kOrders; ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        ExpectSound(RandomKeys(GetParam(), seed, true));
    }
}

TEST_P(IndexWalk, HasEveryRecordWhenAllKeysAreEqual) {
    ExpectSound(Values(GetParam(), "SAME"));
}

TEST(IndexWalk, HasEveryRecordForEveryNumberOfThemUpTo2000) {
    for (std::size_t count = 0; count <= 2000; ++count) {
        SCOPED_TRACE(std::to_string(count) + " records");
        const auto table = TableOf(RandomKeys(count, static_cast<unsigned>(count), false));
        RequireIndexOf(table, IndexOf(table));
    }
}

TEST(IndexWalk, HasKeysOfEveryLengthUpTo100) {
    for (unsigned width = 1; width <= 100; ++width) {
        SCOPED_TRACE("width " + std::to_string(width));
        Values values;
        for (int i = 0; i < 700; ++i) {
            auto value = std::string(width - 1, 'x') + static_cast<char>('A' + i % 26);
            values.push_back(i % 3 == 0 ? value : value.substr(1));
        }
        const auto table = TableOf(values, width);
        const auto index = IndexOf(table);
        RequireIndexOf(table, index);
        EXPECT_EQ(index.Find(values[0]), 1U);
    }
}

TEST(IndexWalk, FindsAKeyWithOrWithoutItsBlanks) {
    const auto index = IndexOf(TableOf({"ADMIN", "", "1234567890"}));
    EXPECT_EQ(index.Find("ADMIN"), 1U);
    EXPECT_EQ(index.Find("ADMIN     "), 1U);
    EXPECT_EQ(index.Find("ADMIN               "), 1U);
    EXPECT_EQ(index.Find(""), 2U);
    EXPECT_EQ(index.Find("1234567890"), 3U);
    EXPECT_EQ(index.Find("12345678901"), std::nullopt);
    EXPECT_EQ(index.Find("ADMI"), std::nullopt);
    EXPECT_EQ(index.Find("admin"), std::nullopt);
}

TEST(IndexWalk, IsEmptyWithoutRecords) {
    const auto index = IndexOf(TableOf({}));
    EXPECT_TRUE(index.Walk().empty());
    EXPECT_EQ(index.Find(""), std::nullopt);
}

} // namespace
} // namespace zy::dbase::test
