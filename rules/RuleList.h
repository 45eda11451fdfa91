#pragma once

#include <functional>
#include <string_view>
#include <vector>

#include "basics/Int16.h"
#include "controls/Event.h"
#include "rules/RunRule.h"

namespace zy {

/// `gaRules`: references to the rules, in the order of the file, counted from 1. Element 0 exists and stays
/// empty.
///
/// The list never holds more than 32,767 rules: what would make it longer is run-time error 6 and changes
/// nothing. An index that no rule has is run-time error 9.
class RuleList {
  public:
    /// The index of the last rule; 0 when there is none.
    int UBound() const { return static_cast<int>(rules_.size()) - 1; }
    bool IsFull() const { return UBound() == kMaxItems; }

    RunRule& operator()(int index) { return *rules_[Checked(index)]; }
    const RunRule& operator()(int index) const { return *rules_[Checked(index)]; }

    /// Drops all references and makes room for `count` rules.
    void Reset(int count);
    void Append(RunRule& rule);
    /// Puts a rule at a place, be it behind the last one; those from there on make room.
    void Insert(int index, RunRule& rule);
    /// Takes a rule out; those behind it move down by one place.
    void Remove(int index);
    void Swap(int first, int second);
    /// Gives a rule other values.
    void Set(int index, const RunRule& values);

    /// Makes changes that are one deed of the user's. One that repeats goes on with the one before it.
    void Together(std::string_view deed, const std::function<void()>& changes, bool repeats = false);

    /// Rules are about to change: from the first one on, so many go and so many come in their place. Reset
    /// and what comes of values that are set otherwise are not told.
    Event<int, int, int> changing;
    Event<> changed;
    /// A deed of several changes begins, with its name and whether it repeats, or ends.
    Event<std::string_view, bool> deedBegun;
    Event<> deedEnded;

  private:
    std::size_t Checked(int index) const;

    std::vector<RunRule*> rules_{nullptr};
};

} // namespace zy
