// Places that could mean several files: nobody can tell whose table is read or replaced there.

#include "UsersTest.h"

namespace zy::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class UncertainPlaces : public UsersTest {
  protected:
    static constexpr std::string_view kLocation = R"(C:\SYS\ZYSECURE.ZYX)";

    /// The error of a path that is ambiguous.
    static void ExpectAmbiguous(const RuntimeError& error, std::string_view path) {
        EXPECT_EQ(error.Number(), 75);
        EXPECT_EQ(error.Description(), "Path/File access error: " + std::string(path) +
                                           " was not touched, names that differ by case alone stand side by "
                                           "side. Rename or remove all of them but one.");
    }
    /// No operation has touched a file from here on.
    void ForgetOperations() { world.files.Plan({}); }
    void ExpectNothingDone() { EXPECT_THAT(world.files.Operations().Lines(), IsEmpty()); }
};

TEST_F(UncertainPlaces, OfTheTableAreRefusedBeforeItIsLookedFor) {
    PutTable({User("ADMIN")});
    world.files.SetUncertain(kUsersTable, FileError::Ambiguous);
    ForgetOperations();
    ExpectAmbiguous(RaisedBy([&] { Start("@SECURITY"); }), kUsersTable);
    for (const auto& line : world.files.Operations().Lines()) {
        EXPECT_THAT(line, ::testing::Not(::testing::HasSubstr("ZYSECURE.DBF")));
    }
    EXPECT_FALSE(form().Visible());
}

TEST_F(UncertainPlaces, AreNamedAsPeopleNameThem) {
    PutTable({User("Ann")});
    world.files.SetUncertain(kUsersTable, FileError::Ambiguous);
    world.files.SetDisplayed(R"(C:\SYS)", "/home/u");
    ExpectAmbiguous(RaisedBy([&] { Start("@SECURITY"); }), "/home/u/ZYSECURE.DBF");
}

TEST_F(UncertainPlaces, OfAMissingTableAreRefusedToo) {
    world.files.SetUncertain(kUsersTable, FileError::Ambiguous);
    ExpectAmbiguous(RaisedBy([&] { Start("@SECURITY"); }), kUsersTable);
}

TEST_F(UncertainPlaces, OfAFolderOnTheWayAreRefused) {
    PutTable({User("Ann")}, R"(D:\SHARED\)");
    world.files.Put(kLocation, "ZYSECURE.SECURITYFILE=D:\\SHARED\\ZYSECURE.DBF\r\n");
    world.files.SetUncertain(R"(D:\SHARED)", FileError::AccessDenied);
    const auto error = RaisedBy([&] { Start("@SECURITY"); });
    EXPECT_EQ(error.Number(), 75);
    EXPECT_EQ(error.Description(),
              "Path/File access error: D:\\SHARED\\ZYSECURE.DBF was not touched, access is "
              "denied. Get the right to list the folders on the way to it.");
}

TEST_F(UncertainPlaces, OfTheLocationFileAreRefusedInThisEditorAlone) {
    PutTable({User("Ann")});
    world.files.SetUncertain(kLocation, FileError::Ambiguous);
    ExpectAmbiguous(RaisedBy([&] { Start("@SECURITY"); }), kLocation);
    EXPECT_EQ(Start("@UNITS"), StartUp::WindowShown);
}

TEST_F(UncertainPlaces, OfAnyFileOfASaveAreRefusedBeforeItsFirstStep) {
    StartOver({User("Ann")});
    LeaveTableUnwatched();
    Edit(1, kPassword, "new");
    for (const auto path : {kUsersTable, kUsersTemporary, kUsersIndex}) {
        world.files.SetUncertain(path, FileError::Ambiguous);
        ForgetOperations();
        ExpectAmbiguous(RaisedBy([&] { Save(); }), path);
        ExpectAmbiguous(RaisedBy([&] { ChooseSave(); }), path);
        ExpectNothingDone();
        world.files.SetUncertain(path, FileError::None);
    }
    Save();
    EXPECT_EQ(TableUsers()->front().PASSWORD, "new");
}

TEST_F(UncertainPlaces, OfATableOfAnotherNameAreRefusedAtASave) {
    PutTable({User("Ann")}, R"(D:\SHARED\)");
    ASSERT_EQ(world.files.Rename(R"(D:\SHARED\ZYSECURE.DBF)", R"(D:\SHARED\PEOPLE.DBF)"), FileError::None);
    world.files.Put(kLocation, "ZYSECURE.SECURITYFILE=D:\\SHARED\\PEOPLE.DBF\r\n");
    Start("@SECURITY");
    world.files.SetUncertain(R"(D:\SHARED\PEOPLE.DBF)", FileError::Ambiguous);
    ExpectAmbiguous(RaisedBy([&] { ChooseSave(); }), R"(D:\SHARED\PEOPLE.DBF)");
    EXPECT_THAT(world.files.Names(R"(D:\SHARED)"), ElementsAre("PEOPLE.DBF"));
}

TEST_F(UncertainPlaces, KeepATableWithoutUsersOutOfTheRecycleBin) {
    StartOver({User("Ann")});
    world.files.Put(kUsersIndex, "index");
    grid().Pick(1, 0);
    Delete(Answer::Yes);
    for (const auto path : {kUsersTable, kUsersIndex}) {
        world.files.SetUncertain(path, FileError::Ambiguous);
        EXPECT_EQ(RaisedBy([&] { Save(); }).Number(), 75);
        EXPECT_EQ(RaisedBy([&] { ChooseSave(); }).Number(), 75);
        EXPECT_THAT(world.files.Names(R"(C:\SYS)"), ElementsAre("ZYSECURE.DBF", "ZYSECURE.NDX"));
        world.files.SetUncertain(path, FileError::None);
    }
}

} // namespace
} // namespace zy::test
