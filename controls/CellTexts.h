#pragma once

#include <cstddef>
#include <deque>
#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace zy {

/// The texts of a table's cells, numbered from 0; a new cell is empty.
///
/// Made for tens of thousands of short texts: they stand one behind another in large blocks, and the blocks
/// never move. So a text that was returned stays what it was, also when its cell gets another one, until
/// `Resize` or `Erase` is called.
class CellTexts {
  public:
    using Split = std::function<void(std::string_view text, std::vector<std::string_view>& parts)>;

    std::size_t Count() const { return cells_.size(); }
    std::string_view operator[](std::size_t cell) const { return cells_[cell]; }
    /// Texts one behind another, as long as no cell is added or changed.
    std::span<const std::string_view> Some(std::size_t first, std::size_t count) const {
        return std::span(cells_).subspan(first, count);
    }

    void Set(std::size_t cell, std::string_view text) { cells_[cell] = Stored(text); }
    void Append(std::string_view text) { cells_.push_back(Stored(text)); }
    /// Appends cells whose texts are parts of one text. It is taken over, so that none of them is copied;
    /// `split` finds the parts and appends them. When `split` throws, the cells are those before.
    void AppendPartsOf(std::string text, const Split& split);

    /// Cuts cells off the end or appends empty ones.
    void Resize(std::size_t count);
    /// Puts empty cells in front of one, or at the end.
    void Insert(std::size_t first, std::size_t count);
    void Erase(std::size_t first, std::size_t count);

  private:
    std::string_view Stored(std::string_view text);
    std::string& BlockFor(std::size_t length);
    void DropUnused();

    std::vector<std::string_view> cells_;
    std::deque<std::string> blocks_;
    std::string* filling_ = nullptr; ///< the block that new texts go to
    std::size_t held_ = 0;           ///< the size of all blocks' texts
    std::size_t mostHeld_ = 0;       ///< unused texts are dropped when they all are larger than this
};

} // namespace zy
