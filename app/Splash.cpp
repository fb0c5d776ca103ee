#include "app/Splash.h"

#include "app/FrmPicX.h"

#include <array>
#include <ctime>

namespace mirelle {
namespace {

constexpr ScreenSize kSplashSize{480, 270};
constexpr int kTickMilliseconds = 100;
constexpr int kTicks = 11;

// The month stands there in the words of the program's locale.
std::string TextOf(const CalendarDate& date) {
    constexpr int kFirstYear = 1900;
    std::tm parts{};
    parts.tm_mday = date.day;
    parts.tm_mon = date.month - 1;
    parts.tm_year = date.year - kFirstYear;
    std::array<char, 64> text{};
    const std::size_t length = std::strftime(text.data(), text.size(), "%d %B %Y", &parts);
    return {text.data(), length};
}

} // namespace

Splash::Splash(Screen& screen, EventPump& pump, Process& process)
    : Form("frmSplasholaSUNDIAL", screen, kSplashSize), screen_(screen), pump_(pump) {
    Label1.Caption = "Click splashscreen to view";
    Timer1.Interval = kTickMilliseconds;
    Timer1.Timer.Connect([this] { Tick(); });
    Click.Connect([this] { ToggleWait(); });
    Label1.Click.Connect([this] { ToggleWait(); });
    // Closed before the main window is there, nothing is left to run.
    QueryUnload.Connect([&process] { process.End(); });
}

void Splash::Load() {
    Caption = std::string("About ") + App::Title;
    lblVersion.Caption = "Version " + std::to_string(App::Major) + "." + std::to_string(App::Minor) + "." +
                         std::to_string(App::Revision);
    const ScreenSize screen = screen_.Size();
    Top = static_cast<float>(screen.height) * kTwipsPerPixel / 2 - Height / 2;
    Left = static_cast<float>(screen.width) * kTwipsPerPixel / 2 - Width / 2;
    lblDate.Caption = TextOf(pump_.Date());
    Visible = true;
}

void Splash::Tick() {
    ++ticks_;
    pump_.DoEvents(PumpSite::Handler);
    if (ticks_ != kTicks) return;
    Timer1.Enabled = false;
    Visible = false;
    Finished();
}

void Splash::ToggleWait() {
    const bool hold = Timer1.Enabled;
    Timer1.Enabled = !hold;
    Label1.Caption = hold ? "Click splashscreen to proceed" : "Click splashscreen to view";
}

} // namespace mirelle
