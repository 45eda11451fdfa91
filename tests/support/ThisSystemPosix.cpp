#include "platform/posix/PathText.h"
#include "platform/posix/PosixFileSystem.h"
#include "support/ThisSystem.h"

namespace zy::test {

std::unique_ptr<FileSystem> SystemFiles() {
    return std::make_unique<PosixFileSystem>(SystemCodePage());
}

const CodePage& SystemCodePage() {
    return Windows1252();
}

std::string NameToInside(std::string_view name) {
    return PathText(SystemCodePage()).NameToInside(name);
}

std::string NameToOutside(std::string_view name) {
    return PathText(SystemCodePage()).NameToOutside(name).value();
}

std::string PathToInside(const std::filesystem::path& path) {
    return PathText(SystemCodePage()).PathToInside(path.string());
}

} // namespace zy::test
