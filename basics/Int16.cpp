#include "basics/Int16.h"

#include <charconv>
#include <system_error>

#include "basics/RuntimeError.h"
#include "basics/Text.h"

namespace zy {

Int16::Int16(std::int64_t value) : value_(static_cast<std::int16_t>(value)) {
    if (value_ != value) {
        RaiseOverflow();
    }
}

Int16::Int16(std::size_t value) : value_(static_cast<std::int16_t>(value)) {
    if (value > std::size_t{kMost}) {
        RaiseOverflow();
    }
}

Int16 Int16::FromText(std::string_view text) {
    text = Trim(text);
    std::int64_t value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error == std::errc::result_out_of_range) {
        RaiseOverflow();
    }
    if (error != std::errc() || end != text.data() + text.size()) {
        RaiseTypeMismatch();
    }
    return Int16(value);
}

} // namespace zy
