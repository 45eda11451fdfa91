#pragma once

#include <memory>
#include <string>
#include <utility>

namespace zy {

/// A large text that several hold and nobody changes; null for none.
using SharedText = std::shared_ptr<const std::string>;

inline SharedText Share(std::string text) {
    return std::make_shared<const std::string>(std::move(text));
}

} // namespace zy
