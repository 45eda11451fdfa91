#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

#include "dbase/TableImage.h"

namespace zy::dbase {

class Recordset;

[[noreturn]] void RaiseNoCurrentRecord();
[[noreturn]] void RaiseNoField(int index);
[[noreturn]] void RaiseRecordsetClosed();

/// A column of a recordset. It must not outlive the recordset.
class Field {
  public:
    Field(const Recordset& records, std::size_t index) : records_(&records), index_(index) {}

    /// The column's name, in capitals as a rule.
    std::string_view Name() const;
    /// The value in the current record, without trailing blanks, in the ANSI code page; columns that are not
    /// text as the text that stands for them. The characters stay until the recordset is closed. Error 3021
    /// when there is no current record.
    std::string_view Value() const;

  private:
    const Recordset* records_;
    std::size_t index_;
};

/// The columns of a recordset.
class Fields {
  public:
    explicit Fields(const Recordset& records) : records_(records) {}

    int Count() const;
    /// The column at a position, counted from 0. Error 3265 outside 0..Count - 1.
    Field Item(int index) const;

  private:
    const Recordset& records_;
};

/// The records of a table, from the first to the last, as they stood when it was opened. Deleted ones are not
/// among them. Once closed, every call but Close is error 3420.
class Recordset {
  public:
    /// Stands on the first record.
    explicit Recordset(TableImage table);
    Recordset(const Recordset&) = delete;
    Recordset& operator=(const Recordset&) = delete;

    /// Goes to the first record. Without any the recordset stays at its end; that is no error.
    void MoveFirst();
    /// Error 3021 at the end.
    void MoveNext();
    /// True behind the last record. The usual name is a macro of the standard library.
    bool Eof() const { return record_ == Table().Records(); }
    const dbase::Fields& Fields() const { return fields_; }
    void Close();

    /// The table itself, for what its shown records leave out: deleted records, its code page.
    const TableImage& Table() const {
        if (!table_) {
            RaiseRecordsetClosed();
        }
        return *table_;
    }

  private:
    friend class Field;

    void SkipHidden();

    std::optional<TableImage> table_;
    std::uint32_t record_ = 0;
    dbase::Fields fields_{*this};
};

inline std::string_view Field::Value() const {
    const auto& table = records_->Table();
    if (records_->record_ == table.Records()) {
        RaiseNoCurrentRecord();
    }
    return table.Value(records_->record_, index_);
}

inline Field Fields::Item(int index) const {
    if (index < 0 || static_cast<std::size_t>(index) >= records_.Table().Fields().size()) {
        RaiseNoField(index);
    }
    return {records_, static_cast<std::size_t>(index)};
}

} // namespace zy::dbase
