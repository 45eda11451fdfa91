#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

#include "platform/FileError.h"

namespace zy {

/// Which operation of a file system fails, and how.
struct FaultPlan {
    std::size_t operation = 0; ///< the number of the failing operation, counted from 1; 0: none fails
    bool lasting = false;      ///< every later operation fails too, as on a disk that has gone away
    bool cutShort = false;     ///< a failing Write leaves the first half of its text behind
    FileError error = FileError::Other;
};

/// Counts and records the operations of a file system, and says which of them a fault plan makes fail.
class OperationLog {
  public:
    /// Sets the plan; counting and recording start anew.
    void Plan(const FaultPlan& plan);

    /// The number of operations so far.
    std::size_t Count() const { return count_; }
    /// The number of operations that the plan has made fail.
    std::size_t Faults() const { return faults_; }
    /// One line each operation, such as "Create C:\SYS\Rules.tmp"; behind one that failed ": " and the
    /// reason.
    const std::vector<std::string>& Lines() const { return lines_; }

    /// Does one operation and records it. One that the plan makes fail is not done.
    template <typename Operation>
    FileError Perform(const std::string& line, Operation operation) {
        return Perform(line, operation, [](const FaultPlan&) {});
    }
    /// The same, for an operation that leaves something behind when it fails: `onFault` does that.
    template <typename Operation, typename OnFault>
    FileError Perform(const std::string& line, Operation operation, OnFault onFault) {
        if (NextFails()) {
            onFault(plan_);
            return Record(line, plan_.error);
        }
        return Record(line, operation());
    }

    /// Records a line without counting it as an operation. Returns the error given.
    FileError Record(const std::string& line, FileError error);

    /// Called with each line that is recorded.
    std::function<void(const std::string& line)> recorded = [](const std::string&) {};

  private:
    bool NextFails();

    FaultPlan plan_;
    std::size_t count_ = 0;
    std::size_t faults_ = 0;
    std::vector<std::string> lines_;
};

} // namespace zy
