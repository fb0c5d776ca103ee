// What went over the channel, in a form that a test can compare in one line.
#pragma once

#include "forms/Numbers.h"
#include "tests/support/ScriptedDesktop.h"

#include <string>
#include <vector>

namespace mirelle::test {

inline const std::string kPreambleText =
    "model = Sketchup::active_model\rmodel.entities.count\rmaterials = model.materials\r";
inline const std::string kFaceText =
    "model = Sketchup::active_model\rmodel.entities.count\rpt1 = [1,1,0]\rpt2 = [2,1,0]\rpt3 = [2,2,0]\rpt4 "
    "= [1,2,0]\r"
    "entities = model.entities\rnew_face = entities.add_face pt1, pt2, pt3, pt4\r";

// "AppActivate Ruby Console", "AppActivate Ruby Console failed", "CreateObject WScript.Shell", "SendKeys
// ...", "Pause 1.25"; takes what was sent so far.
inline std::vector<std::string> TakeSent(ScriptedConsole& console) {
    std::vector<std::string> told;
    for (const SentItem& item : console.sent) {
        std::string line = item.verb + " ";
        line += item.verb == "Pause" ? CStr(item.seconds) : item.text;
        if (item.failed) line += " failed";
        told.push_back(line);
    }
    console.sent.clear();
    return told;
}

} // namespace mirelle::test
