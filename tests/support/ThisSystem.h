#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

#include "platform/CodePage.h"
#include "platform/FileSystem.h"

namespace zy::test {

// The system that the tests run on.

std::unique_ptr<FileSystem> SystemFiles();
/// The code page of the program there.
const CodePage& SystemCodePage();

// File names, between the system (UTF-8) and the program (the code page).

std::string NameToInside(std::string_view name);
/// Throws when no file can have the name.
std::string NameToOutside(std::string_view name);
std::string PathToInside(const std::filesystem::path& path);

// The same, between UTF-8 and the library's paths, which on Windows take other narrow text for other than
// UTF-8.
inline std::filesystem::path FromUtf8(std::string_view path) {
    return std::u8string(path.begin(), path.end());
}
inline std::string ToUtf8(const std::filesystem::path& path) {
    const auto utf8 = path.u8string();
    return {utf8.begin(), utf8.end()};
}

} // namespace zy::test
