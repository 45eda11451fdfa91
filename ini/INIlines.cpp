#include "ini/INIlines.h"

#include <utility>

#include "basics/RuntimeError.h"

namespace zy {

INIline& INIlines::Add(std::string_view group, std::string_view section, std::string_view value) {
    return lines_.emplace_back(group, section, value);
}

std::int16_t INIlines::Clear() {
    Keep({});
    return 0;
}

void INIlines::Remove(std::int32_t index) {
    lines_.erase(lines_.begin() + static_cast<std::ptrdiff_t>(Checked(index)));
}

INIline& INIlines::Item(std::string_view /*key*/) const {
    RaiseInvalidArgument();
}

void INIlines::Remove(std::string_view /*key*/) {
    RaiseInvalidArgument();
}

const FileText& INIlines::Keep(FileText text) {
    // The lines go first: they refer to the old text.
    std::deque<INIline>().swap(lines_);
    text_ = std::move(text);
    return text_;
}

std::size_t INIlines::Checked(std::int32_t index) const {
    if (index < 1 || index > Count()) {
        RaiseSubscriptOutOfRange();
    }
    return static_cast<std::size_t>(index) - 1;
}

} // namespace zy
