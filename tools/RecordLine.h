#pragma once

#include <array>
#include <string>

namespace zy {

/// The fields of one trace record in UTF-8: executable, module, procedure, message.
using RecordFields = std::array<std::string, 4>;

/// The record on one line: the fields with a TAB between them, and a line end. A control character or line
/// separator within a field is shown by its number, such as "<U+000A>", so that a record is one line of four
/// fields whatever it holds.
std::string RecordLine(const RecordFields& fields);

} // namespace zy
