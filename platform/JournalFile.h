#pragma once

#include <chrono>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/Journals.h"

namespace zy {

// What the files that journals stand in have in common on every system.

/// The most that is read of one. It is several times what a session notes down, and leaves a file that
/// something else made grow no way to take all memory.
inline constexpr std::uint64_t kLargestJournal = 256U << 20U;

/// The name of a file: the kind of the notes, when it was made, in UTC, and by which process, as in
/// "units-20261122T140759000042Z-4711.journal". Names of a kind sort by that time.
std::string JournalFileName(std::string_view kind, std::chrono::sys_time<std::chrono::microseconds> made,
                            unsigned long process);
/// Those among the names of a folder that are names of that kind, from the latest to the earliest.
std::vector<std::string> JournalFileNames(std::vector<std::string> names, std::string_view kind);

/// Makes a journal under the first name from now on that is free. `make` takes a name and gives an
/// OpenedJournal: Exists when it is taken.
template <typename Make>
OpenedJournal MakeJournal(std::string_view kind, unsigned long process, Make make) {
    auto made = std::chrono::time_point_cast<std::chrono::microseconds>(std::chrono::system_clock::now());
    auto opened = make(JournalFileName(kind, made, process));
    while (opened.error == FileError::Exists) {
        opened = make(JournalFileName(kind, ++made, process));
    }
    return opened;
}

/// The journals of a kind that can be opened, from the latest to the earliest, by the names of their folder.
/// `open` takes a name and gives null when it is none, or held.
template <typename Open>
std::vector<std::unique_ptr<Journal>> OpenJournals(std::vector<std::string> names, std::string_view kind,
                                                   Open open) {
    std::vector<std::unique_ptr<Journal>> journals;
    for (const auto& name : JournalFileNames(std::move(names), kind)) {
        if (auto journal = open(name)) {
            journals.push_back(std::move(journal));
        }
    }
    return journals;
}

} // namespace zy
