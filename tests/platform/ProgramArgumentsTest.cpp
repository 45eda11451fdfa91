#include "platform/windows/ProgramArguments.h"

#include <gtest/gtest.h>

namespace zy::test {
namespace {

TEST(ProgramArguments, AreWhatStandsBehindTheProgramsName) {
    EXPECT_EQ(ProgramArguments(R"(C:\ZY\zyGlobal.exe @RULES)"), "@RULES");
    EXPECT_EQ(ProgramArguments(R"("C:\Program Files\zyGlobal.exe" @RULES)"), "@RULES");
    EXPECT_EQ(ProgramArguments("zyGlobal\t@UNITS"), "@UNITS");
}

TEST(ProgramArguments, LoseTheBlanksBeforeThemAlone) {
    EXPECT_EQ(ProgramArguments("\"zyGlobal.exe\"   @rules  x "), "@rules  x ");
    EXPECT_EQ(ProgramArguments("zyGlobal.exe @RULES "), "@RULES ");
}

TEST(ProgramArguments, KeepTheirQuotes) {
    EXPECT_EQ(ProgramArguments(R"(zyGlobal.exe "@RULES")"), R"("@RULES")");
}

TEST(ProgramArguments, MayFollowTheClosingQuoteAtOnce) {
    EXPECT_EQ(ProgramArguments(R"("zyGlobal.exe"@RULES)"), "@RULES");
}

TEST(ProgramArguments, AreEmptyWhereThereAreNone) {
    for (const char* line : {"", "zyGlobal.exe", "zyGlobal.exe  ", "\"zyGlobal.exe\"", "\"zyGlobal.exe\" ",
                             "\"zyGlobal.exe @RULES", "\""}) {
        EXPECT_EQ(ProgramArguments(line), "") << line;
    }
}

} // namespace
} // namespace zy::test
