#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "history/RowTexts.h"

namespace zy {

/// What a file of an editor's list holds.
struct FileRecords {
    RowTexts rows;       ///< those that the editor's list would have
    std::string dropped; ///< what else it holds, which a save of the list does not write; empty when nothing
};

/// The records of an editor's list, for whoever compares two of its states.
class ListRecords {
  public:
    virtual ~ListRecords() = default;

    /// What one is called: "rule".
    virtual std::string_view Noun() const = 0;
    /// The headers of the columns, as the editor shows them.
    virtual std::vector<std::string> Columns() const = 0;
    /// Rows of the list with these columns alone, and without what a save and a load in between would add to
    /// their texts or take away.
    virtual RowTexts Comparable(const RowTexts& rows) const = 0;
    /// What tells a record from the others: two of one key are the same one at two times.
    virtual std::string Key(const RowTexts& comparable, int row) const = 0;
    /// What the editor would load from a file that holds these bytes; nothing when it could not.
    virtual std::optional<FileRecords> Read(std::string_view bytes) const = 0;
};

} // namespace zy
