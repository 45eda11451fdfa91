#pragma once

#include "platform/CodePage.h"
#include "platform/Registry.h"

namespace zy {

/// The registry as a file of the user: "zysetup/registry.ini" in the folder for the user's settings, a group
/// for each key. What one Close stores is stored as a whole, also when two programs do it at once.
///
/// A file that cannot be understood has no keys; the first one that is stored again finds it moved aside, to
/// "registry.ini.damaged".
class PosixRegistry final : public Registry {
  public:
    explicit PosixRegistry(const CodePage& codePage) : codePage_(codePage) {}

    std::unique_ptr<RegistryKey> Open(std::string_view path) override;
    std::unique_ptr<RegistryKey> Create(std::string_view path) override;

  private:
    const CodePage& codePage_;
};

} // namespace zy
