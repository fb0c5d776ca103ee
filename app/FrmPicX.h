// FrmPicX: the one working form. It owns every control and picture holder under its own name and the values
// that handlers share, and has no behaviour but its lifecycle. What the controls do stands in the subject
// folders, whose classes take this form and connect their handlers to its events (app/Sampler.h puts them
// together).
#pragma once

#include "forms/CommonDialog.h"
#include "forms/ControlArray.h"
#include "forms/Controls.h"
#include "forms/FileLists.h"
#include "forms/Form.h"
#include "forms/Lists.h"
#include "forms/PictureBox.h"
#include "forms/Ports.h"
#include "forms/Variant.h"
#include "fx/PixelFrame.h"

#include <cstdint>
#include <string>

namespace mirelle {

// The programme's title and version (App.Title, App.Major, App.Minor, App.Revision).
struct App {
    static constexpr const char* Title = "Mirelle";
    static constexpr int Major = 1;
    static constexpr int Minor = 0;
    static constexpr int Revision = 0;
};

class FrmPicX : public Form {
public:
    explicit FrmPicX(Ports ports);

    // Runs once, before the first Activate.
    void Load();
    // Keeps the window above all others, or lets it go. The result of the call comes back in the argument.
    void SetTopMostWindow(bool& topmost);
    // App.Path followed by a path below it, whose pieces are given with "/" ("Support/Materials/").
    std::string AppPath(const std::string& below) const;

    Ports ports;

    // Values that handlers share.
    Variant CropStartX,
        CropStartY;               // where the crop began: Single while it runs, Integer 0 after, empty before
    Variant ClickX, ClickY;       // copies taken at the form's Click
    Variant CropDragging = false; // from left mouse-down to mouse-up
    bool CropCancelled = false;   // by the right button or Esc; the next mouse-up copies nothing
    bool FirstActivate = false;   // from Load to the end of the first Activate in normal state
    bool ClipboardIsSource = false; // the canvas came from the clipboard, not from a file
    Variant CurrentImagePath;       // full path of the selected file
    Variant IncrementCounter;       // the number behind the last "_" of material names
    std::string MaterialPrefix;     // waits for the next name after a jump in the library
    Variant SampledColorValue;      // the colour value last sampled from the chart
    Variant PanelDropX, PanelDropY; // where the floating panel was last dragged over the form
    bool GradDirectionH = false;    // the direction of the last image gradient
    bool GradDirectionV = false;
    mirelle::Picture StoredCanvasPicture; // the image gradient's two pictures as they were before any stretch
    mirelle::Picture StoredGradientPicture;
    std::int16_t RStart = 0, GStart = 0, BStart = 0; // the form gradient's two colours
    std::int16_t RFinish = 0, GFinish = 0, BFinish = 0;
    // The pixel arrays of the point effects, with the records of the bitmaps that they were sized for.
    PixelFrame FXSource, FXDest;
    Property<bool> Topmost{*this, false};

    CommonDialog CDialog1;

    // Canvas and Material Image.
    PictureBox PicImage, picSmall, picSmall2, PicScroll, Picture7;
    ImageControl Image1{*this, "Image1"}, Imagex{*this, "Imagex"};
    Shape Shape1{*this, "Shape1"}, Shape2{*this, "Shape2"}, Shape3{*this, "Shape3"};
    ScrollBar HSImage{*this, "HSImage"}, VSImage{*this, "VSImage"};
    Frame FrameMatCanvas{*this, "FrameMatCanvas"}, FrameMatCanvas2{*this, "FrameMatCanvas2"};
    ControlArray<Label> Label2{*this, "Label2", 2};
    CommandButton Command23{*this, "Command23"}, Command5{*this, "Command5"}, Command8{*this, "Command8"},
        Command12{*this, "Command12"};
    CheckBox Check4{*this, "Check4"}, ckAutoPaste{*this, "ckAutoPaste"}, ckKeep{*this, "ckKeep"},
        ckLock{*this, "ckLock"}, ckOnly{*this, "ckOnly"}, ckUseFormCanvas{*this, "ckUseFormCanvas"},
        ckFloorBar{*this, "ckFloorBar"};
    ControlArray<TextBox> TextCrop{*this, "TextCrop", 2};

