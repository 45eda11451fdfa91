#pragma once

#include <functional>

#include "DbaseTest.h"
#include "support/TableBytes.h"

namespace zy::dbase::test {

/// One line of a table: what an action raises and leaves behind when `failing` is the first operation that
/// does not work.
struct Outcome {
    std::string failing;
    int number;
    std::vector<std::string> files; ///< what Content says of each
};
using Table = std::vector<Outcome>;

inline constexpr auto kFault = ": the disk reported an error";

/// Does something over a disk whose first, second, third ... operation fails, until none fails any more.
class FailingDisk : public DbaseTest {
  protected:
    /// Goes through all operations of the action, each time from the same start; the table has one line for
    /// each. `how` says in which way they fail.
    void ExpectOutcomes(const std::function<void()>& start, const std::function<void()>& action,
                        FaultPlan how, const Table& table) {
        for (const auto& outcome : table) {
            ++how.operation;
            SCOPED_TRACE("operation " + std::to_string(how.operation) + ", " + outcome.failing);
            Begin(start);
            world.files.Plan(how);
            const auto raised = RaisedBy(action);
            EXPECT_EQ(FirstFailure(), outcome.failing);
            EXPECT_EQ(raised.Number(), outcome.number) << raised.Description();
            EXPECT_THAT(Contents(), ::testing::ElementsAreArray(outcome.files));
        }
        ++how.operation;
        Begin(start);
        world.files.Plan(how);
        EXPECT_EQ(ErrorNumber(action), 0);
        EXPECT_EQ(world.files.Operations().Faults(), 0U) << "the action has more operations than the table";
    }

    void AddUser(const char* name, const char* table) { Run(InsertUser({name, "", "", "", ""}, table)); }

    /// Files that can be told by their bytes.
    std::vector<std::pair<std::string, std::string>> known;

  private:
    void Begin(const std::function<void()>& start) {
        world.files.Plan({});
        for (const auto& name : Names()) {
            world.files.Take(PathOf(name));
        }
        database = Open();
        start();
    }

    std::string FirstFailure() const {
        for (const auto& line : world.files.Operations().Lines()) {
            if (const auto end = line.find(kFault); end != std::string::npos) {
                return line.substr(0, end);
            }
        }
        return "none";
    }

    std::vector<std::string> Contents() const {
        std::vector<std::string> contents;
        for (const auto& name : Names()) {
            contents.push_back(name + ": " + Content(Get(name)));
        }
        return contents;
    }

    std::string Content(const std::string& bytes) const {
        for (const auto& [text, name] : known) {
            if (bytes == text) {
                return name;
            }
            if (!bytes.empty() && bytes == text.substr(0, text.size() / 2)) {
                return "half " + name;
            }
        }
        return bytes.empty() ? "nothing" : "something else";
    }
};

} // namespace zy::dbase::test
