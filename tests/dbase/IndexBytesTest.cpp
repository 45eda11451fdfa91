// What an index looks like on the disk, byte by byte.

#include "IndexTest.h"

namespace zy::dbase::test {
namespace {

using namespace std::string_literals;

constexpr std::size_t kPage = 512;

/// An entry of an index over 10 characters.
std::string EntryOf(unsigned child, unsigned record, std::string key) {
    key.resize(10, ' ');
    return Low(child, 4) + Low(record, 4) + key + Low(0, 2);
}

std::string PageOf(std::size_t count, const std::string& entries) {
    std::string page = Low(count, 4) + entries;
    page.resize(kPage, '\0');
    return page;
}

std::string HeaderOf(unsigned root, unsigned pages) {
    std::string header = Low(root, 4) + Low(pages, 4) + "\0C\0\0"s + Low(10, 2) + Low(25, 2) + Low(0, 2) +
                         Low(20, 2) + Low(0, 4) + "USERID";
    header.resize(kPage, '\0');
    return header;
}

/// As many different keys, in their order.
Values Ascending(std::size_t count) {
    Values values;
    for (std::size_t i = 0; i < count; ++i) {
        const auto digits = std::to_string(i);
        values.push_back("K" + std::string(6 - digits.size(), '0') + digits);
    }
    return values;
}

std::string Index(const Values& values) {
    return BuildIndex(TableOf(values), 0);
}

std::string PageIn(const std::string& index, std::size_t number) {
    return index.substr(number * kPage, kPage);
}

TEST(IndexBytes, AreTwoPagesWithoutRecords) {
    EXPECT_EQ(Index({}), HeaderOf(1, 2) + PageOf(0, ""));
}

TEST(IndexBytes, HoldTheKeysInTheirOrder) {
    EXPECT_EQ(Index({"ZOE", "ADMIN", "", "BO"}),
              HeaderOf(1, 2) + PageOf(4, EntryOf(0, 3, "") + EntryOf(0, 2, "ADMIN") + EntryOf(0, 4, "BO") +
                                             EntryOf(0, 1, "ZOE")));
}

TEST(IndexBytes, HoldEqualKeysInTheOrderOfTheirRecords) {
    EXPECT_EQ(PageIn(Index({"B", "A", "B", "A"}), 1),
              PageOf(4, EntryOf(0, 2, "A") + EntryOf(0, 4, "A") + EntryOf(0, 1, "B") + EntryOf(0, 3, "B")));
}

TEST(IndexBytes, CompareKeysAsUnsignedBytes) {
    EXPECT_EQ(PageIn(Index({"\xC4", "a", "Z", "\x01", "", "Z\xFF"}), 1),
              PageOf(6, EntryOf(0, 4, "\x01") + EntryOf(0, 5, "") + EntryOf(0, 3, "Z") +
                            EntryOf(0, 6, "Z\xFF") + EntryOf(0, 2, "a") + EntryOf(0, 1, "\xC4")));
}

TEST(IndexBytes, Are25KeysOnOnePage) {
    const auto index = Index(Ascending(25));
    EXPECT_EQ(index.size(), 2 * kPage);
    EXPECT_EQ(PageIn(index, 0), HeaderOf(1, 2));
    EXPECT_EQ(PageIn(index, 1).substr(0, 4), Low(25, 4));
}

TEST(IndexBytes, PutARootOverTheLeavesOf26Keys) {
    const auto index = Index(Ascending(26));
    EXPECT_EQ(PageIn(index, 0), HeaderOf(3, 4));
    EXPECT_EQ(PageIn(index, 1).substr(0, 4), Low(25, 4));
    EXPECT_EQ(PageIn(index, 2), PageOf(1, EntryOf(0, 26, "K000025")));
    // One key that is counted, and behind it the last child, which is not.
    EXPECT_EQ(PageIn(index, 3), PageOf(1, EntryOf(1, 0, "K000024") + Low(2, 4)));
}

TEST(IndexBytes, GiveAnInnerPage25ChildrenAtMost) {
    const auto full = Index(Ascending(625));
    EXPECT_EQ(PageIn(full, 0), HeaderOf(26, 27));
    EXPECT_EQ(PageIn(full, 26).substr(0, 4), Low(24, 4));
    EXPECT_EQ(PageIn(full, 26).substr(4 + 24 * 20, 8), Low(25, 4) + Low(0, 4));
}

TEST(IndexBytes, LeaveNoChildAloneUnderAnInnerPage) {
    const auto index = Index(Ascending(626));
    EXPECT_EQ(PageIn(index, 0), HeaderOf(29, 30));
    EXPECT_EQ(PageIn(index, 27).substr(0, 4), Low(23, 4));
    EXPECT_EQ(PageIn(index, 28), PageOf(1, EntryOf(25, 0, "K000624") + Low(26, 4)));
    EXPECT_EQ(PageIn(index, 29), PageOf(1, EntryOf(27, 0, "K000599") + Low(28, 4)));
}

TEST(IndexBytes, Are1369PagesFor32767Records) {
    const auto index = Index(Ascending(32767));
    EXPECT_EQ(index.size(), 1369 * kPage);
    EXPECT_EQ(PageIn(index, 0), HeaderOf(1368, 1369));
}

TEST(IndexBytes, TakeNulsAtTheEndOfAKeyForBlanks) {
    EXPECT_EQ(PageIn(Index({"A\0"s, "A"}), 1), PageOf(2, EntryOf(0, 1, "A") + EntryOf(0, 2, "A")));
}

TEST(IndexBytes, ListRecordsThatAreNotShownToo) {
    auto table = TableBytes({{"USERID", 10}});
    table.Add('*', {"GONE"}).Add(' ', {"ADA"});
    EXPECT_EQ(PageIn(BuildIndex(TableImage(table.Bytes(), ""), 0), 1),
              PageOf(2, EntryOf(0, 2, "ADA") + EntryOf(0, 1, "GONE")));
}

} // namespace
} // namespace zy::dbase::test