    // Panels.
    Frame Frame1{*this, "Frame1"}, Frame2{*this, "Frame2"}, Frame3{*this, "Frame3"}, Frame4{*this, "Frame4"},
        Frame5{*this, "Frame5"}, Frame6{*this, "Frame6"}, Frame7{*this, "Frame7"}, Frame8{*this, "Frame8"},
        FramePics{*this, "FramePics"}, FrameRGBFX{*this, "FrameRGBFX"}, FrameRGBFX2{*this, "FrameRGBFX2"},
        FrameGradFX{*this, "FrameGradFX"};
    ControlArray<Frame> FrShowFrames{*this, "FrShowFrames", 1};
    CommandButton cmdShowFrames{*this, "cmdShowFrames"}, cmdFullScreen{*this, "cmdFullScreen"},
        cmdMat2Corvane{*this, "cmdMat2Corvane"};
    ControlArray<CommandButton> cmdHideFrame{*this, "cmdHideFrame", 2}, Command18{*this, "Command18", 2},
        cmdGetCorvane{*this, "cmdGetCorvane", 2}, cmdColorDialog{*this, "cmdColorDialog", 5};

    // Library, names, counter, saving.
    DriveListBox Drive5;
    DirListBox Dir5;
    FileListBox File5;
    ComboBox Combo5{*this, "Combo5"}, textProfileName{*this, "textProfileName"};
    TextBox textProfileNamebk{*this, "textProfileNamebk"}, TextLoops{*this, "TextLoops"};
    ListBox ListDirs{*this, "ListDirs"}, ListHigh{*this, "ListHigh"};
    ControlArray<Label> Label8{*this, "Label8", {0, 1, 2, 46}};
    Label lblPubPath{*this, "lblPubPath"};
    UpDown UpDown4{*this, "UpDown4"};
    ControlArray<CommandButton> cmdMatDirs{*this, "cmdMatDirs", 10};
    CommandButton cmdBackDir{*this, "cmdBackDir"}, cmdRefreshFile{*this, "cmdRefreshFile"},
        cmdOpen2Combo{*this, "cmdOpen2Combo"}, cmdResetfCnt{*this, "cmdResetfCnt"},
        cmdListHigh{*this, "cmdListHigh"}, Command3{*this, "Command3"};
    CheckBox ckIncrement{*this, "ckIncrement"}, ckGetCount{*this, "ckGetCount"}, ckNoOpen{*this, "ckNoOpen"},
        Check3{*this, "Check3"};

    // Sends, batches, palette.
    CommandButton Command6{*this, "Command6"}, Command7{*this, "Command7"}, cmdReMat{*this, "cmdReMat"},
        Command10{*this, "Command10"}, Command13{*this, "Command13"}, Command14{*this, "Command14"},
        Command2{*this, "Command2"}, Command15{*this, "Command15"}, Command1x{*this, "Command1x"},
        Command4{*this, "Command4"}, Command67{*this, "Command67"}, cmdColorPick{*this, "cmdColorPick"};
    ListBox List1{*this, "List1"}, List2{*this, "List2"};
    CheckBox ckSize{*this, "ckSize"}, ckSingleFile{*this, "ckSingleFile"}, ckAppend{*this, "ckAppend"},
        ckLoad{*this, "ckLoad"}, ckSample{*this, "ckSample"}, Check1{*this, "Check1"},
        Check2b{*this, "Check2b"};
    TextBox TextMatSize{*this, "TextMatSize"};
    ControlArray<OptionButton> optUnits{*this, "optUnits", 3};
    ControlArray<TextBox> Text2x{*this, "Text2x", 10}, TextLayer{*this, "TextLayer", 10};
    ControlArray<CommandButton> cmdColor{*this, "cmdColor", 10};
    PictureBox Picture2;

