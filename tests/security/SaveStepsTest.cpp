// What every step of a save leaves on the disk when it fails.

#include <utility>

#include "UsersTest.h"
#include "support/FailingOperations.h"

namespace zy::test {
namespace {

using ::testing::ElementsAreArray;
using Files = std::vector<std::string>;

/// A step that fails: the operation, the error's number and what is in the files afterwards.
struct Step {
    std::string failing;
    int number;
    Files files;
};
using Steps = std::vector<Step>;

// What may be on the disk

const Files kUntouched{"DBF: old", "NDX: old index"};
const Files kEmptyLeft{"DBF: old", "NDX: old index", "TMP: no users"};
const Files kHalfLeft{"DBF: old", "NDX: old index", "TMP: half new"};
const Files kSpareLeft{"DBF: old", "NDX: old index", "TMP: new"};
const Files kOnlyInTemporary{"NDX: old index", "TMP: new"};
const Files kStaleIndex{"DBF: new", "NDX: old index"};
const Files kNoIndex{"DBF: new"};
const Files kSaved{"DBF: new", "NDX: new index"};

class SaveSteps : public UsersTest {
  protected:
    SaveSteps() {
        BeginSave();
        known = {{Bytes("DBF"), "old"}, {Bytes("NDX"), "old index"}};
        world.files.Plan({.operation = 7});
        static_cast<void>(RaisedBy([&] { Save(); }));
        known.emplace_back(Bytes("TMP"), "no users");
        BeginSave();
        Save();
        known.emplace_back(Bytes("DBF"), "new");
        known.emplace_back(Bytes("NDX"), "new index");
    }

    void BeginSave() {
        world.files.Plan({});
        for (const auto path : {kUsersTable, kUsersTemporary, kUsersIndex}) {
            world.files.Take(path);
        }
        StartOver({User("Ann"), User("Bob")});
        LeaveTableUnwatched();
        world.files.Put(kUsersIndex, "index of the old table");
        Edit(1, kPassword, "new");
    }
    std::string Bytes(const std::string& extension) {
        return world.files.Get(R"(C:\SYS\ZYSECURE.)" + extension).value_or("no file");
    }
    std::string Content(const std::string& bytes) const {
        for (const auto& [text, name] : known) {
            if (bytes == text) {
                return name;
            }
        }
        const auto& [whole, name] = known[3];
        return bytes == whole.substr(0, whole.size() / 2) ? "half " + name : "part of a file";
    }
    Files Contents() {
        Files contents;
        for (const auto& name : world.files.Names(R"(C:\SYS)")) {
            const auto extension = name.substr(name.find('.') + 1);
            contents.push_back(extension + ": " + Content(Bytes(extension)));
        }
        return contents;
    }
    /// Goes through all steps of a save, each time from the same start; `how` says in which way they fail.
    void ExpectSteps(FaultPlan how, const Steps& steps) {
        how.cutShort = true;
        RuntimeError raised(0, "");
        const auto attempt = [&](const FaultPlan& plan) {
            BeginSave();
            world.files.Plan(plan);
            raised = RaisedBy([&] { Save(); });
        };
        FailOneByOne(world.files.Operations(), how, steps, attempt, [&](const Step& step) {
            EXPECT_EQ(raised.Number(), step.number) << raised.Description();
            EXPECT_THAT(Contents(), ElementsAreArray(step.files));
        });
        EXPECT_EQ(raised.Number(), 0) << raised.Description();
        EXPECT_EQ(Contents(), kSaved);
    }

