#pragma once

#include <cstdint>
#include <string_view>

namespace zy {

enum class HelpCommand {
    Contents = 3,
    Key = 0x101, ///< the keyword index; without a keyword, all of it
};

/// The viewer of help files.
class HelpSystem {
  public:
    virtual ~HelpSystem() = default;

    /// Shows a help file in a window that belongs to the main window. Reports a file that is missing
    /// or no help file to the user itself; the caller learns nothing.
    virtual void Show(std::string_view helpFile, HelpCommand command, std::uintptr_t data) = 0;
};

} // namespace zy
