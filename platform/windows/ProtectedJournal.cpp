#include "platform/windows/ProtectedJournal.h"

#include <windows.h>
// After windows.h, which it leans on.
#include <wincrypt.h>

#include <optional>

namespace zy {
namespace {

constexpr std::size_t kLengthSize = 4;
constexpr unsigned kBitsOfByte = 8;

/// Only read from, whatever its type says.
DATA_BLOB Blob(std::string_view bytes) {
    return {.cbData = static_cast<DWORD>(bytes.size()),
            .pbData = reinterpret_cast<BYTE*>(const_cast<char*>(bytes.data()))};
}

/// What the system made, when it did.
std::optional<std::string> Taken(BOOL made, const DATA_BLOB& blob) {
    if (made == FALSE) {
        return std::nullopt;
    }
    std::string bytes(reinterpret_cast<const char*>(blob.pbData), blob.cbData);
    ::LocalFree(blob.pbData);
    return bytes;
}

std::optional<std::string> Protect(std::string_view bytes) {
    auto in = Blob(bytes);
    DATA_BLOB out{};
    const auto made =
        ::CryptProtectData(&in, nullptr, nullptr, nullptr, nullptr, CRYPTPROTECT_UI_FORBIDDEN, &out);
    return Taken(made, out);
}

std::optional<std::string> Unprotect(std::string_view bytes) {
    auto in = Blob(bytes);
    DATA_BLOB out{};
    const auto made =
        ::CryptUnprotectData(&in, nullptr, nullptr, nullptr, nullptr, CRYPTPROTECT_UI_FORBIDDEN, &out);
    return Taken(made, out);
}

std::string LengthText(std::size_t length) {
    std::string text;
    for (std::size_t i = 0; i < kLengthSize; ++i) {
        text += static_cast<char>(length >> (i * kBitsOfByte));
    }
    return text;
}

std::size_t LengthIn(std::string_view text) {
    std::size_t length = 0;
    for (std::size_t i = kLengthSize; i-- > 0;) {
        length = (length << kBitsOfByte) | static_cast<unsigned char>(text[i]);
    }
    return length;
}

/// Takes the next piece, made readable, from the beginning of a text.
std::optional<std::string> TakePiece(std::string_view& text) {
    const bool hasLength = text.size() >= kLengthSize;
    const auto length = hasLength ? LengthIn(text) : 0;
    if (!hasLength || length > text.size() - kLengthSize) {
        return std::nullopt;
    }
    auto piece = Unprotect(text.substr(kLengthSize, length));
    text.remove_prefix(kLengthSize + length);
    return piece;
}

} // namespace

std::string ProtectedJournal::Read() {
    const auto bytes = file_->Read();
    std::string readable;
    std::string_view rest = bytes;
    while (const auto piece = TakePiece(rest)) {
        readable += *piece;
    }
    return readable;
}

FileError ProtectedJournal::Append(std::string_view piece) {
    if (piece.empty()) {
        // There would be nothing to protect.
        return FileError::None;
    }
    const auto bytes = Protect(piece);
    return bytes ? file_->Append(LengthText(bytes->size()) + *bytes) : FileError::Other;
}

} // namespace zy
