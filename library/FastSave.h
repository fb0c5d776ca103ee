// Command3, Fast Save: one click writes the Material Image into the folder that File5 shows, under the name
// in textProfileName, in the format that the pattern in Combo5 stands for. Name and counter stay as they are.
//
// The first error ends the save with a box that tells it. A file that was there and confirmed is deleted
// ahead of the JPEG writer, and gone if that one fails then; the other formats leave it where they can't
// write.
#pragma once

#include <string>

namespace mirelle {

class FrmPicX;

class FastSave {
public:
    explicit FastSave(FrmPicX& form);

private:
    void OnSaveClick();
    void Save();

    std::string Extension() const;
    std::string TargetPath() const;
    bool MayWrite(const std::string& path);
    void ShowSaved();

    void SaveBitmap(const std::string& path);
    void SaveJPG(const std::string& path);
    void SaveThroughEncoders(const std::string& path);
    void DeleteWhatIsThere(const std::string& path);

    FrmPicX& form_;
};

} // namespace mirelle
