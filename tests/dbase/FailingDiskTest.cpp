// What is on the disk, and what is raised, when changing a table or building an index fails.

#include "FailingDisk.h"

namespace zy::dbase::test {
namespace {

// Writing the rows of a table that had some

class FailingReplacement : public FailingDisk {
  protected:
    FailingReplacement() {
        auto table = UserTable().Add(' ', {"ADA", "", "", "", ""});
        oldBytes = table.Bytes();
        known = {{oldBytes, "old"}, {table.Add(' ', {"BO", "", "", "", ""}).Bytes(), "new"}};
    }
    void Expect(const FaultPlan& how, const Table& table) {
        ExpectOutcomes(
            [this] {
                Put("U.DBF", oldBytes);
                AddUser("BO", "U");
            },
            [this] { database->Flush(); }, how, table);
    }
    std::string oldBytes;
};

TEST_F(FailingReplacement, KeepsTheOldRowsOrHasAllOfThem) {
    Expect({.cutShort = true},
           {{R"(CreatePrivate C:\SYS\U.$$$)", kDiskFailed, {"U.DBF: old"}},
            {R"(Write C:\SYS\U.$$$)", kDiskFailed, {"U.DBF: old"}},
            {R"(Flush C:\SYS\U.$$$)", kDiskFailed, {"U.DBF: old"}},
            {R"(Close C:\SYS\U.$$$)", kDiskFailed, {"U.DBF: old"}},
            {R"(CopyPermissions C:\SYS\U.DBF -> C:\SYS\U.$$$)", kDiskFailed, {"U.DBF: old"}},
            {R"(Delete C:\SYS\U.DBF)", kDiskFailed, {"U.DBF: old"}},
            {R"(Rename C:\SYS\U.$$$ -> C:\SYS\U.DBF)", kDiskFailed, {"U.$$$: new"}}});
}

TEST_F(FailingReplacement, LosesNoRowOnADiskThatGoesAway) {
    Expect({.lasting = true, .cutShort = true},
           {{R"(CreatePrivate C:\SYS\U.$$$)", kDiskFailed, {"U.DBF: old"}},
            {R"(Write C:\SYS\U.$$$)", kDiskFailed, {"U.$$$: half new", "U.DBF: old"}},
            {R"(Flush C:\SYS\U.$$$)", kDiskFailed, {"U.$$$: new", "U.DBF: old"}},
            {R"(Close C:\SYS\U.$$$)", kDiskFailed, {"U.$$$: new", "U.DBF: old"}},
            {R"(CopyPermissions C:\SYS\U.DBF -> C:\SYS\U.$$$)", kDiskFailed, {"U.$$$: new", "U.DBF: old"}},
            {R"(Delete C:\SYS\U.DBF)", kDiskFailed, {"U.$$$: new", "U.DBF: old"}},
            {R"(Rename C:\SYS\U.$$$ -> C:\SYS\U.DBF)", kDiskFailed, {"U.$$$: new"}}});
}

TEST_F(FailingReplacement, SaysWhereTheRowsStand) {
    Put("U.DBF", oldBytes);
    AddUser("BO", "U");
    world.files.Plan({.operation = 7});
    EXPECT_EQ(RaisedBy([&] { database->Flush(); }).Description(),
              R"(The table stands in 'C:\SYS\U.$$$': it could not be renamed to 'C:\SYS\U.DBF', )"
              "the disk reported an error.");
}

TEST_F(FailingReplacement, DoesNotOverwriteTheFileBesideTheTable) {
    Put("U.DBF", oldBytes);
    Put("U.$$$", "somebody's");
    AddUser("BO", "U");
    EXPECT_EQ(ErrorNumber([&] { database->Flush(); }), kTableExists);
    EXPECT_EQ(Get("U.DBF"), oldBytes);
    EXPECT_EQ(Get("U.$$$"), "somebody's");
}

// Building an index

class FailingIndex : public FailingDisk {
  protected:
    FailingIndex() { known = {{UserTable().Bytes(), "table"}}; }
    void Expect(const FaultPlan& how, const Table& table) {
        ExpectOutcomes([this] { Put("U.DBF", UserTable().Bytes()); },
                       [this] { Run("CREATE INDEX U ON U (USERID)"); }, how, table);
    }
};

TEST_F(FailingIndex, LeavesNoFileOfAnIndexThatCouldNotBeBuilt) {
    const std::vector<std::string> left{"U.DBF: table"};
    Expect({.cutShort = true}, {{R"(OpenForReading C:\SYS\U.DBF)", kDiskFailed, left},
                                {R"(Read C:\SYS\U.DBF)", kReadFailed, left},
                                {R"(CreatePrivate C:\SYS\U.NDX)", kDiskFailed, left},
                                {R"(Write C:\SYS\U.NDX)", kDiskFailed, left},
                                {R"(Flush C:\SYS\U.NDX)", kDiskFailed, left},
                                {R"(Close C:\SYS\U.NDX)", kDiskFailed, left},
                                {R"(CopyPermissions C:\SYS\U.DBF -> C:\SYS\U.NDX)", kDiskFailed, left}});
}

// What the file system may say

class RefusedOperation : public FailingDisk {
  protected:
    int CreateWith(FileError error) {
        world.files.Plan({.operation = 1, .error = error});
        return RaisedByRun(kCreateUsers).Number();
    }
};

TEST_F(RefusedOperation, HasANumberOfItsOwn) {
    EXPECT_EQ(CreateWith(FileError::DiskFull), kDiskFull);
    EXPECT_EQ(CreateWith(FileError::AccessDenied), kReadOnly);
    EXPECT_EQ(CreateWith(FileError::ReadOnly), kReadOnly);
    EXPECT_EQ(CreateWith(FileError::InUse), kInUse);
    EXPECT_EQ(CreateWith(FileError::IsFolder), kCannotOpen);
    EXPECT_EQ(CreateWith(FileError::NotFound), kBadPath);
    EXPECT_EQ(CreateWith(FileError::Exists), kTableExists);
    EXPECT_EQ(CreateWith(FileError::Other), kDiskFailed);
}

TEST_F(RefusedOperation, IsThatOfAFolderThatMayNotBeChanged) {
    world.files.SetFolderReadOnly(R"(C:\SYS)");
    const auto raised = RaisedByRun(kCreateUsers);
    EXPECT_EQ(raised.Number(), kReadOnly);
    EXPECT_EQ(raised.Description(), R"('C:\SYS\ZYSECURE.TMP' cannot be written: access is denied.)");
}

// A disk that is full at every byte of the users editor's save

TEST_F(FailingDisk, ThatIsFullIsNoticedBeforeTheOldTableIsDeleted) {
    const std::string oldTable = UserTable().Add(' ', {"OLD", "", "", "", ""}).Bytes();
    const std::size_t newSize = 194 + 60 * 3;
    for (std::size_t room = 0; room <= newSize; ++room) {
        world.files.Take(PathOf("ZYSECURE.TMP"));
        Put("ZYSECURE.DBF", oldTable);
        world.files.SetCapacity(oldTable.size() + room);
        database = Open();
        const int number = ErrorNumber([&] {
            Run(kCreateUsers);
            for (const auto* name : {"ADA", "BO", "CY"}) {
                engine.BeginTrans();
                AddUser(name, "ZYSECURE.TMP");
                engine.CommitTrans();
            }
            database->Flush();
        });
        EXPECT_EQ(number, room < newSize ? kDiskFull : 0) << room;
        EXPECT_EQ(Get("ZYSECURE.DBF"), oldTable);
    }
    EXPECT_EQ(RowsIn("ZYSECURE.TMP").size(), 3U);
}

} // namespace
} // namespace zy::dbase::test
