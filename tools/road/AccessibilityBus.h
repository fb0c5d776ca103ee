// The accessibility bus: the service of X desktops. The program is asked over D-Bus and knows nothing of who
// asks.
#pragma once

#include "tools/road/WidgetSource.h"

#include <memory>

namespace mirelle::road {

class AccessibilityBus : public WidgetSource {
public:
    // Throws where there is no such bus. Programs that are started from now on take part in it.
    AccessibilityBus();
    ~AccessibilityBus() override;

    std::string Program(const std::string& name) override;
    std::vector<Widget> Children(const std::string& object) override;
    std::string Text(const std::string& object) override;
    bool IsChecked(const std::string& object) override;
    bool SeesCopiedPicture() override { return true; } // they ask its owner

private:
    class Calls;
    std::unique_ptr<Calls> calls_;
};

} // namespace mirelle::road
