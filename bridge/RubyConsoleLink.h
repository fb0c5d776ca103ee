// RubyConsoleLink: the one-way channel into SketchUp's Ruby Console. The console window is brought to the
// front and Ruby lines are typed into it, as a user would type them; nothing comes back.
//
// Every text that ever goes out is a row of the table of line forms, ended by one carriage return. A send is
// a list of calls, each of which types some lines at once. Names and paths go to the keystroke layer raw:
// "+", "^", "%", "~", parentheses and braces in them take their keystroke meanings there.
#pragma once

#include "forms/ports/Shell.h"

#include <initializer_list>
#include <memory>
#include <string>
#include <string_view>

namespace mirelle {

enum class Line {
    P1,  // model = Sketchup::active_model
    P2,  // model.entities.count
    P3,  // materials = model.materials
    M1,  // material = materials.add "<name>"
    M1b, // the same with the name bare
    M1c, // material = Sketchup.active_model.materials[<name>]
    M2,  // material.texture = "<path>"
    M3,  // material.texture.size=<size>
    F1,  // pt1 to pt4: the unit square from (1,1,0) to (2,2,0)
    F2,
    F3,
    F4,
    F5, // entities = model.entities
    F6, // new_face = entities.add_face pt1, pt2, pt3, pt4
    C1, // new_face.material = Sketchup::Color.new <rgb>
    C2, // new_face.back_material = <rgb>
};

// What the lines of one send are filled with.
struct LineFields {
    std::string name; // the material's name
    std::string path; // the image's full path, backslashes doubled
    std::string size; // a number
    std::string rgb;  // red, green and blue in decimal, with commas
};

// The line's text with its fields filled in, carriage return included.
std::string TextOf(Line line, const LineFields& fields);

// Every backslash doubled, as a Ruby string in double quotes wants it.
std::string EscapedPath(std::string_view path);

using Lines = std::initializer_list<Line>;

class RubyConsoleLink {
public:
    explicit RubyConsoleLink(ConsoleShell& console) : console_(console) {}

    // Brings the window titled "Ruby Console" to the front. Raises error 5 where there is none.
    void Activate() { Activate("Ruby Console"); }
    void Activate(const std::string& title) { console_.AppActivate(title); }
    // Makes the shell object anew. Raises error 429.
    void CreateShell();
    // Types the lines in one call. Raises error 5 where the keystroke layer can't read the text, 91 without a
    // shell.
    void Send(Lines lines, const LineFields& fields = {});
    void SendText(const std::string& text);

private:
    ConsoleShell& console_;
    std::unique_ptr<ShellObject> shell_;
};

} // namespace mirelle
