#include "app/ControlTexts.h"

#include <array>

namespace mirelle {
namespace {

constexpr const char* kUnitsFeet = "Apply feet to size (x12)";
constexpr const char* kSlotTip = "Click to Add SketchUp Color via Ruby Console";
constexpr const char* kPaletteTextTip = "Enter or sample RGB Color value to send to SketchUp";
constexpr const char* kGradientImageTip =
    "Use image for gradient: Select to load foreground Gradient Image image";

constexpr std::array kTexts = {
    // Canvas and Material Image
    ControlText{"Command23", -1, "", "Open image file from Windows file dialog"},
    ControlText{"Check4", -1, "Open Both", "Open file in large and small picture boxes"},
    ControlText{"Command5", -1, "", "Paste from clipboard"},
    ControlText{"Command8", -1, "", "Clear the clipboard"},
    ControlText{"Command12", -1, "",
                "Copy current Material Image to left to clipboard; pastes as full screen"},
    ControlText{"ckAutoPaste", -1, "Auto", "Check to paste from clipboard when the window is maximized"},
    ControlText{"ckKeep", -1, "Keep",
                "Check to keep current Material Image picture; canvas crops, pastes and opens ignored"},
    ControlText{"ckLock", -1, "Lock", "Check to lock current Material Image dimension for crop limits"},
    ControlText{"ckOnly", -1, "Only", "Check to open image to only Material Image"},
    ControlText{"ckFloorBar", -1, "Floor Bar", ""},
    ControlText{
        "ckUseFormCanvas", -1, "Form as Canvas",
        "Check to apply form canvas background to opened images sampleable area; re-open any already opened "
        "image after checking"},
    ControlText{"TextCrop", 0, "", "Click-crop height"},
    ControlText{"TextCrop", 1, "", "Click-crop width"},
    ControlText{"PicScroll", -1, "", "Preview Background; no image data"},
    ControlText{"Label2", 0, "Material Image",
                "Image below is the new material save image; click to send to Sampling Canvas"},
    ControlText{"Label2", 1, "Last Save: ", ""},

    // Panels
    ControlText{"Frame1", -1, "Form Gradient",
                "Slide RGB Slider to create form  gradient sampleable for gradient  image; 255-0 Gradation "
                "Start (top "
                "3), Finish (bottom 3) RGB color sliders"},
    ControlText{"Frame2", -1, "Selected Color Preview", ""},
    ControlText{"Frame3", -1, "Materials Images", ""},
    ControlText{
        "Frame5", -1, "",
        "To sample image: Drag mouse-down mouse (upper left to lower right), mouse-up to crop canvas image; "
        "Paste or select file to open image to sampling canvas"},
    ControlText{"Frame8", -1, "SuperBatch Send", "Send multiple directories and image types to SketchUp"},
    ControlText{"FramePics", -1, "Pixel Sampler for SketchUp Color", ""},
    ControlText{"FrameRGBFX", -1, "Image FX", ""},
    ControlText{"FrameGradFX", -1, "Gradient FX", ""},
    ControlText{"FrShowFrames", 0, "", "Drag border area to move"},
    ControlText{"cmdHideFrame", 0, "", "Hide/Show Frame Right Toggle"},
    ControlText{"cmdHideFrame", 1, "", "Hide All Frames"},
    ControlText{"cmdShowFrames", -1, "", "Click to show all hidden frames; drag border area to move"},
    ControlText{"Command18", 0, "", "This form always On Top"},
    ControlText{"Command18", 1, "", "This form not on top"},
    ControlText{"cmdFullScreen", -1, "", "Fullscreen"},
    ControlText{"cmdGetCorvane", 0, "", "View User Manual"},
    ControlText{"cmdColorDialog", 0, "", "Change Crop Window Hairline color"},
    ControlText{"cmdColorDialog", 1, "", "Change Sampling Canvas background color"},
    ControlText{"cmdColorDialog", 2, "", "Show Canvas Image FX"},
    ControlText{"cmdColorDialog", 3, "", "Show Gradient FX"},
    ControlText{"cmdColorDialog", 4, "", "Pick gradient color"},

    // Library, names, counter, saving
    ControlText{"Drive5", -1, "", "Select system drive"},
    ControlText{"Dir5", -1, "", "Corvane Materials Library Support Directories"},
    ControlText{"File5", -1, "", "Click to preview image file (jpg, bmp, gif)"},
    ControlText{"Combo5", -1, "", "Select image file extension"},
    ControlText{"Label8", 46, "0", ""},
    ControlText{"cmdMatDirs", 0, "", "Go to Art Materials"},
    ControlText{"cmdMatDirs", 1, "", "Go to Fractal Materials"},
    ControlText{"cmdMatDirs", 2, "", "Go to Graffiti Materials"},
    ControlText{"cmdMatDirs", 3, "", "Go to Metal Materials"},
    ControlText{"cmdMatDirs", 4, "", "Go to Color Materials"},
    ControlText{"cmdMatDirs", 5, "", "Go to Gradient Materials"},
    ControlText{"cmdMatDirs", 6, "", "Go to Bio Materials"},
    ControlText{"cmdMatDirs", 7, "", "Go to Architecture Materials"},
    ControlText{"cmdMatDirs", 8, "", "Go to Industrial Materials"},
    ControlText{"cmdMatDirs", 9, "", "Go to Miscellaneous Materials"},
    ControlText{"cmdBackDir", -1, "", "Back to Materials Library"},
    ControlText{"cmdRefreshFile", -1, "", "Refresh file list"},
    ControlText{"cmdOpen2Combo", -1, "", "Read the prefix file"},
    ControlText{"lblPubPath", -1, "", "Current path and file name; double-click to copy path to clipboard"},
    ControlText{
        "textProfileName", -1, "",
        "Fast Save: Select/Enter file and material name for save; select Increment Checkbox to increment"},
    ControlText{
        "textProfileNamebk", -1, "",
        "Fast Save: Current file and material name for save; overwrites without prompt; double-click to "
        "randomize; select Increment Checkbox to increment"},
    ControlText{"TextLoops", -1, "", "View/enter file increment count; resets counter to value entered"},
    ControlText{"ckIncrement", -1, "Increment",
                "Check to increment file name suffix starting at entered value in textbox to the right"},
    ControlText{
        "ckGetCount", -1, "Count",
        "Check to get increment count from filename when selected in image file listbox; gets highest number "
        "on directory open"},
    ControlText{"UpDown4", -1, "", "Click to change file increment value"},
    ControlText{"cmdResetfCnt", -1, "", "Click to reset increment counter"},
    ControlText{"ckNoOpen", -1, "No Open", "Do not open file; get filename"},
    ControlText{"Command3", -1, "", "Fast Save: Save material sample to current path"},
    ControlText{"Check3", -1, "Shoot2SU", "Send to SketchUp after save"},

    // Sends, batches, palette
    ControlText{"Command6", -1, "", "Send selected material to SketchUp; Sends SU supported images"},
    ControlText{"Command7", -1, "",
                "Change entered material name texture in SketchUp to current selected image; Sends SU "
                "supported images"},
    ControlText{"cmdReMat", -1, "", "Attach new texture to entered SketchUp material name in quotes"},
    ControlText{"Command10", -1, "",
                "BatchSend: Send all images in directory to SketchUp; Sends SU supported images"},
    ControlText{"Command13", -1, "",
                "SuperBatchSend: Send all images in Super Batch List to SketchUp; Sends SU supported images"},
    ControlText{"Command14", -1, "", "Show/Hide SuperBatch Image Send Frame"},
    ControlText{"Command2", -1, "",
                "Toggle: Load all file extensions supported by SketchUp 2016 texture-import; Load defaults "
                "previewable"},
    ControlText{"Command15", -1, "", "Clear list"},
    ControlText{"List2", -1, "", "SuperBatch List: Double-click item to remove it from list"},
    ControlText{"ckSingleFile", -1, "Single",
                "Check to add image as selected; no load of image to canvas only preview"},
    ControlText{"ckAppend", -1, "Append",
                "Check to append image files to list as applicable directories are selected"},
    ControlText{"ckLoad", -1, "Load", "Check to load image with preview"},
    ControlText{"Label8", 0, "0 Files", ""},
    ControlText{"Label8", 1, "Sent: 0", "Total files sent"},
    ControlText{"Label8", 2, "File: ", ""},
    ControlText{"ckSize", -1, "Sz", "Check to size sent image/material in SketchUp"},
    ControlText{"TextMatSize", -1, "", "Enter material size in current selected units (from main 3D form)"},
    ControlText{"optUnits", 0, "", "Use value entered (inches in SketchUp)"},
    ControlText{"optUnits", 1, "", kUnitsFeet},
    ControlText{"optUnits", 2, "", kUnitsFeet},
    ControlText{"cmdColorPick", -1, "", "Show Pixel Sampler frame"},
    ControlText{"Picture2", -1, "", "Click image to sample color to SketchUp Send palette to right"},
    ControlText{"ckSample", -1, "Sample to Image", "Check to sample to Material Image"},
    ControlText{"Check1", -1, "Unique suffix", "Append suffix to texture name"},
    ControlText{"Check2b", -1, "Swath", "Sample color swath to small picture box"},
    ControlText{"Command67", -1, "", "Send color to SketchUp after creation of file"},
    ControlText{"Command1x", -1, "SU", "Add a face in SketchUp"},
    ControlText{"Command4", -1, "", "Clear the palette"},
    ControlText{"cmdColor", 0, "", kSlotTip},
    ControlText{"cmdColor", 1, "", kSlotTip},
    ControlText{"cmdColor", 2, "", kSlotTip},
    ControlText{"cmdColor", 3, "", kSlotTip},
    ControlText{"cmdColor", 4, "", kSlotTip},
    ControlText{"cmdColor", 5, "", kSlotTip},
    ControlText{"cmdColor", 6, "", kSlotTip},
    ControlText{"cmdColor", 7, "", kSlotTip},
    ControlText{"cmdColor", 8, "", "Add SketchUp Color via Ruby Console"},
    ControlText{"cmdColor", 9, "", "Add SketchUp Color"},
    ControlText{"Text2x", 0, "", kPaletteTextTip},
    ControlText{"Text2x", 1, "", kPaletteTextTip},
    ControlText{"Text2x", 2, "", kPaletteTextTip},
    ControlText{"Text2x", 3, "", kPaletteTextTip},
    ControlText{"Text2x", 4, "", kPaletteTextTip},
    ControlText{"Text2x", 5, "", kPaletteTextTip},
    ControlText{"Text2x", 6, "", kPaletteTextTip},
    ControlText{"Text2x", 7, "", kPaletteTextTip},
    ControlText{"Text2x", 8, "", kPaletteTextTip},
    ControlText{"Text2x", 9, "", kPaletteTextTip},

    // Image FX
    ControlText{"cmdBlur1", -1, "", "Blur"},
    ControlText{"cmdBlur2", -1, "", "Blur More"},
    ControlText{"cmdNoRed", -1, "", "No Red"},
    ControlText{"cmdNoGreen", -1, "", "No Green"},
    ControlText{"cmdNoBlue", -1, "", "No Blue"},
    ControlText{"cmdIncreaseRed", -1, "", "Increase Red"},
    ControlText{"cmdIncreaseGreen", -1, "", "Increase Green"},
    ControlText{"cmdIncreaseBlue", -1, "", "Increase Blue"},
    ControlText{"cmdIncreaseRGB", -1, "", "Increase RGB"},
    ControlText{"cmdDecreaseRed", -1, "", "Decrease Red"},
    ControlText{"cmdDecreaseGreen", -1, "", "Decrease Green"},
    ControlText{"cmdDecreaseBlue", -1, "", "Decrease Blue"},
    ControlText{"cmdDecreaseRGB", -1, "", "Decrease RGB"},
    ControlText{"cmdGlowInTheDark", -1, "", "Glow"},
    ControlText{"cmdSunShinnyDay", -1, "", "Bright"},
    ControlText{"cmdVividSilk", -1, "", "Vivid"},
    ControlText{"cmdSilk", -1, "", "Silk"},
    ControlText{"cmdFlatten", -1, "", "Flatten"},
    ControlText{"cmdFlatten2", -1, "", "Flatten2"},
    ControlText{"cmdNeonNegation", -1, "", "Neon Negate"},
    ControlText{"cmdNegative", -1, "", "Negate"},
    ControlText{"cmdVividNeg", -1, "", "Negate More"},
    ControlText{"cmdIncoherence", -1, "", "Incoherence"},
    ControlText{"cmdPixilated", -1, "", "Pixelated"},
    ControlText{"cmdDarken", -1, "", "Darken"},
    ControlText{"cmdLighten", -1, "", "Lighten"},
    ControlText{"cmdEmboss", -1, "", "Emboss"},
    ControlText{"cmdPointalism", -1, "", "Windswept Surreal Smudger (Horizontal): This FX is retained"},
    ControlText{"cmdPointalismVert", -1, "", "Windswept Surreal Smudger (Vertical): This FX is retained"},
    ControlText{"cmdNegativeX", -1, "", "Invert"},
    ControlText{"cmdFlipVert", -1, "", "Flip Vertical"},
    ControlText{"cmdFlipHoriz", -1, "", "Flip Horizontal"},
    ControlText{"cmdGreyScale", -1, "", "Grey Scale"},
    ControlText{"cmdRGB2BGR", -1, "", "RGB>BGR"},
    ControlText{"cmdRGB2BRG", -1, "", "RGB>BRG"},
    ControlText{"cmdRGB2GBR", -1, "", "RGB>GBR"},
    ControlText{"cmdRGB2GRB", -1, "", "RGB>GRB"},
    ControlText{"cmdRGB2RBG", -1, "", "RGB>RBG"},
    ControlText{"cmdCont", -1, "", "Contrast: This FX is retained"},
    ControlText{"cmdCont33", -1, "", "Fast 33% Contrast: This FX is retained"},
    ControlText{"cmdSetMain", -1, "", "Retain FX"},
    ControlText{"cmdSetMain2", -1, "", "Retain RGB FX for FX Panel Mods"},
    ControlText{"cmdRGBUndo", -1, "", "Undo last FX"},
    ControlText{"cmdResetRGBSlider", -1, "", "Reset RGB Slider"},
    ControlText{"cmdCopy", -1, "", "Revert/Undo All/Start State"},
    ControlText{"ckApplyRGB", -1, "", "Check to always retain FX applied"},

    // Gradients
    ControlText{"hStart", -1, "", "Gradation Slider"},
    ControlText{"hEnd", -1, "", "Threshold Slider"},
    ControlText{"optDirection", 0, "H", ""},
    ControlText{"optDirection", 1, "V", ""},
    ControlText{"chkStretch", -1, "Stretch", ""},
    ControlText{"cmdGradV", 0, "", "Horizontal gradient"},
    ControlText{"cmdGradV", 1, "", "Vertical gradient"},
    ControlText{"ckFormDirection", -1, "", "Check for horizontal form gradient"},
    ControlText{"ckGradPic", 0, "Image", kGradientImageTip},
    ControlText{"ckGradPic", 1, "Image", kGradientImageTip},
    ControlText{"cmdSwapPic", 0, "", "Swap Image and gradient image; reverses gradient"},
    ControlText{"cmdSwapPic", 1, "", "Material Image becomes Canvas Image for applied gradient"},
    ControlText{"cmdSwapPic", 2, "", "Material Image becomes Gradient Image;"},
    ControlText{"cmdGradReset", -1, "", "Reset gradient to default"},
};

} // namespace

std::span<const ControlText> ControlTexts() {
    return kTexts;
}

} // namespace mirelle
