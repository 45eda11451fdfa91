#include <linux/audit.h>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <sys/prctl.h>
#include <sys/ptrace.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <cstddef>
#include <fcntl.h>
#include <fstream>
#include <iostream>
#include <limits>
#include <map>
#include <stdexcept>
#include <string>
#include <system_error>
#include <vector>

#include "FileCall.h"
#include "Tracee.h"

// call_tracer LOG [below FOLDER]... [kill N | killed N | cut N | fail ERROR FIRST LAST] -- program...
//
// Runs a program and counts, from 1 on, its calls of the system that concern what is in these folders. Of
// call N:
//
//   kill     ends the program before it
//   killed   ends the program behind it
//   cut      ends the program behind it, when half of its bytes are written
//   fail     makes those of the calls FIRST to LAST fail that can fail so: ENOSPC, EIO, EACCES, EINTR; and by
//            "short" has half of the bytes written
//
// The log begins with the number of the process; then comes a line for each call, its parts separated by
// TABs: number, name, path, other path, result or error number (less than 0), what it can fail with, and what
// was done to it. The status is the program's; 128 and a signal's number when one ended it.

namespace zy::storm {
namespace {

enum class Deed { Nothing, Kill, Killed, Cut, Fail };

struct Plan {
    std::string log;
    std::vector<std::string> folders;
    Deed deed = Deed::Nothing;
    FailureKind failure{};
    long first = 0;
    long last = 0;
    std::vector<char*> command;
};

/// Reads the command line above.
class PlanReader {
  public:
    PlanReader(int count, char** arguments) : rest_(arguments + 1, arguments + count) {}

    Plan Read() {
        Plan plan{.log = Next(), .folders = {}, .command = {}};
        for (auto word = Next(); word != "--"; word = Next()) {
            Take(plan, word);
        }
        plan.command.assign(rest_.begin() + static_cast<std::ptrdiff_t>(at_), rest_.end());
        if (plan.command.empty()) {
            throw std::invalid_argument("there is no program");
        }
        plan.command.push_back(nullptr);
        return plan;
    }

  private:
    std::string Next() {
        if (at_ == rest_.size()) {
            throw std::invalid_argument("a word is missing");
        }
        return rest_[at_++];
    }

    void Take(Plan& plan, const std::string& word) {
        static const std::map<std::string, Deed> kDeeds{
            {"kill", Deed::Kill}, {"killed", Deed::Killed}, {"cut", Deed::Cut}, {"fail", Deed::Fail}};
        if (word == "below") {
            plan.folders.push_back(Next());
            return;
        }
        plan.deed = kDeeds.at(word);
        if (plan.deed == Deed::Fail) {
            plan.failure = FailureNamed(Next());
        }
        plan.first = std::stol(Next());
        plan.last = plan.deed == Deed::Fail ? std::stol(Next()) : plan.first;
    }

    std::vector<char*> rest_;
    std::size_t at_ = 0;
};

bool IsBelow(const std::string& path, const std::string& folder) {
    return path == folder || path.starts_with(folder + "/");
}

/// A call that is being done.
struct CountedCall {
    long number = 0;
    const FileCall* kind = nullptr;
    std::string path;
    std::string otherPath;
    unsigned failures = 0;
    Deed deed = Deed::Nothing;
};

class Tracer {
  public:
    explicit Tracer(Plan plan) : plan_(std::move(plan)), log_(plan_.log) {}

    /// Returns the program's status.
    int Run() {
        program_ = ::fork();
        if (program_ == 0) {
            Become();
        }
        log_ << program_ << std::endl;
        int status = 0;
        ::waitpid(program_, &status, 0); // it stands still before it becomes the program
        constexpr long kOptions = PTRACE_O_TRACESECCOMP | PTRACE_O_TRACESYSGOOD | PTRACE_O_TRACECLONE |
                                  PTRACE_O_TRACEFORK | PTRACE_O_TRACEVFORK | PTRACE_O_TRACEEXEC |
                                  PTRACE_O_EXITKILL;
        ::ptrace(PTRACE_SETOPTIONS, program_, nullptr, kOptions);
        ::ptrace(PTRACE_CONT, program_, nullptr, nullptr);
        return Watch();
    }

  private:
    [[noreturn]] void Become() {
        ::ptrace(PTRACE_TRACEME, 0, nullptr, nullptr);
        ::raise(SIGSTOP);
        if (FilterCalls()) {
            ::execvp(plan_.command[0], plan_.command.data());
        }
        std::cerr << "call_tracer: " << std::generic_category().message(errno) << '\n';
        ::_exit(127);
    }

