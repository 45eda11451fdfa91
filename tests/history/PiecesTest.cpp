#include "history/Pieces.h"

#include <gmock/gmock.h>

#include "history/Bytes.h"

namespace zy::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using namespace std::string_view_literals;

const std::vector<std::string> kPieces{"one", "", std::string("\0\xFF|", 3), std::string(300, 'x')};

std::string FileOf(const std::vector<std::string>& pieces) {
    PieceWriter writer;
    std::string bytes;
    for (const auto& piece : pieces) {
        bytes += writer.Frame(piece);
    }
    return bytes;
}

/// How many pieces lie wholly in the first `size` bytes.
std::size_t WholeIn(std::size_t size) {
    std::size_t count = 0;
    while (count < kPieces.size() &&
           FileOf({kPieces.begin(), kPieces.begin() + static_cast<std::ptrdiff_t>(count + 1)}).size() <=
               size) {
        ++count;
    }
    return count;
}

/// The pieces that were read are the first ones of those that were written.
void ExpectFirst(const Pieces& pieces, std::size_t count) {
    ASSERT_EQ(pieces.whole.size(), count);
    for (std::size_t i = 0; i < count; ++i) {
        EXPECT_EQ(pieces.whole[i], kPieces[i]);
    }
}

TEST(Pieces, AreReadAsTheyWereWritten) {
    const auto bytes = FileOf(kPieces);
    const auto pieces = ReadPieces(bytes);
    ExpectFirst(pieces, kPieces.size());
    EXPECT_FALSE(pieces.isDamaged);
}

TEST(Pieces, AnEmptyFileHasNoneAndIsWhole) {
    const auto pieces = ReadPieces("");
    EXPECT_THAT(pieces.whole, IsEmpty());
    EXPECT_FALSE(pieces.isDamaged);
}

TEST(Pieces, AFileThatIsCutAnywhereHasThoseBeforeTheCut) {
    const auto bytes = FileOf(kPieces);
    for (std::size_t size = 0; size < bytes.size(); ++size) {
        const auto pieces = ReadPieces(std::string_view(bytes).substr(0, size));
        ExpectFirst(pieces, WholeIn(size));
        EXPECT_EQ(pieces.isDamaged,
                  size !=
                      FileOf({kPieces.begin(), kPieces.begin() + static_cast<std::ptrdiff_t>(WholeIn(size))})
                          .size())
            << size;
    }
}

TEST(Pieces, AFileWithAnyByteChangedHasThoseBeforeIt) {
    const auto bytes = FileOf(kPieces);
    for (std::size_t at = 0; at < bytes.size(); ++at) {
        for (unsigned bit = 0; bit < 8; ++bit) {
            auto changed = bytes;
            changed[at] = static_cast<char>(static_cast<unsigned char>(changed[at]) ^ (1U << bit));
            const auto pieces = ReadPieces(changed);
            ExpectFirst(pieces, WholeIn(at));
            EXPECT_TRUE(pieces.isDamaged);
        }
    }
}

TEST(Pieces, OneThatIsLeftOutOrOutOfItsPlaceEndsTheReading) {
    const auto first = FileOf({"one"});
    const auto second = FileOf({"one", "two"}).substr(first.size());
    const auto third = FileOf({"one", "two", "three"}).substr(first.size() + second.size());
    EXPECT_THAT(ReadPieces(first + third).whole, ElementsAre("one"));
    EXPECT_THAT(ReadPieces(first + third + second).whole, ElementsAre("one"));
    EXPECT_THAT(ReadPieces(second).whole, IsEmpty());
}

TEST(Bytes, NumbersAndTextsAreReadAsTheyWereWritten) {
    const std::vector<std::uint64_t> numbers{0, 1, 127, 128, 16383, 16384, ~std::uint64_t{0}};
    ByteWriter writer;
    for (const auto number : numbers) {
        writer.Number(number);
    }
    writer.Text("text");
    const auto bytes = writer.Take();
    ByteReader reader(bytes);
    for (const auto number : numbers) {
        EXPECT_EQ(reader.Number(), number);
    }
    EXPECT_EQ(reader.Text(), "text");
    EXPECT_TRUE(reader.AtEnd());
}

TEST(Bytes, ASmallNumberTakesOneOfThem) {
    ByteWriter writer;
    writer.Number(127);
    EXPECT_EQ(writer.Take().size(), 1U);
}

TEST(Bytes, WhatRunsBeyondTheEndIsNothingAndSoIsAllBehindIt) {
    ByteReader text("\x05"
                    "1234"sv);
    EXPECT_EQ(text.Text(), std::nullopt);
    EXPECT_EQ(text.Number(), std::nullopt);
    EXPECT_FALSE(text.AtEnd());
    EXPECT_TRUE(text.HasFailed());
    ByteReader number("\xFF\xFF"sv);
    EXPECT_EQ(number.Number(), std::nullopt);
    const auto beyondTheLongest = std::string(11, '\xFF') + '\x01';
    ByteReader endless(beyondTheLongest);
    EXPECT_EQ(endless.Number(), std::nullopt);
}

TEST(Bytes, ANumberBeyondItsLimitIsNothing) {
    ByteReader reader("\x03\x03"sv);
    EXPECT_EQ(reader.Small(3), 3);
    EXPECT_EQ(reader.Small(2), std::nullopt);
    EXPECT_TRUE(reader.HasFailed());
}

} // namespace
} // namespace zy::test
