#pragma once

#include <cstddef>
#include <cstring>
#include <string_view>

namespace zy {

/// The places where a text holds one character, found from front to back, each by one search
/// however often it is asked about.
class Marks {
  public:
    Marks(std::string_view text, char character)
        : end_(text.data() + text.size()), character_(character),
          next_(text.empty() ? end_ : Find(text.data())) {}

    /// The first place that is not before this one; the text's end when there is none. Whoever has asked from
    /// one place does not ask from before it any more.
    const char* From(const char* place) {
        if (next_ < place) {
            next_ = Find(place);
        }
        return next_;
    }
    char Character() const { return character_; }

  private:
    const char* Find(const char* begin) const {
        const void* const found = std::memchr(begin, character_, static_cast<std::size_t>(end_ - begin));
        return found == nullptr ? end_ : static_cast<const char*>(found);
    }

    const char* end_;
    char character_;
    const char* next_;
};

} // namespace zy
