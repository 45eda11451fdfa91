#include "history/Recorder.h"

#include <utility>

namespace zy {
Recorder::Recorder(const RowList& rows, Here here, Take take)
    : rows_(rows), here_(std::move(here)), take_(std::move(take)) {}

void Recorder::Begin(std::string_view name, std::string_view key) {
    if (depth_++ == 0 && isOn_) {
        step_ = {.name = std::string(name),
                 .key = std::string(key),
                 .before = here_(),
                 .after = {},
                 .changes = {}};
    }
}

void Recorder::End() {
    if (--depth_ == 0) {
        Finish();
    }
}

void Recorder::Changing(int first, int removed, int added) {
    Begin({});
    if (!isOn_ || (removed == 0 && added == 0)) {
        return;
    }
    if (Extends(first, removed, added)) {
        Extend(first, removed);
        return;
    }
    CompleteLast();
    step_.changes.push_back({first, CopyOf(rows_, first, removed), {}});
    rowsAfter_ = added;
    isOpen_ = true;
}

void Recorder::Changed() {
    End();
}

/// Whether rows that keep their number overlap or touch those that were changed last.
bool Recorder::Extends(int first, int removed, int added) const {
    return isOpen_ && removed == added && first <= step_.changes.back().first + rowsAfter_ &&
           step_.changes.back().first <= first + removed;
}

void Recorder::Extend(int first, int count) {
    auto& change = step_.changes.back();
    if (first < change.first) {
        const int above = change.first - first;
        auto before = CopyOf(rows_, first, above);
        before.AddRows(change.before, 0, change.before.Rows());
        change.before = std::move(before);
        change.first = first;
        rowsAfter_ += above;
    }
    const int below = first + count - (change.first + rowsAfter_);
    if (below > 0) {
        AddRowsOf(rows_, change.first + rowsAfter_, below, change.before);
        rowsAfter_ += below;
    }
}

void Recorder::CompleteLast() {
    if (std::exchange(isOpen_, false)) {
        auto& change = step_.changes.back();
        change.after = CopyOf(rows_, change.first, rowsAfter_);
    }
}

void Recorder::Finish() {
    CompleteLast();
    Step step = std::exchange(step_, {});
    if (!step.ChangesNothing()) {
        step.after = here_();
        take_(std::move(step));
    }
}

} // namespace zy
