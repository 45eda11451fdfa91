#include "platform/windows/Automation.h"

#include <array>
#include <vector>

namespace zy {
namespace {

/// The arguments of a call, which COM wants in reverse order.
class Arguments {
  public:
    explicit Arguments(std::initializer_list<std::wstring> texts) {
        for (auto text = std::rbegin(texts); text != std::rend(texts); ++text) {
            VARIANT argument{};
            argument.vt = VT_BSTR;
            argument.bstrVal = ::SysAllocStringLen(text->data(), static_cast<UINT>(text->size()));
            variants_.push_back(argument);
        }
    }
    Arguments(const Arguments&) = delete;
    Arguments& operator=(const Arguments&) = delete;
    ~Arguments() {
        for (auto& argument : variants_) {
            ::VariantClear(&argument);
        }
    }

    DISPPARAMS Get() {
        return {.rgvarg = variants_.data(),
                .rgdispidNamedArgs = nullptr,
                .cArgs = static_cast<UINT>(variants_.size()),
                .cNamedArgs = 0};
    }

  private:
    std::vector<VARIANT> variants_;
};

} // namespace

std::wstring ToComText(const CodePage& codePage, std::string_view text) {
    std::wstring wide;
    for (const char c : text) {
        wide += static_cast<wchar_t>(codePage.ToUnicode(c));
    }
    return wide;
}

ComPointer<IDispatch> RunningObject(const std::wstring& programId) {
    CLSID classId{};
    IUnknown* found = nullptr;
    if (FAILED(::CLSIDFromProgID(programId.c_str(), &classId)) ||
        FAILED(::GetActiveObject(classId, nullptr, &found))) {
        return nullptr;
    }
    const ComPointer<IUnknown> object(found);
    void* dispatch = nullptr;
    const auto result = object->QueryInterface(IID_IDispatch, &dispatch);
    return ComPointer<IDispatch>(SUCCEEDED(result) ? static_cast<IDispatch*>(dispatch) : nullptr);
}

bool CallMethod(IDispatch& object, std::wstring method, std::initializer_list<std::wstring> texts) {
    DISPID number = DISPID_UNKNOWN;
    wchar_t* name = method.data();
    if (FAILED(object.GetIDsOfNames(IID_NULL, &name, 1, LOCALE_USER_DEFAULT, &number))) {
        return false;
    }
    Arguments arguments(texts);
    auto parameters = arguments.Get();
    return SUCCEEDED(object.Invoke(number, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &parameters,
                                   nullptr, nullptr, nullptr));
}

} // namespace zy
