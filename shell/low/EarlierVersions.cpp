#include "shell/EarlierVersions.h"

#include <algorithm>
#include <charconv>

#include "history/VersionPlan.h"
#include "platform/TimeDigits.h"
#include "shell/mZYGlobal.h"

namespace zy {
namespace {

using Versions = std::vector<EarlierVersions::Version>;

/// What is not yet a version, or never became one.
constexpr std::string_view kUnfinished = "unfinished";

std::string In(const std::string& folder, std::string_view name) {
    return folder + '\\' + std::string(name);
}

std::string NameOf(std::chrono::sys_seconds time) {
    const auto day = std::chrono::floor<std::chrono::days>(time);
    return DateDigits(day) + 'T' + ClockDigits(time - day) + 'Z';
}

int Number(std::string_view digits) {
    int number = 0;
    std::from_chars(digits.data(), digits.data() + digits.size(), number);
    return number;
}

/// Nothing when it is no version's name.
std::optional<std::chrono::sys_seconds> TimeOf(std::string_view name) {
    constexpr std::string_view kExample = "20261122T004107Z";
    if (name.size() != kExample.size()) {
        return std::nullopt;
    }
    const auto part = [&](std::size_t at, std::size_t width) { return Number(name.substr(at, width)); };
    const std::chrono::year_month_day date(std::chrono::year(part(0, 4)),
                                           std::chrono::month(static_cast<unsigned>(part(4, 2))),
                                           std::chrono::day(static_cast<unsigned>(part(6, 2))));
    const auto time = std::chrono::sys_days(date) + std::chrono::hours(part(9, 2)) +
                      std::chrono::minutes(part(11, 2)) + std::chrono::seconds(part(13, 2));
    return date.ok() && NameOf(time) == name ? std::optional(time) : std::nullopt;
}

/// From the newest on.
Versions VersionsAmong(const std::vector<FoundFile>& found) {
    Versions versions;
    for (const auto& file : found) {
        if (const auto time = TimeOf(file.name)) {
            versions.push_back({.time = *time, .name = file.name, .size = file.size});
        }
    }
    std::sort(versions.begin(), versions.end(),
              [](const auto& left, const auto& right) { return left.time > right.time; });
    return versions;
}

bool IsThereUnfinished(const std::vector<FoundFile>& found) {
    return std::any_of(found.begin(), found.end(),
                       [](const FoundFile& file) { return file.name == kUnfinished; });
}

} // namespace

EarlierVersions::EarlierVersions(FileSystem& files, const Journals& journals, SystemInfo& system)
    : files_(files), journals_(journals), system_(system) {}

FileError EarlierVersions::Keep(std::string_view path, std::string_view bytes) {
    const auto folders = FoldersFor(path);
    if (const auto error = Enter(folders); error != FileError::None) {
        return error;
    }
    const auto& folder = folders.back();
    const auto found = files_.FilesIn(folder);
    const auto versions = VersionsAmong(found);
    if (!versions.empty() && HoldsText(files_, In(folder, versions.front().name), bytes)) {
        return FileError::None;
    }
    // Only what was found is deleted: that is no link to a file elsewhere.
    if (IsThereUnfinished(found)) {
        static_cast<void>(files_.Delete(In(folder, kUnfinished)));
    }
    const auto time = TimeAfter(versions);
    const auto name = NameOf(time);
    // A clock that shows a year of five digits is wrong, and its versions would not be found again.
    return TimeOf(name) == time ? Write(folder, name, bytes) : FileError::Other;
}

Versions EarlierVersions::Of(std::string_view path) {
    const auto folders = FoldersFor(path);
    const bool isThere = !folders.empty() && files_.PathExists(folders.back());
    return isThere && Enter(folders) == FileError::None ? VersionsAmong(files_.FilesIn(folders.back()))
                                                        : Versions();
}

std::optional<std::string> EarlierVersions::Read(std::string_view path, const Version& version) {
    const auto folders = FoldersFor(path);
    const auto opened =
        folders.empty() ? OpenedFile{} : files_.OpenForReading(In(folders.back(), version.name));
    if (!opened.handle || opened.handle->Size() != version.size) {
        return std::nullopt;
    }
    auto bytes = ReadFileText(*opened.handle, static_cast<std::uint32_t>(version.size));
    return bytes.size() == version.size ? std::optional(std::move(bytes)) : std::nullopt;
}

void EarlierVersions::Prune(std::string_view path) {
    const auto folders = FoldersFor(path);
    const auto versions = Of(path);
    std::vector<KeptVersion> kept;
    for (const auto& version : versions) {
        kept.push_back({.time = version.time, .size = version.size});
    }
    for (const auto place : SuperfluousVersions(kept)) {
        static_cast<void>(files_.Delete(In(folders.back(), versions[place].name)));
    }
}

EarlierVersions::Folders EarlierVersions::FoldersFor(std::string_view path) {
    constexpr std::size_t kDigitsOfAKey = 16;
    const auto state = system_.StateFolder();
    const auto key = journals_.Fingerprint(files_.DisplayPath(FolderOf(path))).substr(0, kDigitsOfAKey);
    if (state.empty() || key.empty()) {
        return {};
    }
    const auto backups = In(state, "backups");
    const auto ofFolder = In(backups, key);
    return {state, backups, ofFolder, In(ofFolder, FileNameOf(path))};
}

FileError EarlierVersions::Enter(const Folders& folders) {
    auto error = folders.empty() ? FileError::NotFound : FileError::None;
    for (auto folder = folders.begin(); error == FileError::None && folder != folders.end(); ++folder) {
        error = files_.MakePrivateFolder(*folder);
    }
    return error;
}

std::chrono::sys_seconds EarlierVersions::TimeAfter(const std::vector<Version>& versions) {
    const auto now = system_.Now();
    return versions.empty() ? now : std::max(now, versions.front().time + std::chrono::seconds(1));
}

FileError EarlierVersions::Write(const std::string& folder, const std::string& name, std::string_view bytes) {
    const auto unfinished = In(folder, kUnfinished);
    const auto created = files_.CreatePrivate(unfinished);
    if (!created.handle) {
        return created.error;
    }
    auto error = WriteAndClose(*created.handle, bytes);
    if (error == FileError::None) {
        error = files_.Rename(unfinished, In(folder, name));
    }
    if (error != FileError::None) {
        static_cast<void>(files_.Delete(unfinished));
    }
    return error;
}

} // namespace zy
