#pragma once

#include <cstddef>
#include <initializer_list>
#include <string>
#include <vector>

namespace zy::dbase::test {

/// A column of a table that is put together byte by byte.
struct Column {
    std::string name;
    unsigned width;
    char type = 'C';
    unsigned decimals = 0;
};

/// A number as a file has it, the lowest byte first.
inline std::string Low(std::size_t number, std::size_t bytes) {
    std::string text;
    for (std::size_t i = 0; i < bytes; ++i) {
        text += static_cast<char>(number >> (8 * i) & 0xFFU);
    }
    return text;
}

/// A table as another program may have left it: set a member to lie.
struct TableBytes {
    explicit TableBytes(std::vector<Column> theColumns) : columns(std::move(theColumns)) {
        for (const auto& column : columns) {
            recordSize += column.width;
        }
        headerSize = 33 + 32 * columns.size();
    }

    /// A record with its flag, whose values are filled with blanks.
    TableBytes& Add(char flag, const std::vector<std::string>& values) {
        std::string record(1, flag);
        for (std::size_t i = 0; i < columns.size(); ++i) {
            record += values[i] + std::string(columns[i].width - values[i].size(), ' ');
        }
        records += record;
        ++count;
        return *this;
    }

    std::string Header() const {
        std::string header = version + date + Low(count, 4) + Low(headerSize, 2) + Low(recordSize, 2) +
                             std::string(17, '\0') + language + std::string(2, '\0');
        for (const auto& column : columns) {
            std::string descriptor = column.name;
            descriptor.resize(11, '\0');
            descriptor += column.type + Low(address, 4) + Low(column.width, 1) + Low(column.decimals, 1);
            descriptor.resize(32, '\0');
            header += descriptor;
        }
        return header + endOfFields;
    }

    std::string Bytes() const { return Header() + records + endOfFile; }

    std::vector<Column> columns;
    std::string version = "\x03";
    std::string date = "\x7E\x0B\x14"; // 20 November 2026
    std::size_t count = 0;
    std::size_t headerSize;
    std::size_t recordSize = 1;
    std::string language = std::string(1, '\0');
    std::size_t address = 0;
    std::string endOfFields = "\x0D";
    std::string records;
    std::string endOfFile = "\x1A";
};

/// The columns of the user table.
inline TableBytes UserTable() {
    return TableBytes({{"USERID", 10}, {"PASSWORD", 20}, {"IDENTIFIER", 20}, {"EXPDATE", 8}, {"STATUS", 1}});
}

} // namespace zy::dbase::test
