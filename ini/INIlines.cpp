#include "ini/INIlines.h"

#include <utility>

#include "basics/RuntimeError.h"

namespace zy {

INIline& INIlines::Add(std::string_view group, std::string_view section, std::string_view value) {
    return lines_.emplace_back(group, section, value);
}

Int16 INIlines::Clear() {
    Keep({});
    return 0;
}

INIline& INIlines::Item(std::int32_t index) {
    return *Found(index);
}

void INIlines::Remove(std::int32_t index) {
    lines_.erase(Found(index));
}

const FileText& INIlines::Keep(FileText text) {
    // The lines first: they refer to the text.
    std::deque<INIline>().swap(lines_);
    text_ = std::move(text);
    return text_;
}

std::deque<INIline>::iterator INIlines::Found(std::int32_t index) {
    if (index < 1 || index > Count()) {
        RaiseSubscriptOutOfRange();
    }
    return lines_.begin() + (index - 1);
}

} // namespace zy
