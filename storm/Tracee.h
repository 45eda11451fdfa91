#pragma once

#include <sys/types.h>
#include <sys/user.h>

#include <string>
#include <vector>

namespace zy::storm {

/// A thread that stands still at a call of the system.
class Tracee {
  public:
    /// Reads its registers. Throws std::system_error when it is gone.
    explicit Tracee(pid_t thread);

    unsigned Call() const { return static_cast<unsigned>(registers_.orig_rax); }
    long Result() const { return static_cast<long>(registers_.rax); }
    unsigned long long Argument(int index) const;

    void SetArgument(int index, unsigned long long value);
    /// The call is not done, and says this.
    void SkipCall(long result);
    void SetResult(long result);

    /// The whole path that an argument names, from the folder that another one names where that is not -1.
    std::string Path(int folder, int path) const;
    /// The path of an open file; empty where it has none.
    std::string OpenedPath(int file) const;

  private:
    unsigned long long& Register(int index);
    std::string TextAt(unsigned long long address) const;
    std::string Link(const std::string& name) const;
    void Store() const;

    pid_t thread_;
    user_regs_struct registers_{};
};

} // namespace zy::storm
