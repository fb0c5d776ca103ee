#include "desktop/windows/ScriptShell.h"

#include "desktop/windows/System.h"
#include "desktop/windows/Wide.h"
#include "forms/RunTimeError.h"

#include <oleauto.h>

namespace mirelle::windows {
namespace {

// A text as COM hands it over.
class BasicString {
public:
    explicit BasicString(const std::wstring& text)
        : text_(SysAllocStringLen(text.data(), static_cast<UINT>(text.size()))) {}
    ~BasicString() { SysFreeString(text_); }
    BasicString(const BasicString&) = delete;
    BasicString& operator=(const BasicString&) = delete;

    BSTR Get() const { return text_; }

private:
    BSTR text_;
};

bool IsMissing(HRESULT result) {
    return result == E_NOTIMPL || result == DISP_E_UNKNOWNNAME || result == DISP_E_MEMBERNOTFOUND;
}

// What an object tells of a method that failed.
struct Failure : EXCEPINFO {
    Failure() : EXCEPINFO{} {}
    ~Failure() {
        SysFreeString(bstrSource);
        SysFreeString(bstrDescription);
        SysFreeString(bstrHelpFile);
    }
    Failure(const Failure&) = delete;
    Failure& operator=(const Failure&) = delete;

    // The method's own result. An object names a failure in one of two ways; the shorter is that of a
    // run-time error.
    HRESULT Result() {
        if (pfnDeferredFillIn != nullptr) pfnDeferredFillIn(this);
        pfnDeferredFillIn = nullptr;
        return wCode != 0 ? MAKE_HRESULT(SEVERITY_ERROR, FACILITY_CONTROL, wCode) : scode;
    }
};

// Results of this facility carry the numbers of run-time errors.
ErrorNumber NumberOf(HRESULT result) {
    const bool isNamed = HRESULT_FACILITY(result) == FACILITY_CONTROL && HRESULT_CODE(result) != 0;
    return isNamed ? static_cast<ErrorNumber>(HRESULT_CODE(result)) : ErrorNumber::AutomationError;
}

} // namespace

std::unique_ptr<ScriptShell> ScriptShell::Create() {
    CLSID id{};
    if (FAILED(CLSIDFromProgID(L"WScript.Shell", &id))) return nullptr;
    void* object = nullptr;
    if (FAILED(CoCreateInstance(id, nullptr, CLSCTX_INPROC_SERVER, IID_IDispatch, &object))) return nullptr;
    return std::unique_ptr<ScriptShell>(new ScriptShell(static_cast<IDispatch*>(object)));
}

ScriptShell::~ScriptShell() {
    object_->Release();
}

bool ScriptShell::SendKeys(const std::string& text) {
    wchar_t nameText[] = L"SendKeys";
    LPOLESTR name = nameText;
    DISPID method = 0;
    if (FAILED(object_->GetIDsOfNames(IID_NULL, &name, 1, LOCALE_USER_DEFAULT, &method))) return false;
    const BasicString keys(Wide(text));
    VARIANTARG argument{};
    argument.vt = VT_BSTR;
    argument.bstrVal = keys.Get();
    DISPPARAMS arguments{&argument, nullptr, 1, 0};
    Failure failure;
    HRESULT result = object_->Invoke(method, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &arguments,
                                     nullptr, &failure, nullptr);
    if (SUCCEEDED(result)) return true;
    if (result == DISP_E_EXCEPTION) result = failure.Result();
    if (IsMissing(result)) return false;
    throw RunTimeError(NumberOf(result));
}

} // namespace mirelle::windows
