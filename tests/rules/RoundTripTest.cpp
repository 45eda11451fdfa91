#include <random>

#include "RulesTest.h"
#include "basics/Text.h"

namespace zy::test {
namespace {

/// What comes back when a written list is loaded again.
class RulesRoundTrip : public RulesTest {
  protected:
    /// Writes the list and loads it into another program's.
    std::vector<std::string> Reloaded() {
        rules.Write_Rules_File();
        mRules others{world.files, world.system, trace};
        others.Build_Rules_Array();
        EXPECT_EQ(others.SkippedLines(), 0U);
        std::vector<std::string> lines;
        for (int i = 1; i <= others.gaRules.UBound(); ++i) {
            lines.push_back(Shown(others.gaRules(i)));
        }
        return lines;
    }

    /// A rule as it comes back: the description with the two blanks that loading leaves behind it.
    static std::string AfterLoading(RunRule rule) {
        rule.Description = std::string(Trim(rule.Description)) + "  ";
        return Shown(rule);
    }

    void ExpectReturns(const RunRule& rule) {
        rules.gaRules.Reset(0);
        Add(rule);
        EXPECT_THAT(Reloaded(), ::testing::ElementsAre(AfterLoading(rule)));
    }
};

TEST_F(RulesRoundTrip, OfAnEmptyListGivesAnEmptyList) {
    EXPECT_THAT(Reloaded(), ::testing::IsEmpty());
    EXPECT_EQ(File(), "");
}

TEST_F(RulesRoundTrip, KeepsEveryValueWhateverItHolds) {
    for (const std::string value :
         {"",       " ",       "  ",        "=",     "==",      "a=b",  "= a",   "[",    "]",
          "[RULE]", "[OTHER]", "a [b] = c", " lead", "trail ",  "\t",   "\tb\t", "\"",   "\"q\"",
          ";",      "; c",     "#",         "CODE",  "CODE= A", "\xE9", "\xFF",  "\x80", "\xEF\xBB\xBF"}) {
        SCOPED_TRACE(value);
        ExpectReturns({.Code = value,
                       .Min = value,
                       .Max = value,
                       .Cond = value,
                       .Zone = value,
                       .Description = value,
                       .Desc2 = {},
                       .Desc3 = {}});
    }
}

TEST_F(RulesRoundTrip, KeepsEveryByteButTheLineEnds) {
    for (int byte = 0; byte < 256; ++byte) {
        if (byte != '\r' && byte != '\n') {
            SCOPED_TRACE(byte);
            const std::string value(1, static_cast<char>(byte));
            ExpectReturns({.Code = value,
                           .Min = value + "1",
                           .Max = "1" + value,
                           .Cond = value + value,
                           .Zone = value,
                           .Description = value + "x" + value,
                           .Desc2 = {},
                           .Desc3 = {}});
        }
    }
}

class RandomText {
  public:
    explicit RandomText(unsigned seed) : random_(seed) {}

    /// Any bytes but line ends, and often those that mean something in the file.
    std::string Next() {
        constexpr std::string_view kTelling = "=[] \t;\"RULECODE";
        std::string text(random_() % 12, '\0');
        for (auto& c : text) {
            c = random_() % 2 == 0 ? kTelling[random_() % kTelling.size()]
                                   : static_cast<char>(random_() & 0xFF);
            c = c == '\r' || c == '\n' ? ' ' : c;
        }
        return text;
    }
    RunRule NextRule() {
        return {.Code = Next(),
                .Min = Next(),
                .Max = Next(),
                .Cond = Next(),
                .Zone = Next(),
                .Description = Next(),
                .Desc2 = {},
                .Desc3 = {}};
    }

  private:
    std::mt19937 random_;
};

TEST_F(RulesRoundTrip, KeepsListsOfRandomRules) {
    for (unsigned seed = 1; seed <= 100; ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        RandomText text(seed);
        rules.gaRules.Reset(0);
        std::vector<std::string> expected;
        for (int i = 0; i < 20; ++i) {
            expected.push_back(AfterLoading(Add(text.NextRule())));
        }
        EXPECT_EQ(Reloaded(), expected);
    }
}

TEST_F(RulesRoundTrip, OfAnOlderFileEndsInTheSameBytesFromTheSecondSaveOn) {
    RunRule rule{.Code = "R1",
                 .Min = {},
                 .Max = {},
                 .Cond = {},
                 .Zone = {},
                 .Description = "one two three",
                 .Desc2 = {},
                 .Desc3 = {}};
    Load("[rule]\nCode=R1\nDESC1= one \nDESC2= two\nDESC3=three\nCOLOUR= red\n");
    rules.Write_Rules_File();
    EXPECT_EQ(File(), Section(rule));
    rule.Description = "one two three  ";
    for (int save = 2; save <= 4; ++save) {
        rules.Build_Rules_Array();
        rules.Write_Rules_File();
        EXPECT_EQ(File(), Section(rule)) << "save " << save;
    }
}

TEST_F(RulesRoundTrip, WritesTheWordAndTwoBlanksOfAOneWordDescription) {
    Load("[RULE]\r\nDESC1= word\r\nDESC2= \r\nDESC3= \r\n");
    rules.Write_Rules_File();
    EXPECT_THAT(*File(), ::testing::HasSubstr("   DESC1        = word  \r\n   DESC2        = \r\n"));
}

} // namespace
} // namespace zy::test
