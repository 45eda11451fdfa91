// Where journals lie on Windows, who gets at them, and how passwords stand in them.

#include "platform/windows/WindowsJournals.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <windows.h>

#include <ctime>
#include <filesystem>
#include <string>
#include <vector>

#include "WindowsPermissions.h"
#include "platform/JournalFile.h"
#include "support/TemporaryFolder.h"
#include "support/WindowsHandles.h"

namespace zy::test {
namespace {

namespace fs = std::filesystem;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::MatchesRegex;
using ::testing::Not;
using ::testing::SizeIs;
using namespace std::string_literals;

constexpr auto kName = "users-20261122T140759000042Z-4711.journal";

class WindowsJournalsTest : public ::testing::Test {
  protected:
    std::vector<std::string> Names() const { return folder.Names("zysetup"); }
    /// The name of the only file.
    std::string Name() const {
        EXPECT_THAT(Names(), SizeIs(1));
        return "zysetup/" + Names().front();
    }
    std::string PathOf(const std::string& name) const { return folder.InsidePath("zysetup\\" + name); }
    void Put(const std::string& name, std::string_view bytes) {
        folder.AddFolder("zysetup");
        folder.Put("zysetup/" + name, bytes);
    }

    std::unique_ptr<Journal> Create(Secrecy secrecy = Secrecy::Passwords) {
        auto created = journals.Create("users", secrecy);
        EXPECT_EQ(created.error, FileError::None);
        return std::move(created.journal);
    }
    std::vector<std::unique_ptr<Journal>> Orphans(Secrecy secrecy = Secrecy::Passwords) {
        return journals.Orphans("users", secrecy);
    }

    std::string FileBytes() { return folder.Get(Name()).value_or("none"); }

