#include "desktop/window/AccessibleRoles.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QRadioButton>
#include <QWidget>

#include <algorithm>
#include <array>

namespace mirelle {
namespace {

struct RoleRow {
    const char* widget; // the class, or one that it derives from
    QAccessible::Role role;
};

constexpr std::array kRoles = {
    RoleRow{"mirelle::SamplingCanvas", QAccessible::Canvas},
    RoleRow{"mirelle::FittedView", QAccessible::Graphic},
    RoleRow{"mirelle::MaterialView", QAccessible::Graphic},
    RoleRow{"mirelle::look::ElidedLabel", QAccessible::StaticText},
    RoleRow{"mirelle::look::SpinArrows", QAccessible::SpinBox},
    RoleRow{"mirelle::look::ProgressLine", QAccessible::ProgressBar},
    RoleRow{"mirelle::look::Card", QAccessible::Grouping},
    RoleRow{"mirelle::Ground", QAccessible::Grouping},
    RoleRow{"mirelle::NamePanel", QAccessible::Grouping},
    RoleRow{"mirelle::PalettePanel", QAccessible::Grouping},
    RoleRow{"mirelle::LibraryPanel", QAccessible::Grouping},
};

// Qt takes an option for a check box unless Qt itself clears its companions; here the program does.
class OptionInterface : public QAccessibleWidget {
public:
    explicit OptionInterface(QRadioButton& option)
        : QAccessibleWidget(&option, QAccessible::RadioButton), option_(option) {}

    QString text(QAccessible::Text what) const override {
        const QString told = QAccessibleWidget::text(what);
        return what == QAccessible::Name && told.isEmpty() ? option_.text() : told;
    }
    QAccessible::State state() const override {
        QAccessible::State now = QAccessibleWidget::state();
        now.checkable = true;
        now.checked = option_.isChecked();
        return now;
    }
    QStringList actionNames() const override { return {pressAction(), setFocusAction()}; }
    void doAction(const QString& action) override {
        if (action == pressAction())
            option_.click();
        else
            QAccessibleWidget::doAction(action);
    }

private:
    QRadioButton& option_;
};

QAccessibleInterface* MakeInterface(const QString& className, QObject* object) {
    if (auto* option = qobject_cast<QRadioButton*>(object)) return new OptionInterface(*option);
    auto* widget = qobject_cast<QWidget*>(object);
    if (!widget) return nullptr;
    const auto row = std::ranges::find_if(
        kRoles, [&](const RoleRow& entry) { return className == QLatin1String(entry.widget); });
    if (row != kRoles.end()) return new QAccessibleWidget(widget, row->role); // Qt's cache owns it
    // A plain widget with a name is a group of others.
    if (className == "QWidget" && !widget->accessibleName().isEmpty())
        return new QAccessibleWidget(widget, QAccessible::Grouping);
    return nullptr;
}

} // namespace

void InstallAccessibleRoles() {
    QAccessible::installFactory(MakeInterface);
}

} // namespace mirelle
