#include "shell/EditSteps.h"

#include <utility>

#include "shell/StatusTexts.h"

namespace zy {
namespace {

/// Behind the header, or what stands in its place.
constexpr int kFirstRecord = 1;

/// A text that is typed into a cell or field.
constexpr auto kTyping = "Typing";

/// A step's name with no more of the texts in it than a menu has room for.
std::string Shortened(const Step* step) {
    constexpr std::size_t kMost = 50;
    if (step == nullptr || step->name.size() <= kMost) {
        return step == nullptr ? std::string() : step->name;
    }
    return step->name.substr(0, kMost) + "...";
}

} // namespace

EditSteps::EditSteps()
    : recorder_(
          *this, [this] { return Here(); }, [this](Step step) { Take(std::move(step)); }) {}

void EditSteps::Start() {
    history_.Clear();
    recorder_.Start();
    changed.Raise();
}

void EditSteps::MarkSaved(bool success) {
    history_.MarkSaved();
    if (!success) {
        history_.ForgetSaved();
    }
}

std::string EditSteps::UndoName() const {
    return HasTyping() ? kTyping : Shortened(history_.ToUndo());
}

std::string EditSteps::RedoName() const {
    return CanRetype() ? kTyping : Shortened(history_.ToRedo());
}

void EditSteps::Take(Step step) {
    Describe(step);
    history_.Record(std::move(step));
    changed.Raise();
}

void EditSteps::Undo() {
    if (HasTyping()) {
        UndoTyping();
    } else if (CanUndo()) {
        Move(&History::Undo, "Undone: " + UndoName());
    }
}

void EditSteps::Redo() {
    if (CanRetype()) {
        RedoTyping();
    } else if (CanRedo()) {
        Move(&History::Redo, "Redone: " + RedoName());
    }
}

bool EditSteps::MayBeSaved() {
    bool may = true;
    asking.Raise(may);
    return may;
}

RowTexts EditSteps::Copy() const {
    return CopyOf(*this, kFirstRecord, Rows() - kFirstRecord);
}

RowTexts EditSteps::CopyWithTyping() const {
    const int typed = RowOfTyping();
    auto held = Copy();
    if (typed == kNoRow) {
        return held;
    }
    RowTexts rows(held.Columns());
    rows.AddRows(held, 0, typed);
    AddTyping(rows);
    rows.AddRows(held, typed + 1, held.Rows() - typed - 1);
    return rows;
}

/// The row that is the same as the one in which it would be stored now.
int EditSteps::NewRowOfTyping(const RowTexts& rows) const {
    const int typed = RowOfTyping();
    const auto held = Copy();
    int row = typed == kNoRow ? rows.Rows() : 0;
    while (row < rows.Rows() && !HaveSameTexts(rows, row, held, typed)) {
        ++row;
    }
    return row == rows.Rows() ? kNoRow : row;
}

void EditSteps::ReplaceList(const std::string& name, const RowTexts& rows, Typing typing) {
    LeaveTyping();
    Step step{.name = name, .key = {}, .before = Here(), .after = Here(), .changes = {}};
    if (RowOfTyping() != kNoRow) {
        MoveTyping(step, typing == Typing::Stays ? NewRowOfTyping(rows) : kNoRow);
    }
    step.changes.push_back(ChangeBetween(kFirstRecord, Copy(), rows));
    if (step.ChangesNothing()) {
        return;
    }
    Describe(step);
    recorder_.Stop();
    step.Redo(*this);
    const StepPlace place = step.after;
    history_.Record(std::move(step));
    Show(place);
    recorder_.Start();
    moved.Raise(history_.IsSaved(), name);
    changed.Raise();
}

void EditSteps::TakeAsSaved() {
    MarkSaved(true);
    EndSave(SaveEnd::Whole);
    moved.Raise(true, {});
}

std::size_t EditSteps::Replay(std::span<const StepNote> notes) {
    LeaveTyping();
    recorder_.Stop();
    std::size_t done = 0;
    while (done < notes.size() && notes[done].Replay(*this, history_)) {
        ++done;
    }
    if (const Step* last = history_.ToUndo()) {
        Show(last->after);
    }
    recorder_.Start();
    moved.Raise(history_.IsSaved(), "Restored: " + Counted(done, "change"));
    changed.Raise();
    return done;
}

void EditSteps::Move(StepPlace (History::*move)(RowList&), const std::string& report) {
    LeaveTyping();
    recorder_.Stop();
    const StepPlace place = (history_.*move)(*this);
    Show(place);
    recorder_.Start();
    moved.Raise(history_.IsSaved(), report);
    changed.Raise();
}

} // namespace zy
