#include "basics/Int16.h"

#include <charconv>
#include <system_error>

#include "basics/RuntimeError.h"
#include "basics/Text.h"

namespace zy {

std::int16_t ToInt16(std::string_view text) {
    text = Trim(text);
    std::int64_t value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error == std::errc::result_out_of_range) {
        RaiseOverflow();
    }
    if (error != std::errc() || end != text.data() + text.size()) {
        RaiseTypeMismatch();
    }
    return ToInt16(value);
}

} // namespace zy
