#include "shell/Utilities.h"

#include <algorithm>

#include "basics/RuntimeError.h"
#include "basics/Text.h"

namespace zy {

std::string GetSystemDir(SystemInfo& system) {
    const auto directory = system.SystemDirectory();
    return std::string(StripAtNull(directory)) + "\\";
}

std::string_view StripAtNull(std::string_view text) {
    return text.substr(0, text.find('\0'));
}

std::string_view FileNameOf(std::string_view path) {
    return path.substr(FolderOf(path).size());
}

std::string_view FolderOf(std::string_view path) {
    const auto last = path.rfind('\\');
    return last == std::string_view::npos ? std::string_view{} : path.substr(0, last + 1);
}

std::string ReadFileText(FileHandle& file, std::uint32_t count) {
    std::string text(count, ' ');
    if (count != 0) {
        text.resize(file.Read(text));
    }
    return text;
}

bool HoldsText(FileSystem& files, std::string_view path, std::string_view text) {
    const auto opened = files.OpenForReading(path);
    return opened.handle && opened.handle->Size() == text.size() &&
           ReadFileText(*opened.handle, static_cast<std::uint32_t>(text.size())) == text;
}

std::string_view Unquote(std::string_view field) {
    if (!field.empty() && field.front() == '"' && field.back() == '"') {
        field = field.size() < 2 ? std::string_view{} : field.substr(1, field.size() - 2);
    }
    return Trim(field);
}

std::int32_t Fields::Count() const {
    return static_cast<std::int32_t>(std::count(line_.begin(), line_.end(), separator_)) + 1;
}

std::string_view Fields::operator[](std::int32_t field) const {
    if (field < 1) {
        RaiseSubscriptOutOfRange();
    }
    auto rest = line_;
    for (; field > 1; --field) {
        const auto separator = rest.find(separator_);
        if (separator == std::string_view::npos) {
            RaiseSubscriptOutOfRange();
        }
        rest.remove_prefix(separator + 1);
    }
    return Unquote(rest.substr(0, rest.find(separator_)));
}

Fields SplitFields(std::string_view line) {
    return {line, Contains(line, '\t') ? '\t' : ','};
}

} // namespace zy
