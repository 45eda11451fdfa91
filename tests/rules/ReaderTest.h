#pragma once

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "RulesTest.h"
#include "rules/RulesReader.h"

namespace zy::test {

/// What the reader takes from given bytes.
class ReaderTest : public RulesTest {
  protected:
    /// One line a rule; what is no part of a rule is counted by `skipped`.
    std::vector<std::string> Taken(std::string_view bytes) {
        PutFile(bytes);
        const auto opened = world.files.OpenForReading(kRulesFile);
        return TakenFrom(*opened.handle);
    }
    std::vector<std::string> TakenFrom(FileHandle& file) {
        std::deque<RunRule> read;
        const auto report = ReadRules(file, read);
        skipped = report.skippedLines;
        complete = report.complete;
        std::vector<std::string> lines(read.size());
        std::ranges::transform(read, lines.begin(), Shown);
        return lines;
    }

    std::size_t skipped = 0;
    bool complete = false;
};

} // namespace zy::test
