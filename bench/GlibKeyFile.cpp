#include "GlibKeyFile.h"

#include <stdexcept>

namespace zy::bench {
namespace {

void Require(gboolean done, const GError* error) {
    if (!done) {
        throw std::runtime_error(error->message);
    }
}

} // namespace

GlibKeyFile LoadGlibKeyFile(const std::string& path) {
    GlibKeyFile file(::g_key_file_new());
    GError* error = nullptr;
    Require(::g_key_file_load_from_file(file.get(), path.c_str(), G_KEY_FILE_NONE, &error), error);
    return file;
}

void SaveGlibKeyFile(const GlibKeyFile& file, const std::string& path) {
    GError* error = nullptr;
    Require(::g_key_file_save_to_file(file.get(), path.c_str(), &error), error);
}

std::unique_ptr<char, void (*)(void*)> GlibKeyFileText(const GlibKeyFile& file) {
    return {::g_key_file_to_data(file.get(), nullptr, nullptr), ::g_free};
}

} // namespace zy::bench
