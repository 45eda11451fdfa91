#pragma once

#include <bit>
#include <cstdint>
#include <cstring>

// Eight characters of a text at a time, because a file can have very many of them.

namespace zy::words {

using Word = std::uint64_t;

static_assert(std::endian::native == std::endian::little, "the first character is the lowest byte");

inline Word Load(const char* at) {
    Word word = 0;
    std::memcpy(&word, at, sizeof word);
    return word;
}

inline void Store(char* at, Word word) {
    std::memcpy(at, &word, sizeof word);
}

/// A word of eight times the same character.
constexpr Word All(unsigned char character) {
    return ~Word{0} / 0xFF * character;
}

// Marks are the top bits of characters.

constexpr Word kMarks = All(0x80);

/// Marks the characters below a limit, which is 128 at most. Behind the first mark there may be false ones.
constexpr Word MarkBelow(Word word, unsigned char limit) {
    return (word - All(limit)) & ~word & kMarks;
}

/// Marks the characters equal to one. Behind the first mark there may be false ones.
constexpr Word MarkEqual(Word word, unsigned char character) {
    return MarkBelow(word ^ All(character), 1);
}

/// Marks the characters beyond ASCII.
constexpr Word MarkBeyondAscii(Word word) {
    return word & kMarks;
}

/// Marks the letters "a" to "z".
constexpr Word MarkSmallLetters(Word word) {
    const Word sevenBits = word & ~kMarks;
    const Word fromA = sevenBits + All(0x80 - 'a');
    const Word beyondZ = sevenBits + All(0x80 - ('z' + 1));
    return fromA & ~beyondZ & ~word & kMarks;
}

/// The marks that stand before the first one of others.
constexpr Word Before(Word marks, Word others) {
    return marks & ((others & (~others + 1)) - 1);
}

/// The place of the first mark. There must be one.
constexpr int First(Word marks) {
    return std::countr_zero(marks) / 8;
}

/// Makes capitals of the small letters marked.
constexpr Word Capitals(Word word, Word smallLetters) {
    constexpr int kMarkToCaseBit = 2;
    return word ^ (smallLetters >> kMarkToCaseBit);
}

} // namespace zy::words
