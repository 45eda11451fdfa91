#pragma once

#include <string_view>

namespace zy {

/// Told when a person types or pastes a character that the settings files cannot hold.
inline constexpr std::string_view kCharacterRefused =
    "That character was not taken: the settings files cannot hold it";

} // namespace zy
