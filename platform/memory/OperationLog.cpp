#include "platform/memory/OperationLog.h"

namespace zy {

void OperationLog::Plan(const FaultPlan& plan) {
    plan_ = plan;
    count_ = 0;
    faults_ = 0;
    lines_.clear();
}

FileError OperationLog::Record(const std::string& line, FileError error) {
    lines_.push_back(error == FileError::None ? line : line + ": " + std::string(Describe(error)));
    recorded(lines_.back());
    return error;
}

bool OperationLog::NextFails() {
    ++count_;
    const bool reached = plan_.operation != 0 && count_ >= plan_.operation;
    const bool fails = reached && (plan_.lasting || count_ == plan_.operation);
    faults_ += fails ? 1 : 0;
    return fails;
}

} // namespace zy
