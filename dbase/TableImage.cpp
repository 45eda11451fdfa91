#include "dbase/TableImage.h"

#include <algorithm>
#include <array>
#include <cstring>

#include "basics/Text.h"
#include "dbase/Errors.h"
#include "dbase/FileBytes.h"
#include "dbase/LittleEndian.h"

namespace zy::dbase {
namespace {

constexpr char kEndOfFile = '\x1A';
constexpr char kLive = ' ';
constexpr char kDeleted = '*';

/// Looks at 32 characters at a time.
bool IsAscii(std::string_view text) {
    std::array<std::uint64_t, 4> all{};
    std::array<std::uint64_t, 4> block{};
    for (; text.size() >= sizeof(block); text.remove_prefix(sizeof(block))) {
        std::memcpy(block.data(), text.data(), sizeof(block));
        for (std::size_t i = 0; i < block.size(); ++i) {
            all[i] |= block[i];
        }
    }
    for (const char c : text) {
        all[0] |= static_cast<unsigned char>(c);
    }
    return ((all[0] | all[1] | all[2] | all[3]) & 0x8080808080808080U) == 0;
}

[[noreturn]] void RaiseTooSmall(const TableField& field) {
    Raise(kFieldTooSmall, {"The field is too small: the value for '", field.name, "' is wider than its ",
                           std::to_string(field.width), " characters."});
}

/// The records that a file holds whole.
std::size_t WholeRecords(std::string_view file, const TableHeader& header) {
    return (file.size() - header.size) / header.recordSize;
}

std::string_view RecordOf(std::string_view file, const TableHeader& header, std::size_t record) {
    return file.substr(header.PlaceOf(record), header.recordSize);
}

bool HasFlag(std::string_view record) {
    return record.front() == kLive || record.front() == kDeleted;
}

TableContent ContentOf(std::string_view file, const TableHeader& header) {
    const auto whole = WholeRecords(file, header);
    TableContent content;
    const auto present = std::min<std::size_t>(header.records, whole);
    for (std::size_t i = 0; i != present; ++i) {
        const char flag = file[header.PlaceOf(i)];
        if (flag == kLive) {
            ++content.live;
        } else if (flag != kDeleted) {
            content.damage = "its record " + std::to_string(i + 1) + " begins with " +
                             std::to_string(static_cast<unsigned char>(flag)) +
                             ", which is neither a blank (32) nor the mark of a deleted one (42)";
            return content;
        }
    }
    if (header.records > whole) {
        content.damage = "byte 4 says that it has " + std::to_string(header.records) +
                         " records, but the file holds " + std::to_string(whole);
    }
    return content;
}

std::uint32_t CountUncounted(std::string_view file, const TableHeader& header) {
    const auto whole = WholeRecords(file, header);
    std::size_t end = header.records;
    const auto isRecord = [](std::string_view record) {
        return HasFlag(record) && !WithoutFiller(record).empty();
    };
    while (end < whole && isRecord(RecordOf(file, header, end))) {
        ++end;
    }
    return static_cast<std::uint32_t>(end - header.records);
}

} // namespace

TableContent ContentOfTable(std::string_view file, std::string_view path) {
    return ContentOf(file, ParseTableHeader(file, path));
}

TableImage::TableImage(std::string file, std::string_view path)
    : bytes_(std::move(file)), header_(ParseTableHeader(bytes_, path)), records_(header_.records),
      language_(ByteAt(bytes_, kLanguageAt)) {
    if (const auto content = ContentOf(bytes_, header_); !content.damage.empty()) {
        RaiseBadFormat(path, content.damage);
    }
    uncounted_ = CountUncounted(bytes_, header_);
    bytes_.resize(SizeOf(records_));
}

std::optional<std::size_t> TableImage::FindField(std::string_view name) const {
    const auto& fields = header_.fields;
    for (std::size_t i = 0; i < fields.size(); ++i) {
        if (IsSameName(fields[i].name, name)) {
            return i;
        }
    }
    return std::nullopt;
}

std::uint32_t TableImage::DeletedRecords() const {
    std::uint32_t deleted = 0;
    for (std::uint32_t record = 0; record != records_; ++record) {
        deleted += IsShown(record) ? 0U : 1U;
    }
    return deleted;
}

std::optional<unsigned> TableImage::UnknownPage() const {
    return IsKnownPage(language_) ? std::nullopt : std::optional<unsigned>(language_);
}

void TableImage::ConvertToAnsi() {
    replaced_ = OemToAnsi(OemPageOf(language_), bytes_.data() + header_.size, bytes_.data() + bytes_.size());
}

void TableImage::Append(std::span<const std::string_view> values) {
    if (OemPageOf(language_) == OemPage::None) {
        AppendBytes(values);
        return;
    }
    const auto converted = InOemPage(values);
    AppendBytes(std::vector<std::string_view>(converted.begin(), converted.end()));
}

void TableImage::CutBackTo(std::uint32_t records) {
    records_ = records;
    bytes_.resize(SizeOf(records_));
}

std::string_view TableImage::FileBytes(std::uint32_t records, std::chrono::year_month_day today) {
    StampHeader(records, today);
    if (records != records_) {
        cut_.assign(bytes_, 0, SizeOf(records)) += kEndOfFile;
        return cut_;
    }
    bytes_.resize(SizeOf(records));
    return bytes_ += kEndOfFile;
}

void TableImage::StampHeader(std::uint32_t records, std::chrono::year_month_day today) {
    PutByte(bytes_, kDateAt, static_cast<unsigned>(static_cast<int>(today.year()) - 1900));
    PutByte(bytes_, kDateAt + 1, static_cast<unsigned>(today.month()));
    PutByte(bytes_, kDateAt + 2, static_cast<unsigned>(today.day()));
    Put32(bytes_, kCountAt, records);
    const auto data = std::string_view(bytes_).substr(header_.size, SizeOf(records) - header_.size);
    const bool isUnstated = language_ == kLanguageNotStated && !IsAscii(data);
    PutByte(bytes_, kLanguageAt, isUnstated ? kLanguageWindows1252 : language_);
}

void TableImage::RequireRoom() const {
    if (bytes_.size() + header_.recordSize >= kLargestFile) {
        Raise(kNotSupported, {"The table is full: it would be larger than 2 GB."});
    }
}

std::vector<std::string> TableImage::InOemPage(std::span<const std::string_view> values) const {
    std::vector<std::string> converted(values.begin(), values.end());
    for (std::size_t i = 0; i < converted.size(); ++i) {
        if (!AnsiToOem(OemPageOf(language_), converted[i])) {
            Raise(kCannotConvert, {"Data type conversion error: the value for '", header_.fields[i].name,
                                   "' has a character that the table's code page lacks."});
        }
    }
    return converted;
}

void TableImage::AppendBytes(std::span<const std::string_view> values) {
    RequireRoom();
    const auto start = SizeOf(records_);
    // Growing in large steps: each of them copies all records.
    if (bytes_.capacity() - start <= header_.recordSize) {
        bytes_.reserve(std::min<std::size_t>(4 * bytes_.capacity(), kLargestFile));
    }
    bytes_.resize(start + header_.recordSize, ' ');
    bytes_[start] = ' ';
    auto field = header_.fields.begin();
    for (const auto value : values) {
        if (value.size() > field->width) {
            bytes_.resize(start);
            RaiseTooSmall(*field);
        }
        std::copy(value.begin(), value.end(), bytes_.data() + start + field->offset);
        ++field;
    }
    ++records_;
}

} // namespace zy::dbase
