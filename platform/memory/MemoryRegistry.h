#pragma once

#include <map>
#include <string>

#include "platform/CodePage.h"
#include "platform/Registry.h"

namespace zy {

/// A registry in memory, which can be locked, read-only or full at will.
class MemoryRegistry final : public Registry {
  public:
    explicit MemoryRegistry(const CodePage& codePage) : codePage_(codePage) {}

    std::unique_ptr<RegistryKey> Open(std::string_view path) override;
    std::unique_ptr<RegistryKey> Create(std::string_view path) override;

    /// The names of values, in capitals, and their bytes.
    using Values = std::map<std::string, std::string>;
    /// A key's values; nothing when there is no such key.
    std::optional<Values> Get(std::string_view path) const;
    /// Sets a value of a key, which is made when it is missing.
    void Put(std::string_view path, std::string_view name, std::string_view bytes);

    /// No key can be opened or made.
    void SetUnreadable(bool unreadable = true) { unreadable_ = unreadable; }
    /// Nothing can be made or stored.
    void SetReadOnly(bool readOnly = true) { readOnly_ = readOnly; }

  private:
    class Key;

    const CodePage& codePage_;
    std::map<std::string, Values> keys_;
    bool unreadable_ = false;
    bool readOnly_ = false;
};

} // namespace zy
