#include "desktop/look/Style.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractScrollArea>
#include <QAbstractSlider>
#include <QAbstractSpinBox>

#include <QComboBox>
#include <QLineEdit>

#include <QStyleFactory>
#include <QStyleOption>

#include "desktop/look/Icons.h"
#include "desktop/look/PaintButtons.h"
#include "desktop/look/PaintFields.h"
#include "desktop/look/PaintMenus.h"
#include "desktop/look/PaintRails.h"
#include "desktop/look/Palette.h"
#include "desktop/look/StyleTables.h"
#include "desktop/look/Surface.h"
#include "desktop/look/Tokens.h"

namespace mirelle::look {

namespace {

template <typename Option>
const Option* As(const QStyleOption* option) {
    return qstyleoption_cast<const Option*>(option);
}

// Lists force the keyboard's mark on the option of their current row; only the window knows whether it holds.
bool RowShowsFocus(const QStyleOption& option, const QWidget* widget) {
    const bool byKeyboard = widget && widget->window()->testAttribute(Qt::WA_KeyboardFocusChange);
    return byKeyboard && (option.state & QStyle::State_HasFocus);
}

bool IsPartOfABox(const QWidget* widget) {
    const QWidget* parent = widget ? widget->parentWidget() : nullptr;
    return qobject_cast<const QComboBox*>(parent) || qobject_cast<const QAbstractSpinBox*>(parent);
}

void PaintFocus(QPainter& painter, const QStyleOption& option, const QWidget* widget) {
    const bool isRow = qobject_cast<const QAbstractItemView*>(widget) != nullptr;
    const bool shown = isRow ? RowShowsFocus(option, widget) : ShowsFocus(option);
    const bool selected = option.state & QStyle::State_Selected;
    const QColor ground = option.palette.color(selected ? QPalette::Highlight : QPalette::Base);
    if (shown) Surface(painter).FocusRing(option.rect, isRow ? kTickRadius : kControlRadius, ground);
}

// The frame of a list or text area is a field; about anything else it is an edge.
void PaintFrame(QPainter& painter, const QStyleOption& option, const QWidget* widget) {
    if (!qobject_cast<const QAbstractScrollArea*>(widget)) {
        return Surface(painter).Edge(option.rect, 0, QColor(kFieldEdge));
    }
    QStyleOption field = option;
    field.state.setFlag(QStyle::State_HasFocus, ShowsFocus(option)); // no cursor blinks in a list
    field.state.setFlag(QStyle::State_ReadOnly, false);
    field.state.setFlag(QStyle::State_MouseOver, false);
    PaintField(painter, field);
}

} // namespace

Style::Style() : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion"))) {
    setObjectName(QStringLiteral("mirelle"));
}

QPalette Style::standardPalette() const {
    return MakePalette();
}

void Style::polish(QWidget* widget) {
    QProxyStyle::polish(widget);
    // Hover is shown where a press does something.
    if (qobject_cast<QAbstractButton*>(widget) || qobject_cast<QComboBox*>(widget) ||
        qobject_cast<QAbstractSlider*>(widget) || qobject_cast<QAbstractSpinBox*>(widget) ||
        qobject_cast<QLineEdit*>(widget)) {
        widget->setAttribute(Qt::WA_Hover);
    }
}

void Style::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                          const QWidget* widget) const {
    switch (element) {
    case PE_PanelButtonCommand:
        if (const auto* button = As<QStyleOptionButton>(option))
            return PaintPushButtonGround(*painter, *button);
        break;
    case PE_IndicatorCheckBox:
    case PE_IndicatorItemViewItemCheck:
        return PaintTick(*painter, *option);
    case PE_IndicatorRadioButton:
        return PaintRadio(*painter, *option);
    case PE_PanelLineEdit:
        if (IsPartOfABox(widget)) return; // the box has painted the field
        return PaintField(*painter, *option);
    case PE_FrameLineEdit:
        return;
    case PE_Frame:
        return PaintFrame(*painter, *option, widget);
    case PE_PanelItemViewItem:
        if (const auto* row = As<QStyleOptionViewItem>(option)) return PaintRow(*painter, *row);
        break;
    case PE_PanelItemViewRow:
        return; // each cell paints its own ground
    case PE_FrameFocusRect:
        return PaintFocus(*painter, *option, widget);
    case PE_PanelMenu:
        return PaintMenuPanel(*painter, *option);
    case PE_FrameMenu:
        return;
    case PE_PanelTipLabel:
        return PaintTip(*painter, *option);
    case PE_IndicatorArrowUp:
        return PaintArrow(*painter, option->rect, u"spin-up", *option);
    case PE_IndicatorArrowDown:
        return PaintArrow(*painter, option->rect, u"spin-down", *option);
    case PE_IndicatorArrowLeft:
        return PaintArrow(*painter, option->rect, u"chevron-left", *option);
    case PE_IndicatorArrowRight:
        return PaintArrow(*painter, option->rect, u"chevron-right", *option);
    case PE_IndicatorHeaderArrow:
        if (const auto* header = As<QStyleOptionHeader>(option)) return PaintSortArrow(*painter, *header);
        break;
    case PE_PanelScrollAreaCorner:
        return painter->fillRect(option->rect, option->palette.color(QPalette::Base));
    default:
        break;
    }
    QProxyStyle::drawPrimitive(element, option, painter, widget);
}

