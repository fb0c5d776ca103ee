#include "desktop/window/FlowLayout.h"

#include <algorithm>

namespace mirelle {

FlowLayout::FlowLayout(int spacing) : spacing_(spacing) {
    setContentsMargins(0, 0, 0, 0);
}

FlowLayout::~FlowLayout() {
    for (QLayoutItem* item : items_)
        delete item;
}

void FlowLayout::addItem(QLayoutItem* item) {
    items_.push_back(item);
}

QLayoutItem* FlowLayout::itemAt(int index) const {
    return index >= 0 && index < count() ? items_[static_cast<std::size_t>(index)] : nullptr;
}

QLayoutItem* FlowLayout::takeAt(int index) {
    QLayoutItem* item = itemAt(index);
    if (item) items_.erase(items_.begin() + index);
    return item;
}

void FlowLayout::setGeometry(const QRect& rect) {
    QLayout::setGeometry(rect);
    Arrange(rect, Do::Place);
}

QSize FlowLayout::sizeHint() const {
    return minimumSize();
}

QSize FlowLayout::minimumSize() const {
    QSize size;
    for (const QLayoutItem* item : items_)
        size = size.expandedTo(item->minimumSize());
    return size;
}

int FlowLayout::Arrange(const QRect& rect, Do what) const {
    QPoint at = rect.topLeft();
    int rowHeight = 0;
    for (QLayoutItem* item : items_) {
        const QSize size = item->sizeHint();
        if (at.x() > rect.left() && at.x() + size.width() > rect.right() + 1) {
            at = QPoint(rect.left(), at.y() + rowHeight + spacing_);
            rowHeight = 0;
        }
        if (what == Do::Place) item->setGeometry(QRect(at, size));
        at.rx() += size.width() + spacing_;
        rowHeight = std::max(rowHeight, size.height());
    }
    return at.y() + rowHeight - rect.top();
}

} // namespace mirelle
