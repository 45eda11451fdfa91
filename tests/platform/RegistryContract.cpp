// What every Registry promises, whatever it stands on.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "ContractWorlds.h"
#include "platform/memory/MemoryRegistry.h"

namespace zy::test {
namespace {

using ::testing::Optional;

constexpr auto kKey = R"(software\norvale\products\ZYSetup\Window)";
constexpr std::size_t kRoom = 260;

class MemoryStore final : public Store {
  public:
    Registry& Keys() override { return registry_; }

  private:
    MemoryRegistry registry_{Windows1252()};
};

struct StoreKind {
    const char* name;
    std::unique_ptr<Store> (*make)();
};

void PrintTo(const StoreKind& kind, std::ostream* out) {
    *out << kind.name;
}

class RegistryContract : public ::testing::TestWithParam<StoreKind> {
  protected:
    void Set(std::string_view path, std::string_view name, std::string_view text) {
        const auto key = store->Keys().Create(path);
        ASSERT_TRUE(key);
        key->SetText(name, text);
        EXPECT_TRUE(key->Close());
    }
    std::optional<std::string> Query(std::string_view path, std::string_view name) {
        const auto key = store->Keys().Open(path);
        return key ? key->QueryText(name, kRoom) : std::nullopt;
    }

    std::unique_ptr<Store> store = GetParam().make();
};

INSTANTIATE_TEST_SUITE_P(Stores, RegistryContract,
                         ::testing::Values(StoreKind{"OverMemory",
                                                     []() -> std::unique_ptr<Store> {
                                                         return std::make_unique<MemoryStore>();
                                                     }},
                                           StoreKind{kOverSystem, SystemStore}),
                         [](const auto& test) { return test.param.name; });

TEST_P(RegistryContract, OpensNoKeyThatIsMissing) {
    EXPECT_FALSE(store->Keys().Open(kKey));
    Set(kKey, "Top", "15");
    EXPECT_FALSE(store->Keys().Open(R"(software\norvale\products\ZYSetup\Windows)"));
    EXPECT_FALSE(store->Keys().Open(R"(software\norvale\products\ZYSetup\Window\Top)"));
}

TEST_P(RegistryContract, KeepsWhatWasSet) {
    Set(kKey, "Top", "-150");
    EXPECT_THAT(Query(kKey, "Top"), Optional(std::string("-150")));
    EXPECT_EQ(Query(kKey, "Left"), std::nullopt);
}

TEST_P(RegistryContract, KeepsAnEmptyText) {
    Set(kKey, "Top", "");
    EXPECT_THAT(Query(kKey, "Top"), Optional(std::string()));
}

TEST_P(RegistryContract, ReplacesAValueAndKeepsTheOthers) {
    Set(kKey, "Top", "1");
    Set(kKey, "Left", "2");
    const auto key = store->Keys().Open(kKey);
    key->SetText("Top", "3");
    EXPECT_TRUE(key->Close());
    EXPECT_THAT(Query(kKey, "Top"), Optional(std::string("3")));
    EXPECT_THAT(Query(kKey, "Left"), Optional(std::string("2")));
}

TEST_P(RegistryContract, FindsKeysAndValuesWithoutRegardToCase) {
    Set(kKey, "Top", "1");
    EXPECT_THAT(Query(R"(Software\Norvale\PRODUCTS\zysetup\window)", "TOP"), Optional(std::string("1")));
    Set(R"(SOFTWARE\NORVALE\PRODUCTS\ZYSETUP\WINDOW)", "top", "2");
    EXPECT_THAT(Query(kKey, "Top"), Optional(std::string("2")));
}

TEST_P(RegistryContract, KeepsKeysApart) {
    Set(kKey, "Top", "1");
    Set(R"(software\norvale\products\Other)", "Top", "2");
    EXPECT_THAT(Query(kKey, "Top"), Optional(std::string("1")));
}

TEST_P(RegistryContract, GivesAValueOnlyWhenItFitsTheRoom) {
    Set(kKey, "Top", std::string(kRoom, '1'));
    Set(kKey, "Left", std::string(kRoom + 1, '1'));
    EXPECT_THAT(Query(kKey, "Top"), Optional(std::string(kRoom, '1')));
    EXPECT_EQ(Query(kKey, "Left"), std::nullopt);
}

TEST_P(RegistryContract, KeepsEveryCharacterOfAText) {
    const std::string text = " a=b;\\n[c] # \xE4\xDF\x80 ";
    Set(kKey, "Top", text);
    EXPECT_THAT(Query(kKey, "Top"), Optional(text));
}

} // namespace
} // namespace zy::test
