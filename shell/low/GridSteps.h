#pragma once

#include <string>
#include <string_view>

#include "controls/Grid.h"
#include "shell/EditSteps.h"

namespace zy {

/// The steps of an editor whose list is the rows of a grid. Row 0 is the header.
class GridSteps : public EditSteps {
  public:
    /// Records the changes of a grid whose rows are called so: "Unit". The grid must outlive the steps.
    GridSteps(std::string noun, Grid& grid);

  private:
    // RowList
    int Rows() const override { return grid_.cells.Rows(); }
    int Columns() const override { return grid_.cells.Columns(); }
    std::string_view Text(int row, int column) const override { return grid_.cells.Text(row, column); }
    void ReplaceRows(int first, int count, const RowTexts& rows) override;

    // EditSteps
    int FirstRow() const override { return 1; }
    StepPlace Here() const override;
    void Describe(Step& step) const override;
    void Show(const StepPlace& place) override;
    bool HasTyping() const override { return grid_.editor.HasTyping(); }
    bool CanRetype() const override { return grid_.editor.CanRedoTyping(); }
    void UndoTyping() override { grid_.editor.UndoTyping(); }
    void RedoTyping() override { grid_.editor.RedoTyping(); }
    void LeaveTyping() override { grid_.editor.Cancel(); }

    void Connect();
    std::string NameOf(const RowChange& change) const;

    Grid& grid_;
    std::string noun_;
};

} // namespace zy
