#include "basics/RuntimeError.h"

#include <utility>

namespace zy {

RuntimeError::RuntimeError(int number, std::string description)
    : number_(number), description_(std::move(description)) {}

std::string RuntimeError::BoxText() const {
    return "Run-time error '" + std::to_string(number_) + "':\n\n" + description_;
}

void RaiseOverflow() {
    throw RuntimeError(6, "Overflow");
}

void RaiseSubscriptOutOfRange() {
    throw RuntimeError(9, "Subscript out of range");
}

void RaiseTypeMismatch() {
    throw RuntimeError(13, "Type mismatch");
}

} // namespace zy
