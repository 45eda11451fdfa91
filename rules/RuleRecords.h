#pragma once

#include "platform/CodePage.h"
#include "shell/ListRecords.h"

namespace zy {

/// The rules as records. A rule is told from the others by its code, capitals and blanks around it aside.
class RuleRecords : public ListRecords {
  public:
    /// The code page must outlive it.
    explicit RuleRecords(const CodePage& codePage) : codePage_(codePage) {}

    std::string_view Noun() const override { return "rule"; }
    std::vector<std::string> Columns() const override;
    RowTexts Comparable(const RowTexts& rows) const override;
    std::string Key(const RowTexts& comparable, int row) const override;
    std::optional<FileRecords> Read(std::string_view bytes) const override;

  private:
    const CodePage& codePage_;
};

} // namespace zy
