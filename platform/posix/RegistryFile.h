#pragma once

#include <optional>
#include <string>

#include "platform/posix/FileDescriptor.h"
#include "platform/posix/GlibPointer.h"

namespace zy {

/// The file that the registry is kept in, and the lock beside it that whoever changes it holds meanwhile.
class RegistryFile {
  public:
    /// In the folder for the user's settings.
    RegistryFile();

    /// What stands in it: nothing when there is no such file, or it cannot be read or understood.
    GlibPointer<GKeyFile> Read() const;
    /// False when the user has no folder for settings, or none can be made.
    bool MakeFolder() const;
    /// The right to change the file, for as long as it is kept; nothing when another program does not let go
    /// of it.
    std::optional<FileDescriptor> Lock() const;
    /// The same as Read for who is about to write: a missing file is an empty one, and so is one that cannot
    /// be understood, which is moved aside. Nothing when the file is there and cannot be read.
    GlibPointer<GKeyFile> ReadForChange() const;
    /// The file then holds the old content or the new, whatever fails.
    bool Write(GKeyFile* content) const;

  private:
    std::string folder_;
    std::string path_;
};

} // namespace zy
