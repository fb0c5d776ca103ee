// Two routines that open a picture of any kind into the Material Image. No control, event or routine reaches
// them.
#pragma once

#include <string>

namespace mirelle {

class FrmPicX;

// Asks for a file and hands its name on. A cancelled dialog hands on the name that was chosen last; once
// another use of the dialog has asked for an error at that (opening to the canvas, choosing a colour), it
// raises 32755.
void OpenAnyImage(FrmPicX& form);

// The last three letters of the name decide. What the picture loader knows goes through it, "TIF" through the
// program's own reader; "PCX", "TGA" and "PNG" want an object that there is none of: error 91. Any other name
// does nothing. Raises what the readers raise.
void OpenFileByExtension(FrmPicX& form, const std::string& fileName);

} // namespace mirelle
