#include "history/StepNotes.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "history/Bytes.h"

namespace zy {
namespace {

constexpr int kMost = std::numeric_limits<int>::max();

/// An editor may mean something of its own by -1.
void Put(ByteWriter& bytes, const StepPlace& place) {
    bytes.Number(static_cast<std::uint64_t>(std::max(place.row, -1)) + 1);
    bytes.Number(static_cast<std::uint64_t>(std::max(place.column, -1)) + 1);
}

void Put(ByteWriter& bytes, const RowTexts& rows) {
    bytes.Number(static_cast<std::uint64_t>(rows.Rows()));
    for (int row = 0; row < rows.Rows(); ++row) {
        for (int column = 0; column < rows.Columns(); ++column) {
            bytes.Text(rows.Text(row, column));
        }
    }
}

void Put(ByteWriter& bytes, const Step& step) {
    bytes.Text(step.name);
    bytes.Text(step.key);
    Put(bytes, step.before);
    Put(bytes, step.after);
    bytes.Number(step.changes.size());
    for (const auto& change : step.changes) {
        bytes.Number(static_cast<std::uint64_t>(change.first));
        bytes.Number(static_cast<std::uint64_t>(std::max(change.before.Columns(), change.after.Columns())));
        Put(bytes, change.before);
        Put(bytes, change.after);
    }
}

StepPlace TakePlace(ByteReader& bytes) {
    const int row = bytes.Small(kMost).value_or(0) - 1;
    return {row, bytes.Small(kMost).value_or(0) - 1};
}

/// As many as are there: the reader knows whether that was all.
RowTexts TakeRows(ByteReader& bytes, int columns) {
    RowTexts rows(columns);
    const int cells = bytes.Small(columns == 0 ? 0 : kMost / columns).value_or(0) * columns;
    for (int cell = 0; cell < cells; ++cell) {
        const auto text = bytes.Text();
        if (!text) {
            break;
        }
        rows.Add(*text);
    }
    return rows;
}

RowChange TakeChange(ByteReader& bytes) {
    RowChange change;
    change.first = bytes.Small(kMost).value_or(0);
    const int columns = bytes.Small(kMost).value_or(0);
    change.before = TakeRows(bytes, columns);
    change.after = TakeRows(bytes, columns);
    return change;
}

Step TakeStep(ByteReader& bytes) {
    Step step;
    step.name = bytes.Text().value_or("");
    step.key = bytes.Text().value_or("");
    step.before = TakePlace(bytes);
    step.after = TakePlace(bytes);
    for (auto left = bytes.Number().value_or(0); left > 0 && !bytes.HasFailed(); --left) {
        step.changes.push_back(TakeChange(bytes));
    }
    return step;
}

/// Whether each change finds the rows that it is about, and has as many columns, also where it has no rows:
/// changes that are joined count on it. How many rows there are changes with each.
bool Fits(const Step& step, const RowList& rows) {
    std::int64_t count = rows.Rows();
    return std::all_of(step.changes.begin(), step.changes.end(), [&](const RowChange& change) {
        const auto& [first, before, after] = change;
        const bool fits = before.Columns() == rows.Columns() && after.Columns() == rows.Columns() &&
                          std::int64_t{first} + before.Rows() <= count;
        count += after.Rows() - before.Rows();
        return fits;
    });
}

/// What taking back a step does, as a step of its own.
Step Reverse(const Step& step) {
    Step reverse{
        .name = "Undo " + step.name, .key = {}, .before = step.after, .after = step.before, .changes = {}};
    std::for_each(step.changes.rbegin(), step.changes.rend(), [&](const RowChange& change) {
        reverse.changes.push_back({change.first, change.after, change.before});
    });
    return reverse;
}

} // namespace

std::string StepNote::Bytes() const {
    ByteWriter bytes;
    bytes.Number(static_cast<std::uint64_t>(kind));
    if (HasStep()) {
        Put(bytes, step);
    }
    return bytes.Take();
}

std::optional<StepNote> StepNote::Of(std::string_view text) {
    ByteReader bytes(text);
    StepNote note;
    const auto kind = bytes.Small(static_cast<int>(Kind::Undo));
    if (!kind) {
        return std::nullopt;
    }
    note.kind = static_cast<Kind>(*kind);
    if (note.HasStep()) {
        note.step = TakeStep(bytes);
    }
    return bytes.AtEnd() && note.HasItsChanges() ? std::optional(std::move(note)) : std::nullopt;
}

StepNote StepNote::OfList(const RowList& rows, int first) {
    StepNote note{Kind::List, {}};
    note.step.changes.push_back({first, {}, CopyOf(rows, first, rows.Rows() - first)});
    return note;
}

bool StepNote::ReplayList(RowList& rows, History& history) const {
    if (!HasItsChanges()) {
        return false;
    }
    Step whole = step;
    auto& change = whole.changes.front();
    if (change.first > rows.Rows()) {
        return false;
    }
    change.before = CopyOf(rows, change.first, rows.Rows() - change.first);
    return StepNote{Kind::Push, std::move(whole)}.Replay(rows, history);
}

bool StepNote::Replay(RowList& rows, History& history) const {
    switch (kind) {
    case Kind::List:
        return ReplayList(rows, history);
    case Kind::Undo:
        return history.ToUndo() != nullptr && (history.Undo(rows), true);
    case Kind::Redo:
        return history.ToRedo() != nullptr && (history.Redo(rows), true);
    case Kind::Push:
    case Kind::Join:
    case Kind::Append:
        break;
    }
    if (!Fits(step, rows) || (kind != Kind::Push && history.ToUndo() == nullptr)) {
        return false;
    }
    step.Redo(rows);
    if (kind == Kind::Push) {
        history.Seal();
        history.Record(step);
    } else if (kind == Kind::Join) {
        history.Join(step);
    } else {
        history.RecordWithLast(step);
    }
    return true;
}

void StepNotes::StartAnew() {
    depth_ = 0;
    undone_ = 0;
    isBeforeStart_ = false;
}

void StepNotes::NotePush(const Step& step) {
    ++depth_;
    undone_ = 0;
    take_({StepNote::Kind::Push, step});
}

/// As a step of its own where the step that it is part of is none of the notes.
bool StepNotes::NotePart(StepNote::Kind kind, const Step& part) {
    const bool isPart = !isBeforeStart_ && depth_ > 0;
    if (isPart) {
        take_({kind, part});
    } else if (!part.ChangesNothing()) {
        isBeforeStart_ = true;
        NotePush(part);
    }
    return isPart;
}

void StepNotes::Pushed(const Step& step) {
    NotePush(step);
}

void StepNotes::Joined(const Step& part, bool vanishes) {
    if (NotePart(StepNote::Kind::Join, part)) {
        undone_ = 0;
        depth_ -= vanishes ? 1 : 0;
    }
}

void StepNotes::Appended(const Step& part) {
    NotePart(StepNote::Kind::Append, part);
}

void StepNotes::Undone(const Step& step) {
    if (isBeforeStart_ || depth_ == 0) {
        isBeforeStart_ = true;
        NotePush(Reverse(step));
    } else {
        --depth_;
        ++undone_;
        take_({StepNote::Kind::Undo, {}});
    }
}

void StepNotes::Redone(const Step& step) {
    if (undone_ == 0) {
        NotePush(step);
    } else {
        ++depth_;
        --undone_;
        take_({StepNote::Kind::Redo, {}});
    }
}

} // namespace zy
