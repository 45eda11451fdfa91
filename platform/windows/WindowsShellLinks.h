#pragma once

#include "platform/ShellLinks.h"

namespace zy {

/// The programs that the user has set for web pages and mail, as the shell starts them.
class WindowsShellLinks final : public ShellLinks {
  public:
    bool Open(const LinkRequest& request) override;
};

} // namespace zy
