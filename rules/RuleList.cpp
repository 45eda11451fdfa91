#include "rules/RuleList.h"

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
    if (IsFull()) {
        RaiseOverflow();
    }
    rules_.push_back(&rule);
}

void RuleList::Remove(int index) {
    rules_.erase(rules_.begin() + static_cast<std::ptrdiff_t>(Checked(index)));
}

void RuleList::Swap(int first, int second) {
    std::swap(rules_[Checked(first)], rules_[Checked(second)]);
}

} // namespace zy
