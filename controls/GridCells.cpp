#include "controls/GridCells.h"

#include <algorithm>
#include <utility>

namespace zy {
namespace {

/// Appends the cells of a row, joined by TAB, to others.
template <typename Cells>
void AppendCellsOf(std::string_view row, int columns, Cells& cells) {
    for (int column = 0; column < columns; ++column) {
        const auto tab = row.find('\t');
        cells.Append(row.substr(0, tab));
        row.remove_prefix(tab == std::string_view::npos ? row.size() : tab + 1);
    }
}

} // namespace

GridCells::GridCells(int columns) : columns_(columns) {
    cells_.Resize(FirstCellOf(rows_));
}

std::vector<std::string> GridCells::Headers() const {
    std::vector<std::string> headers;
    headers.reserve(static_cast<std::size_t>(columns_));
    for (int column = 0; column < columns_; ++column) {
        headers.emplace_back(Text(0, column));
    }
    return headers;
}

void GridCells::SetRows(int rows) {
    resizing.Raise();
    const int kept = std::min(rows, rows_);
    changing.Raise(kept, rows_ - kept, rows - kept);
    cells_.Resize(FirstCellOf(rows));
    rows_ = rows;
    AnnounceRows();
    resized.Raise();
    changed.Raise();
}

void GridCells::AddItem(std::string_view tabJoinedCells) {
    changing.Raise(rows_, 0, 1);
    AppendCellsOf(tabJoinedCells, columns_, cells_);
    ++rows_;
    AnnounceRows();
    changed.Raise();
}

void GridCells::AddItems(std::size_t count, const AppendItem& appendItem) {
    std::string text;
    std::vector<std::size_t> ends(count);
    for (std::size_t item = 0; item < count; ++item) {
        appendItem(item, text);
        ends[item] = text.size();
    }
    AddRowsOf(Share(std::move(text)), [&](std::string_view all, TextParts& cells) {
        cells.Reserve(FirstCellOf(static_cast<int>(ends.size())));
        std::size_t start = 0;
        for (const auto end : ends) {
            AppendCellsOf(all.substr(start, end - start), columns_, cells);
            start = end;
        }
    });
}

void GridCells::AddRowsOf(SharedText text, const CellTexts::Split& split) {
    cells_.AppendPartsOf(std::move(text), split);
    const int rows = static_cast<int>(cells_.Count()) / columns_;
    changing.Raise(rows_, 0, rows - rows_);
    rows_ = rows;
    AnnounceRows();
    changed.Raise();
}

void GridCells::RemoveItem(int row) {
    resizing.Raise();
    const auto first = Index(row, 0);
    changing.Raise(row, 1, 0);
    cells_.Erase(first, FirstCellOf(1));
    --rows_;
    AnnounceRows();
    resized.Raise();
    changed.Raise();
}

void GridCells::ReplaceRows(int first, int count, int others, const TextOf& textOf) {
    if (count > 0) {
        Require(first, 0);
        Require(first + count - 1, 0);
    }
    const bool resizes = count != others;
    if (resizes) {
        resizing.Raise();
    }
    changing.Raise(first, count, others);
    ChangeCount(first, count, others);
    for (int row = 0; row < others; ++row) {
        for (int column = 0; column < columns_; ++column) {
            PutText(first + row, column, textOf(row, column));
        }
    }
    if (resizes) {
        AnnounceRows();
        resized.Raise();
    }
    changed.Raise();
}

/// Takes rows out, or puts empty ones in, behind those that both have.
void GridCells::ChangeCount(int first, int count, int others) {
    const auto behind = FirstCellOf(first + std::min(count, others));
    if (others < count) {
        cells_.Erase(behind, FirstCellOf(count - others));
    } else {
        cells_.Insert(behind, FirstCellOf(others - count));
    }
    rows_ += others - count;
}

void GridCells::AnnounceRows() {
    if (redraw_) {
        rowsChanged.Raise();
    }
}

void GridCells::SetRedraw(bool on) {
    redraw_ = on;
    AnnounceRows();
}

void GridCells::SetText(int row, int column, std::string_view text) {
    if (Text(row, column) != text) {
        changing.Raise(row, 1, 1);
        PutText(row, column, text);
        changed.Raise();
    }
}

void GridCells::PutText(int row, int column, std::string_view text) {
    const auto cell = Index(row, column);
    if (cells_[cell] != text) {
        cells_.Set(cell, text);
        cellChanged.Raise(row, column);
    }
}

void GridCells::Together(std::string_view deed, const std::function<void()>& changes, Repeats repeats) {
    deedBegun.Raise(deed, repeats);
    changes();
    deedEnded.Raise();
}

} // namespace zy
