#include "platform/windows/WindowsJournals.h"

#include <windows.h>
// After windows.h, which it leans on.
#include <bcrypt.h>

#include <algorithm>
#include <array>

#include "platform/JournalFile.h"
#include "platform/windows/FolderEntries.h"
#include "platform/windows/HandleFile.h"
#include "platform/windows/LocalTime.h"
#include "platform/windows/ProtectedJournal.h"
#include "platform/windows/StateFolder.h"

namespace zy {
namespace {

// The file

class WindowsJournal final : public Journal {
  public:
    explicit WindowsJournal(SystemHandle file) : file_(std::move(file)) {}

    std::string Read() override {
        std::string bytes(static_cast<std::size_t>(std::min(file_.Size(), kLargestJournal)), '\0');
        bytes.resize(GoTo(FILE_BEGIN) ? file_.Read(bytes) : 0);
        return bytes;
    }

    FileError Append(std::string_view piece) override {
        return GoTo(FILE_END) ? file_.Write(piece) : ToFileError(::GetLastError());
    }

    FileError Sync() override { return file_.Flush(); }

    FileError Remove() override {
        // By the handle, so that nobody gets hold of it in between; it goes as that is closed.
        FILE_DISPOSITION_INFO goes{.DeleteFile = TRUE};
        const bool isMarked = ::SetFileInformationByHandle(file_.Handle().Get(), FileDispositionInfo, &goes,
                                                           sizeof goes) != FALSE;
        return isMarked ? file_.Close() : ToFileError(::GetLastError());
    }

    std::chrono::local_seconds LastChange() override {
        FILETIME written{};
        ::GetFileTime(file_.Handle().Get(), nullptr, nullptr, &written);
        return ToSeconds(LocalTime(written));
    }

  private:
    bool GoTo(DWORD end) {
        return ::SetFilePointerEx(file_.Handle().Get(), LARGE_INTEGER{}, nullptr, end) != FALSE;
    }

