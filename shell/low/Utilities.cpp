#include "shell/Utilities.h"

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

const std::string& Fields::operator[](std::int32_t field) const {
    if (field < 1 || field > Count()) {
        RaiseSubscriptOutOfRange();
    }
    return fields_[static_cast<std::size_t>(field - 1)];
}

Fields SplitFields(std::string_view line) {
    const char separator = Contains(line, '\t') ? '\t' : ',';
    std::vector<std::string> fields;
    for (auto end = line.find(separator); end != std::string_view::npos; end = line.find(separator)) {
        fields.push_back(Unquote(line.substr(0, end)));
        line.remove_prefix(end + 1);
    }
    fields.push_back(Unquote(line));
    return Fields(std::move(fields));
}

std::string Unquote(std::string_view field) {
    if (!field.empty() && field.front() == '"' && field.back() == '"') {
        field = field.size() < 2 ? std::string_view{} : field.substr(1, field.size() - 2);
    }
    return std::string(Trim(field));
}

} // namespace zy
