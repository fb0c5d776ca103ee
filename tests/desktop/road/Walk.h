// The steps of the whole road, the same for every program that is walked through, and what has to have
// arrived at its end.
#pragma once

#include "tools/road/Road.h"

#include <functional>
#include <string>
#include <vector>

namespace mirelle::test {

// The window lies above all others from its start, over the whole of the small screen; the console is brought
// to the front by each send.
inline constexpr road::Place kUnderTheWindow{60, 60, 500, 300};

class Walk {
public:
    Walk(road::Road& road, const road::Console& console) : road_(road), console_(console) {}

    // Pastes the picture and drags a sample out of it, which gets the name Art_3.
    void Crop(const std::string& pictureFile);
    // Saves the sample in every form that there is, the JPEG file last, and looks into each file.
    void SaveInEveryForm(const std::string& pictureFile);
    void SaveAndSend();
    void SendFolderAndList();
    void SendColour();
    // Every line that has to have been typed so far, as a list of JSON texts.
    std::string Lines() const;

private:
    void Sent(const road::LibraryFile& file);
    void AwaitMaterials() const;

    road::Road& road_;
    const road::Console& console_;
    bool saved_ = false;
    std::vector<std::string> materials_;
    std::vector<std::string> lines_;
};

// Where steps get stuck, a picture of the screen is left and told of.
void WalkOrTell(road::Road& road, const std::function<void()>& steps);

} // namespace mirelle::test
