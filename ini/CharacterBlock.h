#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>

// Eight characters of a text, looked at in one go.
//
// This program reads a file of a few lines, but the product's other programs read settings of any size by
// these classes. Counted over 300,000 lines, loading takes about 130 instructions a line; with each line cut
// out, trimmed and put into capitals as a text of its own, it takes about 1,000.

namespace zy {

/// Some of the characters of a block: the highest bit of a byte is set where its character is one of them.
/// The other bits have no meaning.
class CharacterMask {
  public:
    static constexpr std::uint64_t kMembers = 0x8080808080808080;

    explicit CharacterMask(std::uint64_t bits) : bits_(bits) {}

    bool Any() const { return Members() != 0; }
    /// The place of the first one in its block. There must be one.
    std::size_t First() const { return static_cast<unsigned>(std::countr_zero(Members())) / 8; }
    std::uint64_t Members() const { return bits_ & kMembers; }

    friend CharacterMask operator|(CharacterMask left, CharacterMask right) {
        return CharacterMask(left.bits_ | right.bits_);
    }
    friend CharacterMask operator&(CharacterMask left, CharacterMask right) {
        return CharacterMask(left.bits_ & right.bits_);
    }
    friend CharacterMask operator~(CharacterMask mask) { return CharacterMask(~mask.bits_); }

  private:
    std::uint64_t bits_;
};

/// Eight characters in a row, one a byte, the first one in the lowest.
///
/// The sums below add to seven bits of each byte, so that nothing is carried from one byte to the next; the
/// highest bit of each byte is then the answer.
class CharacterBlock {
  public:
    static constexpr std::size_t kSize = 8;

    explicit CharacterBlock(const char* at) {
        static_assert(std::endian::native == std::endian::little, "the first character is the lowest byte");
        std::memcpy(&bytes_, at, kSize);
    }
    void Store(char* at) const { std::memcpy(at, &bytes_, kSize); }

    CharacterMask BeyondAscii() const { return CharacterMask(bytes_); }

    // Of the characters beyond ASCII, any may be among those of the masks below.

    CharacterMask Equal(char character) const {
        return CharacterMask(~((LowBits() ^ All(character)) + kLowBits));
    }
    /// The characters that come before an ASCII character.
    CharacterMask Before(char character) const { return ~FromOn(character); }
    /// The characters that are an ASCII character or come behind it.
    CharacterMask FromOn(char character) const {
        return CharacterMask(LowBits() + (CharacterMask::kMembers - All(character)));
    }

    /// The block with capitals for the letters "a" to "z".
    CharacterBlock AsciiCapitals() const {
        const auto letters = FromOn('a') & Before('z' + 1) & ~BeyondAscii();
        constexpr std::uint64_t kToBitOfCase = 0x80 / ('a' - 'A');
        return CharacterBlock(bytes_ - letters.Members() / kToBitOfCase);
    }

  private:
    static constexpr std::uint64_t kLowBits = ~CharacterMask::kMembers;

    explicit CharacterBlock(std::uint64_t bytes) : bytes_(bytes) {}

    std::uint64_t LowBits() const { return bytes_ & kLowBits; }
    static constexpr std::uint64_t All(char character) {
        constexpr std::uint64_t kEach = 0x0101010101010101;
        return kEach * static_cast<unsigned char>(character);
    }

    std::uint64_t bytes_ = 0;
};

} // namespace zy
