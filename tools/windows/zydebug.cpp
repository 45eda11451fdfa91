// The trace viewer: prints what the editor reports through its trace channel while this program runs. To the
// editor it is an automation server among the running objects, under the program id "ZYDebug.Application".

#include <windows.h>
// After windows.h, which it leans on.
#include <oleauto.h>

#include <optional>
#include <string>
#include <string_view>

#include "platform/CodePage.h"
#include "tools/RecordLine.h"
#include "tools/ZydebugTexts.h"

namespace {

constexpr auto kProgramId = L"ZYDebug.Application";
constexpr auto kClassIdText = L"{6B0E5B55-3C0B-4E0D-9C52-7B1C0F8C2A31}";
constexpr DISPID kSend = 1;

/// Without waiting for more, so that whoever reads it has it at once.
void Print(DWORD stream, std::string_view text) {
    DWORD written = 0;
    ::WriteFile(::GetStdHandle(stream), text.data(), static_cast<DWORD>(text.size()), &written, nullptr);
}

int Fail(std::string_view message) {
    Print(STD_ERROR_HANDLE, zy::ZydebugError(message));
    return 1;
}

std::string ToUtf8(const BSTR text) {
    std::string utf8;
    for (UINT i = 0; i < ::SysStringLen(text); ++i) {
        zy::AppendUtf8(utf8, text[i]);
    }
    return utf8;
}

/// The fields of a call, which come in reverse order; nothing when they are not four texts.
std::optional<zy::RecordFields> FieldsOf(const DISPPARAMS& parameters) {
    zy::RecordFields fields;
    if (parameters.cArgs != fields.size() || parameters.cNamedArgs != 0) {
        return std::nullopt;
    }
    for (std::size_t i = 0; i < fields.size(); ++i) {
        const auto& argument = parameters.rgvarg[fields.size() - 1 - i];
        if (argument.vt != VT_BSTR) {
            return std::nullopt;
        }
        fields[i] = ToUtf8(argument.bstrVal);
    }
    return fields;
}

/// The object that is found. It lives as long as the program.
class Viewer final : public IDispatch {
  public:
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID wanted, void** object) override {
        const bool known = ::IsEqualIID(wanted, IID_IUnknown) || ::IsEqualIID(wanted, IID_IDispatch);
        *object = known ? static_cast<IDispatch*>(this) : nullptr;
        return known ? S_OK : E_NOINTERFACE;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return 2; }
    ULONG STDMETHODCALLTYPE Release() override { return 1; }

    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override {
        *count = 0;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT /*index*/, LCID /*locale*/, ITypeInfo** info) override {
        *info = nullptr;
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID /*reserved*/, LPOLESTR* names, UINT count, LCID /*locale*/,
                                            DISPID* numbers) override {
        const bool known = count == 1 && std::wstring(names[0]) == L"Send";
        numbers[0] = known ? kSend : DISPID_UNKNOWN;
        return known ? S_OK : DISP_E_UNKNOWNNAME;
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID number, REFIID /*reserved*/, LCID /*locale*/, WORD flags,
                                     DISPPARAMS* parameters, VARIANT* /*result*/, EXCEPINFO* /*exception*/,
                                     UINT* /*wrong*/) override {
        if (number != kSend || (flags & DISPATCH_METHOD) == 0) {
            return DISP_E_MEMBERNOTFOUND;
        }
        const auto fields = FieldsOf(*parameters);
        if (!fields) {
            return DISP_E_TYPEMISMATCH;
        }
        Print(STD_OUTPUT_HANDLE, zy::RecordLine(*fields));
        return S_OK;
    }
};

