#include <chrono>
#include <random>

#include "INIfileTest.h"

namespace zy::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// Files that are not what they should be.
class BadInput : public INIfileTest {};

TEST_F(BadInput, AMissingFileLeavesNoLinesAndIsNotCreated) {
    Load("a=1\r\n");
    file.LoadFile(R"(C:\SYS\None.ini)");
    EXPECT_THAT(Lines(), IsEmpty());
    EXPECT_FALSE(world.files.Get(R"(C:\SYS\None.ini)"));
}

TEST_F(BadInput, AMissingFolderLeavesNoLines) {
    Load("a=1\r\n");
    file.LoadFile(R"(C:\None\Demo.ini)");
    EXPECT_THAT(Lines(), IsEmpty());
}

TEST_F(BadInput, AFolderOfTheNameLeavesNoLines) {
    Load("a=1\r\n");
    file.LoadFile(R"(C:\SYS)");
    EXPECT_THAT(Lines(), IsEmpty());
}

TEST_F(BadInput, AnUnreadableFileLeavesNoLines) {
    Load("a=1\r\n");
    world.files.SetUnreadable(kPath);
    file.LoadFile(kPath);
    EXPECT_THAT(Lines(), IsEmpty());
}

TEST_F(BadInput, AFailingReadLeavesNoLines) {
    Load("a=1\r\n");
    world.files.Plan({.operation = 2});
    file.LoadFile(kPath);
    EXPECT_EQ(world.files.Operations().Faults(), 1U);
    EXPECT_THAT(Lines(), IsEmpty());
}

TEST_F(BadInput, AnEmptyFileHasNoLines) {
    EXPECT_THAT(Load(""), IsEmpty());
}

TEST_F(BadInput, AFileOfLineEndsHasNoLines) {
    EXPECT_THAT(Load("\r\n\r\n\r\n"), IsEmpty());
}

TEST_F(BadInput, AFileWithoutAnyLineEndHasNoLines) {
    EXPECT_THAT(Load("a=1"), IsEmpty());
}

TEST_F(BadInput, LfAloneEndsNoLine) {
    EXPECT_THAT(Load("a=1\nb=2\n"), IsEmpty());
    EXPECT_THAT(Load("a=1\nb=2\r\n"), ElementsAre(Texts{"", "A", "1 b=2"}));
}

TEST_F(BadInput, CrAloneEndsNoLine) {
    EXPECT_THAT(Load("a=1\rb=2\r"), IsEmpty());
    EXPECT_THAT(Load("a=1\rb=2\r\r\n"), ElementsAre(Texts{"", "A", "1 b=2"}));
}

TEST_F(BadInput, ABreakInsideAKeyOrAHeaderCountsAsABlank) {
    EXPECT_THAT(Load("\n\ta\rb\nc\t=\t1\n\r\n\r[x\ty]\n\r\n"),
                ElementsAre(Texts{"", "A B C", "1"}, Texts{"[X Y]", "[X Y]", ""}));
}

TEST_F(BadInput, ANulIsACharacterLikeAnyOther) {
    const std::string bytes("a\0b=1\0 2\r\n\0=x\r\n[\0]\r\n", 21);
    EXPECT_THAT(Load(bytes), ElementsAre(Texts{"", std::string("A\0B", 3), std::string("1\0 2", 4)},
                                         Texts{"", std::string("\0", 1), "x"},
                                         Texts{std::string("[\0]", 3), std::string("[\0]", 3), ""}));
}

TEST_F(BadInput, AByteOrderMarkIsPartOfTheFirstLine) {
    EXPECT_THAT(Load("\xEF\xBB\xBF[One]\r\na=1\r\n"), ElementsAre(Texts{"", "A", "1"}));
    EXPECT_THAT(Load("\xEF\xBB\xBFk=1\r\n"), ElementsAre(Texts{"", "\xCF\xBB\xBFK", "1"}));
}

TEST_F(BadInput, A10MegabyteLineIsAnOverflowAndTheLinesBeforeItAreThere) {
    const std::string longLine = "b=" + std::string(10'000'000, 'x') + "\r\n";
    EXPECT_EQ(ErrorNumber([&] { Load("a=1\r\n" + longLine + "c=3\r\n"); }), 6);
    EXPECT_THAT(Lines(), ElementsAre(Texts{"", "A", "1"}));
}

