#pragma once

#include <algorithm>
#include <cstddef>

namespace zy::dbase {

// The layout of an index file (.NDX): pages of 512 bytes, of which page 0 is the header. Every other one
// holds the number of its entries and, behind that, the entries.

inline constexpr std::size_t kPageSize = 512;

inline constexpr std::size_t kRootAt = 0;
inline constexpr std::size_t kPagesAt = 4;
inline constexpr std::size_t kKeyLetterAt = 9;
inline constexpr std::size_t kKeyLengthAt = 12;
inline constexpr std::size_t kKeysPerPageAt = 14;
inline constexpr std::size_t kKeyTypeAt = 16;
inline constexpr std::size_t kEntrySizeAt = 18;
inline constexpr std::size_t kUniqueAt = 23;
inline constexpr std::size_t kExpressionAt = 24;

inline constexpr std::size_t kFirstEntryAt = 4;

// In an entry: the child's page, which is 0 in a leaf; the record, counted from 1, which is 0 in an inner
// page; the key.
inline constexpr std::size_t kChildAt = 0;
inline constexpr std::size_t kRecordAt = 4;
inline constexpr std::size_t kKeyAt = 8;

/// The longest key that an index can have.
inline constexpr std::size_t kLongestKey = 100;

/// The bytes that an entry with such a key takes.
inline constexpr std::size_t EntrySize(std::size_t keyLength) {
    return (kKeyAt + keyLength + 3) / 4 * 4;
}

inline constexpr std::size_t KeysPerPage(std::size_t entrySize) {
    return (kPageSize - 8) / entrySize;
}

/// The keys of an inner page. Behind them stands the last child, and 4 bytes more; there is a reader that
/// cannot search below the 26th child.
inline constexpr std::size_t KeysPerInnerPage(std::size_t entrySize) {
    return std::min<std::size_t>(24, (kPageSize - kFirstEntryAt - 8) / entrySize);
}

} // namespace zy::dbase
