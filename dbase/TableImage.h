#pragma once

#include <bit>
#include <chrono>
#include <cstdint>
#include <cstring>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "dbase/OemPages.h"
#include "dbase/TableHeader.h"

namespace zy::dbase {

/// How many of eight characters are blanks behind the last one that is none. Columns end in many.
inline std::size_t BlanksAtEnd(const char* eight) {
    constexpr std::uint64_t kBlanks = 0x2020202020202020;
    std::uint64_t characters = 0;
    std::memcpy(&characters, eight, sizeof(characters));
    constexpr bool lastIsHighest = std::endian::native == std::endian::little;
    const auto others = characters ^ kBlanks;
    return static_cast<std::size_t>(lastIsHighest ? std::countl_zero(others) : std::countr_zero(others)) / 8;
}

/// A text without the blanks and NULs at its end.
inline std::string_view WithoutFiller(std::string_view text) {
    auto size = text.size();
    for (std::size_t blanks = 8; blanks == 8 && size >= 8; size -= blanks) {
        blanks = BlanksAtEnd(text.data() + size - 8);
    }
    while (size != 0 && (text[size - 1] == ' ' || text[size - 1] == '\0')) {
        --size;
    }
    return text.substr(0, size);
}

/// What is known of a table even when some of its records are missing or damaged.
struct TableContent {
    std::uint32_t live = 0; ///< the records that are not deleted, before the first that is missing or damaged
    std::string damage;     ///< what is wrong with that one; empty when none is
};

/// Looks at the records of a file, as far as its header counts them. Error 3274 as ParseTableHeader says.
TableContent ContentOfTable(std::string_view file, std::string_view path);

/// A table in memory: the bytes of its file. Records are counted from 0.
class TableImage {
  public:
    /// Takes the bytes of a file. Error 3274 as ParseTableHeader says, and when the file does not hold all
    /// the records that the header counts, each of them live or deleted. What stands behind the last one is
    /// not kept.
    TableImage(std::string file, std::string_view path);

    const std::vector<TableField>& Fields() const { return header_.fields; }
    /// The column of that name, without regard to case; the first of several.
    std::optional<std::size_t> FindField(std::string_view name) const;

    /// The number of records, with those that are deleted.
    std::uint32_t Records() const { return records_; }
    /// False when the record is deleted.
    bool IsShown(std::uint32_t record) const { return *At(record) == ' '; }

    // What a reader of the shown records alone would miss.

    std::uint32_t DeletedRecords() const;
    /// The number of whole records that stand right behind the last one that the header counts. What fills a
    /// file up, blanks among it, is none.
    std::uint32_t UncountedRecords() const { return uncounted_; }
    /// The language byte, when it names a code page that is not known here.
    std::optional<unsigned> UnknownPage() const;
    /// The number of characters that ConvertToAnsi could make a likeness of only.
    std::size_t ReplacedCharacters() const { return replaced_; }

    /// The bytes of a column, all of them.
    std::string_view Bytes(std::uint32_t record, std::size_t field) const {
        const auto& column = header_.fields[field];
        return {At(record) + column.offset, column.width};
    }
    /// The same without the blanks and NULs at its end.
    std::string_view Value(std::uint32_t record, std::size_t field) const {
        return WithoutFiller(Bytes(record, field));
    }

    /// Makes ANSI characters of all values when the language byte names an OEM page. The image is then for
    /// reading only.
    void ConvertToAnsi();

    /// Appends a record of these values, one for each column, in ANSI characters. Nothing is appended when
    /// one is wider than its column (error 3163), when the table's code page lacks one of its characters
    /// (3421), and when the table is full (3251).
    void Append(std::span<const std::string_view> values);

    /// Takes away the records from this one on.
    void CutBackTo(std::uint32_t records);

    /// The file's bytes with so many records, the first ones, for a table that was changed on that day. The
    /// language byte stays 00 as long as all characters are ASCII. They stand until the table changes.
    std::string_view FileBytes(std::uint32_t records, std::chrono::year_month_day today);

  private:
    const char* At(std::uint32_t record) const { return bytes_.data() + header_.PlaceOf(record); }
    std::size_t SizeOf(std::uint32_t records) const { return header_.PlaceOf(records); }
    void StampHeader(std::uint32_t records, std::chrono::year_month_day today);
    void RequireRoom() const;
    std::vector<std::string> InOemPage(std::span<const std::string_view> values) const;
    void AppendBytes(std::span<const std::string_view> values);

    std::string bytes_; ///< the header, whole records, and the mark behind them once it was written
    std::string cut_;   ///< the same with fewer records
    TableHeader header_;
    std::uint32_t records_;
    std::uint32_t uncounted_ = 0;
    std::size_t replaced_ = 0;
    std::uint8_t language_; ///< byte 29 of the header as it was read
};

} // namespace zy::dbase
