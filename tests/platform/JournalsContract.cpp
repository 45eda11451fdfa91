// What all Journals promise, whatever they stand on.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "ContractWorlds.h"
#include "platform/memory/MemoryJournals.h"

namespace zy::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;
using namespace std::string_literals;

class MemoryJournalPlace final : public JournalPlace {
  public:
    Journals& Session() override { return journals_; }
    Journals& OtherSession() override { return journals_; }

  private:
    MemoryJournals journals_;
};

struct JournalsKind {
    const char* name;
    std::unique_ptr<JournalPlace> (*make)();
    Secrecy secrecy;
};

void PrintTo(const JournalsKind& kind, std::ostream* out) {
    *out << kind.name;
}

class JournalsContract : public ::testing::TestWithParam<JournalsKind> {
  protected:
    std::unique_ptr<Journal> Create(std::string_view kind = "units") {
        auto created = place->Session().Create(kind, GetParam().secrecy);
        EXPECT_EQ(created.error, FileError::None);
        return std::move(created.journal);
    }

    /// Leaves a journal behind, as a session does that ends.
    void Leave(std::string_view bytes, std::string_view kind = "units") {
        EXPECT_EQ(Create(kind)->Append(bytes), FileError::None);
    }

    /// What another session finds.
    std::vector<std::unique_ptr<Journal>> Orphans(std::string_view kind = "units") {
        return place->OtherSession().Orphans(kind, GetParam().secrecy);
    }

    std::vector<std::string> BytesOfOrphans(std::string_view kind = "units") {
        std::vector<std::string> bytes;
        for (const auto& orphan : Orphans(kind)) {
            bytes.push_back(orphan->Read());
        }
        return bytes;
    }

    std::unique_ptr<JournalPlace> place = GetParam().make();
};

std::unique_ptr<JournalPlace> MemoryPlace() {
    return std::make_unique<MemoryJournalPlace>();
}

INSTANTIATE_TEST_SUITE_P(Places, JournalsContract,
                         ::testing::Values(JournalsKind{"OverMemory", MemoryPlace, Secrecy::None},
                                           JournalsKind{kOverSystem, SystemJournalPlace, Secrecy::None},
                                           JournalsKind{kForPasswordsOverSystem, SystemJournalPlace,
                                                        Secrecy::Passwords}),
                         [](const auto& test) { return test.param.name; });

TEST_P(JournalsContract, FindsNoneAtFirst) {
    EXPECT_THAT(Orphans(), IsEmpty());
}

TEST_P(JournalsContract, MakesAnEmptyOne) {
    EXPECT_EQ(Create()->Read(), "");
}

TEST_P(JournalsContract, ReadsPieceBehindPieceAsOftenAsAsked) {
    const auto journal = Create();
    std::string all;
    for (const auto& piece : {"first"s, ""s, "\0\x1A\r\n\xFF"s, std::string(100000, 'x')}) {
        EXPECT_EQ(journal->Append(piece), FileError::None);
        all += piece;
        EXPECT_EQ(journal->Read(), all);
        EXPECT_EQ(journal->Read(), all);
    }
}

TEST_P(JournalsContract, GivesALaterSessionWhatWasNoted) {
    const auto bytes = "a\0\x1A\r\n\xFF"s;
    Leave(bytes);
    EXPECT_THAT(BytesOfOrphans(), ElementsAre(bytes));
    EXPECT_THAT(BytesOfOrphans(), ElementsAre(bytes));
}

TEST_P(JournalsContract, NotesBehindWhatASessionBeforeNoted) {
    Leave("one,");
    {
        const auto orphans = Orphans();
        ASSERT_THAT(orphans, SizeIs(1));
        EXPECT_EQ(orphans.front()->Append("two,"), FileError::None);
        EXPECT_EQ(orphans.front()->Read(), "one,two,");
        EXPECT_EQ(orphans.front()->Append("three"), FileError::None);
    }
    EXPECT_THAT(BytesOfOrphans(), ElementsAre("one,two,three"));
}

