#include "shell/RecordChanges.h"

#include <algorithm>

#include "shell/StatusTexts.h"

namespace zy {
namespace {

constexpr std::string_view kBetween = ", ";

std::string KindOf(const RowDifference& difference) {
    switch (difference.kind) {
    case RowDifference::Kind::Added:
        return "Added";
    case RowDifference::Kind::Removed:
        return "Removed";
    case RowDifference::Kind::Moved:
        return "Moved";
    case RowDifference::Kind::Changed:
        break;
    }
    return difference.isMoved ? "Changed, moved" : "Changed";
}

std::string PlaceOf(int row) {
    return "row " + std::to_string(row + 1);
}

bool DifferIn(int column, const std::vector<RowState>& states) {
    const RowState* first = nullptr;
    for (const auto& state : states) {
        if (state.row == kNoRow) {
            continue;
        }
        if (first != nullptr &&
            first->rows->Text(first->row, column) != state.rows->Text(state.row, column)) {
            return true;
        }
        first = &state;
    }
    return false;
}

std::string TextsOf(const RowState& state, const std::vector<std::string>& columns,
                    const std::vector<int>& shown) {
    if (shown.empty()) {
        return WholeRecord(*state.rows, state.row);
    }
    std::string text;
    for (const int column : shown) {
        Join(text, kBetween,
             columns[static_cast<std::size_t>(column)] + " " + Quoted(state.rows->Text(state.row, column)));
    }
    return text;
}

/// How the record of a difference stands before and after.
std::vector<std::string> StatesOf(const RowDifference& difference, const std::vector<std::string>& columns,
                                  const RowTexts& was, const RowTexts& is) {
    if (difference.kind == RowDifference::Kind::Moved) {
        return {PlaceOf(difference.before), PlaceOf(difference.after)};
    }
    auto states = DescribeStates(columns, {{&was, difference.before}, {&is, difference.after}});
    if (difference.isMoved) {
        Join(states.front(), kBetween, PlaceOf(difference.before));
        Join(states.back(), kBetween, PlaceOf(difference.after));
    }
    return states;
}

} // namespace

std::string WholeRecord(const RowTexts& rows, int row) {
    std::string text;
    for (int column = 0; column < rows.Columns(); ++column) {
        Join(text, kBetween, rows.Text(row, column));
    }
    return text;
}

std::vector<std::string> DescribeStates(const std::vector<std::string>& columns,
                                        const std::vector<RowState>& states) {
    std::vector<int> shown;
    for (int column = 0; column < static_cast<int>(columns.size()); ++column) {
        if (DifferIn(column, states)) {
            shown.push_back(column);
        }
    }
    std::vector<std::string> texts;
    texts.reserve(states.size());
    for (const auto& state : states) {
        texts.push_back(state.row == kNoRow ? std::string() : TextsOf(state, columns, shown));
    }
    return texts;
}

RowKey KeyOf(const ListRecords& records) {
    return [&records](const RowTexts& rows, int row) { return records.Key(rows, row); };
}

std::vector<ListView::Column> RecordChanges::Columns(const ListRecords& records, const std::string& before,
                                                     const std::string& after) {
    return {{"Change", 1600}, {records.Columns().front(), 1500}, {before, 3000}, {after, 3000}};
}

RecordChanges::RecordChanges(const ListRecords& records, const RowTexts& before, const RowTexts& after) {
    const auto was = records.Comparable(before);
    const auto is = records.Comparable(after);
    const auto columns = records.Columns();
    differences_ = CompareRows(was, is, KeyOf(records));
    texts_.reserve(differences_.size());
    for (const auto& one : differences_) {
        const auto name = one.after == kNoRow ? was.Text(one.before, 0) : is.Text(one.after, 0);
        const auto states = StatesOf(one, columns, was, is);
        texts_.push_back({KindOf(one), std::string(name), states.front(), states.back()});
    }
}

std::string RecordChanges::Summary() const {
    std::string text;
    for (const auto& [kind, word] :
         {std::pair(RowDifference::Kind::Added, "added"), std::pair(RowDifference::Kind::Changed, "changed"),
          std::pair(RowDifference::Kind::Moved, "moved"),
          std::pair(RowDifference::Kind::Removed, "removed")}) {
        const auto count = std::count_if(differences_.begin(), differences_.end(),
                                         [kind = kind](const auto& one) { return one.kind == kind; });
        Join(text, kBetween, count == 0 ? "" : std::to_string(count) + " " + word);
    }
    return text.empty() ? "no difference" : text;
}

} // namespace zy
