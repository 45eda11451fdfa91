#pragma once

#include <cstdint>
#include <deque>
#include <string_view>

#include "ini/FileText.h"
#include "ini/INIline.h"

namespace zy {

/// The lines of a settings file in their order, counted from 1.
///
/// A reference to a line stays valid until a line is removed or the collection is cleared or goes away;
/// adding lines does not touch it. A position that no line has is run-time error 9 and changes nothing. So is
/// any key run-time error 5, for Add gives the lines none.
class INIlines {
  public:
    /// The lines from the first to the last, for a loop over them.
    struct Enumerator {
        std::deque<INIline>::iterator first;
        std::deque<INIline>::iterator last;

        auto begin() const { return first; }
        auto end() const { return last; }
    };

    INIlines() = default;
    INIlines(const INIlines&) = delete;
    INIlines& operator=(const INIlines&) = delete;

    /// Appends a line and returns it.
    INIline& Add(std::string_view group, std::string_view section = {}, std::string_view value = {});
    /// Drops all lines. Always 0.
    std::int16_t Clear();
    INIline& Item(std::int32_t index) { return lines_[Checked(index)]; }
    const INIline& Item(std::int32_t index) const { return lines_[Checked(index)]; }
    [[noreturn]] INIline& Item(std::string_view key) const;
    std::int32_t Count() const { return static_cast<std::int32_t>(lines_.size()); }
    /// Takes a line out; those behind it move up by one place.
    void Remove(std::int32_t index);
    [[noreturn]] void Remove(std::string_view key);

    Enumerator NewEnum() { return {lines_.begin(), lines_.end()}; }
    auto begin() { return lines_.begin(); }
    auto end() { return lines_.end(); }
    auto begin() const { return lines_.begin(); }
    auto end() const { return lines_.end(); }

    /// Drops all lines and keeps the text of a file, for lines that refer to it. Returns the text kept.
    const FileText& Keep(FileText text);
    std::size_t TextSize() const { return text_.View().size(); }
    /// Appends a line that refers to the text kept.
    void Add(const INIplaces& places) { lines_.emplace_back(places); }

  private:
    std::size_t Checked(std::int32_t index) const;

    FileText text_;
    std::deque<INIline> lines_;
};

} // namespace zy
