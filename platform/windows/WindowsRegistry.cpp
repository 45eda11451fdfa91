#include "platform/windows/WindowsRegistry.h"

#include <windows.h>

#include <array>
#include <utility>

namespace zy {
namespace {

class Key final : public RegistryKey {
  public:
    explicit Key(HKEY key) : key_(key) {}
    Key(const Key&) = delete;
    Key& operator=(const Key&) = delete;
    ~Key() override { ::RegCloseKey(key_); }

    std::optional<std::string> QueryText(std::string_view name, std::size_t capacity) const override {
        std::string text(capacity, '\0');
        auto size = static_cast<DWORD>(capacity);
        DWORD type = REG_NONE;
        const auto result = ::RegQueryValueExA(key_, std::string(name).c_str(), nullptr, &type,
                                               reinterpret_cast<BYTE*>(text.data()), &size);
        if (result != ERROR_SUCCESS || type != REG_SZ) {
            return std::nullopt;
        }
        text.resize(size);
        return text;
    }

    void SetText(std::string_view name, std::string_view text) override {
        // The system looks at the byte behind the text and stores it too when it is a NUL.
        const auto bytes = std::string(text) + '.';
        const auto result =
            ::RegSetValueExA(key_, std::string(name).c_str(), 0, REG_SZ,
                             reinterpret_cast<const BYTE*>(bytes.data()), static_cast<DWORD>(text.size()));
        allStored_ = allStored_ && result == ERROR_SUCCESS;
    }

    bool Close() override {
        return ::RegCloseKey(std::exchange(key_, nullptr)) == ERROR_SUCCESS && allStored_;
    }

  private:
    HKEY key_;
    bool allStored_ = true;
};

} // namespace

std::unique_ptr<RegistryKey> WindowsRegistry::Open(std::string_view path) {
    constexpr std::array<REGSAM, 2> kBestFirst{KEY_QUERY_VALUE | KEY_SET_VALUE, KEY_QUERY_VALUE};
    const std::string name(path);
    for (const REGSAM rights : kBestFirst) {
        HKEY key = nullptr;
        if (::RegOpenKeyExA(HKEY_LOCAL_MACHINE, name.c_str(), 0, rights, &key) == ERROR_SUCCESS) {
            return std::make_unique<Key>(key);
        }
    }
    return nullptr;
}

std::unique_ptr<RegistryKey> WindowsRegistry::Create(std::string_view path) {
    HKEY key = nullptr;
    const auto result =
        ::RegCreateKeyExA(HKEY_LOCAL_MACHINE, std::string(path).c_str(), 0, nullptr, REG_OPTION_NON_VOLATILE,
                          KEY_QUERY_VALUE | KEY_SET_VALUE, nullptr, &key, nullptr);
    return result == ERROR_SUCCESS ? std::make_unique<Key>(key) : nullptr;
}

} // namespace zy
