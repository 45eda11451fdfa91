#include "UnitsWindow.h"

namespace zy::test {

void UnitsWindow::PutUnits(const std::vector<std::string>& lines) {
    std::string text;
    for (const auto& line : lines) {
        text += line + "\r\n";
    }
    world.files.Put(R"(C:\SYS\ZYUNITS.SYS)", text);
}

std::vector<std::string> UnitsWindow::ManyUnits(int count) {
    std::vector<std::string> lines;
    for (int i = 1; i <= count; ++i) {
        lines.push_back("Unit number " + std::to_string(i) + ",u" + std::to_string(i));
    }
    return lines;
}

} // namespace zy::test
