#include "tools/road/windows/Automation.h"

#include "desktop/windows/Wide.h"

#include <oleauto.h>

#include <stdexcept>

namespace mirelle::road {
namespace {

using Node = void*;

// As uiautomationcoreapi.h and uiautomationclient.h of the system have them.
enum class Property {
    BoundingRectangle = 30001,
    ControlType = 30003,
    Name = 30005,
    Value = 30045,
    SelectionItemIsSelected = 30079,
    ToggleState = 30086,
};
enum class Direction { NextSibling = 1, FirstChild = 3 };
constexpr int kTrueCondition = 0;
constexpr int kElementItself = 1;
constexpr int kFullMode = 1;

struct Condition {
    int type = kTrueCondition;
};
struct CacheRequest {
    Condition* view;
    int scope;
    int* properties;
    int propertyCount;
    int* patterns;
    int patternCount;
    int mode;
};

class Functions {
public:
    template <class Function>
    static Function Get(const char* name) {
        static const HMODULE library = LoadLibraryW(L"uiautomationcore.dll");
        const auto found = library == nullptr ? nullptr : GetProcAddress(library, name);
        if (found == nullptr) throw std::runtime_error(std::string("there is no ") + name);
        return reinterpret_cast<Function>(reinterpret_cast<void*>(found));
    }
};

Node NodeOfWindow(HWND window) {
    static const auto function = Functions::Get<HRESULT(WINAPI*)(HWND, Node*)>("UiaNodeFromHandle");
    Node node = nullptr;
    return SUCCEEDED(function(window, &node)) ? node : nullptr;
}

Node NodeOf(VARIANT& value) {
    static const auto function = Functions::Get<HRESULT(WINAPI*)(VARIANT*, Node*)>("UiaHUiaNodeFromVariant");
    Node node = nullptr;
    return SUCCEEDED(function(&value, &node)) ? node : nullptr;
}

void Release(Node node) {
    static const auto function = Functions::Get<BOOL(WINAPI*)(Node)>("UiaNodeRelease");
    function(node);
}

// A value that frees itself.
struct Variant : VARIANT {
    Variant() { VariantInit(this); }
    ~Variant() { VariantClear(this); }
    Variant(const Variant&) = delete;
    Variant& operator=(const Variant&) = delete;
};

void Ask(Node node, Property property, VARIANT& value) {
    static const auto function = Functions::Get<HRESULT(WINAPI*)(Node, int, VARIANT*)>("UiaGetPropertyValue");
    if (FAILED(function(node, static_cast<int>(property), &value))) VariantClear(&value);
}

// Null where there is none.
Node Neighbour(Node node, Direction direction) {
    static const auto function =
        Functions::Get<HRESULT(WINAPI*)(Node, int, Condition*, CacheRequest*, SAFEARRAY**, BSTR*)>(
            "UiaNavigate");
    Condition all;
    CacheRequest request{&all, kElementItself, nullptr, 0, nullptr, 0, kFullMode};
    SAFEARRAY* rows = nullptr;
    BSTR structure = nullptr;
    Node found = nullptr;
    if (SUCCEEDED(function(node, static_cast<int>(direction), &all, &request, &rows, &structure)) &&
        rows != nullptr) {
        LONG first[2] = {0, 0};
        Variant value;
        if (SUCCEEDED(SafeArrayGetElement(rows, first, &value))) found = NodeOf(value);
    }
    if (rows != nullptr) SafeArrayDestroy(rows);
    SysFreeString(structure);
    return found;
}

std::string TextOf(Node node, Property property) {
    Variant value;
    Ask(node, property, value);
    return value.vt == VT_BSTR ? windows::Utf8({value.bstrVal, SysStringLen(value.bstrVal)}) : std::string();
}

int NumberOf(Node node, Property property) {
    Variant value;
    Ask(node, property, value);
    return value.vt == VT_I4 ? static_cast<int>(value.lVal) : 0;
}

} // namespace

Element::Element(void* node) : node_(node, Release) {}

std::optional<Element> Element::OfWindow(HWND window) {
    const Node node = NodeOfWindow(window);
    if (node == nullptr) return std::nullopt;
    return Element(node);
}

std::vector<Element> Element::Children() const {
    std::vector<Element> children;
    for (Node node = Neighbour(node_.get(), Direction::FirstChild); node != nullptr;
         node = Neighbour(node, Direction::NextSibling))
        children.push_back(Element(node));
    return children;
}

std::string Element::Name() const {
    return TextOf(node_.get(), Property::Name);
}

int Element::Kind() const {
    return NumberOf(node_.get(), Property::ControlType);
}

RECT Element::Place() const {
    Variant value;
    Ask(node_.get(), Property::BoundingRectangle, value);
    RECT place{};
    void* numbers = nullptr;
    if (value.vt != (VT_ARRAY | VT_R8) || FAILED(SafeArrayAccessData(value.parray, &numbers))) return place;
    const auto* edges = static_cast<const double*>(numbers); // left, top, width, height
    place.left = static_cast<LONG>(edges[0]);
    place.top = static_cast<LONG>(edges[1]);
    place.right = static_cast<LONG>(edges[0] + edges[2]);
    place.bottom = static_cast<LONG>(edges[1] + edges[3]);
    SafeArrayUnaccessData(value.parray);
    return place;
}

std::string Element::Value() const {
    return TextOf(node_.get(), Property::Value);
}

bool Element::IsChecked() const {
    Variant selected;
    Ask(node_.get(), Property::SelectionItemIsSelected, selected);
    if (selected.vt == VT_BOOL && selected.boolVal != VARIANT_FALSE) return true;
    return NumberOf(node_.get(), Property::ToggleState) == 1;
}

} // namespace mirelle::road