    HandleFile file_;
};

bool IsRegularFile(const SystemHandle& file) {
    BY_HANDLE_FILE_INFORMATION status{};
    return ::GetFileInformationByHandle(file.Get(), &status) != FALSE &&
           (status.dwFileAttributes & kNotRegular) == 0;
}

SystemHandle Open(const std::wstring& path, DWORD disposition, SECURITY_ATTRIBUTES* attributes) {
    constexpr DWORD kSharedWithNobody = 0;
    return SystemHandle(::CreateFileW(path.c_str(), GENERIC_READ | GENERIC_WRITE | DELETE, kSharedWithNobody,
                                      attributes, disposition, FILE_FLAG_OPEN_REPARSE_POINT, nullptr));
}

std::unique_ptr<Journal> Wrap(SystemHandle file, Secrecy secrecy) {
    auto journal = std::make_unique<WindowsJournal>(std::move(file));
    if (secrecy == Secrecy::None) {
        return journal;
    }
    return std::make_unique<ProtectedJournal>(std::move(journal));
}

std::unique_ptr<Journal> OpenOrphan(const std::wstring& path, Secrecy secrecy) {
    auto file = Open(path, OPEN_EXISTING, nullptr);
    return file && IsRegularFile(file) ? Wrap(std::move(file), secrecy) : nullptr;
}

OpenedJournal CreateNew(const std::wstring& path, SECURITY_ATTRIBUTES* attributes, Secrecy secrecy) {
    auto file = Open(path, CREATE_NEW, attributes);
    const auto error = ToFileError(file ? ERROR_SUCCESS : ::GetLastError());
    return {.journal = file ? Wrap(std::move(file), secrecy) : nullptr, .error = error};
}

// The folder

/// Journals' names are ASCII.
std::wstring Joined(const std::wstring& folder, const std::string& name) {
    return folder + L'\\' + std::wstring(name.begin(), name.end());
}

/// The name, with "?", which no name holds, for what is not ASCII.
std::string AsciiName(std::wstring_view name) {
    std::string ascii;
    for (const auto character : name) {
        ascii += character < 0x80 ? static_cast<char>(character) : '?';
    }
    return ascii;
}

std::vector<std::string> NamesIn(const std::wstring& folder) {
    std::vector<std::string> names;
    ForEachEntry(folder, [&](const WIN32_FIND_DATAW& found) { names.push_back(AsciiName(found.cFileName)); });
    return names;
}

// The fingerprint

struct CloseAlgorithm {
    void operator()(void* algorithm) const { ::BCryptCloseAlgorithmProvider(algorithm, 0); }
};
struct DestroyHash {
    void operator()(void* hash) const { ::BCryptDestroyHash(hash); }
};

constexpr std::size_t kSha256Size = 32;
using Sha256Value = std::array<unsigned char, kSha256Size>;

/// False when the system cannot.
bool GetSha256(std::string_view bytes, Sha256Value& value) {
    void* opened = nullptr;
    ::BCryptOpenAlgorithmProvider(&opened, BCRYPT_SHA256_ALGORITHM, nullptr, 0);
    const std::unique_ptr<void, CloseAlgorithm> algorithm(opened);
    void* created = nullptr;
    ::BCryptCreateHash(algorithm.get(), &created, nullptr, 0, nullptr, 0, 0);
    const std::unique_ptr<void, DestroyHash> hash(created);
    auto* data = reinterpret_cast<unsigned char*>(const_cast<char*>(bytes.data())); // only read from
    return hash && BCRYPT_SUCCESS(::BCryptHashData(hash.get(), data, static_cast<ULONG>(bytes.size()), 0)) &&
           BCRYPT_SUCCESS(::BCryptFinishHash(hash.get(), value.data(), static_cast<ULONG>(value.size()), 0));
}

std::string Hexadecimal(const Sha256Value& value) {
    constexpr std::string_view kDigits = "0123456789abcdef";
    std::string text;
    for (const unsigned byte : value) {
        text += kDigits[byte / kDigits.size()];
        text += kDigits[byte % kDigits.size()];
    }
    return text;
}

} // namespace

WindowsJournals::WindowsJournals() : WindowsJournals(UsersLocalFolder()) {}

WindowsJournals::WindowsJournals(const std::wstring& below) : folder_(OwnFolderIn(below)) {}

OpenedJournal WindowsJournals::Create(std::string_view kind, Secrecy secrecy) {
    AttributesForTheUserAlone attributes;
    if (folder_.empty() || attributes.Get() == nullptr) {
        return {.journal = nullptr, .error = FileError::NotFound};
    }
    const bool isMade = ::CreateDirectoryW(folder_.c_str(), attributes.Get()) != FALSE;
    const auto making = ToFileError(isMade ? ERROR_SUCCESS : ::GetLastError());
    auto opened = MakeJournal(kind, ::GetCurrentProcessId(), [&](const std::string& name) {
        return CreateNew(Joined(folder_, name), attributes.Get(), secrecy);
    });
    // Where the folder cannot be made, the file in it has no place, whatever the reason is.
    if (opened.error == FileError::NotFound && making != FileError::None) {
        opened.error = making;
    }
    return opened;
}

std::vector<std::unique_ptr<Journal>> WindowsJournals::Orphans(std::string_view kind, Secrecy secrecy) {
    // Without a folder the names of the current drive's root would be looked at.
    const auto names = folder_.empty() ? std::vector<std::string>() : NamesIn(folder_);
    return OpenJournals(names, kind,
                        [&](const std::string& name) { return OpenOrphan(Joined(folder_, name), secrecy); });
}

std::string WindowsJournals::Fingerprint(std::string_view bytes) const {
    Sha256Value value{};
    return GetSha256(bytes, value) ? Hexadecimal(value) : "";
}

} // namespace zy
