// The names of controls and their properties in commands.
#pragma once

#include <string>

namespace mirelle::driver {

// "Command5", "Label8(46)", "List(3)".
struct Reference {
    std::string name;
    int index = -1; // -1 where there is none
};

// "Label8(46).Caption" in its two parts.
struct PropertyReference {
    Reference owner;
    Reference property;
};

// Throw UsageError for a bracket that is not closed, an index that is no number, and a property without its
// owner.
Reference ReferenceIn(const std::string& text);
PropertyReference PropertyReferenceIn(const std::string& text);

// As commands write it.
std::string TextOf(const Reference& reference);

} // namespace mirelle::driver
