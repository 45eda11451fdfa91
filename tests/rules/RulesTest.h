#pragma once

#include <deque>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "rules/mRules.h"
#include "support/RulesOnDisk.h"
#include "support/WorldTest.h"

namespace zy::test {

/// A trace viewer that writes every record among the disk's operations, as "Trace module procedure message",
/// so that one list shows the order of both.
class TracesAmongOperations final : public TraceServers {
  public:
    explicit TracesAmongOperations(OperationLog& operations) : operations_(operations) {}

    std::unique_ptr<TraceServer> GetRunning(std::string_view /*name*/) override {
        return std::make_unique<Server>(operations_);
    }

  private:
    class Server final : public TraceServer {
      public:
        explicit Server(OperationLog& operations) : operations_(operations) {}

        bool Send(std::string_view /*executable*/, std::string_view module, std::string_view procedure,
                  std::string_view message) override {
            std::string line = "Trace ";
            line.append(module).append(" ").append(procedure).append(" ").append(message);
            operations_.Record(line, FileError::None);
            return true;
        }

      private:
        OperationLog& operations_;
    };

    OperationLog& operations_;
};

/// The rule list over a disk in memory, with verbs for what happens to both.
class RulesTest : public WorldTest {
  protected:
    RulesTest() {
        rules.reported.Connect([this](const std::string& report) { reports.push_back(report); });
    }

    void PutFile(std::string_view bytes) { world.files.Put(kRulesFile, bytes); }
    std::optional<std::string> File() const { return world.files.Get(kRulesFile); }
    std::optional<std::string> Temporary() const { return world.files.Get(kTemporary); }

    void Load(std::string_view bytes) {
        PutFile(bytes);
        rules.Build_Rules_Array();
    }

    /// Appends a rule to the list, as if the file had held it.
    RunRule& Add(const RunRule& rule) {
        auto& added = owned_.emplace_back(rule);
        rules.gaRules.Append(added);
        return added;
    }
    RunRule& AddCode(std::string_view code) {
        return Add({.Code = std::string(code),
                    .Min = "1",
                    .Max = "2",
                    .Cond = ">",
                    .Zone = "UCL",
                    .Description = "text",
                    .Desc2 = {},
                    .Desc3 = {}});
    }
    /// Appends one rule again and again; for tests in which the number alone counts.
    void AddMany(int count) {
        RunRule& rule = owned_.emplace_back();
        for (int i = 0; i < count; ++i) {
            rules.gaRules.Append(rule);
        }
    }

    std::vector<std::string> Codes() const {
        std::vector<std::string> codes;
        for (int i = 1; i <= rules.gaRules.UBound(); ++i) {
            codes.push_back(rules.gaRules(i).Code);
        }
        return codes;
    }
    std::vector<std::string> ShownRules() const {
        std::vector<std::string> lines;
        for (int i = 1; i <= rules.gaRules.UBound(); ++i) {
            lines.push_back(Shown(rules.gaRules(i)));
        }
        return lines;
    }
    /// What happened on the disk and in the trace since the last Plan.
    const std::vector<std::string>& Log() const { return world.files.Operations().Lines(); }

    TracesAmongOperations viewer{world.files.Operations()};
    TraceChannel trace{viewer, "zyGlobal"};
    mRules rules{world.files, world.system, trace};
    std::vector<std::string> reports;

  private:
    std::deque<RunRule> owned_;
};

} // namespace zy::test