    /// Lets the calls that concern files stop, and all others pass.
    static bool FilterCalls() {
        std::vector<sock_filter> filter{BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr))};
        for (const auto& call : FileCalls()) {
            filter.push_back(BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, call.number, 0, 1));
            filter.push_back(BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_TRACE));
        }
        filter.push_back(BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW));
        const sock_fprog program{static_cast<unsigned short>(filter.size()), filter.data()};
        return ::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0 &&
               ::prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &program) == 0;
    }

    int Watch() {
        int status = 0;
        int ofProgram = 0;
        for (pid_t thread = ::waitpid(-1, &status, __WALL); thread > 0;
             thread = ::waitpid(-1, &status, __WALL)) {
            if (WIFSTOPPED(status)) {
                Handle(thread, status);
            } else if (thread == program_) {
                ofProgram = WIFSIGNALED(status) ? 128 + WTERMSIG(status) : WEXITSTATUS(status);
            }
        }
        return ofProgram;
    }

    /// What made the thread stop, and how it goes on.
    void Handle(pid_t thread, int status) {
        const int signal = WSTOPSIG(status);
        const int event = status >> 16;
        bool untilExit = false;
        long delivered = 0;
        try {
            if (event == PTRACE_EVENT_SECCOMP) {
                untilExit = Begin(thread);
            } else if (signal == (SIGTRAP | 0x80)) {
                untilExit = Step(thread);
            } else if (event == 0 && signal != SIGSTOP) {
                delivered = signal;
            }
        } catch (const std::system_error&) {
            return; // it was killed meanwhile
        }
        ::ptrace(untilExit ? PTRACE_SYSCALL : PTRACE_CONT, thread, nullptr, delivered);
    }

    /// A call is about to be done. True when its end is to be seen too.
    bool Begin(pid_t thread) {
        Tracee tracee(thread);
        auto call = Concerning(tracee);
        if (call.kind == nullptr) {
            return false;
        }
        call.number = ++count_;
        if (call.number >= plan_.first && call.number <= plan_.last && IsMeant(call, tracee)) {
            call.deed = plan_.deed;
        }
        if (call.deed == Deed::Kill) {
            Write(call, 0);
            Kill();
            return false;
        }
        if (MakesFailAtOnce(call)) {
            tracee.SkipCall(-ErrorOf(plan_.failure));
            Write(call, -ErrorOf(plan_.failure));
            return false;
        }
        Halve(call, tracee);
        running_[thread] = call;
        return true;
    }

    /// The call with its paths; no kind where it concerns other files.
    CountedCall Concerning(const Tracee& tracee) const {
        const auto* kind = FindFileCall(tracee.Call());
        if (kind == nullptr) {
            return {};
        }
        CountedCall call{.kind = kind, .path = {}, .otherPath = {}, .failures = kind->failures};
        call.path = kind->path >= 0 ? tracee.Path(kind->folder, kind->path)
                                    : tracee.OpenedPath(static_cast<int>(tracee.Argument(kind->file)));
        if (kind->otherPath >= 0) {
            call.otherPath = tracee.Path(kind->otherFolder, kind->otherPath);
        }
        if (kind->flags >= 0 && (tracee.Argument(kind->flags) & O_CREAT) == 0) {
            call.failures &= ~static_cast<unsigned>(kNoRoom);
        }
        const bool concerns =
            std::any_of(plan_.folders.begin(), plan_.folders.end(), [&](const auto& folder) {
                return IsBelow(call.path, folder) || IsBelow(call.otherPath, folder);
            });
        return concerns ? call : CountedCall{};
    }

    /// A cut or short write takes two bytes at least.
    bool IsMeant(const CountedCall& call, const Tracee& tracee) const {
        if (plan_.deed == Deed::Fail && (call.failures & plan_.failure) == 0) {
            return false;
        }
        const bool halves = plan_.deed == Deed::Cut || plan_.failure == kShort;
        return !halves || (call.kind->length >= 0 && tracee.Argument(call.kind->length) > 1);
    }

    /// A file is closed whatever closing it says.
    bool MakesFailAtOnce(const CountedCall& call) const {
        return call.deed == Deed::Fail && plan_.failure != kShort && call.kind->number != SYS_close;
    }

    void Halve(const CountedCall& call, Tracee& tracee) const {
        if (call.deed == Deed::Cut || (call.deed == Deed::Fail && plan_.failure == kShort)) {
            tracee.SetArgument(call.kind->length, tracee.Argument(call.kind->length) / 2);
        }
    }

    /// A call that is watched begins or has ended. True when its end is still to come.
    bool Step(pid_t thread) {
        const auto found = running_.find(thread);
        if (found == running_.end()) {
            return false;
        }
        const auto call = found->second;
        running_.erase(found);
        Tracee tracee(thread);
        if (call.deed == Deed::Fail && plan_.failure != kShort) {
            tracee.SetResult(-ErrorOf(plan_.failure));
        }
        Write(call,
              call.deed == Deed::Fail && plan_.failure != kShort ? -ErrorOf(plan_.failure) : tracee.Result());
        if (call.deed == Deed::Killed || call.deed == Deed::Cut) {
            Kill();
        }
        return false;
    }

    void Kill() const { ::kill(program_, SIGKILL); }

    void Write(const CountedCall& call, long result) {
        static const std::map<Deed, const char*> kWords{{Deed::Nothing, ""},
                                                        {Deed::Kill, "kill"},
                                                        {Deed::Killed, "killed"},
                                                        {Deed::Cut, "cut"},
                                                        {Deed::Fail, "fail"}};
        log_ << call.number << '\t' << call.kind->name << '\t' << call.path << '\t' << call.otherPath << '\t'
             << result << '\t' << NamesOf(call.failures) << '\t' << kWords.at(call.deed) << std::endl;
    }

    Plan plan_;
    std::ofstream log_;
    pid_t program_ = -1;
    long count_ = 0;
    std::map<pid_t, CountedCall> running_;
};

} // namespace
} // namespace zy::storm

int main(int argumentCount, char** arguments) {
    try {
        return zy::storm::Tracer(zy::storm::PlanReader(argumentCount, arguments).Read()).Run();
    } catch (const std::exception& error) {
        std::cerr << "call_tracer: " << error.what() << '\n';
        return 2;
    }
}
