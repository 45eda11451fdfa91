#include "PlainFile.h"

#include <fcntl.h>

#include <cstdio>
#include <cstring>
#include <system_error>

#include "platform/posix/FileDescriptor.h"

namespace zy::bench {
namespace {

[[noreturn]] void Refused(const std::string& path) {
    throw std::system_error(errno, std::generic_category(), path);
}

FileDescriptor Open(const std::string& path, int flags) {
    FileDescriptor file(::open(path.c_str(), flags | O_CLOEXEC, 0666));
    if (!file.IsOpen()) {
        Refused(path);
    }
    return file;
}

} // namespace

std::string ReadWhole(const std::string& path, std::size_t size) {
    const auto file = Open(path, O_RDONLY);
    std::string bytes(size, '\0');
    const auto read = ::read(file.Number(), bytes.data(), bytes.size());
    if (read < 0) {
        Refused(path);
    }
    bytes.resize(static_cast<std::size_t>(read));
    return bytes;
}

void WriteAndRename(const std::string& bytes, const std::string& path) {
    const auto temporary = path + ".tmp";
    const auto written =
        ::write(Open(temporary, O_WRONLY | O_CREAT | O_TRUNC).Number(), bytes.data(), bytes.size());
    if (written != static_cast<ssize_t>(bytes.size()) || std::rename(temporary.c_str(), path.c_str()) != 0) {
        Refused(path);
    }
}

std::size_t CountLines(const std::string& text) {
    std::size_t lines = 0;
    const char* at = text.data();
    const char* const end = at + text.size();
    while (const void* found = std::memchr(at, '\n', static_cast<std::size_t>(end - at))) {
        at = static_cast<const char*>(found) + 1;
        ++lines;
    }
    return lines;
}

} // namespace zy::bench
