// The whole road of a user, walked in the real program with a real pointer: a grab is pasted, a part of it
// dragged out, saved, selected and sent; then a folder, a list and a colour are sent.
//
// Each step returns when the window shows that it is done. What a send leaves at the other end is for the
// caller to ask the console.
#pragma once

#include "tools/road/Installation.h"
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
    explicit Road(Installation installation);

    const ShownWidgets& Window() const { return widgets_; }
    Desk& TheDesk() { return desk_; }
    // Where it lies, as this machine names it and as the program does.
    std::string FileOf(const LibraryFile& file) const;
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
    // What is saved and listed from now on: "*.png" and so on.
    void ChooseType(const std::string& type);
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
    // Closes the window, and the program with it.
    void Close();

private:
    Widget Row(const std::string& list, const std::string& row) const;
    // The text in the field of a list that can be typed into.
    std::string FieldOf(const Widget& list) const;

    Installation installation_;
    Desk desk_;
    ShownWidgets widgets_;
    RunningProgram program_;
};

} // namespace mirelle::road
