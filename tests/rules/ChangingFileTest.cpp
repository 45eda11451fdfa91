#include <algorithm>
#include <deque>
#include <string>

#include "platform/FileSystem.h"
#include "rules/RulesReader.h"

#include <gtest/gtest.h>

namespace zy::test {
namespace {

/// A file whose size, asked for before it is read, is not what is read then: somebody is writing it.
class ChangingFile final : public FileHandle {
  public:
    ChangingFile(std::string bytes, std::uint64_t size) : bytes_(std::move(bytes)), size_(size) {}

    std::uint64_t Size() const override { return size_; }
    std::size_t Read(std::span<char> buffer) override {
        const auto count = bytes_.copy(buffer.data(), buffer.size(), position_);
        position_ += count;
        return count;
    }
    FileError Write(std::string_view /*text*/) override { return FileError::Other; }
    FileError Flush() override { return FileError::Other; }
    FileError Close() override { return FileError::None; }

  private:
    std::string bytes_;
    std::uint64_t size_;
    std::size_t position_ = 0;
};

const std::string kRule = "[RULE]\r\nCODE= A\r\n";

TEST(AChangingRulesFile, ThatGrowsWhileItIsReadIsReadWhole) {
    std::deque<RunRule> rules;
    ChangingFile file(kRule + kRule, kRule.size());
    EXPECT_TRUE(ReadRules(file, rules).complete);
    EXPECT_EQ(rules.size(), 2U);
}

TEST(AChangingRulesFile, ThatShrinksWhileItIsReadIsNotReadWhole) {
    std::deque<RunRule> rules;
    ChangingFile file(kRule, 2 * kRule.size());
    EXPECT_FALSE(ReadRules(file, rules).complete);
    EXPECT_EQ(rules.size(), 1U);
}

} // namespace
} // namespace zy::test
