#include "dbase/Recordset.h"

#include <utility>

#include "dbase/Errors.h"

namespace zy::dbase {

void RaiseNoCurrentRecord() {
    Raise(kNoCurrentRecord, {"No current record."});
}

void RaiseNoField(int index) {
    Raise(kNoSuchItem, {"Item not found in this collection: there is no field ", std::to_string(index), "."});
}

void RaiseRecordsetClosed() {
    Raise(kClosed, {"The recordset is closed."});
}

std::string_view Field::Name() const {
    return records_->Table().Fields()[index_].name;
}

int Fields::Count() const {
    return static_cast<int>(records_.Table().Fields().size());
}

Recordset::Recordset(TableImage table) : table_(std::move(table)) {
    table_->ConvertToAnsi();
    SkipHidden();
}

void Recordset::MoveFirst() {
    static_cast<void>(Table());
    record_ = 0;
    SkipHidden();
}

void Recordset::MoveNext() {
    if (Eof()) {
        RaiseNoCurrentRecord();
    }
    ++record_;
    SkipHidden();
}

void Recordset::Close() {
    table_.reset();
}

void Recordset::SkipHidden() {
    while (record_ != table_->Records() && !table_->IsShown(record_)) {
        ++record_;
    }
}

} // namespace zy::dbase
