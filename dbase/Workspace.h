#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "dbase/OpenTable.h"
#include "platform/FileSystem.h"

namespace zy::dbase {

/// What day it is.
using Clock = std::function<std::chrono::year_month_day()>;

/// What the databases of an engine share: the open transaction, and the tables to which rows were added.
class Workspace {
  public:
    Workspace(FileSystem& files, Clock today) : files_(files), today_(std::move(today)) {}

    FileSystem& Files() const { return files_; }
    std::chrono::year_month_day Today() const { return today_(); }

    bool InTransaction() const { return inTransaction_; }
    /// See DBEngine::BeginTrans and CommitTrans.
    void Begin();
    void Commit();

    /// The table at a path, for adding rows to it. The first call for a path reads the file, and raises as
    /// ReadFile and TableImage do; later ones return the same table, with the rows added since.
    OpenTable& Open(const std::string& path);
    /// See Database::Flush.
    void Flush();

    /// Gives up the open transaction, if there is one.
    void GiveUpTransaction();
    /// Forgets the rows that were not written to a table.
    void Discard(const std::string& path);
    /// Forgets all rows that were not written.
    void DiscardAll() { tables_.clear(); }

  private:
    FileSystem& files_;
    Clock today_;
    bool inTransaction_ = false;
    /// Their addresses stay while the list changes.
    std::vector<std::unique_ptr<OpenTable>> tables_;
};

} // namespace zy::dbase
