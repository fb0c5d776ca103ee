#include "tests/desktop/Legible.h"

#include "desktop/look/Card.h"
#include "desktop/look/Contrast.h"
#include "desktop/look/ElidedLabel.h"
#include "desktop/look/Tokens.h"
#include "desktop/window/EffectButton.h"

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QRadioButton>
#include <QToolButton>

#include <algorithm>
#include <unordered_map>

namespace mirelle::test {
namespace {

std::string NameOf(const QWidget& widget) {
    const QString name = widget.objectName();
    return (name.isEmpty() ? QString::fromLatin1(widget.metaObject()->className()) : name).toStdString();
}

bool IsControl(const QWidget& widget) {
    return qobject_cast<const QAbstractButton*>(&widget) || qobject_cast<const QLineEdit*>(&widget) ||
           qobject_cast<const QComboBox*>(&widget) || qobject_cast<const QAbstractScrollArea*>(&widget);
}

// The widgets of the window itself that are seen, without the inner parts of combo boxes and lists.
std::vector<QWidget*> Seen(const QWidget& window) {
    std::vector<QWidget*> seen;
    for (QWidget* widget : window.findChildren<QWidget*>()) {
        if (!widget->isVisible() || widget->window() != &window) continue;
        if (qobject_cast<const QComboBox*>(widget->parentWidget())) continue;
        seen.push_back(widget);
    }
    return seen;
}

// The text of a widget that says something in one piece, and whether all of it is shown.
struct Said {
    QString text;
    bool whole = true;
};

bool HasRoom(const QWidget& widget, const QString& text, int room) {
    return widget.fontMetrics().horizontalAdvance(text) <= room;
}

Said SaidBy(const QWidget& widget) {
    if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
        const int needed =
            label->wordWrap() ? label->heightForWidth(label->width()) : label->sizeHint().height();
        return {label->text(), label->height() >= needed &&
                                   (label->wordWrap() || label->width() >= label->sizeHint().width())};
    }
    if (const auto* label = qobject_cast<const look::ElidedLabel*>(&widget))
        return {label->Text(), label->ShownText() == label->Text()};
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) {
        if (qobject_cast<const QToolButton*>(button))
            return {button->icon().isNull() ? button->text() : QString()};
        return {button->text(), button->width() >= button->sizeHint().width()};
    }
    if (const auto* field = qobject_cast<const QLineEdit*>(&widget))
        return {field->text(), HasRoom(*field, field->text(), field->width() - 2 * look::kSpaceSmall)};
    if (const auto* choice = qobject_cast<const QComboBox*>(&widget)) {
        return {choice->currentText(), HasRoom(*choice, choice->currentText(),
                                               choice->width() - look::kArrowWidth - look::kFieldInset)};
    }
    return {};
}

// Where the text or drawing of a widget stands, without the tick before it.
QRect InkArea(const QWidget& widget) {
    QRect area = widget.rect();
    if (qobject_cast<const QCheckBox*>(&widget) || qobject_cast<const QRadioButton*>(&widget))
        area.setLeft(look::kTickInset + look::kTick + look::kSpaceSmall);
    if (qobject_cast<const QComboBox*>(&widget)) area.setRight(area.right() - look::kArrowWidth);
    if (IsControl(widget)) area.adjust(0, 3, 0, -3); // without edges and rings
    if (qobject_cast<const QAbstractButton*>(&widget) && !qobject_cast<const QCheckBox*>(&widget))
        area.adjust(3, 0, -3, 0);
    return area;
}

// The best contrast between the commonest colour of the area, its ground, and any other.
double BestContrast(const QImage& shot, const QRect& area) {
    std::unordered_map<QRgb, int> counts;
    const QRect inside = area & shot.rect();
    for (int y = inside.top(); y <= inside.bottom(); ++y) {
        for (int x = inside.left(); x <= inside.right(); ++x)
            ++counts[shot.pixel(x, y)];
    }
    if (counts.empty()) return 0;
    const auto ground = std::ranges::max_element(counts, {}, [](const auto& entry) { return entry.second; });
    double best = 0;
    for (const auto& [colour, count] : counts)
        best = std::max(best, look::ContrastRatio(colour, ground->first));
    return best;
}

