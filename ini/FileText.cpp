#include "ini/FileText.h"

#include <algorithm>
#include <cstdint>

#include "ini/CharacterBlock.h"

namespace zy {

FileText::FileText(FileHandle& file) {
    const auto size = static_cast<std::uint32_t>(file.Size());
    characters_ = std::make_unique_for_overwrite<char[]>(size + CharacterBlock::kSize);
    size_ = file.Read({characters_.get(), size});
    std::fill_n(characters_.get() + size_, CharacterBlock::kSize, '\0');
}

} // namespace zy
