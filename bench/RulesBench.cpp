#include <fcntl.h>

#include <cstdio>
#include <cstring>
#include <memory>
#include <system_error>

#include "BigRules.h"
#include "Duel.h"
#include "GlibKeyFile.h"
#include "RulesEditor.h"
#include "platform/posix/FileDescriptor.h"
#include "rules/RulesFileText.h"
#include "support/TemporaryFolder.h"

namespace zy::bench {
namespace {

using test::TemporaryFolder;

constexpr const char* kRulesFile = "ZYRules.sys";
constexpr const char* kKeyFile = "keyfile.ini";

FileDescriptor Open(const std::string& path, int flags) {
    FileDescriptor file(::open(path.c_str(), flags | O_CLOEXEC, 0666));
    if (!file.IsOpen()) {
        throw std::system_error(errno, std::generic_category(), path);
    }
    return file;
}

/// The peer that does the least: open, read, close.
std::string ReadWhole(const std::string& path, std::size_t size) {
    const auto file = Open(path, O_RDONLY);
    std::string bytes(size, '\0');
    bytes.resize(static_cast<std::size_t>(::read(file.Number(), bytes.data(), bytes.size())));
    return bytes;
}

std::size_t CountLines(const std::string& text) {
    std::size_t lines = 0;
    const char* at = text.data();
    const char* const end = at + text.size();
    while (const void* found = std::memchr(at, '\n', static_cast<std::size_t>(end - at))) {
        at = static_cast<const char*>(found) + 1;
        ++lines;
    }
    return lines;
}

/// The peer that writes the least: write and rename, without sync.
void WriteAndRename(const std::string& bytes, const std::string& path) {
    const auto temporary = path + ".tmp";
    const auto written =
        ::write(Open(temporary, O_WRONLY | O_CREAT | O_TRUNC).Number(), bytes.data(), bytes.size());
    if (written != static_cast<ssize_t>(bytes.size()) || std::rename(temporary.c_str(), path.c_str()) != 0) {
        throw std::system_error(errno, std::generic_category(), path);
    }
}

/// A folder with a rules file and the peer's file of as many rules, and the editor over it.
struct Settings {
    Settings(const std::filesystem::path& below, int rules)
        : folder(below), editor(folder.InsidePath()), bytes(RulesFileOf(rules)) {
        folder.Put(kRulesFile, bytes);
        folder.Put(kKeyFile, KeyFileOf(rules));
    }

    std::string RulesFile() const { return folder.Path(kRulesFile); }
    std::string KeyFile() const { return folder.Path(kKeyFile); }

    TemporaryFolder folder;
    RulesEditor editor;
    std::string bytes;
};

/// What loading gives, made once so that only saving is timed.
struct Loaded {
    explicit Loaded(Settings& settings)
        : rules(settings.editor.Load()), keyFile(LoadGlibKeyFile(settings.KeyFile())) {}

    std::unique_ptr<mRules> rules;
    GlibKeyFile keyFile;
};

double SecondsToLoad(Settings& settings) {
    return WorkingSeconds([&] { return settings.editor.Load(); });
}

int Save(mRules& rules) {
    rules.Write_Rules_File();
    return 0;
}

void AddLoads(Settings& settings) {
    const auto ours = [&] { return InFreshProcess([&] { return SecondsToLoad(settings); }); };
    const auto glib = [&] { return WorkingSeconds([&] { return LoadGlibKeyFile(settings.KeyFile()); }); };
    const auto scan = [&] {
        return WorkingSeconds(
            [&] { return CountLines(ReadWhole(settings.RulesFile(), settings.bytes.size())); });
    };
    Add({.work = "load 32,767 rules",
         .peer = "GLib key file",
         .goal = 0.2,
         .rounds = 21,
         .ours = ours,
         .theirs = [glib] { return InFreshProcess(glib); }});
    Add({.work = "load 32,767 rules",
         .peer = "read and memchr scan",
         .goal = 9,
         .rounds = 41,
         .ours = ours,
         .theirs = [scan] { return InFreshProcess(scan); }});
}

void AddSmallLoad(Settings& settings) {
    Add({.work = "load 11 rules (99 lines)",
         .peer = "open, read, close",
         .goal = std::nullopt,
         .rounds = 2001,
         .ours = [&] { return SecondsToLoad(settings); },
         .theirs =
             [&] {
                 return WorkingSeconds(
                     [&] { return ReadWhole(settings.RulesFile(), settings.bytes.size()); });
             }});
}

void AddSaveInMemory(const Loaded& loaded) {
    Add({.work = "text of 32,767 rules",
         .peer = "GLib key file",
         .goal = 0.15,
         .rounds = 41,
         .ours = [&] { return WorkingSeconds([&] { return RulesFileText(loaded.rules->gaRules); }); },
         .theirs = [&] { return WorkingSeconds([&] { return GlibKeyFileText(loaded.keyFile); }); }});
}

void AddSyncedSave(Settings& settings, const Loaded& loaded) {
    Add({.work = "save 32,767 rules, synced",
         .peer = "GLib key file, synced",
         .goal = 0.25,
         .rounds = 11,
         .ours = [&] { return WaitingSeconds([&] { return Save(*loaded.rules); }); },
         .theirs =
             [&] {
                 return WorkingSeconds([&] {
                     SaveGlibKeyFile(loaded.keyFile, settings.KeyFile());
                     return 0;
                 });
             }});
}

void AddUnsyncedSave(Settings& settings, const Loaded& loaded) {
    Add({.work = "save 32,767 rules, on a memory disk",
         .peer = "write and rename",
         .goal = 1.8,
         .rounds = 41,
         .ours = [&] { return WorkingSeconds([&] { return Save(*loaded.rules); }); },
         .theirs =
             [&] {
                 return WorkingSeconds([&] {
                     WriteAndRename(settings.bytes, settings.KeyFile());
                     return 0;
                 });
             }});
}

int Run(int argumentCount, char** arguments) {
    constexpr int kFewRules = 11;
    Settings many(std::filesystem::temp_directory_path(), kManyRules);
    Settings few(std::filesystem::temp_directory_path(), kFewRules);
    // Syncing costs nothing where there is no disk, so what is left is the work itself.
    Settings unsynced("/dev/shm", kManyRules);
    const Loaded loaded(many);
    const Loaded loadedUnsynced(unsynced);
    AddLoads(many);
    AddSmallLoad(few);
    AddSaveInMemory(loaded);
    AddSyncedSave(many, loaded);
    AddUnsyncedSave(unsynced, loadedUnsynced);
    return RunDuels(argumentCount, arguments);
}

} // namespace
} // namespace zy::bench

int main(int argumentCount, char** arguments) {
    return zy::bench::Run(argumentCount, arguments);
}