class Inks {
public:
    explicit Inks(QWidget& window)
        : window_(window), shot_(window.grab().toImage()), scale_(shot_.devicePixelRatio()) {
        shot_.setDevicePixelRatio(1);
    }

    void Expect(const QWidget& widget, const QRect& area, double least, const QString& what) {
        const QPoint corner = widget.mapTo(&window_, area.topLeft());
        const QRectF pixels(QPointF(corner) * scale_, QSizeF(area.size()) * scale_);
        const double contrast = BestContrast(shot_, pixels.toAlignedRect());
        if (contrast >= least) return;
        faint_.push_back(NameOf(widget) + " (" + what.toStdString() + "): " + std::to_string(contrast));
    }
    void ExpectRows(const QListView& list) {
        const QAbstractItemModel* rows = list.model();
        for (int row = 0; rows && row < rows->rowCount(); ++row) {
            const QRect place = list.visualRect(rows->index(row, 0));
            if (!list.viewport()->rect().contains(place)) continue;
            const QString text = rows->index(row, 0).data().toString();
            if (!text.isEmpty()) Expect(*list.viewport(), place, look::kReadableText, text);
        }
    }
    std::vector<std::string> Faint() { return std::move(faint_); }

private:
    QWidget& window_;
    QImage shot_;
    double scale_;
    std::vector<std::string> faint_;
};

} // namespace

std::vector<std::string> CutOffControls(const QWidget& window) {
    std::vector<std::string> cut;
    std::vector<const QWidget*> seen;
    for (const QWidget* widget : Seen(window)) {
        if (!IsControl(*widget) || widget->inherits("QComboBoxPrivateContainer")) continue;
        if (!widget->parentWidget()->rect().contains(widget->geometry()))
            cut.push_back(NameOf(*widget) + " leaves its panel");
        QSize least = widget->minimumSizeHint().boundedTo(widget->maximumSize());
        if (widget->minimumWidth() > 0) least.setWidth(widget->minimumWidth()); // told, not guessed
        const bool isList = qobject_cast<const QAbstractScrollArea*>(widget);
        if (!isList && (widget->width() < least.width() || widget->height() < least.height()))
            cut.push_back(NameOf(*widget) + " is too small");
        seen.push_back(widget);
    }
    for (const QWidget* one : seen) {
        for (const QWidget* other : seen) {
            if (one < other && one->parentWidget() == other->parentWidget() &&
                one->geometry().intersects(other->geometry()))
                cut.push_back(NameOf(*one) + " lies over " + NameOf(*other));
        }
    }
    return cut;
}

std::vector<std::string> CutOffTexts(const QWidget& window, Texts texts) {
    std::vector<std::string> cut;
    for (const QWidget* widget : Seen(window)) {
        const bool maybeLong = qobject_cast<const QLineEdit*>(widget) ||
                               qobject_cast<const QComboBox*>(widget) ||
                               qobject_cast<const look::ElidedLabel*>(widget);
        if (maybeLong && texts == Texts::AlsoLongOnes) continue;
        if (widget->objectName() == "lblPubPath") continue; // a path is cut in its middle
        const Said said = SaidBy(*widget);
        if (!said.whole)
            cut.push_back(NameOf(*widget) + " shows \"" + said.text.toStdString() + "\" in part");
        const auto* card = qobject_cast<const look::Card*>(widget);
        if (card && !HasRoom(*card, card->Caption(), card->width() - 2 * look::kSpace))
            cut.push_back(NameOf(*card) + " shows its caption in part");
    }
    return cut;
}

std::vector<std::string> FaintInks(QWidget& window) {
    Inks inks(window);
    for (const QWidget* widget : Seen(window)) {
        if (!widget->isEnabled()) continue;
        if (const auto* list = qobject_cast<const QListView*>(widget)) inks.ExpectRows(*list);
        const QString text = SaidBy(*widget).text;
        if (!text.isEmpty())
            inks.Expect(*widget, InkArea(*widget), look::kReadableText, text);
        else if (const auto* button = qobject_cast<const QToolButton*>(widget);
                 button && !button->icon().isNull() && !qobject_cast<const EffectButton*>(button))
            inks.Expect(*widget, InkArea(*widget), look::kReadableShape, button->toolTip());
    }
    return inks.Faint();
}

} // namespace mirelle::test
