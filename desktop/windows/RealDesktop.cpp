// The real desktop where it is Windows: its own encoders, its shell, its console windows.
#include "desktop/system/RealDesktop.h"

#include "desktop/windows/GdiPlusEncoders.h"
#include "desktop/windows/WindowsClipboard.h"
#include "desktop/windows/WindowsConsole.h"
#include "desktop/windows/WindowsKeyboard.h"
#include "desktop/windows/WindowsPictures.h"
#include "desktop/windows/WindowsProcess.h"
#include "desktop/windows/WindowsViewer.h"

namespace mirelle {
namespace {

constexpr const char* kDumpFile = "c:\\komp.txt";

} // namespace

RealDesktop::RealDesktop(const std::string& home)
    : files_(home, kDumpFile), clipboard_(std::make_unique<WindowsClipboard>()),
      process_(std::make_unique<WindowsProcess>(static_cast<const WindowsClipboard&>(*clipboard_))) {}

RealDesktop::~RealDesktop() = default;

void RealDesktop::MakeTheRest() {
    loader_ = std::make_unique<WindowsPictures>(files_);
    encoders_ = std::make_unique<GdiPlusEncoders>();
    viewer_ = std::make_unique<WindowsViewer>();
    console_ = std::make_unique<WindowsConsole>();
    keyboard_ = std::make_unique<WindowsKeyboard>();
}

Ports RealDesktop::ThePorts() {
    if (!keyboard_) MakeTheRest();
    return {*clipboard_, dialogs,   files_,   *loader_, *encoders_, pump,
            *keyboard_,  *console_, *viewer_, screen,   *process_};
}

} // namespace mirelle
