// A stand-in for UI Automation, Windows' accessibility service, of which Wine has too little: the library
// that a program hands its widgets to. Who wants to know what a window shows asks the window for its
// accessible object, and names a block of shared memory by the message's first value; what the program then
// hands over is written down there as text (see WindowText.h). All that happens in the program's own thread.
#include "desktop/windows/System.h"
#include "desktop/windows/Wide.h"
#include "tools/road/windows/WindowText.h"

// Interfaces that the compiler's headers only declare need their numbers somewhere.
#include <initguid.h>
#include <uiautomationcore.h>

#include <oleauto.h>

#include <algorithm>
#include <cstring>
#include <string>
#include <utility>

namespace mirelle::road {

// What fields, check boxes and list items can do: IValueProvider, IToggleProvider and ISelectionItemProvider,
// which the headers lack. Not of this file alone: for the compiler nothing would implement them then.
DECLARE_INTERFACE_(Field, IUnknown) {
    STDMETHOD(SetValue)(THIS_ LPCWSTR value) PURE;
    STDMETHOD(get_Value)(THIS_ BSTR * value) PURE;
    STDMETHOD(get_IsReadOnly)(THIS_ BOOL * readOnly) PURE;
};
DECLARE_INTERFACE_(CheckBox, IUnknown) {
    STDMETHOD(Toggle)(THIS) PURE;
    STDMETHOD(get_ToggleState)(THIS_ int* state) PURE;
};
DECLARE_INTERFACE_(ListItem, IUnknown) {
    STDMETHOD(Select)(THIS) PURE;
    STDMETHOD(AddToSelection)(THIS) PURE;
    STDMETHOD(RemoveFromSelection)(THIS) PURE;
    STDMETHOD(get_IsSelected)(THIS_ BOOL * selected) PURE;
};

namespace {

constexpr IID kField = {0xc7935180, 0x6fb3, 0x4201, {0xb1, 0x74, 0x7d, 0xf7, 0x3a, 0xdb, 0xf6, 0x4a}};
constexpr IID kCheckBox = {0x56d00bd0, 0xc4f4, 0x433c, {0xa8, 0x36, 0x1a, 0x52, 0xa5, 0x7e, 0x08, 0x92}};
constexpr IID kListItem = {0x2acad808, 0xb2d4, 0x452d, {0xa4, 0x07, 0x91, 0xff, 0x1a, 0xd1, 0x67, 0xb2}};
constexpr int kToggledOn = 1;

constexpr PROPERTYID kName = 30005;
constexpr PROPERTYID kControlType = 30003;
constexpr PATTERNID kValuePattern = 10002;
constexpr PATTERNID kSelectionItemPattern = 10010;
constexpr PATTERNID kTogglePattern = 10015;
constexpr int kDeepest = 40;

template <class Interface>
class Owned {
public:
    Owned() = default;
    explicit Owned(Interface* pointer) : pointer_(pointer) {}
    ~Owned() { Drop(); }
    Owned(const Owned&) = delete;
    Owned& operator=(const Owned&) = delete;

    Interface** Out() {
        Drop();
        return &pointer_;
    }
    void Take(Interface* pointer) {
        Drop();
        pointer_ = pointer;
    }
    Interface* Leave() { return std::exchange(pointer_, nullptr); }
    explicit operator bool() const { return pointer_ != nullptr; }
    Interface* operator->() const { return pointer_; }

private:
    void Drop() {
        if (pointer_ != nullptr) pointer_->Release();
        pointer_ = nullptr;
    }

