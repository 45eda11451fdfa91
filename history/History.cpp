#include "history/History.h"

#include <utility>

namespace zy {

const Step* History::ToUndo() const {
    return position_ == 0 ? nullptr : &steps_[position_ - 1];
}

const Step* History::ToRedo() const {
    return position_ == steps_.size() ? nullptr : &steps_[position_];
}

void History::Record(Step step) {
    if (step.ChangesNothing()) {
        return;
    }
    CutRedo();
    if (GoesOn(step)) {
        GoOnWithLast(std::move(step));
    } else {
        Push(std::move(step));
    }
    KeepWithinBytes();
}

void History::Join(Step step) {
    CutRedo();
    GoOnWithLast(std::move(step));
    KeepWithinBytes();
}

void History::RecordWithLast(Step step) {
    if (position_ == 0) {
        Record(std::move(step));
        return;
    }
    if (log_ != nullptr) {
        log_->Appended(step);
    }
    GoOnFrom(std::move(step));
    KeepWithinBytes();
}

bool History::GoesOn(const Step& step) const {
    const Step* last = ToUndo();
    return !sealed_ && last != nullptr && !step.key.empty() && last->key == step.key &&
           last->after == step.before;
}

void History::CutRedo() {
    while (steps_.size() > position_) {
        bytes_ -= steps_.back().Bytes();
        steps_.pop_back();
        sealed_ = true;
    }
    if (saved_ > position_) {
        saved_.reset();
    }
}

void History::Push(Step step) {
    if (log_ != nullptr) {
        log_->Pushed(step);
    }
    bytes_ += step.Bytes();
    steps_.push_back(std::move(step));
    ++position_;
    sealed_ = false;
}

void History::GoOnWithLast(Step step) {
    const Step part = log_ == nullptr ? Step() : step;
    GoOnFrom(std::move(step));
    const bool vanishes = Last().ChangesNothing();
    if (log_ != nullptr) {
        log_->Joined(part, vanishes);
    }
    if (vanishes) {
        DropLast();
    }
}

void History::GoOnFrom(Step step) {
    bytes_ -= Last().Bytes();
    Last().GoOn(std::move(step));
    bytes_ += Last().Bytes();
}

void History::DropLast() {
    bytes_ -= Last().Bytes();
    steps_.pop_back();
    --position_;
    sealed_ = true;
}

void History::KeepWithinBytes() {
    while (bytes_ > mostBytes_ && position_ > 0) {
        bytes_ -= steps_.front().Bytes();
        steps_.pop_front();
        --position_;
        saved_ = saved_ > std::size_t{0} ? std::optional(*saved_ - 1) : std::nullopt;
    }
}

StepPlace History::Undo(RowList& rows) {
    const Step& step = Last();
    step.Undo(rows);
    if (log_ != nullptr) {
        log_->Undone(step);
    }
    --position_;
    sealed_ = true;
    return step.before;
}

StepPlace History::Redo(RowList& rows) {
    const Step& step = steps_[position_];
    step.Redo(rows);
    if (log_ != nullptr) {
        log_->Redone(step);
    }
    ++position_;
    sealed_ = true;
    return step.after;
}

void History::MarkSaved() {
    saved_ = position_;
    sealed_ = true;
}

void History::Clear() {
    steps_.clear();
    position_ = 0;
    saved_ = 0;
    bytes_ = 0;
    sealed_ = true;
}

} // namespace zy
