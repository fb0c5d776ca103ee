// What stays on the clipboard when the program ends at once.
#include "desktop/windows/WindowsProcess.h"

#include "desktop/windows/System.h"
#include "desktop/windows/Wide.h"
#include "desktop/windows/WindowsClipboard.h"

#include <cstring>
#include <optional>
#include <string>

#include <gmock/gmock.h>
#include <ole2.h>
#include <shlobj.h>

namespace mirelle::test {
namespace {

using testing::ExitedWithCode;

HGLOBAL MemoryWith(const std::wstring& text) {
    const std::size_t size = (text.size() + 1) * sizeof(wchar_t);
    const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, size);
    std::memcpy(GlobalLock(memory), text.c_str(), size);
    GlobalUnlock(memory);
    return memory;
}

// A text that whoever asks for it gets, as the toolkit's text fields offer what is copied out of them.
class OfferedText : public IDataObject {
public:
    explicit OfferedText(std::wstring text) : text_(std::move(text)) {}
    virtual ~OfferedText() = default;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override {
        const bool isKnown = IsEqualIID(id, IID_IUnknown) || IsEqualIID(id, IID_IDataObject);
        *object = isKnown ? static_cast<IDataObject*>(this) : nullptr;
        return isKnown ? S_OK : E_NOINTERFACE;
    }
    // It lives as long as the test.
    ULONG STDMETHODCALLTYPE AddRef() override { return 2; }
    ULONG STDMETHODCALLTYPE Release() override { return 1; }

    HRESULT STDMETHODCALLTYPE GetData(FORMATETC* format, STGMEDIUM* medium) override {
        if (QueryGetData(format) != S_OK) return DV_E_FORMATETC;
        *medium = {};
        medium->tymed = TYMED_HGLOBAL;
        medium->hGlobal = MemoryWith(text_);
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetDataHere(FORMATETC*, STGMEDIUM*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE QueryGetData(FORMATETC* format) override {
        return format->cfFormat == CF_UNICODETEXT && (format->tymed & TYMED_HGLOBAL) != 0 ? S_OK
                                                                                          : DV_E_FORMATETC;
    }
    HRESULT STDMETHODCALLTYPE GetCanonicalFormatEtc(FORMATETC*, FORMATETC* canonical) override {
        canonical->ptd = nullptr;
        return DATA_S_SAMEFORMATETC;
    }
    HRESULT STDMETHODCALLTYPE SetData(FORMATETC*, STGMEDIUM*, BOOL) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE EnumFormatEtc(DWORD direction, IEnumFORMATETC** formats) override {
        if (direction != DATADIR_GET) return E_NOTIMPL;
        const FORMATETC text{CF_UNICODETEXT, nullptr, DVASPECT_CONTENT, -1, TYMED_HGLOBAL};
        return SHCreateStdEnumFmtEtc(1, &text, formats);
    }
    HRESULT STDMETHODCALLTYPE DAdvise(FORMATETC*, DWORD, IAdviseSink*, DWORD*) override {
        return OLE_E_ADVISENOTSUPPORTED;
    }
    HRESULT STDMETHODCALLTYPE DUnadvise(DWORD) override { return OLE_E_ADVISENOTSUPPORTED; }
    HRESULT STDMETHODCALLTYPE EnumDAdvise(IEnumSTATDATA**) override { return OLE_E_ADVISENOTSUPPORTED; }

private:
    std::wstring text_;
};

// The text that another program finds; nothing where there is none.
std::optional<std::string> FoundText() {
    if (OpenClipboard(nullptr) == 0) return std::nullopt;
    std::optional<std::string> found;
    if (const HANDLE handle = GetClipboardData(CF_UNICODETEXT)) {
        found = windows::Utf8(static_cast<const wchar_t*>(GlobalLock(handle)));
        GlobalUnlock(handle);
    }
    CloseClipboard();
    return found;
}

void CopyAndEnd() {
    OleInitialize(nullptr);
    OfferedText text(L"wall 字");
    OleSetClipboard(&text);
    const WindowsClipboard clipboard;
    WindowsProcess(clipboard).End();
}

void ClearAndEnd() {
    WindowsClipboard clipboard;
    clipboard.Clear();
    WindowsProcess(clipboard).End();
}

// The exit is that of another process.
TEST(WindowsProcess, ATextThatWasOnlyOfferedOutlivesTheProgram) {
    WindowsClipboard().SetText("before");
    EXPECT_EXIT(CopyAndEnd(), ExitedWithCode(0), "");
    EXPECT_EQ(FoundText(), "wall 字");
}

TEST(WindowsProcess, AClearingThatWaitsTakesPlaceBeforeTheEnd) {
    WindowsClipboard().SetText("before");
    EXPECT_EXIT(ClearAndEnd(), ExitedWithCode(0), "");
    EXPECT_EQ(FoundText(), std::nullopt);
}

} // namespace
} // namespace mirelle::test
