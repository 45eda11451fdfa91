#include "Screen.h"

#include <windows.h>

#include <array>
#include <chrono>
#include <functional>
#include <map>
#include <sstream>
#include <stdexcept>
#include <thread>
#include <vector>

namespace zy::test {
namespace {

/// The system's codes of the keys that a stroke presses together, in their order.
using Stroke = std::vector<WORD>;

constexpr std::chrono::milliseconds kBetweenKeys{60};
constexpr std::chrono::milliseconds kBetweenCharacters{40};

WORD CodeOf(const std::string& key) {
    static const std::map<std::string, WORD, std::less<>> kNamed{
        {"alt", VK_MENU},  {"ctrl", VK_CONTROL},  {"shift", VK_SHIFT}, {"Return", VK_RETURN},
        {"Tab", VK_TAB},   {"Escape", VK_ESCAPE}, {"Down", VK_DOWN},   {"Up", VK_UP},
        {"Home", VK_HOME}, {"End", VK_END},       {"F1", VK_F1},       {"F2", VK_F2},
        {"F4", VK_F4},     {"Delete", VK_DELETE}, {"space", VK_SPACE}};
    if (const auto named = kNamed.find(key); named != kNamed.end()) {
        return named->second;
    }
    if (key.size() != 1) {
        throw std::invalid_argument("no key is called " + key);
    }
    return static_cast<WORD>(::VkKeyScanA(key.front()) & 0xFF);
}

Stroke StrokeOf(const std::string& keys) {
    Stroke stroke;
    std::istringstream parts(keys);
    for (std::string key; std::getline(parts, key, '+');) {
        stroke.push_back(CodeOf(key));
    }
    return stroke;
}

Stroke StrokeOf(char character) {
    const auto scan = static_cast<unsigned short>(::VkKeyScanA(character));
    if (scan == 0xFFFF) {
        throw std::invalid_argument(std::string("no key types ") + character);
    }
    Stroke stroke;
    if ((scan & 0x100U) != 0) {
        stroke.push_back(VK_SHIFT);
    }
    stroke.push_back(static_cast<WORD>(scan & 0xFFU));
    return stroke;
}

/// Whether the number block has a key of the same meaning, which this one is not.
bool IsApart(WORD key) {
    return key == VK_UP || key == VK_DOWN || key == VK_HOME || key == VK_END || key == VK_DELETE;
}

void Send(WORD key, DWORD flags) {
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = key;
    input.ki.wScan = static_cast<WORD>(::MapVirtualKeyA(key, MAPVK_VK_TO_VSC));
    input.ki.dwFlags = flags | (IsApart(key) ? KEYEVENTF_EXTENDEDKEY : 0U);
    if (::SendInput(1, &input, sizeof input) != 1) {
        throw std::runtime_error("the keyboard cannot be used");
    }
}

void Press(const Stroke& stroke) {
    for (const WORD key : stroke) {
        Send(key, 0);
    }
    for (auto key = stroke.rbegin(); key != stroke.rend(); ++key) {
        Send(*key, KEYEVENTF_KEYUP);
    }
}

/// Whether a window that opens has come so far that one of its controls gets the keys.
bool HoldsFocus(HWND window) {
    GUITHREADINFO thread{};
    thread.cbSize = sizeof thread;
    return ::GetGUIThreadInfo(::GetWindowThreadProcessId(window, nullptr), &thread) != FALSE &&
           ::IsChild(window, thread.hwndFocus) != FALSE;
}

/// Leaves alone what is not given, as `flags` say.
void PlaceActiveWindow(int left, int top, int width, int height, UINT flags) {
    ::SetWindowPos(::GetForegroundWindow(), nullptr, left, top, width, height,
                   flags | SWP_NOZORDER | SWP_NOACTIVATE);
}

} // namespace

std::string ActiveWindowTitle() {
    const HWND window = ::GetForegroundWindow();
    if (!HoldsFocus(window)) {
        return "";
    }
    std::array<char, 256> title{};
    ::GetWindowTextA(window, title.data(), static_cast<int>(title.size()));
    return title.data();
}

void PressKeys(const std::string& keys) {
    std::istringstream strokes(keys);
    for (std::string stroke; strokes >> stroke;) {
        Press(StrokeOf(stroke));
        std::this_thread::sleep_for(kBetweenKeys);
    }
}

void TypeCharacters(const std::string& text) {
    for (const char character : text) {
        Press(StrokeOf(character));
        std::this_thread::sleep_for(kBetweenCharacters);
    }
}

void MoveActiveWindow(int left, int top) {
    PlaceActiveWindow(left, top, 0, 0, SWP_NOSIZE);
}

void ResizeActiveWindow(int width, int height) {
    PlaceActiveWindow(0, 0, width, height, SWP_NOMOVE);
}

WindowSize ActiveWindowSize() {
    RECT place{};
    ::GetWindowRect(::GetForegroundWindow(), &place);
    return {.width = place.right - place.left, .height = place.bottom - place.top};
}

} // namespace zy::test
