#include "platform/posix/RegistryFile.h"

#include <fcntl.h>

#include <chrono>
#include <cstdio>
#include <thread>
#include <utility>

#include "platform/posix/UserFolders.h"

namespace zy {
namespace {

/// Reads the file; the error says why there is nothing.
GlibPointer<GKeyFile> ReadKeyFile(const std::string& path, GlibPointer<GError>& error) {
    GlibPointer<GKeyFile> file(g_key_file_new());
    GError* failed = nullptr;
    const auto flags = static_cast<GKeyFileFlags>(G_KEY_FILE_KEEP_COMMENTS | G_KEY_FILE_KEEP_TRANSLATIONS);
    if (g_key_file_load_from_file(file.get(), path.c_str(), flags, &failed) == 0) {
        file.reset();
    }
    error.reset(failed);
    return file;
}

} // namespace

RegistryFile::RegistryFile() : folder_(UserConfigFolder()) {
    if (!folder_.empty()) {
        folder_ += "/zysetup";
        path_ = folder_ + "/registry.ini";
    }
}

GlibPointer<GKeyFile> RegistryFile::Read() const {
    GlibPointer<GError> error;
    return ReadKeyFile(path_, error);
}

bool RegistryFile::MakeFolder() const {
    return !folder_.empty() && MakeFolders(folder_) == FileError::None;
}

std::optional<FileDescriptor> RegistryFile::Lock() const {
    constexpr mode_t kForTheUserAlone = 0600;
    constexpr std::chrono::milliseconds kPause{10};
    constexpr int kAttempts = 50;
    const auto name = path_ + ".lock";
    FileDescriptor lock(::open(name.c_str(), O_CREAT | O_RDWR | O_CLOEXEC, kForTheUserAlone));
    for (int attempt = 0; lock.IsOpen() && attempt < kAttempts; ++attempt) {
        if (TryLock(lock) == 0) {
            return lock;
        }
        std::this_thread::sleep_for(kPause);
    }
    return std::nullopt;
}

GlibPointer<GKeyFile> RegistryFile::ReadForChange() const {
    GlibPointer<GError> error;
    auto file = ReadKeyFile(path_, error);
    if (file) {
        return file;
    }
    const bool missing = g_error_matches(error.get(), G_FILE_ERROR, G_FILE_ERROR_NOENT) != 0;
    const bool damaged =
        error->domain == G_KEY_FILE_ERROR && std::rename(path_.c_str(), (path_ + ".damaged").c_str()) == 0;
    return GlibPointer<GKeyFile>(missing || damaged ? g_key_file_new() : nullptr);
}

bool RegistryFile::Write(GKeyFile* content) const {
    return g_key_file_save_to_file(content, path_.c_str(), nullptr) != 0;
}

} // namespace zy
