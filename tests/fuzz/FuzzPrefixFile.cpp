// Any bytes as the file of prefixes: its lines, found in the plainest way, are the list's rows, and choosing
// any of them is possible.
#include "library/MaterialNames.h"
#include "tests/support/TestProgram.h"

#include <algorithm>
#include <cstdlib>

namespace {

constexpr std::size_t kMostLines = 10001;
constexpr int kRowsToChoose = 8;

std::vector<std::string> LinesOf(std::string text) {
    if (text.starts_with("\xEF\xBB\xBF")) text.erase(0, 3);
    std::vector<std::string> lines;
    std::string line;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '\n' && i > 0 && text[i - 1] == '\r') continue; // the end was there already
        if (text[i] != '\r' && text[i] != '\n') {
            line += text[i];
            continue;
        }
        lines.push_back(std::move(line));
        line.clear();
    }
    if (!line.empty()) lines.push_back(line);
    if (lines.size() > kMostLines) lines.resize(kMostLines);
    return lines;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    mirelle::test::MemoryFileSystem files;
    mirelle::test::ScriptedLoader loader;
    mirelle::test::ScriptedEncoders encoders;
    mirelle::test::ScriptedDesktop desktop;
    files.AddFile("C:\\Mirelle\\Support\\Settings\\MaterialsSamplerPrefix.txt", {data, data + size});
    mirelle::FrmPicX form(desktop.PortsOver(files, loader, encoders));
    const mirelle::MaterialNames names(form);
    form.cmdOpen2Combo.UserClick();
    const std::vector<std::string> lines = LinesOf({data, data + size});
    if (form.textProfileName.ListCount() != static_cast<int>(lines.size())) std::abort();
    for (std::size_t i = 0; i < lines.size(); ++i)
        if (form.textProfileName.List(static_cast<int>(i)) != lines[i]) std::abort();
    for (int row = 0; row < std::min(kRowsToChoose, form.textProfileName.ListCount()); ++row)
        form.textProfileName.SetListIndex(row);
    return 0;
}
