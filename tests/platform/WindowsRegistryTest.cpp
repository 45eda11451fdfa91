#include "platform/windows/WindowsRegistry.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <windows.h>
// After windows.h, which it leans on.
#include <sddl.h>

#include <array>
#include <string>

#include "WindowsRegistryAside.h"

namespace zy::test {
namespace {

using ::testing::Optional;
using namespace std::string_literals;

constexpr auto kKey = R"(software\norvale\products\ZYSetup\Window)";
constexpr std::size_t kRoom = 260;

/// What stands in the registry under a name, seen from outside.
struct StoredValue {
    DWORD type = REG_NONE;
    std::wstring units; ///< of two bytes each, as the registry keeps text

    friend bool operator==(const StoredValue&, const StoredValue&) = default;
};

class WindowsRegistryTest : public ::testing::Test {
  protected:
    bool Set(std::string_view name, std::string_view text) {
        const auto key = registry.Create(kKey);
        if (!key) {
            return false;
        }
        key->SetText(name, text);
        return key->Close();
    }
    std::optional<std::string> Query(std::string_view name) {
        const auto key = registry.Open(kKey);
        return key ? key->QueryText(name, kRoom) : std::nullopt;
    }

    static StoredValue Stored(const wchar_t* name) {
        HKEY key = nullptr;
        EXPECT_EQ(::RegOpenKeyExA(HKEY_LOCAL_MACHINE, kKey, 0, KEY_QUERY_VALUE, &key), ERROR_SUCCESS);
        std::array<wchar_t, 64> units{};
        DWORD size = sizeof units;
        StoredValue value;
        EXPECT_EQ(
            ::RegQueryValueExW(key, name, nullptr, &value.type, reinterpret_cast<BYTE*>(units.data()), &size),
            ERROR_SUCCESS);
        ::RegCloseKey(key);
        value.units.assign(units.data(), size / sizeof(wchar_t));
        return value;
    }
    static void Store(const char* name, DWORD type, const std::string& bytes) {
        HKEY key = nullptr;
        ASSERT_EQ(::RegCreateKeyA(HKEY_LOCAL_MACHINE, kKey, &key), ERROR_SUCCESS);
        ::RegSetValueExA(key, name, 0, type, reinterpret_cast<const BYTE*>(bytes.data()),
                         static_cast<DWORD>(bytes.size()));
        ::RegCloseKey(key);
    }
    /// From here on everybody may read the key and nobody change it.
    static void ForbidChanges() {
        HKEY key = nullptr;
        ASSERT_EQ(::RegOpenKeyExA(HKEY_LOCAL_MACHINE, kKey, 0, WRITE_DAC, &key), ERROR_SUCCESS);
        void* descriptor = nullptr;
        ::ConvertStringSecurityDescriptorToSecurityDescriptorA("D:P(A;;KRSDWD;;;WD)", SDDL_REVISION_1,
                                                               &descriptor, nullptr);
        EXPECT_EQ(::RegSetKeySecurity(key, DACL_SECURITY_INFORMATION, descriptor), ERROR_SUCCESS);
        ::LocalFree(descriptor);
        ::RegCloseKey(key);
    }

    WindowsRegistryAside machine;
    WindowsRegistry registry;
};

TEST_F(WindowsRegistryTest, StoresATextWithoutANul) {
    EXPECT_TRUE(Set("Top", "-150"));
    EXPECT_EQ(Stored(L"Top"), (StoredValue{REG_SZ, L"-150"}));
}

TEST_F(WindowsRegistryTest, StoresTheNulsThatStandInAText) {
    EXPECT_TRUE(Set("Top", "1\0002\0"s));
    EXPECT_EQ(Stored(L"Top"), (StoredValue{REG_SZ, L"1\0002\0"s}));
}

TEST_F(WindowsRegistryTest, ReadsANulAndWhatFollowsIt) {
    Store("Top", REG_SZ, "15\0left over\0"s);
    EXPECT_THAT(Query("Top"), Optional("15\0left over\0"s));
}

TEST_F(WindowsRegistryTest, HasNoTextWhereAnotherKindOfValueStands) {
    Store("Top", REG_DWORD, "1234"s);
    Store("Left", REG_BINARY, "1234"s);
    EXPECT_EQ(Query("Top"), std::nullopt);
    EXPECT_EQ(Query("Left"), std::nullopt);
}

TEST_F(WindowsRegistryTest, ReadsAKeyThatTheUserMayNotChange) {
    EXPECT_TRUE(Set("Top", "1"));
    ForbidChanges();
    EXPECT_THAT(Query("Top"), Optional("1"s));
}

TEST_F(WindowsRegistryTest, SaysThatAKeyThatTheUserMayNotChangeStoresNothing) {
    EXPECT_TRUE(Set("Top", "1"));
    ForbidChanges();
    const auto key = registry.Open(kKey);
    ASSERT_TRUE(key);
    key->SetText("Top", "2");
    EXPECT_FALSE(key->Close());
    EXPECT_FALSE(registry.Create(kKey));
    EXPECT_THAT(Query("Top"), Optional("1"s));
}

TEST_F(WindowsRegistryTest, ClosesAKeyOnce) {
    const auto key = registry.Create(kKey);
    EXPECT_TRUE(key->Close());
    EXPECT_FALSE(key->Close());
    EXPECT_EQ(key->QueryText("Top", kRoom), std::nullopt);
}

} // namespace
} // namespace zy::test
