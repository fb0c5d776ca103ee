// The window for those who use it by keyboard or by a screen reader.
#include "desktop/canvas/SamplingCanvas.h"
#include "tests/desktop/window/OpenedWindow.h"

#include <gmock/gmock.h>

#include <QAccessible>
#include <QApplication>
#include <QImage>
#include <QTest>

namespace mirelle::test {
namespace {

struct OpenPanel {
    const char* name;
    void (*open)(FrmPicX& form);
};

// Together they show every control that can be seen.
constexpr OpenPanel kPanels[] = {
    {"Start", [](FrmPicX&) {}},
    {"ImageFX", [](FrmPicX& form) { form.cmdColorDialog(2).UserClick(); }},
    {"GradientFX", [](FrmPicX& form) { form.cmdColorDialog(3).UserClick(); }},
    {"SuperBatch", [](FrmPicX& form) { form.Command14.UserClick(); }},
    {"Palette", [](FrmPicX& form) { form.cmdColorPick.UserClick(); }},
    {"AllHidden", [](FrmPicX& form) { form.cmdHideFrame(1).UserClick(); }},
};

QAccessible::Role RoleOf(const Control& control) {
    if (dynamic_cast<const CommandButton*>(&control)) return QAccessible::Button;
    if (dynamic_cast<const CheckBox*>(&control)) return QAccessible::CheckBox;
    if (dynamic_cast<const OptionButton*>(&control)) return QAccessible::RadioButton;
    if (dynamic_cast<const TextBox*>(&control)) return QAccessible::EditableText;
    if (dynamic_cast<const ComboBox*>(&control) || dynamic_cast<const DriveListBox*>(&control))
        return QAccessible::ComboBox;
    if (dynamic_cast<const ListControl*>(&control) || dynamic_cast<const FileListBox*>(&control) ||
        dynamic_cast<const DirListBox*>(&control))
        return QAccessible::List;
    if (dynamic_cast<const UpDown*>(&control)) return QAccessible::SpinBox;
    if (dynamic_cast<const Label*>(&control)) return QAccessible::StaticText;
    if (dynamic_cast<const Frame*>(&control)) return QAccessible::Grouping;
    return QAccessible::Graphic; // pictures
}

class Accessibility : public testing::TestWithParam<OpenPanel> {
protected:
    Accessibility() {
        GetParam().open(opened.form);
        OpenedWindow::Settle();
        opened.window->activateWindow();
        OpenedWindow::Settle();
    }
    std::vector<QWidget*> ControlsThatTakeTheFocus() const {
        std::vector<QWidget*> found;
        for (QWidget* widget : opened.window->findChildren<QWidget*>()) {
            if (widget->isVisible() && widget->isEnabled() &&
                (widget->focusPolicy() & Qt::TabFocus) == Qt::TabFocus && !widget->focusProxy() &&
                widget->window() == opened.window.get())
                found.push_back(widget);
        }
        return found;
    }
    // Where Tab leads, from the canvas around once.
    std::vector<QWidget*> TabOrder() const {
        opened.window->Canvas().setFocus();
        std::vector<QWidget*> order;
        for (std::size_t step = 0; step < 400; ++step) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            QWidget* const now = QApplication::focusWidget();
            if (!now || (!order.empty() && now == order.front())) break;
            order.push_back(now);
        }
        return order;
    }
    static QWidget* PanelOf(QWidget* widget) {
        while (widget->parentWidget() && !widget->parentWidget()->isWindow())
            widget = widget->parentWidget();
        return widget;
    }
    QRect PlaceOf(const QWidget* widget) const {
        return {widget->mapTo(opened.window.get(), QPoint()), widget->size()};
    }

    OpenedWindow opened;
};

std::string NameOf(const QWidget* widget) {
    return widget->objectName().toStdString();
}

TEST_P(Accessibility, EveryControlTellsItsRoleAndWhatTakesTheFocusItsName) {
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&opened.window->Canvas())->role(), QAccessible::Canvas);
    int told = 0;
    for (const Control* control : opened.form.Controls()) {
        QWidget* const widget = opened.Find(control->FullName().c_str());
        if (!widget || !widget->isVisible()) continue;
        QAccessibleInterface* const face = QAccessible::queryAccessibleInterface(widget);
        ASSERT_NE(face, nullptr) << control->FullName();
        const QAccessible::Role wanted = RoleOf(*control);
        if (dynamic_cast<const ScrollBar*>(control)) {
            EXPECT_THAT(face->role(), testing::AnyOf(QAccessible::Slider, QAccessible::ScrollBar))
                << control->FullName();
        } else {
            EXPECT_EQ(face->role(), wanted) << control->FullName();
        }
        if (widget->focusPolicy() & Qt::TabFocus) {
            EXPECT_NE(face->text(QAccessible::Name).trimmed(), "") << control->FullName();
        }
        ++told;
    }
    EXPECT_GT(told, 0);
}

TEST_P(Accessibility, TabComesToEveryControlThatTakesTheFocus) {
    const std::vector<QWidget*> order = TabOrder();
    for (QWidget* widget : ControlsThatTakeTheFocus())
        EXPECT_THAT(order, testing::Contains(widget)) << NameOf(widget);
}

// From left to right and down; a second column begins to the right of the first.
TEST_P(Accessibility, TabGoesThroughEachPanelInReadingOrder) {
    const std::vector<QWidget*> order = TabOrder();
    std::vector<QWidget*> left; // panels that Tab has gone through
    for (std::size_t step = 1; step < order.size(); ++step) {
        QWidget* const before = order[step - 1];
        QWidget* const now = order[step];
        if (PanelOf(before) != PanelOf(now)) {
            left.push_back(PanelOf(before));
            EXPECT_THAT(left, testing::Not(testing::Contains(PanelOf(now)))) << NameOf(now);
            continue;
        }
        const QRect from = PlaceOf(before);
        const QRect to = PlaceOf(now);
        const bool oneRow = from.top() < to.center().y() && to.top() < from.center().y();
        const bool onward =
            oneRow ? to.left() > from.left() : to.top() > from.top() || to.left() >= from.right();
        EXPECT_TRUE(onward) << "from " << NameOf(before) << " to " << NameOf(now);
    }
}

TEST_P(Accessibility, TheFocusIsSeenWhereverTabLeads) {
    for (QWidget* widget : TabOrder()) {
        const QRect around = PlaceOf(widget).adjusted(-3, -3, 3, 3) & opened.window->rect();
        opened.window->Canvas().setFocus(Qt::TabFocusReason);
        OpenedWindow::Settle();
        const QImage without = opened.window->grab(around).toImage();
        widget->setFocus(Qt::TabFocusReason);
        OpenedWindow::Settle();
        EXPECT_NE(opened.window->grab(around).toImage(), without) << NameOf(widget);
    }
}

INSTANTIATE_TEST_SUITE_P(Panels, Accessibility, testing::ValuesIn(kPanels),
                         [](const auto& panel) { return std::string(panel.param.name); });

} // namespace
} // namespace mirelle::test
