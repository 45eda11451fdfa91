#include "history/Pieces.h"

#include <array>
#include <optional>

namespace zy {
namespace {

constexpr std::size_t kNumberSize = 4;
constexpr unsigned kByte = 8;

using Table = std::array<std::uint32_t, 256>;

/// The checksum of Ethernet and ZIP (CRC-32), bit by bit for each of the bytes there are.
constexpr Table MakeTable() {
    constexpr std::uint32_t kPolynomial = 0xEDB88320U;
    Table table{};
    for (std::uint32_t byte = 0; byte < table.size(); ++byte) {
        std::uint32_t sum = byte;
        for (unsigned bit = 0; bit < kByte; ++bit) {
            sum = (sum & 1U) != 0 ? (sum >> 1U) ^ kPolynomial : sum >> 1U;
        }
        table.at(byte) = sum;
    }
    return table;
}

/// Goes on with the checksum of what stands before.
std::uint32_t Sum(std::uint32_t before, std::string_view bytes) {
    static constexpr Table kTable = MakeTable();
    std::uint32_t sum = ~before;
    for (const char byte : bytes) {
        sum = (sum >> kByte) ^ kTable.at((sum ^ static_cast<unsigned char>(byte)) & 0xFFU);
    }
    return ~sum;
}

/// The lowest byte first.
std::string NumberText(std::uint32_t number) {
    std::string text;
    for (unsigned place = 0; place < kNumberSize; ++place) {
        text += static_cast<char>(number >> place * kByte & 0xFFU);
    }
    return text;
}

std::optional<std::uint32_t> TakeNumber(std::string_view& bytes) {
    if (bytes.size() < kNumberSize) {
        return std::nullopt;
    }
    std::uint32_t number = 0;
    for (unsigned place = 0; place < kNumberSize; ++place) {
        number |= std::uint32_t{static_cast<unsigned char>(bytes[place])} << place * kByte;
    }
    bytes.remove_prefix(kNumberSize);
    return number;
}

/// Takes the next piece off the bytes, when it is whole.
std::optional<std::string_view> TakePiece(std::string_view& bytes, std::uint32_t& sum) {
    const auto start = bytes;
    const auto size = TakeNumber(bytes);
    if (!size || *size > bytes.size()) {
        return std::nullopt;
    }
    const auto piece = bytes.substr(0, *size);
    bytes.remove_prefix(*size);
    sum = Sum(sum, start.substr(0, kNumberSize + *size));
    return TakeNumber(bytes) == sum ? std::optional(piece) : std::nullopt;
}

} // namespace

std::string PieceWriter::Frame(std::string_view piece) {
    std::string framed = NumberText(static_cast<std::uint32_t>(piece.size()));
    framed += piece;
    sum_ = Sum(sum_, framed);
    return framed + NumberText(sum_);
}

Pieces ReadPieces(std::string_view bytes) {
    Pieces pieces;
    std::uint32_t sum = 0;
    while (!bytes.empty() && !pieces.isDamaged) {
        if (const auto piece = TakePiece(bytes, sum)) {
            pieces.whole.push_back(*piece);
        } else {
            pieces.isDamaged = true;
        }
    }
    return pieces;
}

} // namespace zy
