#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>

// Eight characters of a text, looked at in one go, because a file can have very many of them.

namespace zy {

/// Which characters of a block were meant: the highest bit of each one's byte.
struct CharacterMask {
    std::uint64_t bits = 0;

    bool Any() const { return bits != 0; }
    /// The place of the first one in its block. There must be one.
    std::size_t First() const { return static_cast<std::size_t>(std::countr_zero(bits)) / 8; }

    friend CharacterMask operator|(CharacterMask left, CharacterMask right) {
        return {left.bits | right.bits};
    }
};

/// Eight characters in a row, one a byte, the first one in the lowest.
///
/// The sums below add to seven bits of each byte, so that nothing is carried from one byte to the next; the
/// highest bit of each byte then tells the answer.
class CharacterBlock {
  public:
    static constexpr std::size_t kSize = 8;

    explicit CharacterBlock(const char* at) {
        static_assert(std::endian::native == std::endian::little, "the first character is the lowest byte");
        std::memcpy(&bytes_, at, kSize);
    }
    void Store(char* at) const { std::memcpy(at, &bytes_, kSize); }

    /// The characters that differ from an ASCII character in no bit.
    CharacterMask Equal(char character) const {
        const std::uint64_t different = bytes_ ^ All(character);
        return {~(((different & kLowBits) + kLowBits) | different) & kHighBits};
    }
    CharacterMask BeyondAscii() const { return {bytes_ & kHighBits}; }
    /// The characters before an ASCII character.
    CharacterMask Before(char character) const { return {~(FromOn(character) | bytes_) & kHighBits}; }

    /// The block with capitals for the letters "a" to "z".
    CharacterBlock AsciiCapitals() const {
        const std::uint64_t letters = FromOn('a') & ~FromOn('z' + 1) & ~bytes_ & kHighBits;
        return CharacterBlock(bytes_ - letters / (kHighBit / ('a' - 'A')));
    }

  private:
    static constexpr std::uint64_t kEach = 0x0101010101010101;
    static constexpr std::uint64_t kHighBit = 0x80;
    static constexpr std::uint64_t kHighBits = kEach * kHighBit;
    static constexpr std::uint64_t kLowBits = ~kHighBits;

    explicit CharacterBlock(std::uint64_t bytes) : bytes_(bytes) {}

    static constexpr std::uint64_t All(char character) {
        return kEach * static_cast<unsigned char>(character);
    }
    /// Its highest bits tell which characters, their own highest bit left out, are an ASCII character or one
    /// behind it.
    std::uint64_t FromOn(char character) const {
        return (bytes_ & kLowBits) + (kHighBits - All(character));
    }

    std::uint64_t bytes_ = 0;
};

} // namespace zy
