#include <array>
#include <cstddef>

#include "BigFile.h"

namespace zy::bench {
namespace {

struct Kind {
    const char* description;
    const char* unit;
};

constexpr std::array<Kind, 6> kKinds{{{"Metres per second ", "m/s"},
                                      {"Kilograms ", "kg"},
                                      {"Newton metres ", "N"},
                                      {"Degrees Celsius ", "\xB0"},
                                      {"Litres per minute ", "l"},
                                      {"Micrometres ", "\xB5m"}}};

} // namespace

std::string UnitsFileOf(int units) {
    std::string text;
    for (int number = 1; number <= units; ++number) {
        const auto& kind = kKinds[static_cast<std::size_t>(number) % kKinds.size()];
        const auto digits = std::to_string(number);
        text.append(kind.description).append(digits).append(",");
        text.append(kind.unit).append(digits).append("\r\n");
    }
    return text;
}

} // namespace zy::bench
