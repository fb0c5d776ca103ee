// edit_console TITLE X Y WIDTH HEIGHT: a window of that title over one of Windows' own edit fields, as plain
// as a console can be. Each line that Enter ends is written to standard output, in UTF-8. It ends when it is
// closed.
#include "desktop/windows/System.h"
#include "desktop/windows/Wide.h"

#include <cstdio>
#include <string>

#include <shellapi.h>

namespace {

using mirelle::windows::Utf8;

constexpr const wchar_t* kLineEnd = L"\r\n"; // as an edit field has it

HWND field;
std::size_t told = 0; // so much of the field's text has been written

std::wstring FieldText() {
    std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(field)) + 1, L'\0');
    text.resize(static_cast<std::size_t>(GetWindowTextW(field, text.data(), static_cast<int>(text.size()))));
    return text;
}

void TellNewLines() {
    const std::wstring text = FieldText();
    for (std::size_t end; (end = text.find(kLineEnd, told)) != std::wstring::npos; told = end + 2)
        std::puts(Utf8(std::wstring_view(text).substr(told, end - told)).c_str());
    std::fflush(stdout);
}

LRESULT CALLBACK Handle(HWND window, UINT message, WPARAM first, LPARAM second) {
    switch (message) {
    case WM_COMMAND:
        if (HIWORD(first) == EN_CHANGE) TellNewLines();
        return 0;
    case WM_SETFOCUS:
        SetFocus(field);
        return 0;
    case WM_SIZE:
        MoveWindow(field, 0, 0, LOWORD(second), HIWORD(second), TRUE);
        return 0;
    case WM_DESTROY:
        PostQuitMessage(0);
        return 0;
    default:
        return DefWindowProcW(window, message, first, second);
    }
}

} // namespace

int WINAPI WinMain(HINSTANCE instance, HINSTANCE, LPSTR, int) {
    int count = 0;
    LPWSTR* arguments = CommandLineToArgvW(GetCommandLineW(), &count);
    if (count != 6) return 2;
    const auto number = [&](int at) { return static_cast<int>(std::wcstol(arguments[at], nullptr, 10)); };

    WNDCLASSW kind{};
    kind.lpfnWndProc = Handle;
    kind.hInstance = instance;
    kind.lpszClassName = L"EditConsole";
    kind.hCursor = LoadCursorW(nullptr, MAKEINTRESOURCEW(32512));
    RegisterClassW(&kind);
    const HWND window = CreateWindowW(kind.lpszClassName, arguments[1], WS_OVERLAPPEDWINDOW, number(2),
                                      number(3), number(4), number(5), nullptr, nullptr, instance, nullptr);
    if (window == nullptr) return 1;
    field = CreateWindowW(L"EDIT", L"",
                          WS_CHILD | WS_VISIBLE | WS_VSCROLL | ES_MULTILINE | ES_AUTOVSCROLL | ES_WANTRETURN,
                          0, 0, number(4), number(5), window, nullptr, instance, nullptr);
    SendMessageW(field, EM_SETLIMITTEXT, 0, 0); // none
    SendMessageW(field, WM_SETFONT, reinterpret_cast<WPARAM>(GetStockObject(ANSI_FIXED_FONT)), FALSE);
    ShowWindow(window, SW_SHOWNOACTIVATE);

    MSG message;
    while (GetMessageW(&message, nullptr, 0, 0) > 0) {
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
    return 0;
}
