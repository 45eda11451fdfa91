#pragma once

#include <string>
#include <vector>

#include "controls/ListView.h"

namespace zy::test {

/// The lines of a list on the screen, their cells separated by "|".
inline std::vector<std::string> LinesOf(const ListView& list) {
    std::vector<std::string> lines;
    for (int item = 1; item <= list.Count(); ++item) {
        std::string line;
        for (int column = 0; column < static_cast<int>(list.Columns().size()); ++column) {
            line.append(column == 0 ? "" : "|").append(list.CellText(item, column));
        }
        lines.push_back(line);
    }
    return lines;
}

} // namespace zy::test
