#include "platform/windows/AnsiCodePage.h"
#include "platform/windows/WindowsFileSystem.h"
#include "support/ThisSystem.h"

namespace zy::test {

std::unique_ptr<FileSystem> SystemFiles() {
    return std::make_unique<WindowsFileSystem>();
}

const CodePage& SystemCodePage() {
    return AnsiCodePage();
}

std::string NameToInside(std::string_view name) {
    return SystemCodePage().FromUtf8(name).value();
}

std::string NameToOutside(std::string_view name) {
    return SystemCodePage().ToUtf8(name);
}

std::string PathToInside(const std::filesystem::path& path) {
    auto native = path;
    return NameToInside(ToUtf8(native.make_preferred()));
}

} // namespace zy::test