    // Image FX.
    PictureBox Picture3, Pic1, Picture1, picTemp, Picture1b;
    CommandButton cmdBlur1{*this, "cmdBlur1"}, cmdBlur2{*this, "cmdBlur2"}, cmdNoRed{*this, "cmdNoRed"},
        cmdNoGreen{*this, "cmdNoGreen"}, cmdNoBlue{*this, "cmdNoBlue"},
        cmdIncreaseRed{*this, "cmdIncreaseRed"}, cmdIncreaseGreen{*this, "cmdIncreaseGreen"},
        cmdIncreaseBlue{*this, "cmdIncreaseBlue"}, cmdIncreaseRGB{*this, "cmdIncreaseRGB"},
        cmdDecreaseRed{*this, "cmdDecreaseRed"}, cmdDecreaseGreen{*this, "cmdDecreaseGreen"},
        cmdDecreaseBlue{*this, "cmdDecreaseBlue"}, cmdDecreaseRGB{*this, "cmdDecreaseRGB"},
        cmdGlowInTheDark{*this, "cmdGlowInTheDark"}, cmdSunShinnyDay{*this, "cmdSunShinnyDay"},
        cmdVividSilk{*this, "cmdVividSilk"}, cmdSilk{*this, "cmdSilk"}, cmdFlatten{*this, "cmdFlatten"},
        cmdFlatten2{*this, "cmdFlatten2"}, cmdNeonNegation{*this, "cmdNeonNegation"},
        cmdNegative{*this, "cmdNegative"}, cmdVividNeg{*this, "cmdVividNeg"},
        cmdIncoherence{*this, "cmdIncoherence"}, cmdPixilated{*this, "cmdPixilated"},
        cmdDarken{*this, "cmdDarken"}, cmdLighten{*this, "cmdLighten"}, cmdEmboss{*this, "cmdEmboss"},
        cmdPointalism{*this, "cmdPointalism"}, cmdPointalismVert{*this, "cmdPointalismVert"};
    CommandButton cmdNegativeX{*this, "cmdNegativeX"}, cmdFlipVert{*this, "cmdFlipVert"},
        cmdFlipHoriz{*this, "cmdFlipHoriz"}, cmdGreyScale{*this, "cmdGreyScale"},
        cmdRGB2BGR{*this, "cmdRGB2BGR"}, cmdRGB2BRG{*this, "cmdRGB2BRG"}, cmdRGB2GBR{*this, "cmdRGB2GBR"},
        cmdRGB2GRB{*this, "cmdRGB2GRB"}, cmdRGB2RBG{*this, "cmdRGB2RBG"}, cmdCont{*this, "cmdCont"},
        cmdCont33{*this, "cmdCont33"};
    CommandButton cmdSetMain{*this, "cmdSetMain"}, cmdSetMain2{*this, "cmdSetMain2"},
        cmdRGBUndo{*this, "cmdRGBUndo"}, cmdResetRGBSlider{*this, "cmdResetRGBSlider"},
        cmdCopy{*this, "cmdCopy"};
    CheckBox ckApplyRGB{*this, "ckApplyRGB"};
    ControlArray<ScrollBar> HSColorShift{*this, "HSColorShift", 3};
    ControlArray<Label> LabelRGBx{*this, "LabelRGBx", 3};

    // Gradients.
    PictureBox Picture4, pic1grad, pic2grad, picDest, Picture5, Picture6, PicSwap1, PicSwap2;
    ScrollBar hStart{*this, "hStart"}, hEnd{*this, "hEnd"};
    ScrollBar RS{*this, "RS"}, GS{*this, "GS"}, BS{*this, "BS"}, RF{*this, "RF"}, GF{*this, "GF"},
        BF{*this, "BF"};
    ComboBox cmbDirection{*this, "cmbDirection"};
    ControlArray<OptionButton> optDirection{*this, "optDirection", 2};
    CheckBox chkStretch{*this, "chkStretch"}, ckFormDirection{*this, "ckFormDirection"};
    ControlArray<CheckBox> ckGradPic{*this, "ckGradPic", 2};
    ControlArray<CommandButton> cmdGradV{*this, "cmdGradV", 2}, cmdSwapPic{*this, "cmdSwapPic", 3};
    CommandButton cmdGradReset{*this, "cmdGradReset"};

private:
    void OnActivate();
    void ListTheLibrary();
    void OnResize();
    void ConnectHoverFeedback();
};

} // namespace mirelle
