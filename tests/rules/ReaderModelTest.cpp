#include <array>
#include <random>

#include "ReaderTest.h"

namespace zy::test {
namespace {

/// A line of a rules file and what it means.
struct MeantLine {
    enum Meaning { RuleHeader, OtherHeader, Key, Noise, Blank };

    const char* text;
    Meaning meaning;
    std::string RunRule::*property = nullptr;
    const char* value = "";
};

constexpr std::array kLines{
    MeantLine{"[RULE]", MeantLine::RuleHeader},
    MeantLine{" [rule] ", MeantLine::RuleHeader},
    MeantLine{"[OTHER]", MeantLine::OtherHeader},
    MeantLine{"   CODE         = A", MeantLine::Key, &RunRule::Code, "A"},
    MeantLine{"   MIN          = 1", MeantLine::Key, &RunRule::Min, "1"},
    MeantLine{"   MAX          = 2", MeantLine::Key, &RunRule::Max, "2"},
    MeantLine{"   COND         = >", MeantLine::Key, &RunRule::Cond, ">"},
    MeantLine{"   ZONE         = UCL", MeantLine::Key, &RunRule::Zone, "UCL"},
    MeantLine{"   DESC1        = [RULE]", MeantLine::Key, &RunRule::Description, "[RULE]"},
    MeantLine{"   DESC2        = ", MeantLine::Key, &RunRule::Desc2, ""},
    MeantLine{"   DESC3        =  three ", MeantLine::Key, &RunRule::Desc3, " three "},
    MeantLine{"   CODE         =", MeantLine::Key, &RunRule::Code, ""},
    MeantLine{"code=B", MeantLine::Key, &RunRule::Code, "B"},
    MeantLine{"   mIn          = 7", MeantLine::Key, &RunRule::Min, "7"},
    MeantLine{"\tDESC2 = two", MeantLine::Key, &RunRule::Desc2, "two"},
    MeantLine{"   COLOUR       = red", MeantLine::Noise},
    MeantLine{"   CODE          A", MeantLine::Noise},
    MeantLine{"; CODE= X", MeantLine::Noise},
    MeantLine{"", MeantLine::Blank},
    MeantLine{" \t", MeantLine::Blank},
};

/// What the lines mean, said line by line in the plainest way.
class Model {
  public:
    void Take(const MeantLine& line) {
        switch (line.meaning) {
        case MeantLine::RuleHeader:
            rules_.emplace_back();
            inRule_ = true;
            break;
        case MeantLine::OtherHeader:
            inRule_ = false;
            ++skipped;
            break;
        case MeantLine::Key:
            if (inRule_) {
                rules_.back().*line.property = line.value;
            }
            skipped += inRule_ ? 0 : 1;
            break;
        case MeantLine::Noise:
            ++skipped;
            break;
        case MeantLine::Blank:
            break;
        }
    }

    std::vector<std::string> Lines() const {
        std::vector<std::string> lines;
        for (const auto& rule : rules_) {
            lines.push_back(Shown(rule));
        }
        return lines;
    }

    std::size_t skipped = 0;

  private:
    std::vector<RunRule> rules_;
    bool inRule_ = false;
};

class ReaderModel : public ReaderTest {};

TEST_F(ReaderModel, AgreesWithTheReaderOnLinesInAnyOrder) {
    for (unsigned seed = 1; seed <= 2000; ++seed) {
        std::mt19937 random(seed);
        Model model;
        std::string text;
        for (auto count = random() % 25; count > 0; --count) {
            const auto& line = kLines[random() % kLines.size()];
            model.Take(line);
            text += std::string(line.text) + (random() % 4 == 0 ? "\n" : "\r\n");
        }
        ASSERT_EQ(Taken(text), model.Lines()) << "seed " << seed << ":\n" << text;
        ASSERT_EQ(skipped, model.skipped) << "seed " << seed << ":\n" << text;
    }
}

} // namespace
} // namespace zy::test