void Style::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                        const QWidget* widget) const {
    switch (element) {
    case CE_PushButtonBevel:
        if (const auto* button = As<QStyleOptionButton>(option))
            return PaintPushButtonGround(*painter, *button);
        break;
    case CE_MenuItem:
        if (const auto* item = As<QStyleOptionMenuItem>(option)) return PaintMenuItem(*painter, *item);
        break;
    case CE_CheckBox:
    case CE_RadioButton:
        if (const auto* button = As<QStyleOptionButton>(option))
            return DrawMarked(element, *button, *painter, widget);
        break;
    case CE_MenuEmptyArea:
        return;
    case CE_HeaderSection:
        if (const auto* header = As<QStyleOptionHeader>(option)) return PaintHeaderGround(*painter, *header);
        break;
    case CE_HeaderEmptyArea:
        return painter->fillRect(option->rect, QColor(kCard));
    default:
        break;
    }
    QProxyStyle::drawControl(element, option, painter, widget);
}

// Mark, text and, about both, the focus.
void Style::DrawMarked(ControlElement element, const QStyleOptionButton& option, QPainter& painter,
                       const QWidget* widget) const {
    const bool radio = element == CE_RadioButton;
    QStyleOptionButton part = option;
    part.rect = subElementRect(radio ? SE_RadioButtonIndicator : SE_CheckBoxIndicator, &option, widget);
    proxy()->drawPrimitive(radio ? PE_IndicatorRadioButton : PE_IndicatorCheckBox, &part, &painter, widget);
    part.rect = subElementRect(radio ? SE_RadioButtonContents : SE_CheckBoxContents, &option, widget);
    proxy()->drawControl(radio ? CE_RadioButtonLabel : CE_CheckBoxLabel, &part, &painter, widget);
    if (ShowsFocus(option)) Surface(painter).FocusRing(option.rect, kControlRadius, QColor(kCard));
}

void Style::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                               const QWidget* widget) const {
    switch (control) {
    case CC_ToolButton:
        if (const auto* button = As<QStyleOptionToolButton>(option)) {
            PaintToolButtonGround(*painter, *button);
            if (button->text.isEmpty() || button->toolButtonStyle == Qt::ToolButtonIconOnly) {
                return PaintToolButtonIcon(*painter, *button);
            }
            return proxy()->drawControl(CE_ToolButtonLabel, button, painter, widget);
        }
        break;
    case CC_ComboBox:
        if (const auto* box = As<QStyleOptionComboBox>(option)) return PaintComboBox(*painter, *box);
        break;
    case CC_SpinBox:
        if (const auto* box = As<QStyleOptionSpinBox>(option)) return PaintSpinBox(*painter, *box);
        break;
    case CC_ScrollBar:
        if (const auto* bar = As<QStyleOptionSlider>(option)) return PaintScrollBar(*painter, *bar);
        break;
    case CC_Slider:
        if (const auto* slider = As<QStyleOptionSlider>(option)) return PaintSlider(*painter, *slider);
        break;
    default:
        break;
    }
    QProxyStyle::drawComplexControl(control, option, painter, widget);
}

QRect Style::subElementRect(SubElement element, const QStyleOption* option, const QWidget* widget) const {
    constexpr int inset = kTickInset;
    const QRect box = option->rect;
    switch (element) {
    case SE_PushButtonFocusRect:
    case SE_CheckBoxFocusRect:
    case SE_RadioButtonFocusRect:
    case SE_CheckBoxClickRect:
    case SE_RadioButtonClickRect:
        return box;
    case SE_CheckBoxIndicator:
    case SE_RadioButtonIndicator:
        return visualRect(option->direction, box,
                          {box.x() + inset, box.y() + (box.height() - kTick) / 2, kTick, kTick});
    case SE_CheckBoxContents:
    case SE_RadioButtonContents:
        return visualRect(option->direction, box,
                          box.adjusted(inset + kTick + kSpaceSmall + 2, 0, -inset, 0));
    case SE_LineEditContents: {
        const auto* frame = As<QStyleOptionFrame>(option);
        return frame && frame->lineWidth > 0 ? box.adjusted(kFieldInset - 2, 1, -(kFieldInset - 2), -1) : box;
    }
    default:
        return QProxyStyle::subElementRect(element, option, widget);
    }
}

