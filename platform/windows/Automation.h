#pragma once

#include <windows.h>
// After windows.h, which it leans on.
#include <oleauto.h>

#include <memory>
#include <string>
#include <string_view>

#include "platform/CodePage.h"

namespace zy {

// COM automation, as far as one late-bound call needs it. For sources of this room alone: its other headers
// stay without the system's.

struct ReleaseInterface {
    void operator()(IUnknown* object) const { object->Release(); }
};

/// Holds one reference to an object of COM's.
template <typename T>
using ComPointer = std::unique_ptr<T, ReleaseInterface>;

/// Text as COM takes it.
std::wstring ToComText(const CodePage& codePage, std::string_view text);

/// The running object of the server registered under that name; nothing when there is none. Never starts one.
ComPointer<IDispatch> RunningObject(const std::wstring& programId);

/// Calls a method that takes texts by its name; false when the object has none of that name, has gone, or
/// fails.
bool CallMethod(IDispatch& object, std::wstring method, std::initializer_list<std::wstring> texts);

} // namespace zy
