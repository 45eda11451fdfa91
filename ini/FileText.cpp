#include "ini/FileText.h"

#include <algorithm>
#include <cstdint>
#include <string_view>

#include "ini/Words.h"

namespace zy {
namespace {

constexpr std::string_view kBehindText = "\r\n        ";
static_assert(kBehindText.size() >= 2 + sizeof(words::Word));

} // namespace

FileText::FileText(FileHandle& file) {
    const auto size = static_cast<std::uint32_t>(file.Size());
    bytes_ = std::make_unique_for_overwrite<char[]>(size + kBehindText.size());
    size_ = file.Read({bytes_.get(), size});
    std::copy(kBehindText.begin(), kBehindText.end(), End());
}

} // namespace zy
