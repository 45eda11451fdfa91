#pragma once

#include "platform/CodePage.h"
#include "platform/ShellLinks.h"

namespace zy {

/// The programs that the user's desktop has set for web pages and mail. Verb, owner and show command mean
/// nothing to it.
class PosixShellLinks final : public ShellLinks {
  public:
    explicit PosixShellLinks(const CodePage& codePage) : codePage_(codePage) {}

    /// Asks the desktop's own list first, then the command "xdg-open", which knows more places to look.
    bool Open(const LinkRequest& request) override;

  private:
    const CodePage& codePage_;
};

} // namespace zy
