// A disk in memory that is made to fail.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <string>

#include "platform/memory/MemoryFileSystem.h"

namespace zy::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Optional;
using namespace std::string_literals;

class MemoryFaults : public ::testing::Test {
  protected:
    MemoryFaults() {
        disk.Put(R"(\SYS\a.sys)", "12345678");
        disk.Put(R"(\SYS\b.sys)", "");
    }

    /// One of each operation: what each of them reports, in their order.
    std::vector<FileError> DoEverything() {
        std::vector<FileError> results;
        results.push_back(disk.Exists(R"(\SYS\a.sys)") ? FileError::None : FileError::Other);
        auto read = disk.OpenForReading(R"(\SYS\a.sys)");
        results.push_back(read.error);
        results.push_back(read.handle && ReadFour(*read.handle) == 4 ? FileError::None : FileError::Other);
        results.push_back(read.handle ? read.handle->Close() : FileError::Other);
        auto written = disk.Create(R"(\SYS\new.tmp)");
        results.push_back(written.error);
        results.push_back(written.handle ? written.handle->Write("123456") : FileError::Other);
        results.push_back(written.handle ? written.handle->Flush() : FileError::Other);
        results.push_back(written.handle ? written.handle->Close() : FileError::Other);
        results.push_back(disk.CopyPermissions(R"(\SYS\a.sys)", R"(\SYS\b.sys)"));
        results.push_back(disk.Delete(R"(\SYS\a.sys)"));
        results.push_back(disk.Rename(R"(\SYS\b.sys)", R"(\SYS\c.sys)"));
        results.push_back(disk.MakePrivateFolder(R"(\SYS\deep)"));
        results.push_back(disk.FilesIn(R"(\SYS)").empty() ? FileError::Other : FileError::None);
        return results;
    }

    static std::size_t ReadFour(FileHandle& file) {
        std::array<char, 4> buffer{};
        return file.Read(buffer);
    }

    MemoryFileSystem disk{Windows1252()};
};

constexpr std::size_t kOperations = 13;

TEST_F(MemoryFaults, DoNotComeWithoutAPlan) {
    EXPECT_THAT(DoEverything(), ::testing::Each(FileError::None));
    EXPECT_EQ(disk.Operations().Faults(), 0U);
}

TEST_F(MemoryFaults, AreCountedOverEveryOperation) {
    disk.Plan({});
    DoEverything();
    EXPECT_EQ(disk.Operations().Count(), kOperations);
}

TEST_F(MemoryFaults, LeaveARecordOfEveryOperationInItsOrder) {
    disk.Plan({});
    DoEverything();
    EXPECT_THAT(disk.Operations().Lines(),
                ElementsAre(R"(Exists \SYS\a.sys)", R"(OpenForReading \SYS\a.sys)", R"(Read \SYS\a.sys)",
                            R"(Close \SYS\a.sys)", R"(Create \SYS\new.tmp)", R"(Write \SYS\new.tmp)",
                            R"(Flush \SYS\new.tmp)", R"(Close \SYS\new.tmp)",
                            R"(CopyPermissions \SYS\a.sys -> \SYS\b.sys)", R"(Delete \SYS\a.sys)",
                            R"(Rename \SYS\b.sys -> \SYS\c.sys)", R"(MakePrivateFolder \SYS\deep)",
                            R"(FilesIn \SYS)"));
}

TEST_F(MemoryFaults, StrikeEachKindOfOperation) {
    for (std::size_t operation = 1; operation <= kOperations; ++operation) {
        disk.Put(R"(\SYS\a.sys)", "12345678");
        disk.Put(R"(\SYS\b.sys)", "");
        disk.Take(R"(\SYS\c.sys)");
        disk.Plan({.operation = operation, .lasting = true});
        const auto results = DoEverything();
        for (std::size_t i = 0; i < results.size(); ++i) {
            EXPECT_EQ(results[i] != FileError::None, i + 1 >= operation)
                << "operation " << i + 1 << " of " << operation;
        }
    }
}

TEST_F(MemoryFaults, StrikeOnceUnlessTheyLast) {
    disk.Plan({.operation = 2});
    EXPECT_TRUE(disk.Exists(R"(\SYS\a.sys)"));
    EXPECT_FALSE(disk.Exists(R"(\SYS\a.sys)"));
    EXPECT_TRUE(disk.Exists(R"(\SYS\a.sys)"));
    EXPECT_EQ(disk.Operations().Faults(), 1U);
}