TEST_F(BadInput, ALongLineIsAnOverflowWhateverItHolds) {
    const std::string filler(32'768, ' ');
    for (const auto& line : {filler, ";" + filler, "[" + filler, "=" + filler, filler + "a=b"}) {
        EXPECT_EQ(ErrorNumber([&] { Load(line + "\r\n"); }), 6) << line.substr(0, 1);
    }
}

TEST_F(BadInput, ALineOf32767CharactersIsTakenAndOneOf32768IsNot) {
    const std::string value(32'765, 'x');
    EXPECT_THAT(Load("a=" + value + "\r\n"), ElementsAre(Texts{"", "A", value}));
    EXPECT_EQ(ErrorNumber([&] { Load("a=" + value + "x\r\n"); }), 6);

    const std::string key(32'766, 'K');
    EXPECT_THAT(Load(key + "=\r\n"), ElementsAre(Texts{"", key, ""}));
    const std::string header = "[" + std::string(32'766, 'H');
    EXPECT_THAT(Load(header + "\r\n"), ElementsAre(Texts{header, header, ""}));
}

TEST_F(BadInput, A10MegabyteTextWithoutALineEndHasNoLinesAndRaisesNothing) {
    EXPECT_THAT(Load("a=1\r\nb=" + std::string(10'000'000, 'x')), ElementsAre(Texts{"", "A", "1"}));
}

/// What the lines of a text are, told slowly and plainly.
std::vector<Texts> PlainlyParsed(const std::string& text, const CodePage& page) {
    const auto trimmed = [](std::string line) {
        line.erase(0, line.find_first_not_of(' '));
        line.erase(line.find_last_not_of(' ') + 1);
        return line;
    };
    std::vector<Texts> lines;
    std::string group;
    std::size_t start = 0;
    for (auto end = text.find("\r\n"); end != std::string::npos; end = text.find("\r\n", start)) {
        std::string line = text.substr(start, end - start);
        for (char& c : line) {
            c = c == '\r' || c == '\n' || c == '\t' ? ' ' : c;
        }
        line = trimmed(line);
        const auto equals = line.find('=');
        if (line.starts_with('[')) {
            group = page.UCase(line);
            lines.push_back({group, group, ""});
        } else if (equals != std::string::npos && equals != 0) {
            lines.push_back(
                {group, page.UCase(trimmed(line.substr(0, equals))), trimmed(line.substr(equals + 1))});
        }
        start = end + 2;
    }
    return lines;
}

TEST_F(BadInput, NoiseIsTakenApartAsPlainReadingDoes) {
    const auto seed = static_cast<unsigned>(std::chrono::steady_clock::now().time_since_epoch().count());
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 random(seed);
    const std::string likely("aZ[]==  \t\r\n;\"\0\x01\x0E\x7F\xFC\xDF\xFF", 20);
    for (int round = 0; round < 3'000; ++round) {
        std::string text;
        for (auto left = random() % 200; left > 0; --left) {
            const auto pick = random() % 100;
            text += pick < 15 ? "\r\n"
                              : std::string(1 + random() % (pick < 25 ? 20 : 1),
                                            pick < 90 ? likely[random() % likely.size()]
                                                      : static_cast<char>(random() % 256));
        }
        ASSERT_EQ(Load(text), PlainlyParsed(text, world.codePage)) << ::testing::PrintToString(text);
    }
}

TEST_F(BadInput, TextsOfEveryLengthAreTakenWhole) {
    for (std::size_t length = 1; length <= 70; ++length) {
        const std::string small(length, 'q');
        const std::string large(length, 'Q');
        EXPECT_THAT(Load("[" + small + "\r\n" + small + "=" + small + "\r\nz=" + small + "\r\n"),
                    ElementsAre(Texts{"[" + large, "[" + large, ""}, Texts{"[" + large, large, small},
                                Texts{"[" + large, "Z", small}));
    }
}

} // namespace
} // namespace zy::test
