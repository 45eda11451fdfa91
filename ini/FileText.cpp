#include "ini/FileText.h"

#include <algorithm>
#include <cstdint>

namespace zy {

FileText::FileText(FileHandle& file) {
    const auto size = static_cast<std::uint32_t>(file.Size());
    characters_ = std::make_unique_for_overwrite<char[]>(kMargin + size + kMargin);
    begin_ = std::fill_n(characters_.get(), kMargin, '\0');
    size_ = file.Read({begin_, size});
    std::fill_n(begin_ + size_, kMargin, '\0');
}

} // namespace zy
