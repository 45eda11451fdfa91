#include <gtest/gtest.h>

#include <array>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <ostream>
#include <string>

#include "Targets.h"

namespace zy::fuzz {
namespace {

struct Target {
    const char* name;
    void (*run)(std::string_view input);
};

void PrintTo(const Target& target, std::ostream* out) {
    *out << target.name;
}

constexpr std::array<Target, 14> kTargets{{{"FileNames", FileNames},
                                           {"IndexFile", IndexFile},
                                           {"IniFile", IniFile},
                                           {"Journal", Journal},
                                           {"JournalSteps", JournalSteps},
                                           {"Numbers", Numbers},
                                           {"PastedCells", PastedCells},
                                           {"RulesBlocks", RulesBlocks},
                                           {"RulesFile", RulesFile},
                                           {"SqlStatement", SqlStatement},
                                           {"TableFile", TableFile},
                                           {"Texts", Texts},
                                           {"UnitsText", UnitsText},
                                           {"VersionPlan", VersionPlan}}};

std::string Bytes(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

class FuzzReplay : public ::testing::TestWithParam<Target> {};

TEST_P(FuzzReplay, EveryInputOfTheCorpusIsTakenAsPromised) {
    int inputs = 0;
    for (const auto& entry :
         std::filesystem::directory_iterator(ZY_CORPUS + std::string("/") + GetParam().name)) {
        SCOPED_TRACE(entry.path().filename());
        EXPECT_NO_THROW(GetParam().run(Bytes(entry.path())));
        ++inputs;
    }
    EXPECT_GT(inputs, 0);
}

TEST_P(FuzzReplay, AnEmptyInputIsTakenAsPromised) {
    EXPECT_NO_THROW(GetParam().run(""));
}

INSTANTIATE_TEST_SUITE_P(Targets, FuzzReplay, ::testing::ValuesIn(kTargets),
                         [](const auto& each) { return each.param.name; });

} // namespace
} // namespace zy::fuzz
