#pragma once

#include <string>
#include <string_view>
#include <utility>

#include "basics/SharedText.h"
#include "platform/FileSystem.h"

namespace zy {

/// Whether a list's file is there. Where it is not found, opening it has to say so too: a disk that fails at
/// looking must not be taken for an installation without the file.
bool FindsFile(FileSystem& files, std::string_view path);

/// Says for the status bar of a file that a list was loaded without, that it is there all the same: the disk
/// failed when it was looked for. Empty where there is none.
std::string DescribeMissed(FileSystem& files, std::string_view path);

/// The file of a list, and what it held when the list was loaded from it or saved to it last.
///
/// Only its bytes tell whether it was changed: the time of a file on another computer says little, and a file
/// may be written anew with what it held.
class ListFile {
  public:
    /// The file system must outlive it.
    ListFile(FileSystem& files, std::string path);

    const std::string& Path() const { return path_; }
    std::string_view Name() const;
    /// What it holds now; null where there is no file, where it cannot be read, and where it is not certain
    /// which one it is.
    SharedText Read() const;
    /// Why Read() gave nothing; None where there is no file.
    FileError ReasonNotRead() const;
    /// What it held then; null as above.
    const SharedText& Known() const { return known_; }
    /// The same, empty for null.
    std::string_view KnownText() const { return *known_; }
    /// The list is what the file holds now, or will be when it is saved over it.
    void TakeUp(SharedText bytes) { known_ = std::move(bytes); }
    /// Whether another program put these bytes there. A file that is gone or cannot be read is not a changed
    /// one: it may be just on its way to its place.
    bool IsChange(const SharedText& bytes) const { return bytes && (!known_ || *bytes != *known_); }
    /// Whether it holds such bytes now, without taking memory for them.
    bool IsChanged() const;

  private:
    OpenedFile Open() const;

    FileSystem& files_;
    std::string path_;
    SharedText known_;
};

} // namespace zy
