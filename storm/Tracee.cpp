#include "Tracee.h"

#include <fcntl.h>
#include <sys/ptrace.h>
#include <sys/uio.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <filesystem>
#include <system_error>

namespace zy::storm {

namespace fs = std::filesystem;

Tracee::Tracee(pid_t thread) : thread_(thread) {
    if (::ptrace(PTRACE_GETREGS, thread_, nullptr, &registers_) != 0) {
        throw std::system_error(errno, std::generic_category(), "registers");
    }
}

unsigned long long& Tracee::Register(int index) {
    const std::array<unsigned long long*, 6> inOrder{&registers_.rdi, &registers_.rsi, &registers_.rdx,
                                                     &registers_.r10, &registers_.r8,  &registers_.r9};
    return *inOrder.at(static_cast<std::size_t>(index));
}

unsigned long long Tracee::Argument(int index) const {
    return Tracee(*this).Register(index);
}

void Tracee::SetArgument(int index, unsigned long long value) {
    Register(index) = value;
    Store();
}

void Tracee::SkipCall(long result) {
    registers_.orig_rax = ~0ULL;
    SetResult(result);
}

void Tracee::SetResult(long result) {
    registers_.rax = static_cast<unsigned long long>(result);
    Store();
}

std::string Tracee::Path(int folder, int path) const {
    const auto text = TextAt(Argument(path));
    if (text.starts_with('/')) {
        return fs::path(text).lexically_normal().string();
    }
    const int from = folder < 0 ? AT_FDCWD : static_cast<int>(Argument(folder));
    const auto start = from == AT_FDCWD ? Link("cwd") : OpenedPath(from);
    return text.empty() ? start : (fs::path(start) / text).lexically_normal().string();
}

std::string Tracee::OpenedPath(int file) const {
    constexpr std::string_view kGone = " (deleted)";
    auto path = Link("fd/" + std::to_string(file));
    if (path.ends_with(kGone)) {
        path.resize(path.size() - kGone.size());
    }
    return path;
}

std::string Tracee::TextAt(unsigned long long address) const {
    constexpr std::size_t kPage = 4096;
    std::string text;
    while (text.find('\0') == std::string::npos && text.size() <= kPage) {
        // No further than to the end of a page: what is behind it may belong to nobody.
        std::array<char, kPage> piece{};
        const auto place = address + text.size();
        const iovec here{piece.data(), kPage - place % kPage};
        const iovec there{reinterpret_cast<void*>(place), here.iov_len}; // NOLINT(performance-no-int-to-ptr)
        const auto count = ::process_vm_readv(thread_, &here, 1, &there, 1, 0);
        if (count <= 0) {
            break;
        }
        text.append(piece.data(), static_cast<std::size_t>(count));
    }
    return text.substr(0, text.find('\0'));
}

std::string Tracee::Link(const std::string& name) const {
    std::error_code error;
    return fs::read_symlink("/proc/" + std::to_string(thread_) + "/" + name, error).string();
}

void Tracee::Store() const {
    ::ptrace(PTRACE_SETREGS, thread_, nullptr, &registers_);
}

} // namespace zy::storm
