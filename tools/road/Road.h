// The whole road of a user, walked in the real program with a real pointer: a grab is pasted, a part of it
// dragged out, saved, selected and sent; then a folder, a list and a colour are sent.
//
// Each step returns when the window shows that it is done. What a send leaves at the other end is for the
// caller to ask the console.
#pragma once

#include "tools/road/Programs.h"
#include "tools/road/ShownWidgets.h"

#include <string>
#include <vector>

namespace mirelle::road {

struct LibraryFile {
    std::string folder; // "Art"
    std::string file;   // "Art_1.jpg"
};

class Road {
public:
    // `home` holds Support and belongs to this walk.
    Road(const std::string& program, std::string home);

    const ShownWidgets& Window() const { return widgets_; }
    Desk& TheDesk() { return desk_; }
    std::string PathOf(const LibraryFile& file) const;
    // The material name that the window shows.
    std::string Name() const;

    // Clicks the button of this name, which is its tool tip.
    void Press(const std::string& button);
    void Check(const std::string& box);
    void EnterFolder(const std::string& folder);
    // Pastes a picture that another program has put on the clipboard.
    void Paste(const std::string& pictureFile);
    // Drags over an area of the canvas, in pixels of the picture, and returns the new sample's name.
    std::string Drag(const Place& area);
    // Saves the sample and waits until the window tells so.
    void FastSave(const LibraryFile& saved);
    void Select(const LibraryFile& file);
    // Lines a file up for SuperBatch, as the present folder's row is clicked.
    void LineUp(const LibraryFile& file);
    // Samples the chart's middle into the first slot and returns the slot's text.
    std::string SampleColour();

    void SendMaterial();
    void SendFolder();
    void SendList();
    void SendColour();
    void ToggleSuperBatch();
    // Waits for the message box that says so, and presses its button.
    void AwaitMessage(const std::string& text);

private:
    Widget Row(const std::string& list, const std::string& row) const;

    std::string home_;
    Desk desk_;
    ShownWidgets widgets_;
    RunningProgram program_;
};

} // namespace mirelle::road
