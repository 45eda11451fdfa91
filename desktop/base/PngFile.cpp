#include "desktop/PngFile.h"

#include <wx/image.h>
#include <zlib.h>

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <new>
#include <string_view>

namespace zy {
namespace {

constexpr std::size_t kBytesPerPoint = 3;

std::string BigEndian(std::uint32_t number) {
    std::string bytes;
    for (int shift = 24; shift >= 0; shift -= 8) {
        bytes += static_cast<char>(number >> shift & 0xFF);
    }
    return bytes;
}

std::string Compressed(const std::string& bytes) {
    const auto length = static_cast<uLong>(bytes.size());
    uLongf size = ::compressBound(length);
    std::string packed(size, '\0');
    const int error = ::compress(reinterpret_cast<Bytef*>(packed.data()), &size,
                                 reinterpret_cast<const Bytef*>(bytes.data()), length);
    if (error != Z_OK) { // there is room for whatever comes out
        throw std::bad_alloc();
    }
    packed.resize(size);
    return packed;
}

std::string Chunk(std::string_view type, std::string_view data) {
    const auto checked = std::string(type).append(data);
    const auto sum =
        ::crc32(0, reinterpret_cast<const Bytef*>(checked.data()), static_cast<uInt>(checked.size()));
    return BigEndian(static_cast<std::uint32_t>(data.size())) + checked +
           BigEndian(static_cast<std::uint32_t>(sum));
}

/// The points row by row, each row behind the number of its filter: none.
std::string RowsOf(const wxImage& picture) {
    const std::size_t width = kBytesPerPoint * static_cast<std::size_t>(picture.GetWidth());
    const auto* points = reinterpret_cast<const char*>(picture.GetData());
    std::string rows;
    rows.reserve((width + 1) * static_cast<std::size_t>(picture.GetHeight()));
    for (int row = 0; row < picture.GetHeight(); ++row, points += width) {
        rows.append(1, '\0').append(points, width);
    }
    return rows;
}

} // namespace

std::string PngFileOf(const wxImage& picture, int pointsPerInch) {
    constexpr std::string_view kSignature = "\x89PNG\r\n\x1A\n";
    constexpr std::string_view kDepthAndMethods("\x08\x02\0\0\0", 5); // eight bits, colours, the only methods
    constexpr double kInchesPerMetre = 1000 / 25.4;
    const auto density = BigEndian(static_cast<std::uint32_t>(std::lround(pointsPerInch * kInchesPerMetre)));
    std::string file(kSignature);
    file += Chunk("IHDR", BigEndian(static_cast<std::uint32_t>(picture.GetWidth())) +
                              BigEndian(static_cast<std::uint32_t>(picture.GetHeight())) +
                              std::string(kDepthAndMethods));
    file += Chunk("pHYs", density + density + '\x01');
    file += Chunk("IDAT", Compressed(RowsOf(picture)));
    return file + Chunk("IEND", "");
}

} // namespace zy
