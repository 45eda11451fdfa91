#pragma once

#include <string>

#include "platform/FileError.h"

namespace zy {

/// The security descriptor of a file that belongs to the user of this process, who alone may do anything with
/// it; nothing is inherited from its folder.
class PermissionsForTheUserAlone {
  public:
    PermissionsForTheUserAlone();
    PermissionsForTheUserAlone(const PermissionsForTheUserAlone&) = delete;
    PermissionsForTheUserAlone& operator=(const PermissionsForTheUserAlone&) = delete;
    ~PermissionsForTheUserAlone();

    /// The system's SECURITY_DESCRIPTOR; null when there is none to be had.
    void* Get() const { return descriptor_; }

  private:
    void* descriptor_ = nullptr;
};

/// Gives the file `to` the access list of the file `from` and, as far as the user may, owner and group. On a
/// disk that keeps none, such as a memory stick's, there is nothing to do.
FileError CopyWindowsPermissions(const std::string& from, const std::string& to);

/// Takes from all but the user of this process what they may do with a folder, as far as its disk keeps
/// permissions. AccessDenied where it is somebody else's or a symbolic link.
FileError KeepFolderToTheUser(const std::string& path);

/// Whether the file bears the attribute that keeps it from being changed.
bool IsWriteProtected(const std::string& path);

} // namespace zy
