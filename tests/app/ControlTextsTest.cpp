// The captions and tool tips that users know the controls by.
#include "tests/support/TestProgram.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <optional>

namespace mirelle {
namespace {

using test::TestProgram;
using testing::ElementsAre;

constexpr int kAlone = -1; // the control is in no array
constexpr const char* kFree = nullptr;

// A text that is kFree is the program's own affair.
struct ExpectedTexts {
    const char* name;
    int index;
    const char* caption;
    const char* toolTip;
};

constexpr std::array kExpected = {
    // Panels
    ExpectedTexts{"Frame3", kAlone, "Materials Images", kFree},
    ExpectedTexts{"Frame5", kAlone, kFree,
                  "To sample image: Drag mouse-down mouse (upper left to lower right), mouse-up to crop "
                  "canvas image; Paste or select file to open image to sampling canvas"},
    ExpectedTexts{"Frame8", kAlone, "SuperBatch Send",
                  "Send multiple directories and image types to SketchUp"},
    ExpectedTexts{"FramePics", kAlone, "Pixel Sampler for SketchUp Color", kFree},
    ExpectedTexts{"FrameRGBFX", kAlone, "Image FX", kFree},
    ExpectedTexts{"FrameGradFX", kAlone, "Gradient FX", kFree},
    ExpectedTexts{"FrShowFrames", 0, kFree, "Drag border area to move"},
    ExpectedTexts{"cmdHideFrame", 0, kFree, "Hide/Show Frame Right Toggle"},
    ExpectedTexts{"cmdHideFrame", 1, kFree, "Hide All Frames"},
    ExpectedTexts{"cmdShowFrames", kAlone, kFree,
                  "Click to show all hidden frames; drag border area to move"},
    ExpectedTexts{"Command18", 0, kFree, "This form always On Top"},
    ExpectedTexts{"Command18", 1, kFree, "This form not on top"},
    ExpectedTexts{"lblPubPath", kAlone, kFree,
                  "Current path and file name; double-click to copy path to clipboard"},
    ExpectedTexts{"cmdGetCorvane", 0, kFree, "View User Manual"},

    // Canvas, crop and Material Image
    ExpectedTexts{"Command23", kAlone, kFree, "Open image file from Windows file dialog"},
    ExpectedTexts{"Check4", kAlone, "Open Both", "Open file in large and small picture boxes"},
    ExpectedTexts{"Command5", kAlone, kFree, "Paste from clipboard"},
    ExpectedTexts{"Command8", kAlone, kFree, "Clear the clipboard"},
    ExpectedTexts{"Command12", kAlone, kFree,
                  "Copy current Material Image to left to clipboard; pastes as full screen"},
    ExpectedTexts{"ckKeep", kAlone, kFree,
                  "Check to keep current Material Image picture; canvas crops, pastes and opens ignored"},
    ExpectedTexts{"ckLock", kAlone, kFree, "Check to lock current Material Image dimension for crop limits"},
    ExpectedTexts{"ckFloorBar", kAlone, "Floor Bar", kFree},
    ExpectedTexts{"ckUseFormCanvas", kAlone, "Form as Canvas",
                  "Check to apply form canvas background to opened images sampleable area; re-open any "
                  "already opened image after checking"},
    ExpectedTexts{"PicScroll", kAlone, kFree, "Preview Background; no image data"},
    ExpectedTexts{"Label2", 0, "Material Image",
                  "Image below is the new material save image; click to send to Sampling Canvas"},
    ExpectedTexts{"Frame2", kAlone, "Selected Color Preview", kFree},

    // Library, names, counter and saving
    ExpectedTexts{"Drive5", kAlone, kFree, "Select system drive"},
    ExpectedTexts{"Dir5", kAlone, kFree, "Corvane Materials Library Support Directories"},
    ExpectedTexts{"File5", kAlone, kFree, "Click to preview image file (jpg, bmp, gif)"},
    ExpectedTexts{"Combo5", kAlone, kFree, "Select image file extension"},
    ExpectedTexts{"Label8", 46, "0", kFree},
    ExpectedTexts{"cmdMatDirs", 0, kFree, "Go to Art Materials"},
    ExpectedTexts{"cmdMatDirs", 1, kFree, "Go to Fractal Materials"},
    ExpectedTexts{"cmdMatDirs", 2, kFree, "Go to Graffiti Materials"},
    ExpectedTexts{"cmdMatDirs", 3, kFree, "Go to Metal Materials"},
    ExpectedTexts{"cmdMatDirs", 4, kFree, "Go to Color Materials"},
    ExpectedTexts{"cmdMatDirs", 5, kFree, "Go to Gradient Materials"},
    ExpectedTexts{"cmdMatDirs", 6, kFree, "Go to Bio Materials"},
    ExpectedTexts{"cmdMatDirs", 7, kFree, "Go to Architecture Materials"},
    ExpectedTexts{"cmdMatDirs", 8, kFree, "Go to Industrial Materials"},
    ExpectedTexts{"cmdMatDirs", 9, kFree, "Go to Miscellaneous Materials"},
    ExpectedTexts{"cmdBackDir", kAlone, kFree, "Back to Materials Library"},
    ExpectedTexts{"cmdRefreshFile", kAlone, kFree, "Refresh file list"},
    ExpectedTexts{"ckNoOpen", kAlone, kFree, "Do not open file; get filename"},
    ExpectedTexts{"ckOnly", kAlone, kFree, "Check to open image to only Material Image"},
    ExpectedTexts{"textProfileName", kAlone, kFree,
                  "Fast Save: Select/Enter file and material name for save; select Increment Checkbox to "
                  "increment"},
    ExpectedTexts{"textProfileNamebk", kAlone, kFree,
                  "Fast Save: Current file and material name for save; overwrites without prompt; "
                  "double-click to randomize; select Increment Checkbox to increment"},
    ExpectedTexts{"TextLoops", kAlone, kFree,
                  "View/enter file increment count; resets counter to value entered"},
    ExpectedTexts{"ckIncrement", kAlone, "Increment",
                  "Check to increment file name suffix starting at entered value in textbox to the right"},
    ExpectedTexts{"ckGetCount", kAlone, kFree,
                  "Check to get increment count from filename when selected in image file listbox; gets "
                  "highest number on directory open"},
    ExpectedTexts{"UpDown4", kAlone, kFree, "Click to change file increment value"},
    ExpectedTexts{"cmdResetfCnt", kAlone, kFree, "Click to reset increment counter"},
    ExpectedTexts{"Command3", kAlone, kFree, "Fast Save: Save material sample to current path"},

    // Sends and batches
    ExpectedTexts{"ckSize", kAlone, "Sz", "Check to size sent image/material in SketchUp"},
    ExpectedTexts{"TextMatSize", kAlone, kFree,
                  "Enter material size in current selected units (from main 3D form)"},
    ExpectedTexts{"optUnits", 0, kFree, "Use value entered (inches in SketchUp)"},
    ExpectedTexts{"optUnits", 1, kFree, "Apply feet to size (x12)"},
    ExpectedTexts{"optUnits", 2, kFree, "Apply feet to size (x12)"},
    ExpectedTexts{"Command6", kAlone, kFree, "Send selected material to SketchUp; Sends SU supported images"},
    ExpectedTexts{"Command7", kAlone, kFree,
                  "Change entered material name texture in SketchUp to current selected image; Sends SU "
                  "supported images"},
    ExpectedTexts{"cmdReMat", kAlone, kFree,
                  "Attach new texture to entered SketchUp material name in quotes"},
    ExpectedTexts{"Check3", kAlone, "Shoot2SU", "Send to SketchUp after save"},
    ExpectedTexts{"List2", kAlone, kFree, "SuperBatch List: Double-click item to remove it from list"},
    ExpectedTexts{"ckSingleFile", kAlone, "Single",
                  "Check to add image as selected; no load of image to canvas only preview"},
    ExpectedTexts{"ckAppend", kAlone, "Append",
                  "Check to append image files to list as applicable directories are selected"},
    ExpectedTexts{"ckLoad", kAlone, "Load", "Check to load image with preview"},
    ExpectedTexts{"Label8", 1, "Sent: 0", "Total files sent"},
    ExpectedTexts{"Command10", kAlone, kFree,
                  "BatchSend: Send all images in directory to SketchUp; Sends SU supported images"},
    ExpectedTexts{"Command13", kAlone, kFree,
                  "SuperBatchSend: Send all images in Super Batch List to SketchUp; Sends SU supported "
                  "images"},
    ExpectedTexts{"Command14", kAlone, kFree, "Show/Hide SuperBatch Image Send Frame"},
    ExpectedTexts{"Command2", kAlone, kFree,
                  "Toggle: Load all file extensions supported by SketchUp 2016 texture-import; Load defaults "
                  "previewable"},
    ExpectedTexts{"Command15", kAlone, kFree, "Clear list"},

    // Palette
    ExpectedTexts{"Picture2", kAlone, kFree, "Click image to sample color to SketchUp Send palette to right"},
    ExpectedTexts{"cmdColor", 8, kFree, "Add SketchUp Color via Ruby Console"},
    ExpectedTexts{"cmdColor", 9, kFree, "Add SketchUp Color"},
    ExpectedTexts{"ckSample", kAlone, "Sample to Image", "Check to sample to Material Image"},
    ExpectedTexts{"Check1", kAlone, "Unique suffix", "Append suffix to texture name"},
    ExpectedTexts{"Check2b", kAlone, "Swath", "Sample color swath to small picture box"},
    ExpectedTexts{"Command67", kAlone, kFree, "Send color to SketchUp after creation of file"},
    ExpectedTexts{"cmdColorPick", kAlone, kFree, "Show Pixel Sampler frame"},
    ExpectedTexts{"Command1x", kAlone, "SU", kFree},

    // Image FX
    ExpectedTexts{"cmdNegativeX", kAlone, kFree, "Invert"},
    ExpectedTexts{"cmdFlipVert", kAlone, kFree, "Flip Vertical"},
    ExpectedTexts{"cmdFlipHoriz", kAlone, kFree, "Flip Horizontal"},
    ExpectedTexts{"cmdGreyScale", kAlone, kFree, "Grey Scale"},
    ExpectedTexts{"cmdRGB2BGR", kAlone, kFree, "RGB>BGR"},
    ExpectedTexts{"cmdRGB2BRG", kAlone, kFree, "RGB>BRG"},
    ExpectedTexts{"cmdRGB2GBR", kAlone, kFree, "RGB>GBR"},
    ExpectedTexts{"cmdRGB2GRB", kAlone, kFree, "RGB>GRB"},
    ExpectedTexts{"cmdRGB2RBG", kAlone, kFree, "RGB>RBG"},
    ExpectedTexts{"cmdBlur1", kAlone, kFree, "Blur"},
    ExpectedTexts{"cmdBlur2", kAlone, kFree, "Blur More"},
    ExpectedTexts{"cmdNoRed", kAlone, kFree, "No Red"},
    ExpectedTexts{"cmdNoGreen", kAlone, kFree, "No Green"},
    ExpectedTexts{"cmdNoBlue", kAlone, kFree, "No Blue"},
    ExpectedTexts{"cmdIncreaseRed", kAlone, kFree, "Increase Red"},
    ExpectedTexts{"cmdIncreaseGreen", kAlone, kFree, "Increase Green"},
    ExpectedTexts{"cmdIncreaseBlue", kAlone, kFree, "Increase Blue"},
    ExpectedTexts{"cmdIncreaseRGB", kAlone, kFree, "Increase RGB"},
    ExpectedTexts{"cmdDecreaseRed", kAlone, kFree, "Decrease Red"},
    ExpectedTexts{"cmdDecreaseGreen", kAlone, kFree, "Decrease Green"},
    ExpectedTexts{"cmdDecreaseBlue", kAlone, kFree, "Decrease Blue"},
    ExpectedTexts{"cmdDecreaseRGB", kAlone, kFree, "Decrease RGB"},
    ExpectedTexts{"cmdGlowInTheDark", kAlone, kFree, "Glow"},
    ExpectedTexts{"cmdSunShinnyDay", kAlone, kFree, "Bright"},
    ExpectedTexts{"cmdVividSilk", kAlone, kFree, "Vivid"},
    ExpectedTexts{"cmdSilk", kAlone, kFree, "Silk"},
    ExpectedTexts{"cmdFlatten", kAlone, kFree, "Flatten"},
    ExpectedTexts{"cmdFlatten2", kAlone, kFree, "Flatten2"},
    ExpectedTexts{"cmdNeonNegation", kAlone, kFree, "Neon Negate"},
    ExpectedTexts{"cmdNegative", kAlone, kFree, "Negate"},
    ExpectedTexts{"cmdVividNeg", kAlone, kFree, "Negate More"},
    ExpectedTexts{"cmdIncoherence", kAlone, kFree, "Incoherence"},
    ExpectedTexts{"cmdPixilated", kAlone, kFree, "Pixelated"},
    ExpectedTexts{"cmdDarken", kAlone, kFree, "Darken"},
    ExpectedTexts{"cmdLighten", kAlone, kFree, "Lighten"},
    ExpectedTexts{"cmdEmboss", kAlone, kFree, "Emboss"},
    ExpectedTexts{"cmdPointalism", kAlone, kFree,
                  "Windswept Surreal Smudger (Horizontal): This FX is retained"},
    ExpectedTexts{"cmdPointalismVert", kAlone, kFree,
                  "Windswept Surreal Smudger (Vertical): This FX is retained"},
    ExpectedTexts{"cmdCont", kAlone, kFree, "Contrast: This FX is retained"},
    ExpectedTexts{"cmdCont33", kAlone, kFree, "Fast 33% Contrast: This FX is retained"},
    ExpectedTexts{"cmdSetMain", kAlone, kFree, "Retain FX"},
    ExpectedTexts{"cmdSetMain2", kAlone, kFree, "Retain RGB FX for FX Panel Mods"},
    ExpectedTexts{"cmdRGBUndo", kAlone, kFree, "Undo last FX"},
    ExpectedTexts{"cmdResetRGBSlider", kAlone, kFree, "Reset RGB Slider"},
    ExpectedTexts{"cmdCopy", kAlone, kFree, "Revert/Undo All/Start State"},
    ExpectedTexts{"ckApplyRGB", kAlone, kFree, "Check to always retain FX applied"},
    ExpectedTexts{"cmdColorDialog", 0, kFree, "Change Crop Window Hairline color"},
    ExpectedTexts{"cmdColorDialog", 1, kFree, "Change Sampling Canvas background color"},
    ExpectedTexts{"cmdColorDialog", 2, kFree, "Show Canvas Image FX"},
    ExpectedTexts{"cmdColorDialog", 3, kFree, "Show Gradient FX"},
    ExpectedTexts{"cmdColorDialog", 4, kFree, "Pick gradient color"},

    // Gradients; the two spaces are no slip
    ExpectedTexts{"hStart", kAlone, kFree, "Gradation Slider"},
    ExpectedTexts{"hEnd", kAlone, kFree, "Threshold Slider"},
    ExpectedTexts{"optDirection", 0, "H", kFree},
    ExpectedTexts{"optDirection", 1, "V", kFree},
    ExpectedTexts{"chkStretch", kAlone, "Stretch", kFree},
    ExpectedTexts{"Frame1", kAlone, "Form Gradient",
                  "Slide RGB Slider to create form  gradient sampleable for gradient  image; 255-0 "
                  "Gradation Start (top 3), Finish (bottom 3) RGB color sliders"},
    ExpectedTexts{"ckFormDirection", kAlone, kFree, "Check for horizontal form gradient"},
    ExpectedTexts{"ckGradPic", 0, "Image",
                  "Use image for gradient: Select to load foreground Gradient Image image"},
    ExpectedTexts{"ckGradPic", 1, "Image",
                  "Use image for gradient: Select to load foreground Gradient Image image"},
    ExpectedTexts{"cmdSwapPic", 0, kFree, "Swap Image and gradient image; reverses gradient"},
    ExpectedTexts{"cmdSwapPic", 1, kFree, "Material Image becomes Canvas Image for applied gradient"},
    ExpectedTexts{"cmdSwapPic", 2, kFree, "Material Image becomes Gradient Image;"},
    ExpectedTexts{"cmdGradReset", kAlone, kFree, "Reset gradient to default"},
};

// Nothing for a control of a kind that has no caption.
std::optional<std::string> CaptionOf(const Control& control) {
    if (const auto* label = dynamic_cast<const Label*>(&control)) return label->Caption();
    if (const auto* frame = dynamic_cast<const Frame*>(&control)) return frame->Caption();
    if (const auto* button = dynamic_cast<const CommandButton*>(&control)) return button->Caption();
    if (const auto* check = dynamic_cast<const CheckBox*>(&control)) return check->Caption();
    if (const auto* option = dynamic_cast<const OptionButton*>(&control)) return option->Caption();
    return std::nullopt;
}

TEST(ControlTexts, CaptionsAndToolTipsAreThose) {
    TestProgram program;
    for (const auto& [name, index, caption, toolTip] : kExpected) {
        const Control* control = program.form.Find(name, index);
        ASSERT_TRUE(control) << name << ' ' << index;
        if (caption) {
            EXPECT_EQ(CaptionOf(*control), caption) << control->FullName();
        }
        if (toolTip) {
            EXPECT_EQ(control->ToolTipText(), toolTip) << control->FullName();
        }
    }
}

TEST(ControlTexts, EverySlotOfThePaletteHasItsToolTips) {
    TestProgram program;
    for (int slot = 0; slot < 10; ++slot) {
        EXPECT_EQ(program.form.Text2x(slot).ToolTipText(),
                  "Enter or sample RGB Color value to send to SketchUp")
            << slot;
    }
    for (int slot = 0; slot < 8; ++slot) {
        EXPECT_EQ(program.form.cmdColor(slot).ToolTipText(), "Click to Add SketchUp Color via Ruby Console")
            << slot;
    }
}

TEST(ControlTexts, TheManualsButtonsTellWhatTheyOpen) {
    TestProgram program;
    UserManual& manual = program.sampler.manual;
    EXPECT_EQ(manual.Command1(0).Caption(), "Web");
    EXPECT_EQ(manual.Command1(0).ToolTipText(), "View CorvaneSUNDIAL User Manual Online");
    EXPECT_EQ(manual.Command1(1).Caption(), "Local");
    EXPECT_EQ(manual.Command1(1).ToolTipText(), "View CorvaneSUNDIAL User Manual with default PDF Viewer");
}

TEST(ControlTexts, TheGradientsDirectionsAreListed) {
    TestProgram program;
    EXPECT_THAT(program.form.cmbDirection.Rows(), ElementsAre("Horizontal", "Vertical"));
}

} // namespace
} // namespace mirelle