    TemporaryFolder folder;
    WindowsJournals journals{folder.Path().wstring()};
};

// Where they lie, and who gets at them

TEST_F(WindowsJournalsTest, LiesInTheFolderGivenUnderItsKindTimeAndProcess) {
    const auto journal = Create();
    ASSERT_THAT(Names(), SizeIs(1));
    EXPECT_THAT(Names().front(), MatchesRegex("users-\\d\\d\\d\\d\\d\\d\\d\\dT\\d+Z-" +
                                              std::to_string(::GetCurrentProcessId()) + "\\.journal"));
}

TEST_F(WindowsJournalsTest, MakesNoFolderBeforeThereIsSomethingToNote) {
    EXPECT_THAT(Orphans(), IsEmpty());
    EXPECT_TRUE(fs::is_empty(folder.Path()));
}

TEST_F(WindowsJournalsTest, IsNotMadeWhereTheUserHasNoPlaceForIt) {
    EXPECT_EQ(WindowsJournals(L"").Create("users", Secrecy::None).error, FileError::NotFound);
    EXPECT_THAT(WindowsJournals(L"").Orphans("users", Secrecy::None), IsEmpty());
    const auto missing = (folder.Path() / "missing").wstring();
    EXPECT_EQ(WindowsJournals(missing).Create("users", Secrecy::None).error, FileError::NotFound);
    EXPECT_THAT(WindowsJournals(missing).Orphans("users", Secrecy::None), IsEmpty());
}

TEST_F(WindowsJournalsTest, SaysThatAFileStandsInTheWayOfItsFolder) {
    folder.Put("zysetup", "a file where the folder should be");
    EXPECT_EQ(journals.Create("users", Secrecy::Passwords).error, FileError::Exists);
    EXPECT_EQ(folder.Get("zysetup"), "a file where the folder should be");
}

TEST_F(WindowsJournalsTest, LiesBelowAFolderWhoseNameTheCodePageLacks) {
    const auto path = folder.Path() / L"\u0416";
    fs::create_directory(path);
    WindowsJournals below(path.wstring());
    EXPECT_EQ(below.Create("users", Secrecy::None).journal->Append("one"), FileError::None);
    EXPECT_EQ(below.Orphans("users", Secrecy::None).at(0)->Read(), "one");
}

TEST_F(WindowsJournalsTest, IsForTheUserAlone) {
    constexpr unsigned kReadWriteForOwner = 0600;
    Create();
    EXPECT_EQ(AccessFigures(folder.InsidePath("zysetup")), kReadWriteForOwner);
    EXPECT_EQ(AccessFigures(PathOf(Names().front())), kReadWriteForOwner);
}

TEST_F(WindowsJournalsTest, IsSharedWithNoOtherProgramWhileItIsHeld) {
    const auto journal = Create();
    const WindowsHandle aside(::CreateFileA(PathOf(Names().front()).c_str(), GENERIC_READ,
                                            FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                            OPEN_EXISTING, 0, nullptr));
    EXPECT_FALSE(aside);
    EXPECT_EQ(::GetLastError(), static_cast<DWORD>(ERROR_SHARING_VIOLATION));
}

TEST_F(WindowsJournalsTest, LeavesAloneWhatIsNoFileOfItsOwnName) {
    folder.AddFolder("zysetup/"s + kName);
    const std::vector<std::string> others{"notes.txt", "users-20261122T140759000042Z-4711.journal.bak",
                                          "users.journal"};
    for (const auto& name : others) {
        Put(name, "another program's");
    }
    Create(Secrecy::None);
    for (const auto& orphan : Orphans(Secrecy::None)) {
        EXPECT_EQ(orphan->Remove(), FileError::None);
    }
    EXPECT_EQ(Names(), others);
    EXPECT_TRUE(fs::is_directory(folder.Path("zysetup/"s + kName)));
}

// How passwords stand in them

TEST_F(WindowsJournalsTest, HoldsNoPasswordInClear) {
    EXPECT_EQ(Create()->Append("secret"), FileError::None);
    EXPECT_THAT(FileBytes(), Not(HasSubstr("secret")));
    EXPECT_EQ(Orphans().at(0)->Read(), "secret");
}

TEST_F(WindowsJournalsTest, HoldsNothingForAnEmptyPiece) {
    EXPECT_EQ(Create()->Append(""), FileError::None);
    EXPECT_EQ(FileBytes(), "");
}

TEST_F(WindowsJournalsTest, HoldsWhatIsNoPasswordAsItIs) {
    EXPECT_EQ(Create(Secrecy::None)->Append("kg"), FileError::None);
    EXPECT_EQ(FileBytes(), "kg");
}

TEST_F(WindowsJournalsTest, ReadsProtectedPiecesUpToTheFirstThatIsCut) {
    EXPECT_EQ(Create()->Append("one,"), FileError::None);
    const auto first = FileBytes().size();
    EXPECT_EQ(Orphans().at(0)->Append("two"), FileError::None);
    const auto bytes = FileBytes();
    for (std::size_t size = 0; size <= bytes.size(); ++size) {
        folder.Put(Name(), bytes.substr(0, size));
        const auto* const whole = size == bytes.size() ? "one,two" : size >= first ? "one," : "";
        ASSERT_EQ(Orphans().at(0)->Read(), whole) << size;
    }
}

TEST_F(WindowsJournalsTest, ReadsNoFurtherThanAPieceThatIsDamaged) {
    EXPECT_EQ(Create()->Append("one,"), FileError::None);
    const auto first = FileBytes().size();
    EXPECT_EQ(Orphans().at(0)->Append("two,"), FileError::None);
    const auto second = FileBytes().size();
    EXPECT_EQ(Orphans().at(0)->Append("three"), FileError::None);
    auto bytes = FileBytes();
    bytes[second - 1] = static_cast<char>(~bytes[second - 1]);
    folder.Put(Name(), bytes);
    EXPECT_EQ(Orphans().at(0)->Read(), "one,");
    for (std::size_t i = first; i < first + 4; ++i) {
        bytes[i] = '\xFF'; // no piece is that long
    }
    folder.Put(Name(), bytes);
    EXPECT_EQ(Orphans().at(0)->Read(), "one,");
}

TEST_F(WindowsJournalsTest, ReadsNoFurtherThanAPieceThatIsLongerThanTheFile) {
    EXPECT_EQ(Create()->Append("one,"), FileError::None);
    const auto first = FileBytes().size();
    EXPECT_EQ(Orphans().at(0)->Append("two"), FileError::None);
    auto bytes = FileBytes();
    ++bytes[first];
    folder.Put(Name(), bytes);
    EXPECT_EQ(Orphans().at(0)->Read(), "one,");
}

TEST_F(WindowsJournalsTest, ReadsNothingOfPasswordsThatWereNotProtected) {
    Put(kName, "\x06\0\0\0secret"s);
    EXPECT_EQ(Orphans().at(0)->Read(), "");
}

// What else is known of them

TEST_F(WindowsJournalsTest, ReadsNoMoreThanTheLargestJournalHas) {
    Put(kName, "");
    fs::resize_file(folder.Path("zysetup/"s + kName), kLargestJournal + 1);
    EXPECT_EQ(Orphans(Secrecy::None).at(0)->Read().size(), kLargestJournal);
}

TEST_F(WindowsJournalsTest, TellsInTheUsersTimeWhenItWasChanged) {
    Put(kName, "");
    const std::time_t changed = 2145920400; // later than the file was made
    fs::last_write_time(folder.Path("zysetup/"s + kName),
                        std::chrono::file_clock::from_sys(std::chrono::system_clock::from_time_t(changed)));
    // What the library takes the user's zone from first, and does not understand as other systems write it.
    ::_putenv("TZ=");
    ::_tzset();
    auto local = *std::localtime(&changed);
    EXPECT_EQ(Orphans().at(0)->LastChange(),
              std::chrono::local_seconds(std::chrono::seconds(::_mkgmtime(&local))));
}

TEST_F(WindowsJournalsTest, FingerprintsBySha256) {
    EXPECT_EQ(journals.Fingerprint(""), "e3b0c44298fc1c149afbf4c8996fb92427ae41e4649b934ca495991b7852b855");
    EXPECT_EQ(journals.Fingerprint("abc"),
              "ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad");
}

} // namespace
} // namespace zy::test
