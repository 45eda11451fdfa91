#pragma once

#include <chrono>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "dbase/TableImage.h"
#include "platform/FileSystem.h"

namespace zy::dbase {

/// A table to which rows are added in memory.
class OpenTable {
  public:
    /// Reads the table from its file.
    OpenTable(FileSystem& files, std::string path);

    const std::string& Path() const { return path_; }
    const TableImage& Image() const { return image_; }

    /// Adds a row: for the time being in a transaction, else for good. See TableImage::Append.
    void Append(std::span<const std::string_view> values, bool inTransaction);
    void Commit() { committed_.reset(); }
    void Rollback();
    bool HasUncommitted() const { return committed_.has_value(); }

    /// Writes the rows that are there for good and not in the file yet. See Database::Flush.
    void Write(std::chrono::year_month_day today);

  private:
    std::uint32_t Committed() const { return committed_.value_or(image_.Records()); }
    /// Writes a file beside the table's and puts it in its place.
    void Replace(std::string_view bytes);

    FileSystem& files_;
    std::string path_;
    TableImage image_;
    std::uint32_t stored_;                   ///< the records that the file holds
    std::optional<std::uint32_t> committed_; ///< while the transaction has added to it
};

} // namespace zy::dbase
