#include "ini/INIline.h"

#include <utility>

namespace zy {

INIline::INIline(std::string_view group, std::string_view section, std::string_view value) {
    at_.own = new OwnTexts{std::string(group), std::string(section), std::string(value)};
    at_.isOwn = true;
}

INIline::INIline(INIline&& other) noexcept : at_(std::exchange(other.at_, {})) {}

INIline& INIline::operator=(INIline other) noexcept {
    std::swap(at_, other.at_);
    return *this;
}

INIline::~INIline() {
    if (at_.isOwn) {
        delete at_.own;
    }
}

std::string_view INIline::Group() const {
    return at_.isOwn ? at_.own->group : std::string_view(at_.section - at_.groupDistance, at_.groupLength);
}

std::string_view INIline::Section() const {
    return at_.isOwn ? at_.own->section : std::string_view(at_.section, at_.sectionLength);
}

std::string_view INIline::Value() const {
    return at_.isOwn ? at_.own->value : std::string_view(at_.section + at_.valueDistance, at_.valueLength);
}

INIline::OwnTexts& INIline::Own() {
    if (!at_.isOwn) {
        *this = INIline(*this);
    }
    return *at_.own;
}

} // namespace zy
