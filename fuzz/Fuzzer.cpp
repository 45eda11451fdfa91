#include <cstddef>
#include <cstdint>

#include "Targets.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    zy::fuzz::ZY_FUZZ_TARGET({reinterpret_cast<const char*>(data), size});
    return 0;
}
