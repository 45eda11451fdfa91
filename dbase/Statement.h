#pragma once

#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace zy::dbase {

// The statements, taken apart. Names are views of the statement's text.

struct ColumnDefinition {
    std::string_view name;
    int width;
};

struct CreateTable {
    std::string_view table;
    std::vector<ColumnDefinition> columns;
};

struct Insert {
    std::string_view table;
    std::vector<std::string_view> columns;
    std::vector<std::string> values;
};

struct CreateIndex {
    std::string_view index;
    std::string_view table;
    std::vector<std::string_view> columns;
};

using Statement = std::variant<CreateTable, Insert, CreateIndex>;

} // namespace zy::dbase
