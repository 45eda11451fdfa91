#include "LargestArray.h"

#include <algorithm>
#include <cstdlib>
#include <new>
#include <utility>

namespace {

std::size_t& Largest() {
    static std::size_t largest = 0;
    return largest;
}

} // namespace

// In place of the library's own, for the whole test program.

void* operator new[](std::size_t size) {
    Largest() = std::max(Largest(), size);
    if (void* const memory = std::malloc(size)) {
        return memory;
    }
    throw std::bad_alloc();
}

void operator delete[](void* memory) noexcept {
    std::free(memory);
}

void operator delete[](void* memory, std::size_t /*size*/) noexcept {
    std::free(memory);
}

namespace zy::test {

std::size_t TakeLargestArray() {
    return std::exchange(Largest(), 0);
}

} // namespace zy::test
