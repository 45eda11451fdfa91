#include "shell/mZYGlobal.h"

#include <memory>
#include <span>

#include "basics/RuntimeError.h"

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

SharedText ShareFileText(FileHandle& file, std::uint32_t count) {
    const std::shared_ptr<char[]> bytes = std::make_unique_for_overwrite<char[]>(count);
    const std::span buffer(bytes.get(), count);
    const auto size = count == 0 ? 0 : file.Read(buffer);
    return {bytes, {bytes.get(), size}};
}

bool HoldsText(FileSystem& files, std::string_view path, std::string_view text) {
    const auto opened = files.OpenForReading(path);
    return opened.handle && opened.handle->Size() == text.size() &&
           ReadFileText(*opened.handle, static_cast<std::uint32_t>(text.size())) == text;
}

Fields::Fields(LineFields fields) : elements_{0} {
    do {
        elements_.emplace_back(fields.Next());
    } while (!fields.AtEnd());
    elements_.front() = static_cast<std::int32_t>(elements_.size()) - 1;
}

const Fields::Element& Fields::operator[](std::int32_t index) const {
    if (index < 0 || static_cast<std::size_t>(index) >= elements_.size()) {
        RaiseSubscriptOutOfRange();
    }
    return elements_[static_cast<std::size_t>(index)];
}

Fields SplitFields(std::string_view line) {
    Separators separators(line);
    return Fields(separators.FieldsOf(line));
}

} // namespace zy
