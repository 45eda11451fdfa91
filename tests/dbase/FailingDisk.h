#pragma once

#include <functional>

#include "DbaseTest.h"
#include "support/FailingOperations.h"
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

/// Does something over a disk whose first, second, third ... operation fails, until none fails any more.
class FailingDisk : public DbaseTest {
  protected:
    /// Goes through all operations of the action, each time from the same start; the table has one line for
    /// each. `how` says in which way they fail.
    void ExpectOutcomes(const std::function<void()>& start, const std::function<void()>& action,
                        const FaultPlan& how, const Table& table) {
        RuntimeError raised(0, "");
        const auto attempt = [&](const FaultPlan& plan) {
            Begin(start);
            world.files.Plan(plan);
            raised = RaisedBy(action);
        };
        zy::test::FailOneByOne(world.files.Operations(), how, table, attempt, [&](const Outcome& outcome) {
            EXPECT_EQ(raised.Number(), outcome.number) << raised.Description();
            EXPECT_THAT(Contents(), ::testing::ElementsAreArray(outcome.files));
        });
        EXPECT_EQ(raised.Number(), 0) << raised.Description();
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
