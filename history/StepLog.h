#pragma once

#include "history/Step.h"

namespace zy {

/// Learns of everything that happens to a history, in its order.
class StepLog {
  public:
    virtual ~StepLog() = default;

    /// A step was done, and is the last one now.
    virtual void Pushed(const Step& step) = 0;
    /// What was done next is part of the last step; that is gone if it comes to nothing so.
    virtual void Joined(const Step& part, bool vanishes) = 0;
    /// What was done next is part of the last step, which stays; so does what can be done again.
    virtual void Appended(const Step& part) = 0;
    /// A step was taken back, or done again.
    virtual void Undone(const Step& step) = 0;
    virtual void Redone(const Step& step) = 0;
};

} // namespace zy
