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

/// The texts of a row that another row has not, behind the headers of their columns.
std::string OwnTexts(const std::vector<std::string>& columns, const RowTexts& rows, int row,
                     const RowTexts& others, int other) {
    std::string text;
    for (int column = 0; column < rows.Columns(); ++column) {
        if (rows.Text(row, column) != others.Text(other, column)) {
            Join(text, kBetween,
                 columns[static_cast<std::size_t>(column)] + " " + Quoted(rows.Text(row, column)));
        }
    }
    return text;
}

/// How the record of a difference stands in one of the lists; `row` is kNoRow where it does not.
std::string StateOf(const RowDifference& difference, const std::vector<std::string>& columns,
                    const RowTexts& rows, int row, const RowTexts& others, int other) {
    if (row == kNoRow) {
        return {};
    }
    if (other == kNoRow) {
        return WholeRecord(rows, row);
    }
    auto text = OwnTexts(columns, rows, row, others, other);
    Join(text, kBetween, difference.isMoved ? PlaceOf(row) : "");
    return text;
}

} // namespace

std::string WholeRecord(const RowTexts& rows, int row) {
    std::string text;
    for (int column = 0; column < rows.Columns(); ++column) {
        Join(text, kBetween, rows.Text(row, column));
    }
    return text;
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
        texts_.push_back({KindOf(one), std::string(name),
                          StateOf(one, columns, was, one.before, is, one.after),
                          StateOf(one, columns, is, one.after, was, one.before)});
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
