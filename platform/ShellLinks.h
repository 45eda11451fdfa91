#pragma once

#include <string>

namespace zy {

/// The window that the shell's own message boxes would belong to.
enum class LinkOwner { None, DesktopWindow };

/// What the shell is asked to do with a link.
struct LinkRequest {
    LinkOwner owner = LinkOwner::None;
    std::string verb;
    std::string target; ///< a web address or a mail link, handed on as it is
    int showCommand = 0;

    friend bool operator==(const LinkRequest&, const LinkRequest&) = default;
};

/// The user's programs for web pages and mail.
class ShellLinks {
  public:
    virtual ~ShellLinks() = default;

    /// Starts the program for the link, without parameters and in no particular folder. False when there is
    /// none or it did not start.
    virtual bool Open(const LinkRequest& request) = 0;
};

} // namespace zy
