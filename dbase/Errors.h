#pragma once

#include <initializer_list>
#include <string_view>

#include "dbase/ErrorNumbers.h"
#include "platform/FileError.h"

namespace zy::dbase {

/// Raises an error whose text is made of these parts.
[[noreturn]] void Raise(ErrorNumber number, std::initializer_list<std::string_view> parts);

/// Error 3274: a file is not what it has to be, and why.
[[noreturn]] void RaiseBadFormat(std::string_view path, std::string_view why);

/// What the file system refused, as an error that names the file. Access that is denied is 3051 for a file to
/// be read and 3027 for one to be written; what was not found is a table (3011) or a folder (3044).
[[noreturn]] void RaiseReadError(std::string_view path, FileError error);
[[noreturn]] void RaiseWriteError(std::string_view path, FileError error);

} // namespace zy::dbase
