#include "ini/INIline.h"

#include <utility>

namespace zy {

INIline::INIline(std::string_view group, std::string_view section, std::string_view value) {
    at_.own = new OwnTexts{std::string(group), std::string(section), std::string(value)};
    at_.kind = Kind::Own;
}

INIline::INIline(INIline&& other) noexcept : at_(std::exchange(other.at_, {})) {}

INIline& INIline::operator=(INIline other) noexcept {
    std::swap(at_, other.at_);
    return *this;
}

INIline::~INIline() {
    if (IsOwn()) {
        delete at_.own;
    }
}

INIline::OwnTexts& INIline::Own() {
    if (!IsOwn()) {
        *this = INIline(*this);
    }
    return *at_.own;
}

} // namespace zy
