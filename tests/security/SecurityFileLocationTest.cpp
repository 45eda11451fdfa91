#include "security/SecurityFileLocation.h"

#include "basics/RuntimeError.h"
#include "support/WorldTest.h"

namespace zy {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class SecurityFileLocationTest : public test::WorldTest {
  protected:
    static constexpr auto kSettings = R"(C:\SYS\ZYSECURE.ZYX)";
    static constexpr auto kDefault = R"(C:\SYS\ZYSECURE.DBF)";

    std::string Location() { return SecurityFileLocation(world.files, world.system, world.codePage, trace); }

    std::string LocationIn(std::string_view settings) {
        world.files.Put(kSettings, settings);
        return Location();
    }

    /// With the value behind the key.
    std::string LocationOf(std::string_view value) {
        return LocationIn("ZYSECURE.SECURITYFILE=" + std::string(value) + "\r\n");
    }

    TraceChannel trace{world.traceServers, "zyGlobal"};
};

TEST_F(SecurityFileLocationTest, IsTheTableInTheSystemDirectoryWithoutASettingsFile) {
    EXPECT_EQ(Location(), kDefault);
    EXPECT_THAT(world.files.Names(R"(C:\SYS)"), IsEmpty());
}

TEST_F(SecurityFileLocationTest, IsTheTableInTheSystemDirectoryWithoutTheKey) {
    EXPECT_EQ(LocationIn("[ZYSECURE]\r\nSECURITYFILE=D:\\X.DBF\r\nZYSECURE.SECURITYFILES=D:\\Y.DBF\r\n"),
              kDefault);
}

TEST_F(SecurityFileLocationTest, IsTheValueOfTheKey) {
    EXPECT_EQ(LocationOf(R"(D:\DATA\USERS.DBF)"), R"(D:\DATA\USERS.DBF)");
}

TEST_F(SecurityFileLocationTest, LosesTheDoubleQuotesAroundIt) {
    EXPECT_EQ(LocationOf(R"("D:\My Data\USERS.DBF")"), R"(D:\MY DATA\USERS.DBF)");
}

TEST_F(SecurityFileLocationTest, ComesOutInCapitalsAsTheCodePageDefinesThem) {
    EXPECT_EQ(LocationOf("d:\\b\xFC"
                         "ro\\users.dbf"),
              "D:\\B\xDCRO\\USERS.DBF");
}

TEST_F(SecurityFileLocationTest, LosesTheBlanksAroundIt) {
    EXPECT_EQ(LocationOf(R"(   D:\X.DBF   )"), R"(D:\X.DBF)");
    EXPECT_EQ(LocationOf(R"("  D:\X.DBF  ")"), R"(D:\X.DBF)");
}

TEST_F(SecurityFileLocationTest, IsTheLastOfSeveralValues) {
    EXPECT_EQ(LocationIn("ZYSECURE.SECURITYFILE=C:\\1\r\n"
                         "ZYSECURE.SECURITYFILE=C:\\2\r\n"
                         "OTHER=C:\\3\r\n"),
              R"(C:\2)");
}

TEST_F(SecurityFileLocationTest, IsFoundUnderAnyHeaderAndInAnyCase) {
    EXPECT_EQ(LocationIn("; where the users are\r\n[Files]\r\n  ZySecure.SecurityFile \t= C:\\1\r\n"),
              R"(C:\1)");
}

TEST_F(SecurityFileLocationTest, IsEmptyForAnEmptyValueAndForQuotesAroundNothing) {
    EXPECT_EQ(LocationOf(""), "");
    EXPECT_EQ(LocationOf(R"("")"), "");
}

TEST_F(SecurityFileLocationTest, IsEmptyForADoubleQuoteAlone) {
    EXPECT_EQ(LocationOf("\""), "");
}

TEST_F(SecurityFileLocationTest, LosesItsLastCharacterWithTheFirstQuoteWhateverItIs) {
    EXPECT_EQ(LocationOf(R"("D:\X.DBF)"), R"(D:\X.DB)");
    EXPECT_EQ(LocationOf(R"("D:\X" ; users)"), R"(D:\X" ; USER)");
}

TEST_F(SecurityFileLocationTest, KeepsAQuoteThatIsNotItsFirstCharacter) {
    EXPECT_EQ(LocationOf(R"(D:\X")"), R"(D:\X")");
}

TEST_F(SecurityFileLocationTest, KeepsEqualSigns) {
    EXPECT_EQ(LocationOf(R"(D:\A=B\X.DBF)"), R"(D:\A=B\X.DBF)");
}

TEST_F(SecurityFileLocationTest, IsNotTakenFromALineWithoutALineEnd) {
    EXPECT_EQ(LocationIn("ZYSECURE.SECURITYFILE=D:\\X.DBF"), kDefault);
}

TEST_F(SecurityFileLocationTest, IsTheTableInTheSystemDirectoryWhenTheSettingsCannotBeRead) {
    world.files.SetUnreadable(kSettings);
    EXPECT_EQ(LocationOf(R"(D:\X.DBF)"), kDefault);
}

TEST_F(SecurityFileLocationTest, IsInCapitalsAlsoWhenTheSystemDirectoryIsNot) {
    world.system.SetSystemDirectory(std::string_view("c:\\sys\0rest", 11));
    EXPECT_EQ(Location(), kDefault);
    world.files.Put(kSettings, "ZYSECURE.SECURITYFILE=x\r\n");
    EXPECT_EQ(Location(), "X");
}

TEST_F(SecurityFileLocationTest, TracesItsStartAndNothingElse) {
    world.traceServers.SetRunning(true);
    LocationOf("x");
    EXPECT_THAT(world.traceServers.Records(),
                ElementsAre(TraceRecord{"zyGlobal", "mSecurity", "SecurityFileLocation", "Start"}));
}

TEST_F(SecurityFileLocationTest, LeavesTheSettingsFileAsItIs) {
    LocationOf("x");
    EXPECT_EQ(world.files.Get(kSettings), "ZYSECURE.SECURITYFILE=x\r\n");
    EXPECT_THAT(world.files.Names(R"(C:\SYS)"), ElementsAre("ZYSECURE.ZYX"));
}

TEST_F(SecurityFileLocationTest, IsFoundBehind32766LinesAndAnOverflowBehindMore) {
    std::string lines;
    for (int i = 0; i < 32'766; ++i) {
        lines += "k=v\r\n";
    }
    EXPECT_EQ(LocationIn(lines + "ZYSECURE.SECURITYFILE=x\r\n"), "X");
    try {
        LocationIn(lines + "k=v\r\nZYSECURE.SECURITYFILE=x\r\n");
        ADD_FAILURE() << "32,768 lines were walked";
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.Number(), 6);
    }
}

} // namespace
} // namespace zy
