#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace zy::dbase {

// Numbers in files: unsigned, the lowest byte first. The bytes must be there.

inline std::uint8_t ByteAt(std::string_view bytes, std::size_t at) {
    return static_cast<std::uint8_t>(bytes[at]);
}

inline std::uint16_t Get16(std::string_view bytes, std::size_t at) {
    return static_cast<std::uint16_t>(ByteAt(bytes, at) | (ByteAt(bytes, at + 1) << 8));
}

inline std::uint32_t Get32(std::string_view bytes, std::size_t at) {
    return Get16(bytes, at) | (static_cast<std::uint32_t>(Get16(bytes, at + 2)) << 16);
}

inline void PutByte(std::string& bytes, std::size_t at, unsigned value) {
    bytes[at] = static_cast<char>(value & 0xFFU);
}

inline void Put16(std::string& bytes, std::size_t at, unsigned value) {
    PutByte(bytes, at, value);
    PutByte(bytes, at + 1, value >> 8);
}

inline void Put32(std::string& bytes, std::size_t at, std::uint32_t value) {
    Put16(bytes, at, value);
    Put16(bytes, at + 2, value >> 16);
}

} // namespace zy::dbase
