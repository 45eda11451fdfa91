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
};

/// Parts of one text, which must be shorter than 4 GiB and live as long as they.
class TextParts {
  public:
    explicit TextParts(std::string_view text) : text_(text) {}

    std::size_t Count() const { return places_.size(); }
    std::string_view operator[](std::size_t part) const {
        return text_.substr(places_[part].start, places_[part].length);
    }
    const std::vector<TextPlace>& Places() const { return places_; }

    /// Makes room, so that so many of them need not move.
    void Reserve(std::size_t count) { places_.reserve(count); }
    /// It must be a part of the text, or empty.
    void Append(std::string_view part) {
        const auto start = part.empty() ? 0 : part.data() - text_.data();
        places_.push_back({static_cast<std::uint32_t>(start), static_cast<std::uint32_t>(part.size())});
    }

  private:
    std::string_view text_;
    std::vector<TextPlace> places_;
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

    static constexpr std::uint32_t kMostBytes = UINT32_MAX;

    explicit CellTexts(std::uint32_t mostBytes = kMostBytes) : mostBytes_(mostBytes) {}

    std::size_t Count() const { return cells_.size(); }
    std::string_view operator[](std::size_t cell) const {
        const auto place = cells_[cell];
        if (place.length == 0) {
            return {};
        }
        const auto& block = BlockOf(place.start);
        return {block.text->data() + (place.start - block.start), place.length};
    }

    /// Makes room, so that so many cells need not move.
    void Reserve(std::size_t count) { cells_.reserve(count); }
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
    /// Its first byte has the place `start`, and the next block begins where this one has no more room.
    struct Block {
        std::uint32_t start;
        SharedText text;
    };

    const Block& BlockOf(std::uint32_t start) const;
    TextPlace Stored(std::string_view text);
    void AddBlock(SharedText text, std::size_t size);
    void DropUnused();

    std::uint32_t mostBytes_;
    std::vector<TextPlace> cells_;
    std::vector<Block> blocks_;
    std::uint32_t end_ = 0;                ///< where the next block begins
    std::shared_ptr<std::string> filling_; ///< the last block, where it takes new texts
    std::size_t held_ = 0;                 ///< the size of all blocks' texts
    std::size_t mostHeld_ = 0;             ///< unused texts are dropped when they all are larger than this
};

} // namespace zy
