#pragma once

#include <fstream>
#include <iterator>
#include <string>

namespace zy::test {

/// The bytes of a file of the sample settings.
inline std::string SampleBytes(const std::string& name) {
    std::ifstream file(ZY_SAMPLES "/" + name, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

} // namespace zy::test