QRect Style::subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                            const QWidget* widget) const {
    if (const auto* rail = As<QStyleOptionSlider>(option)) {
        if (control == CC_ScrollBar) return ScrollBarPart(*rail, part);
        if (control == CC_Slider) return SliderPart(*rail, part);
    }
    if (const auto* combo = As<QStyleOptionComboBox>(option)) {
        if (part == SC_ComboBoxArrow) return ComboArrow(*combo);
        if (part == SC_ComboBoxEditField) return ComboText(*combo);
        if (part == SC_ComboBoxListBoxPopup) return combo->rect;
    }
    if (const auto* spin = As<QStyleOptionSpinBox>(option)) {
        if (part == SC_SpinBoxUp) return SpinArrowUp(*spin);
        if (part == SC_SpinBoxDown) return SpinArrowDown(*spin);
        if (part == SC_SpinBoxEditField) return SpinText(*spin);
    }
    return QProxyStyle::subControlRect(control, option, part, widget);
}

QSize Style::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                              const QWidget* widget) const {
    const int high = std::max(kControlHeight, contents.height() + kSpaceSmall);
    switch (type) {
    case CT_PushButton: {
        const bool inDialog = widget && widget->parent() && widget->parent()->inherits("QDialogButtonBox");
        return {std::max(contents.width() + 2 * kSpaceLarge, inDialog ? kDialogButton : kControlHeight),
                high};
    }
    case CT_ToolButton: {
        const auto* button = As<QStyleOptionToolButton>(option);
        const bool iconOnly =
            button && (button->text.isEmpty() || button->toolButtonStyle == Qt::ToolButtonIconOnly);
        if (iconOnly)
            return contents.expandedTo(button->iconSize) + QSize(kIconButton - kIcon, kIconButton - kIcon);
        return {contents.width() + 2 * kSpace, high};
    }
    case CT_CheckBox:
    case CT_RadioButton: {
        const int text = contents.width() > 0 ? kSpaceSmall + 2 + contents.width() : 0;
        return {2 * kTickInset + kTick + text, std::max(kTickRow, contents.height() + kSpaceSmall)};
    }
    case CT_LineEdit:
        return {contents.width() + 2 * kFieldInset, high};
    case CT_ComboBox:
        return {contents.width() + kSpace + kArrowWidth + kSpace, high};
    case CT_SpinBox: // the contents are a text box with its height already
        return {contents.width() + kFieldInset + kArrowWidth, std::max(kControlHeight, contents.height())};
    case CT_MenuItem:
        if (const auto* item = As<QStyleOptionMenuItem>(option)) return MenuItemSize(*item, contents);
        break;
    case CT_ItemViewItem: {
        const QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
        return size.expandedTo({0, kRowHeight});
    }
    default:
        break;
    }
    return QProxyStyle::sizeFromContents(type, option, contents, widget);
}

int Style::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
    if (metric == PM_DefaultFrameWidth && !qobject_cast<const QAbstractScrollArea*>(widget)) return kEdge;
    for (const MetricRow& row : kMetrics) {
        if (row.metric == metric) return row.pixels;
    }
    return QProxyStyle::pixelMetric(metric, option, widget);
}

int Style::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                     QStyleHintReturn* data) const {
    for (const HintRow& row : kHints) {
        if (row.hint == hint) return row.value;
    }
    return QProxyStyle::styleHint(hint, option, widget, data);
}

QIcon Style::standardIcon(StandardPixmap which, const QStyleOption* option, const QWidget* widget) const {
    for (const StandardIconRow& row : kStandardIcons) {
        if (row.which == which) return MakeIcon(row.icon, row.ink);
    }
    return QProxyStyle::standardIcon(which, option, widget);
}

QPixmap Style::standardPixmap(StandardPixmap which, const QStyleOption* option, const QWidget* widget) const {
    for (const StandardIconRow& row : kStandardIcons) {
        if (row.which == which) return MakeIcon(row.icon, row.ink).pixmap(QSize(kIcon, kIcon));
    }
    return QProxyStyle::standardPixmap(which, option, widget);
}

} // namespace mirelle::look
