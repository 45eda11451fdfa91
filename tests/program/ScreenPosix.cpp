#include "Screen.h"

#include <cstdio>
#include <sstream>
#include <stdexcept>

namespace zy::test {
namespace {

/// Runs xdotool to its end and returns what it printed.
std::string Do(const std::string& action) {
    const auto command = "xdotool " + action + " 2>/dev/null";
    FILE* pipe = popen(command.c_str(), "r");
    if (pipe == nullptr) {
        throw std::runtime_error("cannot run " + command);
    }
    std::string output;
    for (int character = fgetc(pipe); character != EOF; character = fgetc(pipe)) {
        output += static_cast<char>(character);
    }
    pclose(pipe);
    return output;
}

/// For the shell.
std::string InQuotes(const std::string& text) {
    std::string quoted = "'";
    for (const char character : text) {
        quoted += character == '\'' ? R"('\'')" : std::string(1, character);
    }
    return quoted + "'";
}

} // namespace

std::string ActiveWindowTitle() {
    auto title = Do("getwindowfocus getwindowname");
    if (title.ends_with('\n')) {
        title.pop_back();
    }
    return title;
}

void PressKeys(const std::string& keys) {
    Do("key --delay 60 " + keys);
}

void TypeCharacters(const std::string& text) {
    Do("type --delay 40 " + InQuotes(text));
}

void MoveActiveWindow(int left, int top) {
    Do("getactivewindow windowmove --sync " + std::to_string(left) + " " + std::to_string(top));
}

void ResizeActiveWindow(int width, int height) {
    Do("getactivewindow windowsize " + std::to_string(width) + " " + std::to_string(height));
}

void CutOffActiveWindow() {
    Do("getactivewindow windowkill");
}

WindowSize ActiveWindowSize() {
    WindowSize size;
    std::istringstream lines(Do("getactivewindow getwindowgeometry --shell"));
    for (std::string name, value; std::getline(lines, name, '=') && std::getline(lines, value);) {
        if (name == "WIDTH") {
            size.width = std::stoi(value);
        } else if (name == "HEIGHT") {
            size.height = std::stoi(value);
        }
    }
    return size;
}

} // namespace zy::test
