// The rows of a list, and how often they were changed: what shows a long list asks before it reads it again.
#pragma once

#include <string>
#include <vector>

namespace mirelle {

class ListRows {
public:
    using Texts = std::vector<std::string>;

    const Texts& Read() const { return texts_; }
    // To be asked for anew for every change.
    Texts& Change() {
        ++changes_;
        return texts_;
    }
    unsigned Changes() const { return changes_; }

private:
    Texts texts_;
    unsigned changes_ = 0;
};

} // namespace mirelle
