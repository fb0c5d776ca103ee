// Scenario files: a session of the driver with the answers that it has to give, and what has to be true of
// the files then.
//
//     # a remark
//     !picture grab.png 400 300 7          a chart of that size: blue is x, green is y, red is 7
//     !file disk/C/notes.txt "one\r\ntwo"  a file with that text
//     !folder disk/C/Mirelle/Support
//     !driver --paths native               arguments for the driver
//     click Command5                       a command whose answer has to be: ok
//     get Form.Caption => ok "Mirelle"     a command, its answer beside it; "..." ends one that may go on
//     !exit 2                              the exit status, 0 where there is no such line
//     !exists disk/C/a.jpg                 true when the session is over; !missing likewise
//     !same a.bgrx grab.png 100 50 200 70  the dump holds that area of that chart (left, top, width, height)
//
// Paths are below the scenario's own folder, whose folder `disk` is the driver's root. "@" begins such a path
// in a command or an answer: "@/grab.png".
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace mirelle::driver {

struct Step {
    int line = 0; // in the file, from 1
    std::string command;
    std::string answer; // what it has to be, with "..." at its end where only the beginning is told
};

struct Directive {
    int line = 0;
    std::vector<std::string> words; // the first one without its "!"
};

struct Scenario {
    std::vector<Directive> directives;
    std::vector<Step> steps;
};

// `folder` takes the place of "@". Throws UsageError for a line that can't be read.
Scenario ReadScenario(std::string_view text, const std::string& folder);

// Whether an answer is the one that a step asks for.
bool IsExpected(const Step& step, std::string_view answer);

} // namespace mirelle::driver
