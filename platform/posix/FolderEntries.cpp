#include "platform/posix/FolderEntries.h"

namespace zy {

std::vector<std::filesystem::directory_entry> EntriesIn(const std::string& folder) {
    std::vector<std::filesystem::directory_entry> entries;
    std::error_code error;
    for (std::filesystem::directory_iterator entry(folder, error), end; !error && entry != end;
         entry.increment(error)) {
        entries.push_back(*entry);
    }
    return entries;
}

} // namespace zy
