#include "history/Bytes.h"

#include <limits>

namespace zy {
namespace {

constexpr unsigned kBits = 7;
constexpr std::uint64_t kMore = 1U << kBits;

} // namespace

void ByteWriter::Number(std::uint64_t number) {
    while (number >= kMore) {
        bytes_ += static_cast<char>(number % kMore + kMore);
        number >>= kBits;
    }
    bytes_ += static_cast<char>(number);
}

void ByteWriter::Text(std::string_view text) {
    Number(text.size());
    bytes_ += text;
}

std::nullopt_t ByteReader::Fail() {
    failed_ = true;
    bytes_ = {};
    return std::nullopt;
}

std::optional<std::uint64_t> ByteReader::Number() {
    std::uint64_t number = 0;
    for (unsigned shift = 0; shift < std::numeric_limits<std::uint64_t>::digits && !bytes_.empty();
         shift += kBits) {
        const auto byte = static_cast<unsigned char>(bytes_.front());
        bytes_.remove_prefix(1);
        number |= std::uint64_t{byte % kMore} << shift;
        if (byte < kMore) {
            return number;
        }
    }
    return Fail();
}

std::optional<int> ByteReader::Small(int most) {
    const auto number = Number();
    if (!number || *number > static_cast<std::uint64_t>(most)) {
        return Fail();
    }
    return static_cast<int>(*number);
}

std::optional<std::string_view> ByteReader::Text() {
    const auto size = Number();
    if (!size || *size > bytes_.size()) {
        return Fail();
    }
    const auto text = bytes_.substr(0, static_cast<std::size_t>(*size));
    bytes_.remove_prefix(text.size());
    return text;
}

} // namespace zy
