// Indexes that are damaged, or not those of their table, and what is said of them.

#include <functional>

#include "IndexTest.h"
#include "dbase/LittleEndian.h"

namespace zy::dbase::test {
namespace {

/// An index of 60 records, on three leaves under a root, in which one thing can be changed at a time.
class IndexChecks : public ::testing::Test {
  protected:
    IndexChecks() : table(TableOf(Keys(60))), bytes(BuildIndex(table, 0)) {}

    static Values Keys(int count) {
        Values keys;
        for (int i = 0; i < count; ++i) {
            keys.push_back("K" + std::to_string(100 + i));
        }
        return keys;
    }

    /// Why the index is refused; nothing when it is not.
    std::string Refusal() const {
        constexpr std::string_view kFront = "'T.NDX' cannot be read: ";
        const auto raised = RaisedBy([&] { RequireIndexOf(table, IndexFile(bytes, "T.NDX")); });
        EXPECT_THAT(raised.Number(), ::testing::AnyOf(0, kBadFormat));
        return raised.Description().substr(std::min(kFront.size(), raised.Description().size()));
    }
    std::string RefusalWith32At(std::size_t at, std::uint32_t value) {
        const auto before = bytes;
        Put32(bytes, at, value);
        auto refusal = Refusal();
        bytes = before;
        return refusal;
    }
    std::string RefusalWith16At(std::size_t at, unsigned value) {
        const auto before = bytes;
        Put16(bytes, at, value);
        auto refusal = Refusal();
        bytes = before;
        return refusal;
    }
    static std::size_t PageAt(std::size_t page) { return page * 512; }
    static std::size_t EntryAt(std::size_t page, std::size_t entry) { return PageAt(page) + 4 + entry * 20; }

