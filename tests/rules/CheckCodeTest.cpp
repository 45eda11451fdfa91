#include "ChecksTest.h"

namespace zy::test {
namespace {

using ::testing::ElementsAre;

constexpr Box kBlank{"Rule Code cannot be Blank", "Invalid Rule Code"};
constexpr Box kTooLong{"Rule Code must be 1 to 3 characters", "Invalid Rule Code"};
constexpr Box kQuotes{"Rule Code cannot contain double quotes", "Invalid Rule Code"};
constexpr Box kNotUnique{"Rule Code must be unique", "Invalid Rule Code"};

class CheckCode : public ChecksTest {
  protected:
    void ExpectPasses(std::string_view code, int index) {
        SCOPED_TRACE(code);
        Expect({}, [&] { return checks.CheckCode(code, index); });
    }
    void ExpectFails(std::string_view code, int index, const Box& box) {
        SCOPED_TRACE(code);
        Expect(box, [&] { return checks.CheckCode(code, index); });
    }
};

TEST_F(CheckCode, TakesOneToThreeCharacters) {
    AddCode("R1");
    for (const auto* code : {"A", "AB", "ABC", "1", "'", "=", "[", "\xE9", "a b", "\t"}) {
        ExpectPasses(code, 1);
    }
    ExpectPasses(std::string_view("\0\0\0", 3), 1);
}

TEST_F(CheckCode, RefusesTheEmptyCode) {
    ExpectFails("", 1, kBlank);
}

TEST_F(CheckCode, DoesNotCallBlanksBlank) {
    AddCode("R1");
    ExpectPasses(" ", 1);
    ExpectPasses("   ", 1);
}

TEST_F(CheckCode, RefusesMoreThanThreeCharacters) {
    ExpectFails("ABCD", 1, kTooLong);
    ExpectFails("A   ", 1, kTooLong);
    ExpectFails("    ", 1, kTooLong);
    ExpectFails(std::string(1000, 'x'), 1, kTooLong);
}

TEST_F(CheckCode, RefusesDoubleQuotes) {
    ExpectFails("\"", 1, kQuotes);
    ExpectFails("A\"", 1, kQuotes);
    ExpectFails("\"A\"", 1, kQuotes);
}

TEST_F(CheckCode, ChecksTheLengthBeforeTheQuotesAndTheQuotesBeforeTheOtherRules) {
    AddCode("R1");
    AddCode("A\"");
    ExpectFails("\"AB\"", 1, kTooLong);
    ExpectFails("A\"", 1, kQuotes);
}

TEST_F(CheckCode, RefusesTheCodeOfAnotherRule) {
    AddCode("A");
    AddCode("B");
    AddCode("C");
    ExpectFails("A", 2, kNotUnique);
    ExpectFails("C", 2, kNotUnique);
    ExpectFails("C", 1, kNotUnique);
    ExpectFails("A", 3, kNotUnique);
}

TEST_F(CheckCode, LeavesARuleItsOwnCode) {
    AddCode("A");
    AddCode("B");
    ExpectPasses("A", 1);
    ExpectPasses("B", 2);
    ExpectPasses("b ", 2);
}

TEST_F(CheckCode, RefusesARulesOwnCodeWhenAnotherHasItToo) {
    AddCode("NEW");
    AddCode("NEW");
    ExpectFails("NEW", 1, kNotUnique);
    ExpectFails("NEW", 2, kNotUnique);
    ExpectPasses("A", 2);
}

TEST_F(CheckCode, ComparesWithoutRegardToCaseAndToBlanksAround) {
    AddCode("ABC ");
    AddCode("R2");
    AddCode("  x");
    ExpectFails("abc", 2, kNotUnique);
    ExpectFails("aBc", 2, kNotUnique);
    ExpectFails("X  ", 2, kNotUnique);
    ExpectFails(" X", 2, kNotUnique);
    ExpectPasses("abc", 1);
}

TEST_F(CheckCode, ComparesBlanksInsideACode) {
    AddCode("A B");
    AddCode("R2");
    ExpectPasses("AB", 2);
    ExpectPasses("A  ", 2);
    ExpectFails("a b", 2, kNotUnique);
}

TEST_F(CheckCode, DoesNotTakeATabForABlank) {
    AddCode("A\t");
    AddCode("R2");
    ExpectPasses("A", 2);
    ExpectFails("a\t", 2, kNotUnique);
}

TEST_F(CheckCode, TakesCodesOfBlanksAsEqualToAnEmptyOne) {
    AddCode("");
    AddCode("R2");
    ExpectFails(" ", 2, kNotUnique);
    ExpectFails("   ", 2, kNotUnique);
    ExpectPasses(" ", 1);
}

TEST_F(CheckCode, KnowsTheCapitalsOfTheCodePage) {
    AddCode("\xC9"); // E acute
    AddCode("\xD6"
            "1");    // O umlaut
    AddCode("\x9F"); // Y umlaut, whose small letter stands far off
    AddCode("\x8A"); // S caron
    AddCode("R5");
    ExpectFails("\xE9", 5, kNotUnique);
    ExpectFails("\xF6"
                "1",
                5, kNotUnique);
    ExpectFails("\xFF", 5, kNotUnique);
    ExpectFails("\x9A", 5, kNotUnique);
}

TEST_F(CheckCode, KeepsLettersApartThatDifferInMoreThanCase) {
    AddCode("\xE9");
    AddCode("\xDF"); // sharp s, which has no capital here
    AddCode("\xF7"); // the division sign stands where a small letter would, 32 behind the multiplication sign
    AddCode("R4");
    ExpectPasses("E", 4);
    ExpectPasses("SS", 4);
    ExpectPasses("\xD7", 4);
    ExpectFails("\xDF", 4, kNotUnique);
}

TEST_F(CheckCode, ComparesWithAllRulesForAnIndexThatNoRuleHas) {
    AddCode("A");
    AddCode("B");
    for (const int index : {-1, 0, 3, 32767}) {
        ExpectFails("a", index, kNotUnique);
        ExpectFails("b", index, kNotUnique);
        ExpectPasses("C", index);
    }
}

TEST_F(CheckCode, ComparesWithTheRulesOfTheMoment) {
    RunRule& rule = AddCode("A");
    AddCode("B");
    ExpectFails("A", 2, kNotUnique);
    rule.Code = "Z";
    ExpectPasses("A", 2);
    ExpectFails("z", 2, kNotUnique);
}

TEST_F(CheckCode, TracesItsStartWhateverComesOut) {
    const auto start = ElementsAre("Trace mRules CheckCode Start");
    EXPECT_THAT(Traces([&] { checks.CheckCode("A", 1); }), start);
    world.dialogs.ExpectMessage(kBlank.message, kBlank.title);
    EXPECT_THAT(Traces([&] { checks.CheckCode("", 1); }), start);
}

TEST_F(CheckCode, ChangesNoRule) {
    AddCode(" a ");
    AddCode("B");
    ExpectFails("A", 2, kNotUnique);
    EXPECT_THAT(Codes(), ElementsAre(" a ", "B"));
}

} // namespace
} // namespace zy::test