    Interface* pointer_ = nullptr;
};

struct Variant : VARIANT {
    Variant() { VariantInit(this); }
    ~Variant() { VariantClear(this); }
    Variant(const Variant&) = delete;
    Variant& operator=(const Variant&) = delete;
};

std::string Text(const wchar_t* text, UINT length) {
    std::string told = windows::Utf8({text, length});
    // What can't stand in a line.
    std::ranges::replace_if(
        told, [](char each) { return each >= 0 && each < ' '; }, ' ');
    return told;
}

std::string NameOf(IRawElementProviderSimple& element) {
    Variant value;
    if (FAILED(element.GetPropertyValue(kName, &value)) || value.vt != VT_BSTR) return {};
    return Text(value.bstrVal, SysStringLen(value.bstrVal));
}

int KindOf(IRawElementProviderSimple& element) {
    Variant value;
    if (FAILED(element.GetPropertyValue(kControlType, &value)) || value.vt != VT_I4) return 0;
    return static_cast<int>(value.lVal);
}

template <class Pattern>
void GetPattern(IRawElementProviderSimple& element, PATTERNID number, REFIID id, Owned<Pattern>& pattern) {
    Owned<IUnknown> provider;
    if (SUCCEEDED(element.GetPatternProvider(number, provider.Out())) && provider)
        provider->QueryInterface(id, reinterpret_cast<void**>(pattern.Out()));
}

std::string ValueOf(IRawElementProviderSimple& element) {
    Owned<Field> field;
    GetPattern(element, kValuePattern, kField, field);
    BSTR value = nullptr;
    if (!field || FAILED(field->get_Value(&value)) || value == nullptr) return {};
    std::string told = Text(value, SysStringLen(value));
    SysFreeString(value);
    return told;
}

bool IsChecked(IRawElementProviderSimple& element) {
    Owned<CheckBox> box;
    GetPattern(element, kTogglePattern, kCheckBox, box);
    int state = 0;
    if (box && SUCCEEDED(box->get_ToggleState(&state)) && state == kToggledOn) return true;
    Owned<ListItem> item;
    GetPattern(element, kSelectionItemPattern, kListItem, item);
    BOOL selected = FALSE;
    return item && SUCCEEDED(item->get_IsSelected(&selected)) && selected != FALSE;
}

// The last of the numbers that stand for an element as long as it is there.
int NumberOf(IRawElementProviderFragment& fragment) {
    SAFEARRAY* numbers = nullptr;
    if (FAILED(fragment.GetRuntimeId(&numbers)) || numbers == nullptr) return 0;
    LONG last = 0;
    int number = 0;
    if (SUCCEEDED(SafeArrayGetUBound(numbers, 1, &last))) SafeArrayGetElement(numbers, &last, &number);
    SafeArrayDestroy(numbers);
    return number;
}

void Tell(IRawElementProviderSimple& element, int depth, std::string& text) {
    Owned<IRawElementProviderFragment> fragment;
    element.QueryInterface(IID_IRawElementProviderFragment, reinterpret_cast<void**>(fragment.Out()));
    if (!fragment || depth > kDeepest) return;
    UiaRect place{};
    fragment->get_BoundingRectangle(&place);
    text += LineOf({depth, NumberOf(*fragment.operator->()), KindOf(element), static_cast<int>(place.left),
                    static_cast<int>(place.top), static_cast<int>(place.width),
                    static_cast<int>(place.height), IsChecked(element), ValueOf(element), NameOf(element)});

    Owned<IRawElementProviderFragment> child;
    fragment->Navigate(NavigateDirection_FirstChild, child.Out());
    while (child) {
        Owned<IRawElementProviderSimple> simple;
        child->QueryInterface(IID_IRawElementProviderSimple, reinterpret_cast<void**>(simple.Out()));
        if (simple) Tell(*simple.operator->(), depth + 1, text);
        Owned<IRawElementProviderFragment> next;
        child->Navigate(NavigateDirection_NextSibling, next.Out());
        child.Take(next.Leave());
    }
}

// How much of the text has found room.
LRESULT PutInto(DWORD asker, const std::string& text) {
    const HANDLE block = OpenFileMappingW(FILE_MAP_WRITE, FALSE, BlockName(asker).c_str());
    if (block == nullptr) return 0;
    LRESULT count = 0;
    if (void* memory = MapViewOfFile(block, FILE_MAP_WRITE, 0, 0, kBlockSize)) {
        count = static_cast<LRESULT>(std::min(text.size(), kBlockSize));
        std::memcpy(memory, text.data(), static_cast<std::size_t>(count));
        UnmapViewOfFile(memory);
    }
    CloseHandle(block);
    return count;
}

} // namespace
} // namespace mirelle::road

extern "C" {

__declspec(dllexport) LRESULT WINAPI
    UiaReturnRawElementProvider(HWND, WPARAM asker, LPARAM, IRawElementProviderSimple* element) {
    if (element == nullptr) return 0; // the window goes
    std::string text;
    mirelle::road::Tell(*element, 0, text);
    return mirelle::road::PutInto(static_cast<DWORD>(asker), text);
}

__declspec(dllexport) HRESULT WINAPI UiaHostProviderFromHwnd(HWND, IRawElementProviderSimple** provider) {
    *provider = nullptr;
    return E_NOTIMPL;
}

// Nobody is told of changes here.
__declspec(dllexport) BOOL WINAPI UiaClientsAreListening() {
    return FALSE;
}

__declspec(dllexport) HRESULT WINAPI UiaRaiseAutomationEvent(IRawElementProviderSimple*, EVENTID) {
    return S_OK;
}

__declspec(dllexport) HRESULT WINAPI
    UiaRaiseAutomationPropertyChangedEvent(IRawElementProviderSimple*, PROPERTYID, VARIANT, VARIANT) {
    return S_OK;
}

__declspec(dllexport) HRESULT WINAPI
    UiaRaiseNotificationEvent(IRawElementProviderSimple*, int, int, BSTR, BSTR) {
    return S_OK;
}
}