    std::vector<std::pair<std::string, std::string>> known; ///< files that can be told by their bytes
};

TEST_F(SaveSteps, ThatFailOnceLeaveTheOldTableOrTheNewOneOrAllUsersInTheTemporaryOne) {
    ExpectSteps({}, {{R"(CreatePrivate C:\SYS\ZYSECURE.TMP)", 3043, kUntouched},
                     {R"(Write C:\SYS\ZYSECURE.TMP)", 3043, kUntouched},
                     {R"(Flush C:\SYS\ZYSECURE.TMP)", 3043, kUntouched},
                     {R"(Close C:\SYS\ZYSECURE.TMP)", 3043, kUntouched},
                     // The new table is then its owner's alone.
                     {R"(Exists C:\SYS\ZYSECURE.DBF)", 0, kSaved},
                     {R"(CopyPermissions C:\SYS\ZYSECURE.DBF -> C:\SYS\ZYSECURE.TMP)", 0, kSaved},
                     {R"(OpenForReading C:\SYS\ZYSECURE.TMP)", 3043, kEmptyLeft},
                     {R"(Read C:\SYS\ZYSECURE.TMP)", 3040, kEmptyLeft},
                     {R"(OpenForReading C:\SYS\ZYSECURE.TMP)", 3043, kEmptyLeft},
                     {R"(Read C:\SYS\ZYSECURE.TMP)", 3040, kEmptyLeft},
                     {R"(Exists C:\SYS\ZYSECURE.TMP)", 3044, kEmptyLeft},
                     {R"(Create C:\SYS\ZYSECURE.TMP)", 3043, kEmptyLeft},
                     {R"(Write C:\SYS\ZYSECURE.TMP)", 3043, kHalfLeft},
                     {R"(Flush C:\SYS\ZYSECURE.TMP)", 3043, kSpareLeft},
                     {R"(Close C:\SYS\ZYSECURE.TMP)", 3043, kSpareLeft},
                     {R"(Exists C:\SYS\ZYSECURE.DBF)", 75, kSpareLeft},
                     {R"(Rename C:\SYS\ZYSECURE.TMP -> C:\SYS\ZYSECURE.DBF)", 75, kOnlyInTemporary},
                     {R"(OpenForReading C:\SYS\ZYSECURE.DBF)", 3043, kStaleIndex},
                     {R"(Read C:\SYS\ZYSECURE.DBF)", 3040, kStaleIndex},
                     {R"(Exists C:\SYS\ZYSECURE.NDX)", 3284, kStaleIndex},
                     {R"(OpenForReading C:\SYS\ZYSECURE.DBF)", 3043, kNoIndex},
                     {R"(Read C:\SYS\ZYSECURE.DBF)", 3040, kNoIndex},
                     {R"(CreatePrivate C:\SYS\ZYSECURE.NDX)", 3043, kNoIndex},
                     {R"(Write C:\SYS\ZYSECURE.NDX)", 3043, kNoIndex},
                     {R"(Flush C:\SYS\ZYSECURE.NDX)", 3043, kNoIndex},
                     {R"(Close C:\SYS\ZYSECURE.NDX)", 3043, kNoIndex},
                     {R"(CopyPermissions C:\SYS\ZYSECURE.DBF -> C:\SYS\ZYSECURE.NDX)", 3043, kNoIndex}});
}

TEST_F(SaveSteps, OfADiskThatGoesAwayLeaveTheOldTableOrTheNewOneOrAllUsersInTheTemporaryOne) {
    const Files partLeft{"DBF: old", "NDX: old index", "TMP: part of a file"};
    const Files partOfIndex{"DBF: new", "NDX: part of a file"};
    ExpectSteps({.lasting = true},
                {{R"(CreatePrivate C:\SYS\ZYSECURE.TMP)", 3043, kUntouched},
                 {R"(Write C:\SYS\ZYSECURE.TMP)", 3043, partLeft},
                 {R"(Flush C:\SYS\ZYSECURE.TMP)", 3043, kEmptyLeft},
                 {R"(Close C:\SYS\ZYSECURE.TMP)", 3043, kEmptyLeft},
                 {R"(Exists C:\SYS\ZYSECURE.DBF)", 3043, kEmptyLeft},
                 {R"(CopyPermissions C:\SYS\ZYSECURE.DBF -> C:\SYS\ZYSECURE.TMP)", 3043, kEmptyLeft},
                 {R"(OpenForReading C:\SYS\ZYSECURE.TMP)", 3043, kEmptyLeft},
                 {R"(Read C:\SYS\ZYSECURE.TMP)", 3040, kEmptyLeft},
                 {R"(OpenForReading C:\SYS\ZYSECURE.TMP)", 3043, kEmptyLeft},
                 {R"(Read C:\SYS\ZYSECURE.TMP)", 3040, kEmptyLeft},
                 {R"(Exists C:\SYS\ZYSECURE.TMP)", 3044, kEmptyLeft},
                 {R"(Create C:\SYS\ZYSECURE.TMP)", 3043, kEmptyLeft},
                 {R"(Write C:\SYS\ZYSECURE.TMP)", 3043, kHalfLeft},
                 {R"(Flush C:\SYS\ZYSECURE.TMP)", 3043, kSpareLeft},
                 {R"(Close C:\SYS\ZYSECURE.TMP)", 3043, kSpareLeft},
                 {R"(Exists C:\SYS\ZYSECURE.DBF)", 75, kSpareLeft},
                 {R"(Rename C:\SYS\ZYSECURE.TMP -> C:\SYS\ZYSECURE.DBF)", 75, kOnlyInTemporary},
                 {R"(OpenForReading C:\SYS\ZYSECURE.DBF)", 3043, kStaleIndex},
                 {R"(Read C:\SYS\ZYSECURE.DBF)", 3040, kStaleIndex},
                 {R"(Exists C:\SYS\ZYSECURE.NDX)", 3043, kStaleIndex},
                 {R"(OpenForReading C:\SYS\ZYSECURE.DBF)", 3043, kNoIndex},
                 {R"(Read C:\SYS\ZYSECURE.DBF)", 3040, kNoIndex},
                 {R"(CreatePrivate C:\SYS\ZYSECURE.NDX)", 3043, kNoIndex},
                 {R"(Write C:\SYS\ZYSECURE.NDX)", 3043, partOfIndex},
                 {R"(Flush C:\SYS\ZYSECURE.NDX)", 3043, kSaved},
                 {R"(Close C:\SYS\ZYSECURE.NDX)", 3043, kSaved},
                 {R"(CopyPermissions C:\SYS\ZYSECURE.DBF -> C:\SYS\ZYSECURE.NDX)", 3043, kSaved}});
}

} // namespace
} // namespace zy::test
