#pragma once

#include <memory>

namespace zy::test {

/// The colours of a desktop that the user changes. Made before the toolkit starts; the colours of before come
/// back when it goes. Each system has one file of this.
class DesktopColours {
  public:
    DesktopColours();
    DesktopColours(const DesktopColours&) = delete;
    DesktopColours& operator=(const DesktopColours&) = delete;
    ~DesktopColours();

    /// Light text on dark windows. For the window's thread.
    void Darken();

  private:
    struct Native;
    std::unique_ptr<Native> native_;
};

} // namespace zy::test
