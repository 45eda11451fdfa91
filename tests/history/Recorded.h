#pragma once

#include <algorithm>
#include <array>
#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "history/History.h"
#include "history/Recorder.h"

namespace zy::test {

/// A list of rows of two texts that tells a recorder of its changes, as an editor's list does, and keeps the
/// steps in a history.
class Recorded : public RowList {
  public:
    using Row = std::array<std::string, 2>;

    explicit Recorded(std::size_t mostBytes = History::kMostBytes) : history(mostBytes) { recorder.Start(); }

    // RowList
    int Rows() const override { return static_cast<int>(rows.size()); }
    int Columns() const override { return 2; }
    std::string_view Text(int row, int column) const override {
        return rows.at(static_cast<std::size_t>(row)).at(static_cast<std::size_t>(column));
    }
    void ReplaceRows(int first, int count, const RowTexts& others) override {
        const auto begin = rows.begin() + first;
        std::vector<Row> made;
        for (int row = 0; row < others.Rows(); ++row) {
            made.push_back({std::string(others.Text(row, 0)), std::string(others.Text(row, 1))});
        }
        rows.insert(rows.erase(begin, begin + count), made.begin(), made.end());
    }

    // What somebody does.
    void Set(int row, int column, std::string_view text) {
        Change(row, 1, 1, [&] { At(row).at(static_cast<std::size_t>(column)) = text; });
    }
    void Insert(int row, std::string_view text) {
        Change(row, 0, 1, [&] { rows.insert(rows.begin() + row, Row{std::string(text), ""}); });
    }
    void Remove(int row) {
        Change(row, 1, 0, [&] { rows.erase(rows.begin() + row); });
    }
    void Swap(int row) {
        Change(row, 2, 2, [&] { std::swap(At(row), At(row + 1)); });
    }
    template <typename Work>
    void Do(std::string_view name, Work work, std::string_view key = {}) {
        recorder.Begin(name, key);
        work();
        recorder.End();
    }
    void Undo() { here = history.Undo(*this); }
    void Redo() { here = history.Redo(*this); }

    /// The rows, each with its texts joined by "|".
    std::vector<std::string> Lines() const {
        std::vector<std::string> lines;
        for (const auto& row : rows) {
            lines.push_back(row[0] + "|" + row[1]);
        }
        return lines;
    }

    std::vector<Row> rows;
    StepPlace here;
    History history;
    Recorder recorder{*this, [this] { return here; }, [this](Step step) { history.Record(std::move(step)); }};

  private:
    Row& At(int row) { return rows.at(static_cast<std::size_t>(row)); }
    template <typename Work>
    void Change(int first, int removed, int added, Work work) {
        recorder.Changing(first, removed, added);
        work();
        recorder.Changed();
    }
};

} // namespace zy::test
