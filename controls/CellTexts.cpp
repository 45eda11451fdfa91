#include "controls/CellTexts.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "basics/RuntimeError.h"

namespace zy {
namespace {

constexpr std::size_t kBlockSize = std::size_t{64} * 1024;

} // namespace

/// The one that a place lies in, or behind all.
const CellTexts::Block& CellTexts::BlockOf(std::uint32_t start) const {
    const auto next =
        std::upper_bound(blocks_.begin(), blocks_.end(), start,
                         [](std::uint32_t place, const Block& block) { return place < block.start; });
    return *std::prev(next);
}

TextPlace CellTexts::Stored(std::string_view text) {
    if (text.empty()) {
        return {};
    }
    // The block has room for all that it will ever hold, so that it need not move.
    if (filling_ == nullptr || filling_->capacity() - filling_->size() < text.size()) {
        auto block = std::make_shared<std::string>();
        block->reserve(std::max(text.size(), kBlockSize));
        AddBlock(block, block->capacity());
        filling_ = std::move(block);
    }
    const auto start = blocks_.back().start + static_cast<std::uint32_t>(filling_->size());
    *filling_ += text;
    held_ += text.size();
    return {start, static_cast<std::uint32_t>(text.size())};
}

void CellTexts::AddBlock(SharedText text, std::size_t size) {
    if (size > mostBytes_ - end_) {
        RaiseOutOfMemory();
    }
    blocks_.push_back({end_, std::move(text)});
    end_ += static_cast<std::uint32_t>(size);
    filling_.reset();
}

void CellTexts::AppendPartsOf(SharedText text, const Split& split) {
    TextParts parts(*text);
    split(*text, parts);
    const auto start = end_;
    const auto size = text->size();
    AddBlock(std::move(text), size);
    held_ += size;
    mostHeld_ = std::max(mostHeld_, 2 * held_);
    cells_.reserve(cells_.size() + parts.Count());
    std::transform(parts.Places().begin(), parts.Places().end(), std::back_inserter(cells_),
                   [start](TextPlace place) {
                       return TextPlace{start + place.start, place.length};
                   });
}

void CellTexts::Resize(std::size_t count) {
    cells_.resize(count);
    DropUnused();
}

void CellTexts::Insert(std::size_t first, std::size_t count) {
    cells_.insert(cells_.begin() + static_cast<std::ptrdiff_t>(first), count, TextPlace());
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
    CellTexts packed(mostBytes_);
    packed.cells_.reserve(cells_.size());
    for (std::size_t cell = 0; cell < cells_.size(); ++cell) {
        packed.Append((*this)[cell]);
    }
    packed.mostHeld_ = std::max(2 * packed.held_, kBlockSize);
    *this = std::move(packed);
}

} // namespace zy
