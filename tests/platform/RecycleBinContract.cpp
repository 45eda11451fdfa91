// What every RecycleBin promises, whatever it stands on.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "ContractWorlds.h"
#include "platform/memory/MemoryRecycleBin.h"

namespace zy::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::UnorderedElementsAre;
using namespace std::string_literals;

class MemoryBin final : public Bin {
  public:
    MemoryBin() { files_.AddFolder("C:"); }

    RecycleBin& Recycler() override { return bin_; }
    std::string Path(std::string_view name) const override { return R"(C:\)" + std::string(name); }
    void Put(std::string_view name, std::string_view bytes) override { files_.Put(Path(name), bytes); }
    void AddFolder(std::string_view name) override { files_.AddFolder(Path(name)); }
    std::vector<std::string> Names() const override { return files_.Names("C:"); }
    std::vector<std::string> Recycled() const override {
        std::vector<std::string> bytes;
        for (const auto& file : bin_.Recycled()) {
            bytes.push_back(file.bytes);
        }
        return bytes;
    }

  private:
    MemoryFileSystem files_{Windows1252()};
    MemoryRecycleBin bin_{files_};
};

struct BinKind {
    const char* name;
    std::unique_ptr<Bin> (*make)();
};

void PrintTo(const BinKind& kind, std::ostream* out) {
    *out << kind.name;
}

class RecycleBinContract : public ::testing::TestWithParam<BinKind> {
  protected:
    std::unique_ptr<Bin> bin = GetParam().make();
};

INSTANTIATE_TEST_SUITE_P(Bins, RecycleBinContract,
                         ::testing::Values(BinKind{"OverMemory",
                                                   []() -> std::unique_ptr<Bin> {
                                                       return std::make_unique<MemoryBin>();
                                                   }},
                                           BinKind{kOverSystem, SystemBin}),
                         [](const auto& test) { return test.param.name; });

TEST_P(RecycleBinContract, RecyclesAFileWithItsBytes) {
    bin->Put("a.dbf", "users");
    EXPECT_EQ(bin->Recycler().Delete(bin->Path("a.dbf") + "\0\0"s), 0);
    EXPECT_THAT(bin->Names(), IsEmpty());
    EXPECT_THAT(bin->Recycled(), ElementsAre("users"));
}

TEST_P(RecycleBinContract, RecyclesEveryFileOfTheList) {
    bin->Put("a.dbf", "users");
    bin->Put("a.ndx", "index");
    bin->Put("b.sys", "kept");
    EXPECT_EQ(bin->Recycler().Delete(bin->Path("a.dbf") + '\0' + bin->Path("a.ndx") + "\0\0"s), 0);
    EXPECT_THAT(bin->Names(), ElementsAre("b.sys"));
    EXPECT_THAT(bin->Recycled(), UnorderedElementsAre("users", "index"));
}

TEST_P(RecycleBinContract, StopsReadingTheListAtItsEnd) {
    bin->Put("a.dbf", "users");
    bin->Put("b.sys", "kept");
    EXPECT_EQ(bin->Recycler().Delete(bin->Path("a.dbf") + "\0\0"s + bin->Path("b.sys") + "\0\0"s), 0);
    EXPECT_THAT(bin->Names(), ElementsAre("b.sys"));
}

TEST_P(RecycleBinContract, FindsFilesWithoutRegardToCase) {
    bin->Put("ZYSecure.dbf", "users");
    EXPECT_EQ(bin->Recycler().Delete(bin->Path("ZYSECURE.DBF") + "\0\0"s), 0);
    EXPECT_THAT(bin->Names(), IsEmpty());
}

TEST_P(RecycleBinContract, KeepsFilesOfTheSameNameApart) {
    bin->Put("a.dbf", "first");
    EXPECT_EQ(bin->Recycler().Delete(bin->Path("a.dbf") + "\0\0"s), 0);
    bin->Put("a.dbf", "second");
    EXPECT_EQ(bin->Recycler().Delete(bin->Path("a.dbf") + "\0\0"s), 0);
    EXPECT_THAT(bin->Recycled(), UnorderedElementsAre("first", "second"));
}

TEST_P(RecycleBinContract, ReportsAMissingFileAndRecyclesTheOthers) {
    bin->Put("b.sys", "there");
    EXPECT_NE(bin->Recycler().Delete(bin->Path("missing.sys") + '\0' + bin->Path("b.sys") + "\0\0"s), 0);
    EXPECT_THAT(bin->Recycled(), ElementsAre("there"));
}

TEST_P(RecycleBinContract, DoesNotRecycleAFolder) {
    bin->AddFolder("folder");
    EXPECT_NE(bin->Recycler().Delete(bin->Path("folder") + "\0\0"s), 0);
    EXPECT_THAT(bin->Recycled(), IsEmpty());
}

TEST_P(RecycleBinContract, DoesNothingForAnEmptyList) {
    EXPECT_EQ(bin->Recycler().Delete("\0"s), 0);
    EXPECT_EQ(bin->Recycler().Delete(""), 0);
}

} // namespace
} // namespace zy::test
