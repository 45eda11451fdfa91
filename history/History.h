#pragma once

#include <cstddef>
#include <deque>
#include <optional>

#include "history/RowList.h"
#include "history/Step.h"
#include "history/StepLog.h"

namespace zy {

/// The steps that were done to a list, the place among them where the list stands now, and the place where it
/// was last saved.
///
/// It holds no more than so many bytes: the oldest steps go first, and with them the way back to what was
/// before them.
class History {
  public:
    static constexpr std::size_t kMostBytes = std::size_t{64} * 1024 * 1024;

    explicit History(std::size_t mostBytes = kMostBytes) : mostBytes_(mostBytes) {}

    /// Has a log learn of what happens from here on; null for none. It must outlive the history.
    void SetLog(StepLog* log) { log_ = log; }

    /// Takes up what was just done; what could have been done again is gone. A step goes on with the last one
    /// where both have the same key and it begins where that one ended, unless the last one is sealed. What
    /// comes to nothing is no step.
    void Record(Step step);
    /// Takes up what was just done as part of the last step, which there must be; what could have been done
    /// again is gone, and so is a step that comes to nothing.
    void Join(Step step);
    /// Takes up what was just done as part of the last step, whose name stays. What can be done again stays.
    /// A step of its own when there is none to be part of.
    void RecordWithLast(Step step);
    /// The last step is whole: the next one will not go on with it.
    void Seal() { sealed_ = true; }

    /// The step that Undo would take back, or Redo do again; null when there is none.
    const Step* ToUndo() const;
    const Step* ToRedo() const;
    /// Takes back a step and returns where it was done. There must be one.
    StepPlace Undo(RowList& rows);
    StepPlace Redo(RowList& rows);

    /// The list stands now as it is saved. The step that led here is sealed.
    void MarkSaved();
    /// No place among the steps is what is saved.
    void ForgetSaved() { saved_.reset(); }
    bool IsSaved() const { return saved_ == position_; }

    /// Drops all steps; the list stands as it is saved.
    void Clear();

    /// The memory that the steps take.
    std::size_t Bytes() const { return bytes_; }

  private:
    Step& Last() { return steps_[position_ - 1]; }
    bool GoesOn(const Step& step) const;
    void CutRedo();
    void Push(Step step);
    void GoOnWithLast(Step step);
    void GoOnFrom(Step step);
    void DropLast();
    void KeepWithinBytes();

    std::size_t mostBytes_;
    std::deque<Step> steps_;
    std::size_t position_ = 0; ///< how many of them are done
    std::optional<std::size_t> saved_ = 0;
    std::size_t bytes_ = 0;
    bool sealed_ = true;
    StepLog* log_ = nullptr;
};

} // namespace zy
