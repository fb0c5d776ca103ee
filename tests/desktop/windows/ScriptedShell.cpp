#include "tests/desktop/windows/ScriptedShell.h"

#include "desktop/windows/Wide.h"

#include <oleauto.h>

#include <stdexcept>

namespace mirelle::test {
namespace {

constexpr DISPID kSendKeys = 41;

std::string Told(const VARIANTARG& argument) {
    return argument.vt == VT_BSTR ? windows::Utf8({argument.bstrVal, SysStringLen(argument.bstrVal)})
                                  : "of type " + std::to_string(argument.vt);
}

} // namespace

class ScriptedShell::Object : public IDispatch {
public:
    explicit Object(ScriptedShell& shell) : shell_(shell) { ++shell_.inUse; }
    virtual ~Object() { --shell_.inUse; }

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override {
        const bool isKnown = IsEqualIID(id, IID_IUnknown) || IsEqualIID(id, IID_IDispatch);
        *object = isKnown ? static_cast<IDispatch*>(this) : nullptr;
        if (!isKnown) return E_NOINTERFACE;
        AddRef();
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
    ULONG STDMETHODCALLTYPE Release() override {
        const ULONG left = --references_;
        if (left == 0) delete this;
        return left;
    }

    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override {
        *count = 0;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID,
                                            DISPID* methods) override {
        if (count != 1 || windows::Utf8(names[0]) != "SendKeys") return DISP_E_UNKNOWNNAME;
        *methods = kSendKeys;
        return shell_.nameResult;
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID method, REFIID, LCID, WORD how, DISPPARAMS* arguments, VARIANT*,
                                     EXCEPINFO* exception, UINT*) override {
        if (method != kSendKeys || how != DISPATCH_METHOD) return DISP_E_MEMBERNOTFOUND;
        std::string call = "SendKeys(";
        for (UINT i = 0; i < arguments->cArgs; ++i)
            call += (i == 0 ? "" : ", ") + Told(arguments->rgvarg[i]);
        shell_.calls.push_back(call + ")");
        if (shell_.runResult == DISP_E_EXCEPTION && exception != nullptr) {
            *exception = {};
            exception->wCode = shell_.code;
            exception->scode = shell_.exception;
            exception->bstrDescription = SysAllocString(L"It failed");
        }
        return shell_.runResult;
    }

private:
    ScriptedShell& shell_;
    ULONG references_ = 0;
};

class ScriptedShell::Factory : public IClassFactory {
public:
    explicit Factory(ScriptedShell& shell) : shell_(shell) {}
    virtual ~Factory() = default;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override {
        const bool isKnown = IsEqualIID(id, IID_IUnknown) || IsEqualIID(id, IID_IClassFactory);
        *object = isKnown ? static_cast<IClassFactory*>(this) : nullptr;
        return isKnown ? S_OK : E_NOINTERFACE;
    }
    // It lives as long as the stand-in that owns it.
    ULONG STDMETHODCALLTYPE AddRef() override { return 2; }
    ULONG STDMETHODCALLTYPE Release() override { return 1; }

    HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown*, REFIID id, void** object) override {
        auto* made = new Object(shell_);
        const HRESULT result = made->QueryInterface(id, object);
        if (FAILED(result)) delete made;
        return result;
    }
    HRESULT STDMETHODCALLTYPE LockServer(BOOL) override { return S_OK; }

private:
    ScriptedShell& shell_;
};

ScriptedShell::ScriptedShell() : factory_(std::make_unique<Factory>(*this)) {
    CLSID id{};
    if (FAILED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED)) ||
        FAILED(CLSIDFromProgID(L"WScript.Shell", &id)) ||
        FAILED(CoRegisterClassObject(id, factory_.get(), CLSCTX_INPROC_SERVER, REGCLS_MULTIPLEUSE,
                                     &registration_)))
        throw std::runtime_error("no class can be registered");
}

ScriptedShell::~ScriptedShell() {
    CoRevokeClassObject(registration_);
    CoUninitialize();
}

} // namespace mirelle::test