/// The program id of the viewer, registered for as long as this lives where no other viewer's is: the
/// machine's where that may be written, else the user's own, so that nobody has to be an administrator.
class RegisteredProgramId {
  public:
    RegisteredProgramId() {
        if (FAILED(::CLSIDFromProgID(kProgramId, &classId_))) {
            ::CLSIDFromString(kClassIdText, &classId_);
            isMachines_ = Register(HKEY_LOCAL_MACHINE);
            isUsers_ = !isMachines_ && Register(HKEY_CURRENT_USER);
        }
    }
    RegisteredProgramId(const RegisteredProgramId&) = delete;
    RegisteredProgramId& operator=(const RegisteredProgramId&) = delete;
    ~RegisteredProgramId() {
        if (isMachines_ || isUsers_) {
            ::RegDeleteTreeW(isMachines_ ? HKEY_LOCAL_MACHINE : HKEY_CURRENT_USER, kKey.c_str());
        }
    }

    const CLSID& ClassId() const { return classId_; }

  private:
    bool Register(HKEY root) const {
        return ::RegSetValueW(root, (kKey + L"\\CLSID").c_str(), REG_SZ, kClassIdText, 0) == ERROR_SUCCESS;
    }

    const std::wstring kKey = std::wstring(L"Software\\Classes\\") + kProgramId;
    CLSID classId_{};
    bool isMachines_ = false;
    bool isUsers_ = false;
};

/// Whether another viewer is among the running objects: two would share what comes, in no order.
bool IsTaken(const CLSID& classId) {
    IUnknown* other = nullptr;
    const bool taken = SUCCEEDED(::GetActiveObject(classId, nullptr, &other)) && other != nullptr;
    if (taken) {
        other->Release();
    }
    return taken;
}

/// Ctrl+C and the closing of its window end the viewer in good order, in the thread that takes the records.
DWORD viewersThread = 0;

BOOL WINAPI OnConsole(DWORD /*event*/) {
    return ::PostThreadMessageW(viewersThread, WM_QUIT, 0, 0);
}

/// Whether whoever started the viewer with a pipe for its input has closed that, which is how a program ends
/// it.
bool IsInputClosed() {
    const auto input = ::GetStdHandle(STD_INPUT_HANDLE);
    return ::GetFileType(input) == FILE_TYPE_PIPE &&
           ::PeekNamedPipe(input, nullptr, 0, nullptr, nullptr, nullptr) == FALSE;
}

/// Hands out what stands in the queue. False when it says that the program is to end.
bool HandOutMessages() {
    MSG message{};
    while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != FALSE) {
        if (message.message == WM_QUIT) {
            return false;
        }
        ::DispatchMessageW(&message);
    }
    return true;
}

/// Takes records until somebody ends it.
void TakeRecords() {
    constexpr DWORD kBetweenLooksAtTheInput = 100; // milliseconds
    while (HandOutMessages() && !IsInputClosed()) {
        ::MsgWaitForMultipleObjects(0, nullptr, FALSE, kBetweenLooksAtTheInput, QS_ALLINPUT);
    }
}

int View() {
    const RegisteredProgramId programId;
    if (IsTaken(programId.ClassId())) {
        return Fail(zy::kZydebugTaken);
    }
    Viewer viewer;
    DWORD registration = 0;
    if (FAILED(::RegisterActiveObject(&viewer, programId.ClassId(), ACTIVEOBJECT_STRONG, &registration))) {
        return Fail("it cannot be told to the running programs");
    }
    viewersThread = ::GetCurrentThreadId();
    HandOutMessages(); // makes the queue that an end is posted to
    ::SetConsoleCtrlHandler(OnConsole, TRUE);
    Print(STD_ERROR_HANDLE, zy::kZydebugGreeting);
    TakeRecords();
    ::RevokeActiveObject(registration, nullptr);
    ::CoDisconnectObject(&viewer, 0);
    return 0;
}

int ViewAsServer() {
    if (FAILED(::CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED))) {
        return Fail("COM does not start");
    }
    const int status = View();
    ::CoUninitialize();
    return status;
}

} // namespace

int main(int argumentCount, char** argumentList) {
    if (argumentCount <= 1) {
        return ViewAsServer();
    }
    const bool isAsked = std::string_view(argumentList[1]) == "--help";
    Print(isAsked ? STD_OUTPUT_HANDLE : STD_ERROR_HANDLE, zy::kZydebugUsage);
    return isAsked ? 0 : 1;
}
