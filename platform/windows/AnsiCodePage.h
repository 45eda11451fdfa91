#pragma once

#include "platform/CodePage.h"

namespace zy {

/// The ANSI code page that this Windows is set to. A byte that is no character by itself, as in the code
/// pages with two bytes a character, stands for U+FFFD.
const CodePage& AnsiCodePage();

} // namespace zy
