#pragma once

#include <glib.h>

#include <memory>
#include <string>

namespace zy::bench {

struct FreeKeyFile {
    void operator()(GKeyFile* file) const { ::g_key_file_free(file); }
};
using GlibKeyFile = std::unique_ptr<GKeyFile, FreeKeyFile>;

/// Each throws std::runtime_error when GLib refuses.
GlibKeyFile LoadGlibKeyFile(const std::string& path);
void SaveGlibKeyFile(const GlibKeyFile& file, const std::string& path);
std::unique_ptr<char, void (*)(void*)> GlibKeyFileText(const GlibKeyFile& file);

} // namespace zy::bench
