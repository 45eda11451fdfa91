#include "rules/RuleList.h"

#include <algorithm>
#include <utility>

#include "basics/RuntimeError.h"

namespace zy {

std::size_t RuleList::Checked(int index) const {
    if (index < 1 || index > UBound()) {
        RaiseSubscriptOutOfRange();
    }
    return static_cast<std::size_t>(index);
}

void RuleList::Reset(int count) {
    rules_.assign(1, nullptr);
    rules_.reserve(static_cast<std::size_t>(count) + 1);
}

void RuleList::Append(RunRule& rule) {
    Insert(UBound() + 1, rule);
}

void RuleList::Insert(int index, RunRule& rule) {
    if (index != UBound() + 1) {
        static_cast<void>(Checked(index));
    }
    if (IsFull()) {
        RaiseOverflow();
    }
    changing.Raise(index, 0, 1);
    rules_.insert(rules_.begin() + index, &rule);
    changed.Raise();
}

void RuleList::Remove(int index) {
    const auto place = static_cast<std::ptrdiff_t>(Checked(index));
    changing.Raise(index, 1, 0);
    rules_.erase(rules_.begin() + place);
    changed.Raise();
}

void RuleList::Swap(int first, int second) {
    const auto one = Checked(first);
    const auto other = Checked(second);
    const auto [top, bottom] = std::minmax(first, second);
    const int count = bottom - top + 1;
    changing.Raise(top, count, count);
    std::swap(rules_[one], rules_[other]);
    changed.Raise();
}

void RuleList::Set(int index, const RunRule& values) {
    RunRule& rule = (*this)(index);
    changing.Raise(index, 1, 1);
    rule = values;
    changed.Raise();
}

void RuleList::Together(std::string_view deed, const std::function<void()>& changes, bool repeats) {
    deedBegun.Raise(deed, repeats);
    changes();
    deedEnded.Raise();
}

} // namespace zy
