// What the style answers with a plain value: measures, habits and the icons of Qt's own dialogs.
#pragma once

#include <QStringView>
#include <QStyle>

#include "desktop/look/Tokens.h"

namespace mirelle::look {

struct MetricRow {
    QStyle::PixelMetric metric;
    int pixels;
};

inline constexpr MetricRow kMetrics[] = {
    {QStyle::PM_ButtonMargin, kSpace},
    {QStyle::PM_ButtonShiftHorizontal, 0},
    {QStyle::PM_ButtonShiftVertical, 0},
    {QStyle::PM_ButtonDefaultIndicator, 0},
    {QStyle::PM_ButtonIconSize, kIcon},
    {QStyle::PM_ToolBarIconSize, kIcon},
    {QStyle::PM_SmallIconSize, kIcon},
    {QStyle::PM_LargeIconSize, 2 * kIcon},
    {QStyle::PM_ListViewIconSize, kIcon},
    {QStyle::PM_IconViewIconSize, 2 * kIcon},
    {QStyle::PM_MessageBoxIconSize, 2 * kIcon},
    {QStyle::PM_IndicatorWidth, kTick},
    {QStyle::PM_IndicatorHeight, kTick},
    {QStyle::PM_ExclusiveIndicatorWidth, kTick},
    {QStyle::PM_ExclusiveIndicatorHeight, kTick},
    {QStyle::PM_CheckBoxLabelSpacing, kSpaceSmall + 2},
    {QStyle::PM_RadioButtonLabelSpacing, kSpaceSmall + 2},
    {QStyle::PM_DefaultFrameWidth, 2}, // so that a list's square corners stay inside its rounded frame
    {QStyle::PM_ComboBoxFrameWidth, kEdge},
    {QStyle::PM_SpinBoxFrameWidth, kEdge},
    {QStyle::PM_ScrollBarExtent, kScrollBar},
    {QStyle::PM_ScrollBarSliderMin, kScrollHandleShortest},
    {QStyle::PM_ScrollView_ScrollBarSpacing, 0},
    {QStyle::PM_SliderThickness, kSliderHandle + kSpaceSmall},
    {QStyle::PM_SliderControlThickness, kSliderHandle},
    {QStyle::PM_SliderLength, kSliderHandle},
    {QStyle::PM_SliderTickmarkOffset, 0},
    {QStyle::PM_MenuPanelWidth, kEdge},
    {QStyle::PM_MenuHMargin, kSpaceSmall - kEdge},
    {QStyle::PM_MenuVMargin, kSpaceSmall - kEdge},
    {QStyle::PM_ToolTipLabelFrameWidth, kSpaceSmall},
    {QStyle::PM_FocusFrameHMargin, kSpaceSmall}, // before and behind the text of a row
    {QStyle::PM_FocusFrameVMargin, 0},
    {QStyle::PM_LayoutLeftMargin, kSpaceLarge},
    {QStyle::PM_LayoutTopMargin, kSpaceLarge},
    {QStyle::PM_LayoutRightMargin, kSpaceLarge},
    {QStyle::PM_LayoutBottomMargin, kSpaceLarge},
    {QStyle::PM_LayoutHorizontalSpacing, kSpace},
    {QStyle::PM_LayoutVerticalSpacing, kSpace},
};

struct HintRow {
    QStyle::StyleHint hint;
    int value;
};

inline constexpr HintRow kHints[] = {
    {QStyle::SH_EtchDisabledText, 0},
    {QStyle::SH_DitherDisabledText, 0},
    {QStyle::SH_ComboBox_Popup, 0},                         // the list opens beneath its box
    {QStyle::SH_ComboBox_PopupFrameStyle, 0x0006 | 0x0010}, // QFrame::StyledPanel, Plain
    {QStyle::SH_DialogButtonBox_ButtonsHaveIcons, 0},
    {QStyle::SH_ItemView_ShowDecorationSelected, 1},
    {QStyle::SH_ToolTipLabel_Opacity, 255},
    {QStyle::SH_Widget_Animation_Duration, 0},
    {QStyle::SH_ScrollBar_MiddleClickAbsolutePosition, 1},
    {QStyle::SH_ScrollView_FrameOnlyAroundContents, 0},
};

struct StandardIconRow {
    QStyle::StandardPixmap which;
    QStringView icon;
    QRgb ink = kText;
};

inline constexpr StandardIconRow kStandardIcons[] = {
    {QStyle::SP_MessageBoxInformation, u"message-information", kAccentText},
    {QStyle::SP_MessageBoxQuestion, u"message-question", kAccentText},
    {QStyle::SP_MessageBoxWarning, u"message-warning", kWarning},
    {QStyle::SP_MessageBoxCritical, u"message-critical", kWarning},
    {QStyle::SP_DirIcon, u"folder"},
    {QStyle::SP_DirClosedIcon, u"folder"},
    {QStyle::SP_DirOpenIcon, u"folder"},
    {QStyle::SP_DirLinkIcon, u"folder"},
    {QStyle::SP_DirHomeIcon, u"home"},
    {QStyle::SP_FileIcon, u"file"},
    {QStyle::SP_FileLinkIcon, u"file"},
    {QStyle::SP_DriveHDIcon, u"drive"},
    {QStyle::SP_DriveCDIcon, u"drive"},
    {QStyle::SP_DriveDVDIcon, u"drive"},
    {QStyle::SP_DriveFDIcon, u"drive"},
    {QStyle::SP_DriveNetIcon, u"drive"},
    {QStyle::SP_ComputerIcon, u"computer"},
    {QStyle::SP_DesktopIcon, u"computer"},
    {QStyle::SP_ArrowBack, u"arrow-left"},
    {QStyle::SP_ArrowForward, u"arrow-right"},
    {QStyle::SP_FileDialogBack, u"arrow-left"},
    {QStyle::SP_FileDialogToParent, u"folder-up"},
    {QStyle::SP_FileDialogNewFolder, u"folder-new"},
    {QStyle::SP_FileDialogListView, u"view-list"},
    {QStyle::SP_FileDialogDetailedView, u"view-details"},
    {QStyle::SP_LineEditClearButton, u"close"},
    {QStyle::SP_DialogCloseButton, u"close"},
};

} // namespace mirelle::look