TEST_F(MemoryFaults, GoOnWhenTheyLast) {
    disk.Plan({.operation = 2, .lasting = true});
    EXPECT_TRUE(disk.Exists(R"(\SYS\a.sys)"));
    EXPECT_FALSE(disk.Exists(R"(\SYS\a.sys)"));
    EXPECT_FALSE(disk.Exists(R"(\SYS\a.sys)"));
    EXPECT_EQ(disk.Operations().Faults(), 2U);
}

TEST_F(MemoryFaults, AreCountedAnewWithEachPlan) {
    disk.Exists(R"(\SYS\a.sys)");
    disk.Plan({.operation = 1});
    EXPECT_FALSE(disk.Exists(R"(\SYS\a.sys)"));
    EXPECT_THAT(disk.Operations().Lines(), ElementsAre(R"(Exists \SYS\a.sys: the disk reported an error)"));
    disk.Plan({});
    EXPECT_TRUE(disk.Exists(R"(\SYS\a.sys)"));
    EXPECT_EQ(disk.Operations().Faults(), 0U);
}

TEST_F(MemoryFaults, CarryTheErrorOfThePlan) {
    disk.Plan({.operation = 1, .error = FileError::InUse});
    EXPECT_EQ(disk.Delete(R"(\SYS\a.sys)"), FileError::InUse);
    EXPECT_THAT(disk.Operations().Lines(), ElementsAre(R"(Delete \SYS\a.sys: another program is using it)"));
}

TEST_F(MemoryFaults, ChangeNothing) {
    for (const auto& operation :
         {+[](MemoryFileSystem& d) { return d.Delete(R"(\SYS\a.sys)"); },
          +[](MemoryFileSystem& d) { return d.MakePrivateFolder(R"(\SYS\deep)"); },
          +[](MemoryFileSystem& d) { return d.Rename(R"(\SYS\a.sys)", R"(\SYS\c.sys)"); },
          +[](MemoryFileSystem& d) { return d.Create(R"(\SYS\a.sys)").error; }}) {
        disk.Plan({.operation = 1});
        EXPECT_EQ(operation(disk), FileError::Other);
        EXPECT_THAT(disk.Get(R"(\SYS\a.sys)"), Optional("12345678"s));
        EXPECT_THAT(disk.Names(R"(\SYS)"), ElementsAre("a.sys", "b.sys"));
        EXPECT_FALSE(disk.PathExists(R"(\SYS\deep)"));
    }
}

TEST_F(MemoryFaults, LeaveNothingOfAWriteBehind) {
    const auto file = disk.Create(R"(\SYS\new.tmp)").handle;
    disk.Plan({.operation = 1});
    EXPECT_EQ(file->Write("123456"), FileError::Other);
    EXPECT_THAT(disk.Get(R"(\SYS\new.tmp)"), Optional(""s));
}

TEST_F(MemoryFaults, LeaveHalfOfAWriteBehindWhenItIsCutShort) {
    const auto file = disk.Create(R"(\SYS\new.tmp)").handle;
    disk.Plan({.operation = 1, .cutShort = true, .error = FileError::DiskFull});
    EXPECT_EQ(file->Write("1234567"), FileError::DiskFull);
    EXPECT_THAT(disk.Get(R"(\SYS\new.tmp)"), Optional("123"s));
    EXPECT_EQ(file->Write("x"), FileError::None);
    EXPECT_THAT(disk.Get(R"(\SYS\new.tmp)"), Optional("123x"s));
}

TEST_F(MemoryFaults, CloseAFileWhoseCloseFails) {
    const auto file = disk.Create(R"(\SYS\new.tmp)").handle;
    file->Write("123");
    disk.Plan({.operation = 1});
    EXPECT_EQ(file->Close(), FileError::Other);
    EXPECT_EQ(file->Write("x"), FileError::Other);
    EXPECT_THAT(disk.Get(R"(\SYS\new.tmp)"), Optional("123"s));
}

TEST_F(MemoryFaults, DoNotStrikeTheVerbsOfATest) {
    disk.Plan({.operation = 1, .lasting = true});
    disk.Put(R"(\SYS\c.sys)", "x");
    EXPECT_THAT(disk.Get(R"(\SYS\c.sys)"), Optional("x"s));
    EXPECT_EQ(disk.Operations().Count(), 0U);
    EXPECT_THAT(disk.Operations().Lines(), IsEmpty());
}

} // namespace
} // namespace zy::test