    TableImage table;
    std::string bytes;
};

TEST_F(IndexChecks, FindNothingWrongWithAnIndexOfOurs) {
    EXPECT_EQ(Refusal(), "");
}

TEST_F(IndexChecks, RefuseFilesThatAreTooShort) {
    for (const std::size_t size : {0U, 512U, 1023U}) {
        bytes.resize(size);
        EXPECT_EQ(Refusal(), "it has " + std::to_string(size) + " bytes, an index at least 1024.");
    }
}

TEST_F(IndexChecks, RefuseFilesThatAreCutShort) {
    const auto whole = bytes;
    for (std::size_t size = 0; size < whole.size(); size += 7) {
        bytes = whole.substr(0, size);
        EXPECT_NE(Refusal(), "") << size;
    }
}

TEST_F(IndexChecks, RefuseAHeaderThatDoesNotFitTheFile) {
    EXPECT_EQ(RefusalWith32At(0, 0), "byte 0 names page 0 of 5 as the root.");
    EXPECT_EQ(RefusalWith32At(0, 5), "byte 0 names page 5 of 5 as the root.");
    EXPECT_EQ(RefusalWith32At(4, 6), "byte 4 says that it has 6 pages, but the file holds 5.");
    EXPECT_EQ(RefusalWith32At(4, 1), "byte 4 says that it has 1 pages, but the file holds 5.");
    EXPECT_EQ(RefusalWith16At(16, 1), "its keys are not text.");
    EXPECT_EQ(RefusalWith16At(12, 0), "byte 12 says that its keys have 0 characters.");
    EXPECT_EQ(RefusalWith16At(12, 101), "byte 12 says that its keys have 101 characters.");
    EXPECT_EQ(RefusalWith16At(14, 26), "byte 14 says that a page has 26 keys, which do not fit.");
    EXPECT_EQ(RefusalWith16At(18, 17), "byte 18 says that its entries have 17 bytes for keys of 10.");
    EXPECT_EQ(RefusalWith16At(18, 500), "byte 18 says that its entries have 500 bytes for keys of 10.");
}

TEST_F(IndexChecks, IgnoreWhatMayBeArbitrary) {
    for (const std::size_t at : {8U, 9U, 20U, 21U, 22U, 31U, 200U}) {
        bytes[at] = '\x7F';
    }
    bytes[EntryAt(1, 0) + 19] = '\x7F'; // the filler behind a key
    bytes[PageAt(4) - 1] = '\x7F';      // the end of a leaf
    EXPECT_EQ(Refusal(), "");
    bytes += std::string(512, 'x');
    EXPECT_EQ(Refusal(), "");
}

TEST_F(IndexChecks, TakeAnExpressionInAnyCaseWithBlanksAround) {
    bytes.replace(24, 10, std::string(" UserId \0x", 10));
    EXPECT_EQ(Refusal(), "");
}

TEST_F(IndexChecks, RefuseAnotherExpression) {
    bytes[24] = 'X';
    EXPECT_EQ(Refusal(), "its keys are not a text column of the table.");
}

TEST_F(IndexChecks, RefuseKeysOfAnotherLength) {
    EXPECT_EQ(RefusalWith16At(12, 9), "its keys have 9 characters, the column has 10.");
    EXPECT_EQ(RefusalWith16At(12, 11), "its keys have 11 characters, the column has 10.");
}

TEST_F(IndexChecks, TakeKeysWhoseLengthWasRoundedUp) {
    EXPECT_EQ(RefusalWith16At(12, 12), "");
}

TEST_F(IndexChecks, RefusePagesThatCountMoreThanTheyHold) {
    EXPECT_EQ(RefusalWith32At(PageAt(1), 26), "page 1 counts 26 entries.");
    EXPECT_EQ(RefusalWith32At(PageAt(1), 0xFFFFFFFF), "page 1 counts 4294967295 entries.");
}

TEST_F(IndexChecks, RefusePagesThatAreEmpty) {
    EXPECT_EQ(RefusalWith32At(PageAt(2), 0), "page 2 is an empty leaf.");
    EXPECT_EQ(RefusalWith32At(PageAt(4), 0), "page 4 has one child and no key.");
}

TEST_F(IndexChecks, RefusePagesOutOfRangeAndLoops) {
    EXPECT_EQ(RefusalWith32At(EntryAt(4, 0), 9), "there is a page 9 in it, beyond its 5 pages.");
    EXPECT_EQ(RefusalWith32At(EntryAt(4, 1), 1), "page 1 is in a loop.");
    EXPECT_EQ(RefusalWith32At(EntryAt(4, 0), 4), "page 4 is in a loop.");
    EXPECT_EQ(RefusalWith32At(EntryAt(4, 2), 0), "there is a page 0 in it, beyond its 5 pages.");
}

TEST_F(IndexChecks, RefuseLeavesOnDifferentLevels) {
    // A leaf, a page above the next one and itself a child beside them.
    std::string page(512, '\0');
    Put32(page, 0, 1);
    Put32(page, 4, 2);
    page.replace(4 + 8, 4, "K149");
    Put32(page, 24, 3);
    bytes += page;
    Put32(bytes, 4, 6);
    Put32(bytes, PageAt(4), 1);
    Put32(bytes, EntryAt(4, 1), 5);
    EXPECT_EQ(Refusal(), "page 2 is a leaf on another level than the first.");
}

TEST_F(IndexChecks, RefuseKindsThatAreMixed) {
    EXPECT_EQ(RefusalWith32At(EntryAt(1, 1), 2), "page 1 has children behind its first entry.");
}

TEST_F(IndexChecks, RefuseKeysOutOfOrder) {
    bytes[EntryAt(1, 3) + 8] = 'Z';
    EXPECT_EQ(Refusal(), "page 1 has a key out of order.");
}

TEST_F(IndexChecks, RefuseSeparatorsThatSeparateNothing) {
    bytes[EntryAt(4, 0) + 8] = 'A';
    EXPECT_EQ(Refusal(), "page 4 has a key below those of its child.");
    bytes[EntryAt(4, 0) + 8] = 'Z';
    EXPECT_EQ(Refusal(), "page 2 has a key out of order.");
}

TEST_F(IndexChecks, RefuseEqualKeysOutOfTheOrderOfTheirRecords) {
    table = TableOf({"A", "A"});
    bytes = BuildIndex(table, 0);
    Put32(bytes, EntryAt(1, 0) + 4, 2);
    Put32(bytes, EntryAt(1, 1) + 4, 1);
    EXPECT_EQ(Refusal(), "page 1 has a key out of order.");
}

TEST_F(IndexChecks, RefuseAnIndexOlderThanItsTable) {
    table = TableOf(Keys(61));
    EXPECT_EQ(Refusal(), "it lacks record 61.");
    table = TableOf(Keys(59));
    EXPECT_EQ(Refusal(), "it lists record 60 of 59.");
    auto keys = Keys(60);
    keys[4] = "NEW";
    table = TableOf(keys);
    EXPECT_EQ(Refusal(), "the key of record 5 is not its value.");
}

TEST_F(IndexChecks, RefuseRecordsThatAreNone) {
    EXPECT_EQ(RefusalWith32At(EntryAt(1, 3) + 4, 0), "it lists record 0 of 60.");
    EXPECT_EQ(RefusalWith32At(EntryAt(1, 3) + 4, 61), "it lists record 61 of 60.");
}

TEST_F(IndexChecks, RefuseARecordThatIsListedTwice) {
    table = TableOf({"A", "B"});
    bytes = BuildIndex(table, 0);
    Put32(bytes, EntryAt(1, 1) + 4, 1);
    EXPECT_EQ(Refusal(), "it lists record 1 twice.");
}

TEST_F(IndexChecks, TakeTheFirstOfEqualKeysAloneWhenTheIndexIsUnique) {
    table = TableOf({"A", "B", "A"});
    bytes = BuildIndex(TableOf({"A", "B"}), 0);
    EXPECT_EQ(Refusal(), "it lacks record 3.");
    bytes[23] = '\x01';
    EXPECT_EQ(Refusal(), "");
    table = TableOf({"A", "B", "C"});
    EXPECT_EQ(Refusal(), "it lacks record 3.");
}

// A search believes no more than a walk.

TEST_F(IndexChecks, EndASearchInALoop) {
    Put32(bytes, EntryAt(4, 0), 4);
    EXPECT_EQ(ErrorNumber([&] { static_cast<void>(IndexFile(bytes, "T.NDX").Find("K101")); }), kBadFormat);
    EXPECT_EQ(IndexFile(bytes, "T.NDX").Find("K150"), 51U);
}

TEST_F(IndexChecks, GoOnWithTheNextLeafInASearchThatEndsInOne) {
    // The highest key of the first leaf is taken away, and its separator stays.
    Put32(bytes, PageAt(1), 24);
    EXPECT_EQ(IndexFile(bytes, "T.NDX").Find("K123"), 24U);
    EXPECT_EQ(IndexFile(bytes, "T.NDX").Find("K124"), std::nullopt);
    EXPECT_EQ(IndexFile(bytes, "T.NDX").Find("K125"), 26U);
}

} // namespace
} // namespace zy::dbase::test
