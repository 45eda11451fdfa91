#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zy {

/// How a cell is edited: by a drop-down list, as a line of text with a button beside it that opens a dialog
/// for the cell, or as a line of text alone.
///
/// It is written as the product's grids have it: "A|I" is a list of two items, "..." the button, "" neither.
class CellList {
  public:
    /// A text in capitals, in which texts that differ by case alone are the same.
    using UpperCase = std::function<std::string(std::string_view text)>;

    CellList() = default;
    explicit CellList(std::string_view notation);

    bool HasButton() const { return hasButton_; }
    bool HasItems() const { return !items_.empty(); }
    /// The items as they are written, blanks at their ends included; one may be empty.
    const std::vector<std::string>& Items() const { return items_; }

    /// Whether a cell may be given this text at once. With items that is one of them, exactly as it is
    /// written, or nothing, for a cell may be emptied; without items any text.
    bool Takes(std::string_view text) const;
    /// The item that comes next in the list behind `current`, or first when that is no item, and begins with
    /// `beginning` in capitals or not. Behind the last item the search goes on at the first one; `current`
    /// itself comes last.
    std::optional<std::string> Next(std::string_view current, std::string_view beginning,
                                    const UpperCase& upperCase) const;
    /// What becomes of a text that is typed over a cell's old one. A text that is no item becomes the first
    /// item that begins with it, in capitals or not, else the cell's old text, whatever that is. Without
    /// items any text stays.
    std::string Corrected(std::string_view typed, std::string_view old, const UpperCase& upperCase) const;

    friend bool operator==(const CellList&, const CellList&) = default;

  private:
    bool IsItem(std::string_view text) const;

    bool hasButton_ = false;
    std::vector<std::string> items_;
};

} // namespace zy
