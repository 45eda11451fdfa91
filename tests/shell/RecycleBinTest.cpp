#include "shell/mRecycleBin.h"

#include <stdexcept>

#include "support/WorldTest.h"

namespace zy {
namespace {

/// Keeps the list it was given.
class RecordingBin : public RecycleBin {
  public:
    int Delete(std::string_view nulSeparatedPaths) override {
        list = nulSeparatedPaths;
        if (raises) {
            throw std::runtime_error("shell");
        }
        return result;
    }

    std::string list;
    int result = 0;
    bool raises = false;
};

const std::vector<std::string> kTwo{R"(C:\a)", R"(C:\b)"};

TEST(RecycleFiles, PutsANulBehindEveryPathAndOneMoreBehindTheList) {
    RecordingBin bin;
    EXPECT_TRUE(RecycleFiles(bin, kTwo));
    EXPECT_EQ(bin.list, std::string("C:\\a\0C:\\b\0\0", 11));
}

TEST(RecycleFiles, HandsOverOneNulForAnEmptyList) {
    RecordingBin bin;
    RecycleFiles(bin, {});
    EXPECT_EQ(bin.list, std::string("\0", 1));
}

TEST(RecycleFiles, IsFalseWhenTheShellReportsAnotherResultThanZero) {
    RecordingBin bin;
    bin.result = 2;
    EXPECT_FALSE(RecycleFiles(bin, kTwo));
}

TEST(RecycleFiles, IsFalseAndSilentWhenTheShellRaisesAnError) {
    RecordingBin bin;
    bin.raises = true;
    EXPECT_FALSE(RecycleFiles(bin, kTwo));
}

TEST(RecycleFile, RecyclesAListOfOne) {
    RecordingBin bin;
    EXPECT_TRUE(RecycleFile(bin, R"(C:\a)"));
    EXPECT_EQ(bin.list, std::string("C:\\a\0\0", 6));
    bin.result = 1;
    EXPECT_FALSE(RecycleFile(bin, R"(C:\a)"));
}

TEST(RecycleIfThere, TellsWhatBecameOfTheFile) {
    RecordingBin bin;
    MemoryFileSystem files(Windows1252());
    EXPECT_EQ(RecycleIfThere(files, bin, R"(C:\a)"), Recycling::NoFile);
    EXPECT_EQ(bin.list, "") << "the bin was not asked";
    files.Put(R"(C:\a)", "");
    EXPECT_EQ(RecycleIfThere(files, bin, R"(C:\a)"), Recycling::Done);
    bin.raises = true;
    EXPECT_EQ(RecycleIfThere(files, bin, R"(C:\a)"), Recycling::Refused);
}

} // namespace
} // namespace zy
