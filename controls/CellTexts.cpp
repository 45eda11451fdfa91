#include "controls/CellTexts.h"

#include <algorithm>
#include <numeric>
#include <utility>

#include "basics/RuntimeError.h"

namespace zy {

/// The place of a further block's first byte, when there is room for it.
std::uint32_t CellTexts::StartOf(std::size_t size) const {
    const auto start = std::uint64_t{pages_.size()} * kPageSize;
    if (start + size > mostBytes_) {
        RaiseOutOfMemory();
    }
    return static_cast<std::uint32_t>(start);
}

TextPlace CellTexts::Stored(std::string_view text) {
    if (text.empty()) {
        return {};
    }
    // The block has room for all that it will ever hold, so that it need not move.
    if (filling_ == nullptr || filling_->capacity() - filling_->size() < text.size()) {
        auto block = std::make_shared<std::string>();
        block->reserve(std::max<std::size_t>(text.size(), kPageSize));
        fillingStart_ = StartOf(block->capacity());
        AddBlock({block, {block->data(), block->capacity()}});
        filling_ = std::move(block);
    }
    const auto start = fillingStart_ + static_cast<std::uint32_t>(filling_->size());
    *filling_ += text;
    held_ += text.size();
    return {start, static_cast<std::uint32_t>(text.size())};
}

void CellTexts::AddBlock(SharedText text) {
    for (std::size_t page = 0; page < text->size(); page += kPageSize) {
        pages_.push_back(text->data() + page);
    }
    blocks_.push_back(std::move(text));
    filling_.reset();
}

void CellTexts::AppendPartsOf(SharedText text, const Split& split) {
    const auto count = cells_.size();
    TextParts parts(*text, cells_, StartOf(text->size()));
    try {
        split(*text, parts);
    } catch (...) {
        cells_.resize(count);
        throw;
    }
    held_ += text->size();
    AddBlock(std::move(text));
    mostHeld_ = std::max(mostHeld_, 2 * held_);
}

std::size_t CellTexts::TotalSize() const {
    return std::transform_reduce(cells_.begin(), cells_.end(), std::size_t{0}, std::plus<>(),
                                 [](TextPlace place) { return std::size_t{place.length}; });
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
    packed.mostHeld_ = std::max<std::size_t>(2 * packed.held_, kPageSize);
    *this = std::move(packed);
}

} // namespace zy
