#include "ChecksTest.h"

namespace zy::test {
namespace {

using ::testing::ElementsAre;

constexpr Box kMinNotNumeric{"Min Must be a Numeric Value", "Invalid Rule Min Value"};
constexpr Box kMinRange{"Min Must be between 1 and 100", "Invalid Rule Min Value"};
constexpr Box kMaxNotNumeric{"Max Must be a Numeric Value", "Invalid Rule Max Value"};
constexpr Box kMaxRange{"Max Must be between 1 and 100", "Invalid Rule Max Value"};
constexpr Box kMinAboveMax{"Min Value must be less than Max Value", "Invalid Rule Max or Min Value"};

/// Both counts have one syntax and one range; each has words of its own.
class CheckCounts : public ChecksTest {
  protected:
    void ExpectPass(std::initializer_list<std::string_view> texts) { ExpectEach(texts, {}, {}); }
    void ExpectNotNumeric(std::initializer_list<std::string_view> texts) {
        ExpectEach(texts, kMinNotNumeric, kMaxNotNumeric);
    }
    void ExpectOutsideTheRange(std::initializer_list<std::string_view> texts) {
        ExpectEach(texts, kMinRange, kMaxRange);
    }

  private:
    void ExpectEach(std::initializer_list<std::string_view> texts, const std::optional<Box>& min,
                    const std::optional<Box>& max) {
        for (const auto text : texts) {
            SCOPED_TRACE("\"" + std::string(text) + "\"");
            Expect(min, [&] { return checks.Check_Min(text); });
            Expect(max, [&] { return checks.Check_Max(text); });
        }
    }
};

TEST_F(CheckCounts, TakesEveryWholeNumberFromOneToAHundred) {
    for (int count = 1; count <= 100; ++count) {
        ExpectPass({std::to_string(count)});
    }
    ExpectOutsideTheRange({"0", "101"});
}

TEST_F(CheckCounts, TakesFractionsInsideTheRange) {
    ExpectPass({"1.5", "99.999", "1.0", "100.0", "1.", "100.", "1.0000000001", "99.9999999999"});
    ExpectOutsideTheRange({"0.5", ".5", "0.999", "100.5", "100.0001", "0.9999999999"});
}

TEST_F(CheckCounts, TakesASign) {
    ExpectPass({"+1", "+5", "+100"});
    ExpectOutsideTheRange({"-1", "-0", "-50", "+101", "+0"});
}

TEST_F(CheckCounts, TakesAnExponent) {
    ExpectPass({"1e2", "1E2", "1e0", "1e+1", "1000e-1", "0.1e1", ".5e1", "1.5E1"});
    ExpectOutsideTheRange({"1e3", "1e-1", "1e400", "-1e400", "1e-400", "1e99999"});
}

TEST_F(CheckCounts, TakesBlanksAround) {
    ExpectPass({" 1", "1 ", "  5  ", " +5 ", " 1e2 "});
    ExpectOutsideTheRange({" 0 "});
}

TEST_F(CheckCounts, TakesLeadingZeros) {
    ExpectPass({"01", "00100", "0001.5"});
    ExpectOutsideTheRange({"000"});
}

TEST_F(CheckCounts, RefusesTheEmptyTextAndBlanks) {
    ExpectNotNumeric({"", " ", "   "});
}

TEST_F(CheckCounts, RefusesTexts) {
    ExpectNotNumeric({"a",   "one", "1a",   "a1",    "1 2", "5 %",   "1-",   "1+", "--1",
                      "+-1", "- 1", "1e",   "e5",    "1e+", "1e1.5", "1ee1", ".",  "+",
                      "-",   "..",  "1..2", "1.2.3", "1\t", "\t1",   "5\n",  "$5", "(5)"});
    ExpectNotNumeric({std::string_view("1\0", 2), std::string_view("\0", 1), "\xB9",
                      "\xA0"
                      "1",
                      "\xBD"});
}

TEST_F(CheckCounts, RefusesOtherNotationsOfNumbers) {
    ExpectNotNumeric({"0x10", "&H10", "&10", "0b1", "1_0", "inf", "INF", "infinity", "nan", "NaN", "-inf",
                      "1f", "1d1", "1.5f"});
}

TEST_F(CheckCounts, RefusesACommaWhereThePointSeparates) {
    ExpectNotNumeric({"1,5", "1,", ",5", "1,000"});
}

TEST_F(CheckCounts, TakesTheLocalesSeparatorAndThePointBesideIt) {
    world.system.SetDecimalSeparator(',');
    ExpectPass({"1,5", "1,", "99,999", "1,5e1", "1.5", "100,0", "+1,5 "});
    ExpectOutsideTheRange({"100,5", "0,5", ",5", "100.5"});
    ExpectNotNumeric({"1.5,2", "1,5.2", "1,5,2", ",", "1.000,5", "1;5"});
}

TEST_F(CheckCounts, TracesTheStartOfEachCheck) {
    EXPECT_THAT(Traces([&] { checks.Check_Min("1"); }), ElementsAre("Trace mRules Check_Min Start"));
    EXPECT_THAT(Traces([&] { checks.Check_Max("1"); }), ElementsAre("Trace mRules Check_Max Start"));
    world.dialogs.ExpectMessage(kMinNotNumeric.message, kMinNotNumeric.title);
    EXPECT_THAT(Traces([&] { checks.Check_Min(""); }), ElementsAre("Trace mRules Check_Min Start"));
}

class VerifyMinMax : public ChecksTest {
  protected:
    void ExpectPasses(std::string_view min, std::string_view max) {
        SCOPED_TRACE(std::string(min) + " / " + std::string(max));
        Expect({}, [&] { return checks.Verify_MinMax(min, max); });
    }
    void ExpectFails(std::string_view min, std::string_view max) {
        SCOPED_TRACE(std::string(min) + " / " + std::string(max));
        Expect(kMinAboveMax, [&] { return checks.Verify_MinMax(min, max); });
    }
};

TEST_F(VerifyMinMax, TakesEqualCountsAlthoughTheMessageSaysLess) {
    ExpectPasses("1", "1");
    ExpectPasses("100", "1e2");
    ExpectPasses("5.0", "5");
    ExpectPasses(" 5", "+5 ");
}

TEST_F(VerifyMinMax, TakesAMinBelowTheMax) {
    ExpectPasses("1", "2");
    ExpectPasses("9", "10");
    ExpectPasses("1.25", "1.5");
}

TEST_F(VerifyMinMax, RefusesAMinAboveTheMax) {
    ExpectFails("5", "4");
    ExpectFails("10", "9");
    ExpectFails("1e1", "9");
    ExpectFails("1.5", "1.25");
    ExpectFails("1", "-1");
}

TEST_F(VerifyMinMax, ReadsTheLocalesSeparator) {
    world.system.SetDecimalSeparator(',');
    ExpectFails("1,5", "1,25");
    ExpectFails("1,5", "1.25");
    ExpectPasses("1,25", "1,5");
}

TEST_F(VerifyMinMax, TakesATextThatIsNoNumberForZero) {
    ExpectPasses("a", "1");
    ExpectPasses("", "");
    ExpectFails("1", "a");
    ExpectFails("1", "");
}

TEST_F(VerifyMinMax, TracesItsStart) {
    EXPECT_THAT(Traces([&] { checks.Verify_MinMax("1", "2"); }),
                ElementsAre("Trace mRules Verify_MinMax Start"));
}

} // namespace
} // namespace zy::test
