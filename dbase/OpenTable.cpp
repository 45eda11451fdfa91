#include "dbase/OpenTable.h"

#include "dbase/Errors.h"
#include "dbase/FileBytes.h"

namespace zy::dbase {
namespace {

/// The file of a name beside a table's, for its new bytes.
std::string PathBeside(std::string_view path) {
    const auto name = path.rfind('\\') + 1;
    const auto dot = path.rfind('.');
    const bool hasExtension = dot != std::string_view::npos && dot > name;
    return std::string(hasExtension ? path.substr(0, dot) : path) + ".$$$";
}

} // namespace

OpenTable::OpenTable(FileSystem& files, std::string path)
    : files_(files), path_(std::move(path)), image_(ReadFile(files, path_), files.DisplayPath(path_)),
      stored_(image_.Records()) {}

void OpenTable::Append(std::span<const std::string_view> values, bool inTransaction) {
    const auto before = image_.Records();
    image_.Append(values);
    if (inTransaction && !committed_) {
        committed_ = before;
    }
}

void OpenTable::Rollback() {
    if (committed_) {
        image_.CutBackTo(*committed_);
        committed_.reset();
    }
}

void OpenTable::Write(std::chrono::year_month_day today) {
    const auto records = Committed();
    if (records == stored_) {
        return;
    }
    const auto bytes = image_.FileBytes(records, today);
    // A table without records has nothing to lose.
    if (stored_ == 0) {
        if (const auto error = WriteOverFile(files_, path_, bytes); error != FileError::None) {
            RaiseWriteError(files_.DisplayPath(path_), error);
        }
    } else {
        Replace(bytes);
    }
    stored_ = records;
}

void OpenTable::Replace(std::string_view bytes) {
    const auto beside = PathBeside(path_);
    if (const auto error = WriteNewFile(files_, beside, bytes); error != FileError::None) {
        RaiseWriteError(files_.DisplayPath(beside), error);
    }
    auto error = files_.CopyPermissions(path_, beside);
    if (error == FileError::None) {
        error = files_.Delete(path_);
    }
    if (error != FileError::None) {
        static_cast<void>(files_.Delete(beside)); // the first error is the one that is reported
        RaiseWriteError(files_.DisplayPath(path_), error);
    }
    if (error = files_.Rename(beside, path_); error != FileError::None) {
        Raise(kDiskFailed,
              {"The table stands in '", files_.DisplayPath(beside), "': it could not be renamed to '",
               files_.DisplayPath(path_), "', ", Describe(error), "."});
    }
}

} // namespace zy::dbase
