#pragma once

#include "platform/Registry.h"

namespace zy {

/// The keys below HKEY_LOCAL_MACHINE. A key that the user may not change is opened for reading: setting a
/// value then has no effect, and Close says so.
class WindowsRegistry final : public Registry {
  public:
    std::unique_ptr<RegistryKey> Open(std::string_view path) override;
    std::unique_ptr<RegistryKey> Create(std::string_view path) override;
};

} // namespace zy
