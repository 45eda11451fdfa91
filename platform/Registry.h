#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace zy {

/// An open key of the registry. What was set stands in the registry once Close has succeeded.
class RegistryKey {
  public:
    virtual ~RegistryKey() = default;

    /// The bytes of a text value, possibly with a NUL and leftovers at their end. Nothing when there is no
    /// such value, or when it is longer than `capacity`.
    virtual std::optional<std::string> QueryText(std::string_view name, std::size_t capacity) const = 0;
    /// Sets a text value to exactly these bytes, without a NUL behind them.
    virtual void SetText(std::string_view name, std::string_view text) = 0;
    /// False when not everything could be stored.
    virtual bool Close() = 0;
};

/// The settings of the machine that belong to no file of the product. Keys are paths with "\" between their
/// parts; keys and values are found without regard to case.
class Registry {
  public:
    virtual ~Registry() = default;

    /// The key of that path; nothing when there is none or it cannot be opened.
    virtual std::unique_ptr<RegistryKey> Open(std::string_view path) = 0;
    /// The same for a key that is made when it is missing.
    virtual std::unique_ptr<RegistryKey> Create(std::string_view path) = 0;
};

} // namespace zy
