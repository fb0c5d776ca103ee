// What a program for Windows shows, as Windows' own accessibility service tells it: UI Automation, which only
// programs for Windows can ask. One of them (windows/WidgetTeller.cpp) does, and answers here line by line.
#pragma once

#include "tools/road/Programs.h"
#include "tools/road/WidgetSource.h"

namespace mirelle::road {

class WindowsWidgets : public WidgetSource {
public:
    // `teller` starts it.
    explicit WindowsWidgets(const Command& teller);
    ~WindowsWidgets() override;

    std::string Program(const std::string& name) override;
    std::vector<Widget> Children(const std::string& object) override;
    std::string Text(const std::string& object) override;
    bool IsChecked(const std::string& object) override;
    bool SeesCopiedPicture() override;

private:
    // The lines of the answer.
    std::vector<std::string> Ask(const std::string& question);
    bool Holds(const std::string& question);

    std::unique_ptr<QProcess> teller_;
};

} // namespace mirelle::road
