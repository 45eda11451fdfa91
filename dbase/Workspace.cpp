#include "dbase/Workspace.h"

#include <algorithm>

#include "dbase/Errors.h"
#include "platform/CodePage.h"

namespace zy::dbase {
namespace {

/// Names of files are found without regard to case.
bool IsSamePath(std::string_view left, std::string_view right) {
    return left == right ||
           (left.size() == right.size() && Windows1252().UCase(left) == Windows1252().UCase(right));
}

} // namespace

void Workspace::Begin() {
    if (inTransaction_) {
        Raise(kInTransaction, {"A transaction is open already, and transactions do not nest."});
    }
    inTransaction_ = true;
}

void Workspace::Commit() {
    if (!inTransaction_) {
        Raise(kNoTransaction,
              {"You tried to commit or roll back a transaction without first beginning one."});
    }
    for (const auto& table : tables_) {
        table->Commit();
    }
    inTransaction_ = false;
}

OpenTable& Workspace::Open(const std::string& path) {
    const auto found = std::find_if(tables_.begin(), tables_.end(),
                                    [&](const auto& table) { return IsSamePath(table->Path(), path); });
    return found != tables_.end() ? **found
                                  : *tables_.emplace_back(std::make_unique<OpenTable>(files_, path));
}

void Workspace::Flush() {
    for (const auto& table : tables_) {
        table->Write(Today());
    }
    // What others do to the file from here on is seen when it is opened again.
    std::erase_if(tables_, [](const auto& table) { return !table->HasUncommitted(); });
}

void Workspace::GiveUpTransaction() {
    for (const auto& table : tables_) {
        table->Rollback();
    }
    inTransaction_ = false;
}

void Workspace::Discard(const std::string& path) {
    std::erase_if(tables_, [&](const auto& table) { return IsSamePath(table->Path(), path); });
}

} // namespace zy::dbase
