#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "basics/SharedText.h"

namespace zy {

/// Where a text stands among others, in half the room of a pointer and a length.
struct TextPlace {
    std::uint32_t start = 0;
    std::uint32_t length = 0;

    /// Of a text that begins at the place 0.
    std::string_view In(std::string_view text) const { return text.substr(start, length); }
};

/// Parts of one text, which must live as long as they.
class TextParts {
  public:
    /// Their places go behind those that are there. The text begins at the place `start`, and the sum of that
    /// and its size must be a place.
    TextParts(std::string_view text, std::vector<TextPlace>& places, std::uint32_t start = 0)
        : text_(text), places_(places), start_(start) {}

    /// Makes room, so that so many of them need not move.
    void Reserve(std::size_t count) { places_.reserve(places_.size() + count); }
    /// It must be a part of the text, or empty.
    void Append(std::string_view part) {
        const auto offset = part.empty() ? 0 : part.data() - text_.data();
        places_.push_back(
            {start_ + static_cast<std::uint32_t>(offset), static_cast<std::uint32_t>(part.size())});
    }

  private:
    std::string_view text_;
    std::vector<TextPlace>& places_;
    std::uint32_t start_;
};

/// The texts of a table's cells, numbered from 0; a new cell is empty.
///
/// Made for tens of thousands of short texts: they stand one behind another in large blocks, and the blocks
/// never move. So a text that was returned stays what it was, also when its cell gets another one, until
/// `Resize` or `Erase` is called.
///
/// All blocks together hold less than 4 GiB; more is run-time error 7.
class CellTexts {
  public:
    using Split = std::function<void(std::string_view text, TextParts& parts)>;
    class Reader;

    static constexpr std::uint32_t kMostBytes = UINT32_MAX;
    static constexpr std::uint32_t kPageSize = 64 * 1024;

    explicit CellTexts(std::uint32_t mostBytes = kMostBytes) : mostBytes_(mostBytes) {}

    std::size_t Count() const { return cells_.size(); }
    std::string_view operator[](std::size_t cell) const;
    /// Reads one cell after another, as they are until one of them changes.
    Reader Read() const;

    /// The bytes of all texts.
    std::size_t TotalSize() const;

    void Set(std::size_t cell, std::string_view text) { cells_[cell] = Stored(text); }
    void Append(std::string_view text) { cells_.push_back(Stored(text)); }
    /// Appends cells whose texts are parts of one text. They stay there, so that none of them is copied;
    /// `split` finds the parts and appends them. When `split` throws, the cells are those before.
    void AppendPartsOf(SharedText text, const Split& split);

    /// Cuts cells off the end or appends empty ones.
    void Resize(std::size_t count);
    /// Puts empty cells in front of one, or at the end.
    void Insert(std::size_t first, std::size_t count);
    void Erase(std::size_t first, std::size_t count);

  private:
    std::uint32_t StartOf(std::size_t size) const;
    TextPlace Stored(std::string_view text);
    void AddBlock(SharedText text);
    void DropUnused();

    std::uint32_t mostBytes_;
    std::vector<TextPlace> cells_;
    std::vector<SharedText> blocks_;
    std::vector<const char*> pages_; ///< where each `kPageSize` places begin; a block begins with a page
    std::shared_ptr<std::string> filling_; ///< the last block, where it takes new texts
    std::uint32_t fillingStart_ = 0;
    std::size_t held_ = 0;     ///< the size of all blocks' texts
    std::size_t mostHeld_ = 0; ///< unused texts are dropped when they all are larger than this
};

class CellTexts::Reader {
  public:
    Reader(const TextPlace* cells, const char* const* pages) : cells_(cells), pages_(pages) {}

    std::string_view operator[](std::size_t cell) const {
        const auto place = cells_[cell];
        if (place.length == 0) {
            return {};
        }
        return {pages_[place.start / kPageSize] + place.start % kPageSize, place.length};
    }

  private:
    const TextPlace* cells_;
    const char* const* pages_;
};

inline CellTexts::Reader CellTexts::Read() const {
    return {cells_.data(), pages_.data()};
}

inline std::string_view CellTexts::operator[](std::size_t cell) const {
    return Read()[cell];
}

} // namespace zy
