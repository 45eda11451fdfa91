#include "platform/posix/CrashNotes.h"

#include <execinfo.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <cstdio>
#include <string_view>
#include <vector>

#include "platform/posix/PathText.h"
#include "platform/posix/UserFolders.h"

namespace zy {
namespace {

constexpr auto kNew = "/crash.txt";
constexpr auto kTaken = "/last-crash.txt";
constexpr std::array kSignals{SIGSEGV, SIGBUS, SIGILL, SIGFPE, SIGABRT};
constexpr int kDeepest = 64;

const LastSteps kNoSteps;

/// What the handler of a signal can use: it is called with nothing but the number, and may not ask for
/// memory.
struct Prepared {
    std::vector<std::string> folders; ///< from the uppermost on, each of which may be missing
    std::string path;
    std::string heading;
    const LastSteps* steps = &kNoSteps;
    /// The stack that is in use may be the one that has run over.
    std::array<char, std::size_t{64} * 1024> stack{};
};

Prepared& Ready() {
    static Prepared prepared;
    return prepared;
}

void Put(int file, std::string_view text) {
    while (!text.empty()) {
        const auto written = ::write(file, text.data(), text.size());
        if (written <= 0) {
            return;
        }
        text.remove_prefix(static_cast<std::size_t>(written));
    }
}

void PutNumber(int file, int number) {
    constexpr int kTen = 10;
    const std::array digits{static_cast<char>('0' + number / kTen % kTen),
                            static_cast<char>('0' + number % kTen)};
    Put(file, {digits.data(), digits.size()});
}

void PutStack(int file) {
    std::array<void*, kDeepest> addresses{};
    const int count = ::backtrace(addresses.data(), kDeepest);
    ::backtrace_symbols_fd(addresses.data(), count, file);
}

void PutNote(int signal) {
    constexpr mode_t kFolderForTheUser = 0700;
    constexpr mode_t kFileForTheUser = 0600;
    const auto& ready = Ready();
    for (const auto& folder : ready.folders) {
        ::mkdir(folder.c_str(), kFolderForTheUser);
    }
    const int file =
        ::open(ready.path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_NOFOLLOW | O_CLOEXEC, kFileForTheUser);
    if (file < 0) {
        return;
    }
    Put(file, ready.heading);
    PutNumber(file, signal);
    Put(file, "\nLast steps:\n");
    for (std::size_t step = 0; step < ready.steps->Count(); ++step) {
        Put(file, (*ready.steps)[step]);
        Put(file, "\n");
    }
    Put(file, "Stack:\n");
    PutStack(file);
    ::close(file);
}

std::vector<std::string> FoldersOf(const std::string& path) {
    std::vector<std::string> folders;
    for (auto end = path.find('/', 1); end != std::string::npos; end = path.find('/', end + 1)) {
        folders.push_back(path.substr(0, end));
    }
    folders.push_back(path);
    return folders;
}

/// The system ends the program by the signal when this returns: it has taken the handler off.
void NoteAndEnd(int signal) {
    PutNote(signal);
    ::raise(signal);
}

/// Where somebody else looks after the signal already, such as a checker of memory, it is left to them.
void Watch(int signal) {
    struct sigaction before {};
    ::sigaction(signal, nullptr, &before);
    if (before.sa_handler == SIG_DFL) {
        struct sigaction ours {};
        ours.sa_handler = NoteAndEnd;
        ours.sa_flags = SA_ONSTACK | static_cast<int>(SA_RESETHAND);
        ::sigaction(signal, &ours, nullptr);
    }
}

} // namespace

void LeaveCrashNotes(const std::string& version, const LastSteps& steps) {
    auto& ready = Ready();
    const auto folder = OwnFolderIn(UserStateFolder());
    if (folder.empty()) {
        return;
    }
    ready.folders = FoldersOf(folder);
    ready.path = folder + kNew;
    ready.heading = "zyGlobal " + version + "\nSignal ";
    ready.steps = &steps;
    std::array<void*, 1> none{};
    ::backtrace(none.data(), 1); // loads what it needs, which a handler may not
    stack_t stack{};
    stack.ss_sp = ready.stack.data();
    stack.ss_size = ready.stack.size();
    ::sigaltstack(&stack, nullptr);
    for (const int signal : kSignals) {
        Watch(signal);
    }
}

std::optional<std::string> TakeCrashNote(const CodePage& codePage) {
    const auto folder = OwnFolderIn(UserStateFolder());
    const auto taken = folder + kTaken;
    if (folder.empty() || std::rename((folder + kNew).c_str(), taken.c_str()) != 0) {
        return std::nullopt;
    }
    return PathText(codePage).TextToInside(taken);
}

} // namespace zy
