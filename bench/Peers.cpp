#include "Peers.h"

#include <filesystem>
#include <memory>

#include "GlibKeyFile.h"
#include "PlainFile.h"

namespace zy::bench {
namespace {

std::shared_ptr<const GlibKeyFile> Loaded(const std::string& path) {
    return std::make_shared<const GlibKeyFile>(LoadGlibKeyFile(path));
}

std::size_t SizeOf(const std::string& path) {
    return std::filesystem::file_size(path);
}

} // namespace

Peer LoadByGlib(const std::string& path) {
    return {"GLib key file", Working([path] { return LoadGlibKeyFile(path); })};
}

Peer TextByGlib(const std::string& path) {
    return {"GLib key file", Working([file = Loaded(path)] { return GlibKeyFileText(*file); })};
}

Peer SaveByGlib(const std::string& path) {
    return {"GLib key file, synced", Waiting([file = Loaded(path), path] { SaveGlibKeyFile(*file, path); })};
}

Peer Scan(const std::string& path) {
    return {"read and memchr scan",
            Working([path, size = SizeOf(path)] { return CountLines(ReadWhole(path, size)); })};
}

Peer OpenReadClose(const std::string& path) {
    return {"open, read, close", Working([path, size = SizeOf(path)] { return ReadWhole(path, size); })};
}

Peer PlainSave(const std::string& path) {
    return {"write and rename", Working([bytes = ReadWhole(path, SizeOf(path)), copy = path + ".copy"] {
                WriteAndRename(bytes, copy);
            })};
}

} // namespace zy::bench
