#include "dbase/TableHeader.h"

#include <algorithm>

#include "basics/Text.h"
#include "dbase/Errors.h"
#include "dbase/LittleEndian.h"

namespace zy::dbase {
namespace {

constexpr unsigned kVersion = 0x03;
constexpr char kEndOfFields = '\x0D';
constexpr std::size_t kHeaderSizeAt = 8;
constexpr std::size_t kRecordSizeAt = 10;
constexpr std::size_t kFirstField = 32;

constexpr std::size_t kDescriptorSize = 32;
constexpr std::size_t kNameSize = 11;
constexpr std::size_t kTypeAt = 11;
constexpr std::size_t kWidthAt = 16;

TableField ParseField(std::string_view descriptor, std::size_t offset) {
    const auto name = descriptor.substr(0, kNameSize);
    return {.name = std::string(name.substr(0, name.find('\0'))),
            .type = descriptor[kTypeAt],
            .offset = offset,
            .width = ByteAt(descriptor, kWidthAt)};
}

/// The columns up to the mark that ends them; `header` ends where the header does.
std::vector<TableField> ParseFields(std::string_view header, std::string_view path) {
    std::vector<TableField> fields;
    std::size_t at = kFirstField;
    std::size_t offset = 1;
    while (at < header.size() && header[at] != kEndOfFields) {
        if (header.size() - at <= kDescriptorSize) {
            RaiseBadFormat(path, "the mark 0D that ends its columns is missing in the " +
                                     std::to_string(header.size()) + " bytes of its header");
        }
        offset += fields.emplace_back(ParseField(header.substr(at, kDescriptorSize), offset)).width;
        at += kDescriptorSize;
    }
    return fields;
}

void CheckSizes(std::string_view file, std::string_view path) {
    constexpr auto kLeast = kFirstField + 1;
    if (file.size() < kLeast) {
        RaiseBadFormat(path, "it has " + std::to_string(file.size()) + " bytes, a table at least 33");
    }
    if (ByteAt(file, 0) != kVersion) {
        RaiseBadFormat(path, "its first byte is " + std::to_string(ByteAt(file, 0)) +
                                 ", which is not that of a dBase III table (3)");
    }
    const std::size_t headerSize = Get16(file, kHeaderSizeAt);
    if (headerSize < kLeast || headerSize > file.size()) {
        RaiseBadFormat(path, "byte 8 says that its header has " + std::to_string(headerSize) +
                                 " bytes, but the file has " + std::to_string(file.size()));
    }
}

/// Some programs put NULs behind the mark. Anything else there is a record that the header would hide.
void CheckHeaderSize(std::string_view header, std::size_t columns, std::string_view path) {
    const auto size = kFirstField + kDescriptorSize * columns + 1;
    if (header.find_first_not_of('\0', size) != std::string_view::npos) {
        RaiseBadFormat(path, "byte 8 says that its header has " + std::to_string(header.size()) +
                                 " bytes, but its columns make " + std::to_string(size));
    }
}

bool IsFieldName(std::string_view name) {
    constexpr std::string_view kLetters = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
    constexpr std::string_view kOthers = "0123456789_";
    const auto isLetter = [&](char c) { return kLetters.find(c) != std::string_view::npos; };
    return !name.empty() && name.size() < kNameSize && isLetter(name.front()) &&
           std::all_of(name.begin(), name.end(),
                       [&](char c) { return isLetter(c) || kOthers.find(c) != std::string_view::npos; });
}

void CheckColumns(std::span<const ColumnDefinition> columns) {
    if (columns.size() > kMostNewFields) {
        Raise(kTooManyFields,
              {"Too many fields defined: ", std::to_string(columns.size()), " of at most 255."});
    }
    for (auto column = columns.begin(); column != columns.end(); ++column) {
        const auto& name = column->name;
        if (!IsFieldName(name)) {
            Raise(kBadName,
                  {"'", name, "' isn't a valid name for a field: 1 to 10 letters, digits and '_'."});
        }
        if (std::any_of(columns.begin(), column,
                        [&](const auto& earlier) { return IsSameName(earlier.name, name); })) {
            Raise(kFieldDefinedTwice, {"Can't define field '", name, "' more than once."});
        }
        if (column->width < 1 || column->width > kWidestText) {
            Raise(kFieldSyntax, {"Syntax error in field definition: field '", name,
                                 "' must have a width of 1 to 254 characters."});
        }
    }
}

std::string Descriptor(const ColumnDefinition& column) {
    std::string descriptor(kDescriptorSize, '\0');
    std::transform(column.name.begin(), column.name.end(), descriptor.begin(), AsciiCapital);
    descriptor[kTypeAt] = 'C';
    PutByte(descriptor, kWidthAt, static_cast<unsigned>(column.width));
    return descriptor;
}

} // namespace

TableHeader ParseTableHeader(std::string_view file, std::string_view path) {
    CheckSizes(file, path);
    TableHeader header{.records = Get32(file, kCountAt),
                       .size = Get16(file, kHeaderSizeAt),
                       .recordSize = Get16(file, kRecordSizeAt),
                       .fields = {}};
    header.fields = ParseFields(file.substr(0, header.size), path);
    if (header.fields.empty()) {
        RaiseBadFormat(path, "it has no columns");
    }
    CheckHeaderSize(file.substr(0, header.size), header.fields.size(), path);
    const auto& last = header.fields.back();
    if (const auto sum = last.offset + last.width; sum != header.recordSize) {
        RaiseBadFormat(path, "byte 10 says that its records have " + std::to_string(header.recordSize) +
                                 " bytes, but its columns make " + std::to_string(sum));
    }
    return header;
}

std::string NewTableHeader(std::span<const ColumnDefinition> columns) {
    CheckColumns(columns);
    std::string header(kFirstField, '\0');
    unsigned recordSize = 1;
    for (const auto& column : columns) {
        header += Descriptor(column);
        recordSize += static_cast<unsigned>(column.width);
    }
    header += kEndOfFields;
    PutByte(header, 0, kVersion);
    Put16(header, kHeaderSizeAt, static_cast<unsigned>(header.size()));
    Put16(header, kRecordSizeAt, recordSize);
    return header;
}

} // namespace zy::dbase
