#include <algorithm>
#include <cctype>
#include <fstream>
#include <iterator>
#include <sstream>

#include "UsersTest.h"
#include "security/SecurityFileLocation.h"
#include "support/Samples.h"

namespace zy::test {
namespace {

using ::testing::HasSubstr;

/// A piece of a file as docs/formats.md shows it.
struct Dump {
    std::string source; ///< of which file it is
    std::size_t offset;
    std::string bytes;
};

std::string Page() {
    std::ifstream page(ZY_FORMATS_PAGE, std::ios::binary);
    return {std::istreambuf_iterator<char>(page), {}};
}

/// A line of eight columns of up to two bytes each, between "offset: " and two blanks.
Dump ParseLine(const std::string& source, const std::string& line) {
    Dump dump{.source = source, .offset = std::stoul(line, nullptr, 16), .bytes = {}};
    auto digits = line.substr(10, 39);
    std::erase(digits, ' ');
    for (std::size_t at = 0; at + 1 < digits.size(); at += 2) {
        dump.bytes += static_cast<char>(std::stoi(digits.substr(at, 2), nullptr, 16));
    }
    return dump;
}

std::vector<Dump> Dumps() {
    constexpr std::string_view kFence = "```";
    constexpr std::string_view kDumpFence = "```xxd ";
    std::istringstream page(Page());
    std::vector<Dump> dumps;
    std::string source;
    for (std::string line; std::getline(page, line);) {
        if (line.starts_with(kFence)) {
            source = line.starts_with(kDumpFence) ? line.substr(kDumpFence.size()) : "";
        } else if (!source.empty()) {
            dumps.push_back(ParseLine(source, line));
        }
    }
    return dumps;
}

/// The page that describes the files to other programs' developers.
class FormatsPage : public UsersTest {
  protected:
    std::string IndexOf(int users) {
        Users names;
        for (int i = 1; i <= users; ++i) {
            names.push_back(User(i < 10 ? "USER0" + std::to_string(i) : "USER" + std::to_string(i)));
        }
        PutTable(names);
        world.files.Take(kUsersIndex);
        dbase::DBEngine engine(world.files, [this] { return world.system.Today(); });
        engine.OpenDatabase(R"(C:\SYS\)", false, false, "dBase III")
            ->Execute("CREATE INDEX [ZYSECURE] ON [ZYSECURE.DBF] (USERID);");
        return world.files.Get(kUsersIndex).value();
    }

    std::string BytesOf(const std::string& source) {
        constexpr std::string_view kSamples = "samples/";
        if (source.starts_with(kSamples)) {
            return SampleBytes(source.substr(kSamples.size()));
        }
        world.files.Take(kUsersTable);
        return IndexOf(source == "the index of 26 users" ? 26 : 0);
    }
};

TEST_F(FormatsPage, ShowsTheBytesThatTheFilesHold) {
    const auto dumps = Dumps();
    ASSERT_GT(dumps.size(), 40U);
    for (const auto& dump : dumps) {
        SCOPED_TRACE(dump.source + " at " + std::to_string(dump.offset));
        const auto bytes = BytesOf(dump.source);
        ASSERT_LE(dump.offset + dump.bytes.size(), bytes.size());
        EXPECT_FALSE(dump.bytes.empty());
        EXPECT_EQ(bytes.substr(dump.offset, dump.bytes.size()), dump.bytes);
    }
}

TEST_F(FormatsPage, ShowsAllFilesOfTheSamples) {
    const auto dumps = Dumps();
    for (const std::string name : {"ZYRules.sys", "ZYUNITS.SYS", "ZYSECURE.DBF", "ZYSECURE.NDX"}) {
        EXPECT_TRUE(std::any_of(dumps.begin(), dumps.end(), [&](const Dump& dump) {
            return dump.source == "samples/" + name;
        })) << name;
    }
}

TEST_F(FormatsPage, SaysWhereTheLocationFileThatItShowsLeads) {
    constexpr std::string_view kFence = "```ini\n";
    const auto page = Page();
    const auto begin = page.find(kFence) + kFence.size();
    std::string settings;
    for (const char c : page.substr(begin, page.find("```", begin) - begin)) {
        settings += c == '\n' ? "\r\n" : std::string(1, c);
    }
    world.files.Put(R"(C:\SYS\ZYSECURE.ZYX)", settings);
    TraceChannel trace(world.traceServers, "zyGlobal");
    const auto location = SecurityFileLocation(world.files, world.system, world.codePage, trace);
    EXPECT_THAT(location, HasSubstr("SHARED"));
    EXPECT_THAT(page, HasSubstr("This means the table `" + location + "`."));
}

} // namespace
} // namespace zy::test
