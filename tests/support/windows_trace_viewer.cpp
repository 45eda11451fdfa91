// A trace viewer for the tests: an automation server among the running objects, under the program id
// "ZYDebug.Application", whose method Send prints each record on a line of its own. It prints "listening"
// when it can be found, and ends when its standard input does.

#include <windows.h>
// After windows.h, which it leans on.
#include <oleauto.h>

#include <cstdio>
#include <optional>
#include <string>
#include <thread>

#include "platform/CodePage.h"
#include "tools/RecordLine.h"

namespace {

constexpr auto kProgramId = L"ZYDebug.Application";
constexpr auto kClassIdText = L"{6B0E5B55-3C0B-4E0D-9C52-7B1C0F8C2A31}";
constexpr DISPID kSend = 1;

void Print(const std::string& text) {
    DWORD written = 0;
    ::WriteFile(::GetStdHandle(STD_OUTPUT_HANDLE), text.data(), static_cast<DWORD>(text.size()), &written,
                nullptr);
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
        Print(zy::RecordLine(*fields));
        return S_OK;
    }
};

/// The program id of the viewer, registered for as long as this lives where no other viewer's is.
class RegisteredProgramId {
  public:
    RegisteredProgramId() {
        if (FAILED(::CLSIDFromProgID(kProgramId, &classId_))) {
            const auto key = std::wstring(kProgramId) + L"\\CLSID";
            ::RegSetValueW(HKEY_CLASSES_ROOT, key.c_str(), REG_SZ, kClassIdText, 0);
            ::CLSIDFromString(kClassIdText, &classId_);
            ours_ = true;
        }
    }
    RegisteredProgramId(const RegisteredProgramId&) = delete;
    RegisteredProgramId& operator=(const RegisteredProgramId&) = delete;
    ~RegisteredProgramId() {
        if (ours_) {
            ::RegDeleteTreeW(HKEY_CLASSES_ROOT, kProgramId);
        }
    }

    const CLSID& ClassId() const { return classId_; }

  private:
    CLSID classId_{};
    bool ours_ = false;
};

/// Asks the thread to end when there is nothing more to read.
void WatchInput(DWORD thread) {
    char byte = 0;
    DWORD count = 1;
    while (::ReadFile(::GetStdHandle(STD_INPUT_HANDLE), &byte, 1, &count, nullptr) != FALSE && count > 0) {
    }
    ::PostThreadMessageW(thread, WM_QUIT, 0, 0);
}

/// Takes records until the input ends.
int View() {
    const RegisteredProgramId programId;
    Viewer viewer;
    DWORD registration = 0;
    if (FAILED(::RegisterActiveObject(&viewer, programId.ClassId(), ACTIVEOBJECT_STRONG, &registration))) {
        return 1;
    }
    MSG message{};
    ::PeekMessageW(&message, nullptr, 0, 0, PM_NOREMOVE); // makes the queue that the watch posts to
    std::thread watch(WatchInput, ::GetCurrentThreadId());
    Print("listening\n");
    while (::GetMessageW(&message, nullptr, 0, 0) > 0) {
        ::DispatchMessageW(&message);
    }
    watch.join();
    ::RevokeActiveObject(registration, nullptr);
    ::CoDisconnectObject(&viewer, 0);
    return 0;
}

} // namespace

int main() {
    if (FAILED(::CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED))) {
        return 1;
    }
    const int status = View();
    ::CoUninitialize();
    return status;
}
