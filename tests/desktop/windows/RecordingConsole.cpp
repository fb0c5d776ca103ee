// recording_console TITLE FILE [deaf]: a window of that title that writes down in FILE what a
// keyboard brought it: the text of its WM_CHAR messages (a carriage return as a line's end) and a line "key
// CODE MODIFIERS" for each key that went down. It ends when it is closed. A deaf one shows itself behind the
// others and looks at no message, so that nothing moves it.
#include "desktop/windows/System.h"
#include "desktop/windows/Wide.h"

#include <fstream>
#include <string>

#include <shellapi.h>

namespace {

using mirelle::windows::Utf8;

struct Record {
    std::wstring text;
    std::string keys;
    std::string file;
    bool isNew = true; // since it was written

    // Whole or not at all: whoever reads may come at any time.
    void Write() {
        const std::string fresh = file + ".new";
        std::ofstream(fresh, std::ios::binary) << keys << "text\n" << Utf8(text);
        MoveFileExW(mirelle::windows::Wide(fresh).c_str(), mirelle::windows::Wide(file).c_str(),
                    MOVEFILE_REPLACE_EXISTING);
        isNew = false;
    }
};

Record record;

bool IsDown(int key) {
    return (GetKeyState(key) & 0x8000) != 0;
}

void NoteKey(WPARAM code) {
    if (code == VK_SHIFT || code == VK_CONTROL || code == VK_MENU || code == VK_PACKET) return;
    record.keys += "key " + std::to_string(code) + (IsDown(VK_SHIFT) ? " shift" : "") +
                   (IsDown(VK_CONTROL) ? " ctrl" : "") + (IsDown(VK_MENU) ? " alt" : "") + '\n';
}

void Paint(HWND window) {
    PAINTSTRUCT paint;
    const HDC context = BeginPaint(window, &paint);
    RECT area;
    GetClientRect(window, &area);
    FillRect(context, &area, static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH)));
    InflateRect(&area, -6, -6);
    DrawTextW(context, record.text.c_str(), static_cast<int>(record.text.size()), &area,
              DT_LEFT | DT_NOPREFIX);
    EndPaint(window, &paint);
}

LRESULT CALLBACK Handle(HWND window, UINT message, WPARAM first, LPARAM second) {
    switch (message) {
    case WM_CHAR:
        record.text += first == L'\r' ? L'\n' : static_cast<wchar_t>(first);
        record.isNew = true;
        InvalidateRect(window, nullptr, FALSE);
        return 0;
    case WM_KEYDOWN:
    case WM_SYSKEYDOWN:
        NoteKey(first);
        record.isNew = true;
        return 0;
    case WM_PAINT:
        Paint(window);
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
    if (count != 3 && count != 4) return 2;
    const bool isDeaf = count == 4;
    record.file = Utf8(arguments[2]);

    WNDCLASSW kind{};
    kind.lpfnWndProc = Handle;
    kind.hInstance = instance;
    kind.lpszClassName = L"RecordingConsole";
    kind.hCursor = LoadCursorW(nullptr, MAKEINTRESOURCEW(32512));
    RegisterClassW(&kind);
    const HWND window = CreateWindowW(kind.lpszClassName, arguments[1], WS_OVERLAPPEDWINDOW, 60, 420, 640,
                                      320, nullptr, nullptr, instance, nullptr);
    if (window == nullptr) return 1;
    ShowWindow(window, isDeaf ? SW_SHOWNOACTIVATE : SW_SHOW);
    if (isDeaf) Sleep(INFINITE);
    UpdateWindow(window);

    MSG message;
    while (true) {
        // Nothing is written while more waits: a long text costs one writing.
        if (record.isNew && PeekMessageW(&message, nullptr, 0, 0, PM_NOREMOVE) == 0) record.Write();
        if (GetMessageW(&message, nullptr, 0, 0) <= 0) return 0;
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
}
