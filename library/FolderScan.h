// The count of the files listed, and the highest number among them: what a change of folder and ckGetCount
// share. ListHigh holds the numbers as texts, in the order of the files.
#pragma once

#include <string>

namespace mirelle {

class FrmPicX;

// The count of File5 into Label8(46).
void ShowFileCount(FrmPicX& form);

// Adds the number in a file's name to ListHigh; a number beyond all range adds nothing.
void NoteFileNumber(FrmPicX& form, const std::string& fileName);

// Goes through ListHigh with a 16-bit maximum that begins at 0. Each new maximum below 20000 is shown in
// TextLoops while names are incremented. One from 20000 on is not shown, yet it hides the smaller ones that
// follow it; one beyond 16 bits leaves the maximum as it was.
void ShowHighestNumber(FrmPicX& form);

} // namespace mirelle
