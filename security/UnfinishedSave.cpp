#include "security/UnfinishedSave.h"

#include "basics/RuntimeError.h"
#include "dbase/FileBytes.h"
#include "shell/StatusTexts.h"

namespace zy {
namespace {

/// `of` is the number of those that it should hold.
std::string Holds(const dbase::TableContent& content, std::optional<std::size_t> of) {
    std::string text = "holds ";
    if (content.live == 0) {
        text += "no users";
    } else {
        text +=
            of ? std::to_string(content.live) + " of " + Counted(*of, "user") : Counted(content.live, "user");
    }
    return text + (content.damage.empty() ? "" : " and is damaged");
}

} // namespace

UnfinishedSave::UnfinishedSave(FileSystem& files, const UserFiles& names)
    : table_(files.DisplayPath(names.table)), temporary_(files.DisplayPath(names.temporary)),
      hasTable_(files.Exists(names.table)), hasTemporary_(files.Exists(names.temporary)) {
    if (hasTemporary_) {
        ReadTemporary(files, names.temporary);
    }
}

void UnfinishedSave::ReadTemporary(FileSystem& files, std::string_view path) {
    try {
        content_ = dbase::ContentOfTable(dbase::ReadFile(files, path), temporary_);
    } catch (const RuntimeError& error) {
        fault_ = error.Description();
    }
}

bool UnfinishedSave::HoldsUsers() const {
    return content_ && content_->damage.empty() && content_->live != 0;
}

std::string UnfinishedSave::Notice() const {
    if (!hasTemporary_) {
        return "";
    }
    const std::string temporary(kUsersTemporaryName);
    const std::string holds = temporary + " " + (content_ ? Holds(*content_, {}) : "cannot be read");
    const std::string table(kUsersTableName);
    if (hasTable_) {
        return holds + " and stops every save: move it to another folder";
    }
    const std::string noTable = "there is no " + table + ", but " + holds;
    return noTable + (HoldsUsers() ? ": rename it to " + table + " and start again"
                                   : " and stops every save: move it to another folder");
}

std::string UnfinishedSave::Account(const FailedSave& save) const {
    if (!hasTemporary_) {
        return "";
    }
    std::string text = save.foundTemporary ? "\n\nAnother program may be saving at this moment." : "";
    text += "\n\nThe file " + temporary_ + " stands in the way of the next save. ";
    text +=
        content_
            ? "It " + Holds(*content_, save.foundTemporary ? std::nullopt : std::optional(save.users)) + "."
            : fault_;
    if (hasTable_) {
        text += " " + table_ + " is in place.";
    } else {
        text += " There is no " + table_;
        text += save.tableIsRecycled ? ": the old one is in the recycle bin." : ".";
    }
    return text + Advice(save);
}

std::string UnfinishedSave::Advice(const FailedSave& save) const {
    const std::string ifNobodySaves = save.foundTemporary ? " If nobody is saving:" : "";
    const bool isWhole = HoldsUsers() && (save.foundTemporary || content_->live == save.users);
    if (!hasTable_ && isWhole) {
        return ifNobodySaves + " Rename the file to " + std::string(kUsersTableName) +
               " to have its users back.";
    }
    if (!hasTable_ && save.tableIsRecycled) {
        return ifNobodySaves + " Bring the old one back from there.";
    }
    return ifNobodySaves + " Move the file to another folder before you save again.";
}

} // namespace zy
