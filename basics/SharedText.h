#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

namespace zy {

/// A large text that several hold and nobody changes; null for none.
class SharedText {
  public:
    SharedText() = default;
    SharedText(std::nullptr_t) {}
    /// The text lies in what the owner holds, and does not move there.
    SharedText(std::shared_ptr<const void> owner, std::string_view text)
        : owner_(std::move(owner)), text_(text) {}

    explicit operator bool() const { return owner_ != nullptr; }
    /// Empty for none.
    std::string_view operator*() const { return text_; }
    const std::string_view* operator->() const { return &text_; }

  private:
    std::shared_ptr<const void> owner_;
    std::string_view text_;
};

inline SharedText Share(std::string text) {
    const auto owner = std::make_shared<const std::string>(std::move(text));
    return {owner, *owner};
}

} // namespace zy
