#include "basics/RuntimeError.h"

#include <utility>

namespace zy {

RuntimeError::RuntimeError(int number, std::string description)
    : number_(number), description_(std::move(description)) {}

std::string RuntimeError::BoxText() const {
    return "Run-time error '" + std::to_string(number_) + "':\n\n" + description_;
}

void RaiseInvalidArgument() {
    throw RuntimeError(kInvalidArgument, "Invalid procedure call or argument");
}

void RaiseOverflow() {
    throw RuntimeError(kOverflow, "Overflow");
}

void RaiseOutOfMemory() {
    throw RuntimeError(kOutOfMemory, "Out of memory");
}

void RaiseSubscriptOutOfRange() {
    throw RuntimeError(kSubscriptOutOfRange, "Subscript out of range");
}

void RaiseTypeMismatch() {
    throw RuntimeError(kTypeMismatch, "Type mismatch");
}

void RaiseDeviceFailed(std::string_view what) {
    throw RuntimeError(kDeviceFailed, "Device I/O error: " + std::string(what));
}

void RaisePathRefused(std::string_view what) {
    throw RuntimeError(kPathRefused, "Path/File access error: " + std::string(what));
}

} // namespace zy
