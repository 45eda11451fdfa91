#include "controls/CellTexts.h"

#include <algorithm>
#include <utility>

namespace zy {
namespace {

constexpr std::size_t kBlockSize = std::size_t{64} * 1024;

} // namespace

std::string_view CellTexts::Stored(std::string_view text) {
    if (text.empty()) {
        return {};
    }
    auto& block = BlockFor(text.size());
    const auto start = block.size();
    block += text;
    held_ += text.size();
    return std::string_view(block).substr(start);
}

/// A block with room for a text, so that it need not move to take it.
std::string& CellTexts::BlockFor(std::size_t length) {
    if (filling_ == nullptr || filling_->capacity() - filling_->size() < length) {
        filling_ = &blocks_.emplace_back();
        filling_->reserve(std::max(length, kBlockSize));
    }
    return *filling_;
}

void CellTexts::AppendPartsOf(std::string text, const Split& split) {
    const auto& kept = blocks_.emplace_back(std::move(text));
    held_ += kept.size();
    mostHeld_ = std::max(mostHeld_, 2 * held_);
    auto cells = cells_;
    split(kept, cells);
    cells_ = std::move(cells);
}

void CellTexts::Resize(std::size_t count) {
    cells_.resize(count);
    DropUnused();
}

void CellTexts::Insert(std::size_t first, std::size_t count) {
    cells_.insert(cells_.begin() + static_cast<std::ptrdiff_t>(first), count, std::string_view());
}

void CellTexts::Erase(std::size_t first, std::size_t count) {
    const auto begin = cells_.begin() + static_cast<std::ptrdiff_t>(first);
    cells_.erase(begin, begin + static_cast<std::ptrdiff_t>(count));
    DropUnused();
}

/// Copies what the cells hold to new blocks once the blocks have doubled, so that texts which no cell holds
/// any more do not pile up.
void CellTexts::DropUnused() {
    if (held_ <= mostHeld_ && !cells_.empty()) {
        return;
    }
    const auto oldBlocks = std::exchange(blocks_, {});
    filling_ = nullptr;
    held_ = 0;
    for (auto& cell : cells_) {
        cell = Stored(cell);
    }
    mostHeld_ = std::max(2 * held_, kBlockSize);
}

} // namespace zy
