#pragma once

#include <string>
#include <string_view>

namespace zy {

// Cells as spreadsheets copy them: those of a row separated by TAB, each row ended by a line end. A cell that
// holds one of these, or begins with a double quote, stands in double quotes with its own quotes doubled.

/// Appends a cell in that form, without what separates it from the next one.
void AppendCopied(std::string& text, std::string_view cell);

/// Takes the cells off the front of such a text one by one.
class CopiedCells {
  public:
    explicit CopiedCells(std::string_view text) : rest_(text) {}

    /// Behind a TAB there is one more, be it an empty one at the text's end.
    bool AtEnd() const { return rest_.empty() && endedRow_; }
    /// The text of the cells that are not taken yet.
    std::string_view Rest() const { return rest_; }
    /// The next cell on one line: a blank stands for each line end and TAB in it. Valid until the next one is
    /// taken.
    std::string_view Take();
    /// Whether the cell taken last was its row's last one.
    bool EndedRow() const { return endedRow_; }

  private:
    void TakeSeparator();

    std::string_view rest_;
    std::string cell_;
    bool endedRow_ = true;
};

} // namespace zy
