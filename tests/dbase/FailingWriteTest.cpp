// What is on the disk, and what is raised, when writing a new table fails.

#include "FailingDisk.h"

namespace zy::dbase::test {
namespace {

using ::testing::ElementsAre;

// Creating a table

class FailingCreate : public FailingDisk {
  protected:
    FailingCreate() { known = {{UserTable().Bytes(), "new"}}; }
    void Expect(const FaultPlan& how, const Table& table) {
        ExpectOutcomes([] {}, [this] { Run(kCreateUsers); }, how, table);
    }
};

TEST_F(FailingCreate, LeavesNoFileOfATableThatCouldNotBeCreated) {
    Expect({.cutShort = true}, {{R"(CreatePrivate C:\SYS\ZYSECURE.TMP)", kDiskFailed, {}},
                                {R"(Write C:\SYS\ZYSECURE.TMP)", kDiskFailed, {}},
                                {R"(Flush C:\SYS\ZYSECURE.TMP)", kDiskFailed, {}},
                                {R"(Close C:\SYS\ZYSECURE.TMP)", kDiskFailed, {}}});
}

TEST_F(FailingCreate, LeavesTheFileThatADiskThatHasGoneAwayDoesNotDelete) {
    Expect({.lasting = true, .cutShort = true},
           {{R"(CreatePrivate C:\SYS\ZYSECURE.TMP)", kDiskFailed, {}},
            {R"(Write C:\SYS\ZYSECURE.TMP)", kDiskFailed, {"ZYSECURE.TMP: half new"}},
            {R"(Flush C:\SYS\ZYSECURE.TMP)", kDiskFailed, {"ZYSECURE.TMP: new"}},
            {R"(Close C:\SYS\ZYSECURE.TMP)", kDiskFailed, {"ZYSECURE.TMP: new"}}});
}

// Writing the rows of a table that had none

class FailingFlush : public FailingDisk {
  protected:
    FailingFlush() {
        known = {{UserTable().Bytes(), "empty"},
                 {UserTable().Add(' ', {"ADA", "", "", "", ""}).Bytes(), "new"}};
    }
    void Expect(const FaultPlan& how, const Table& table) {
        ExpectOutcomes(
            [this] {
                Run(kCreateUsers);
                AddUser("ADA", "ZYSECURE.TMP");
            },
            [this] { database->Flush(); }, how, table);
    }
};

TEST_F(FailingFlush, LeavesAFreshTableEmptyOrCutShort) {
    const Table table{{R"(Exists C:\SYS\ZYSECURE.TMP)", kBadPath, {"ZYSECURE.TMP: empty"}},
                      {R"(Create C:\SYS\ZYSECURE.TMP)", kDiskFailed, {"ZYSECURE.TMP: empty"}},
                      {R"(Write C:\SYS\ZYSECURE.TMP)", kDiskFailed, {"ZYSECURE.TMP: half new"}},
                      {R"(Flush C:\SYS\ZYSECURE.TMP)", kDiskFailed, {"ZYSECURE.TMP: new"}},
                      {R"(Close C:\SYS\ZYSECURE.TMP)", kDiskFailed, {"ZYSECURE.TMP: new"}}};
    Expect({.cutShort = true}, table);
    Expect({.lasting = true, .cutShort = true}, table);
}

TEST_F(FailingFlush, KeepsTheRowsForTheNextAttempt) {
    for (std::size_t operation = 1; operation <= 5; ++operation) {
        world.files.Take(PathOf("ZYSECURE.TMP"));
        database = Open();
        Run(kCreateUsers);
        AddUser("ADA", "ZYSECURE.TMP");
        world.files.Plan({.operation = operation, .cutShort = true});
        EXPECT_NE(ErrorNumber([&] { database->Flush(); }), 0);
        database->Flush();
        EXPECT_EQ(RowsIn("ZYSECURE.TMP").size(), 1U);
    }
}

TEST_F(FailingFlush, LetsARowFollowOnThoseThatItKeeps) {
    Run(kCreateUsers);
    AddUser("ADA", "ZYSECURE.TMP");
    world.files.Plan({.operation = 3});
    EXPECT_EQ(ErrorNumber([&] { database->Flush(); }), kDiskFailed);
    AddUser("BO", "ZYSECURE.TMP");
    database->Flush();
    EXPECT_EQ(Get("ZYSECURE.TMP"),
              UserTable().Add(' ', {"ADA", "", "", "", ""}).Add(' ', {"BO", "", "", "", ""}).Bytes());
}

TEST_F(FailingFlush, ShowsInWhateverWritesTheRows) {
    const std::vector<std::function<void()>> actions{
        [this] { database->Close(); }, [this] { RowsIn("ZYSECURE.TMP"); },
        [this] { Run("CREATE INDEX I ON [ZYSECURE.TMP] (USERID)"); }};
    for (const auto& action : actions) {
        world.files.Take(PathOf("ZYSECURE.TMP"));
        database = Open();
        Run(kCreateUsers);
        AddUser("ADA", "ZYSECURE.TMP");
        world.files.Plan({.operation = 3, .error = FileError::DiskFull});
        const auto raised = RaisedBy(action);
        EXPECT_EQ(raised.Number(), kDiskFull);
        EXPECT_EQ(raised.Description(), R"('C:\SYS\ZYSECURE.TMP' cannot be written: the disk is full.)");
        EXPECT_THAT(Names(), ElementsAre("ZYSECURE.TMP"));
    }
}

TEST_F(FailingFlush, ClosesTheDatabaseAllTheSame) {
    Run(kCreateUsers);
    AddUser("ADA", "ZYSECURE.TMP");
    world.files.Plan({.operation = 3});
    EXPECT_EQ(ErrorNumber([&] { database->Close(); }), kDiskFailed);
    EXPECT_EQ(ErrorNumber([&] { database->Close(); }), kClosed);
    database = Open();
    world.files.Plan({});
    database->Close();
    EXPECT_THAT(world.files.Operations().Lines(), ::testing::IsEmpty()) << "nothing is left to be written";
}

} // namespace
} // namespace zy::dbase::test
