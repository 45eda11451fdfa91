#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace zy {

/// Puts numbers and texts one behind another, in as few bytes as they need.
class ByteWriter {
  public:
    /// Seven bits a byte, the lowest first; the highest bit says that there are more.
    void Number(std::uint64_t number);
    void Text(std::string_view text);

    std::string Take() { return std::move(bytes_); }

  private:
    std::string bytes_;
};

/// Takes them out again. What is not there, or runs beyond the end, is nothing, and so is all behind it.
/// The bytes must live as long as the reader and what it gives.
class ByteReader {
  public:
    explicit ByteReader(std::string_view bytes) : bytes_(bytes) {}
    explicit ByteReader(std::string&& bytes) = delete;

    std::optional<std::uint64_t> Number();
    /// One that is no more than `most`.
    std::optional<int> Small(int most);
    std::optional<std::string_view> Text();

    bool AtEnd() const { return !failed_ && bytes_.empty(); }
    bool HasFailed() const { return failed_; }

  private:
    std::nullopt_t Fail();

    std::string_view bytes_;
    bool failed_ = false;
};

} // namespace zy
