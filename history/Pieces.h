#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace zy {

// A file that only ever grows: piece behind piece, each with its length in front of it and a checksum over it
// and all pieces before it. Whatever cuts the file short or changes a byte of it, the pieces before that
// place can be told from what is not whole any more.

/// Frames pieces for such a file, from its first one on.
class PieceWriter {
  public:
    std::string Frame(std::string_view piece);

  private:
    std::uint32_t sum_ = 0;
};

/// What can be read of such a file.
struct Pieces {
    std::vector<std::string_view> whole; ///< valid as long as the bytes they were read from
    bool isDamaged = false;              ///< something that is not whole follows them
};
Pieces ReadPieces(std::string_view bytes);

} // namespace zy