TEST_P(JournalsContract, LeavesOutOneThatALivingSessionHolds) {
    Leave("left");
    const auto held = Create();
    EXPECT_EQ(held->Append("held"), FileError::None);
    EXPECT_THAT(BytesOfOrphans(), ElementsAre("left"));
}

TEST_P(JournalsContract, HoldsOneThatWasFoundAsLongAsItExists) {
    Leave("left");
    auto orphans = Orphans();
    ASSERT_THAT(orphans, SizeIs(1));
    EXPECT_THAT(place->Session().Orphans("units", GetParam().secrecy), IsEmpty());
    EXPECT_THAT(Orphans(), IsEmpty());
    orphans.clear();
    EXPECT_THAT(Orphans(), SizeIs(1));
}

TEST_P(JournalsContract, GivesTheLatestFirst) {
    for (const char* bytes : {"first", "second", "third"}) {
        Leave(bytes);
    }
    EXPECT_THAT(BytesOfOrphans(), ElementsAre("third", "second", "first"));
}

TEST_P(JournalsContract, KeepsTheNotesOfOneSessionApart) {
    std::vector<std::unique_ptr<Journal>> journals;
    std::vector<std::string> expected;
    for (int i = 0; i < 50; ++i) {
        journals.push_back(Create());
        EXPECT_EQ(journals.back()->Append(std::to_string(i)), FileError::None);
        expected.insert(expected.begin(), std::to_string(i));
    }
    journals.clear();
    EXPECT_EQ(BytesOfOrphans(), expected);
}

TEST_P(JournalsContract, KeepsTheKindsApart) {
    Leave("kg", "units");
    Leave("1", "rules");
    EXPECT_THAT(BytesOfOrphans("units"), ElementsAre("kg"));
    EXPECT_THAT(BytesOfOrphans("rules"), ElementsAre("1"));
    for (const char* other : {"users", "unit", "nits", ""}) {
        EXPECT_THAT(Orphans(other), IsEmpty()) << other;
    }
}

TEST_P(JournalsContract, RemovesItsOwn) {
    Leave("another's");
    const auto journal = Create();
    EXPECT_EQ(journal->Append("one"), FileError::None);
    EXPECT_EQ(journal->Remove(), FileError::None);
    EXPECT_THAT(BytesOfOrphans(), ElementsAre("another's"));
}

TEST_P(JournalsContract, StaysRemovedWhenItGoes) {
    Create()->Remove();
    EXPECT_THAT(Orphans(), IsEmpty());
}

TEST_P(JournalsContract, RemovesOneThatASessionBeforeLeft) {
    for (const char* bytes : {"first", "second", "third"}) {
        Leave(bytes);
    }
    EXPECT_EQ(Orphans().at(1)->Remove(), FileError::None);
    EXPECT_THAT(BytesOfOrphans(), ElementsAre("third", "first"));
}

TEST_P(JournalsContract, IsThereAfterItWasSynced) {
    {
        const auto journal = Create();
        EXPECT_EQ(journal->Sync(), FileError::None);
        EXPECT_EQ(journal->Append("one,"), FileError::None);
        EXPECT_EQ(journal->Sync(), FileError::None);
        EXPECT_EQ(journal->Append("two"), FileError::None);
        EXPECT_EQ(journal->Sync(), FileError::None);
    }
    EXPECT_THAT(BytesOfOrphans(), ElementsAre("one,two"));
    EXPECT_EQ(Orphans().at(0)->Sync(), FileError::None);
}

TEST_P(JournalsContract, GivesTheSameFingerprintForTheSameBytesAlone) {
    auto& journals = place->Session();
    const auto print = journals.Fingerprint("a\0b"s);
    EXPECT_NE(print, "");
    EXPECT_EQ(place->OtherSession().Fingerprint("a\0b"s), print);
    for (const auto& other : {""s, "a"s, "a\0c"s, "a\0b\0"s}) {
        EXPECT_NE(journals.Fingerprint(other), print);
    }
    EXPECT_EQ(journals.Fingerprint({}), journals.Fingerprint(""));
}

} // namespace
} // namespace zy::test
