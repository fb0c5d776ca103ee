#include "desktop/binding/RowsView.h"

#include <QKeyEvent>
#include <QMouseEvent>

#include <utility>

namespace mirelle {

RowsView::RowsView(QWidget* parent) : QListView(parent) {
    setUniformItemSizes(true);
    setEditTriggers(NoEditTriggers);
    setSelectionMode(SingleSelection);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setTextElideMode(Qt::ElideMiddle);
    setDragEnabled(false);
}

void RowsView::ShowRow(int row) {
    const QModelIndex index = model() ? model()->index(row, 0) : QModelIndex();
    if (index == currentIndex() && index.isValid()) {
        scrollTo(index);
        return;
    }
    setCurrentIndex(index);
    if (!index.isValid()) clearSelection();
}

void RowsView::mousePressEvent(QMouseEvent* event) {
    QListView::mousePressEvent(event);
    pressedRow_ = event->button() == Qt::LeftButton ? indexAt(event->position().toPoint()).row() : -1;
}

void RowsView::mouseReleaseEvent(QMouseEvent* event) {
    QListView::mouseReleaseEvent(event);
    const int row = std::exchange(pressedRow_, -1);
    // A press that was drawn to another row chooses the row where it ends.
    if (row >= 0 && currentIndex().isValid()) emit Chosen(currentIndex().row());
}

void RowsView::mouseDoubleClickEvent(QMouseEvent* event) {
    const QModelIndex index = indexAt(event->position().toPoint());
    if (index.isValid() && event->button() == Qt::LeftButton) emit DoubleClicked(index.row());
}

void RowsView::keyPressEvent(QKeyEvent* event) {
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (enter && currentIndex().isValid()) {
        emit DoubleClicked(currentIndex().row());
        return;
    }
    const int before = currentIndex().row();
    QListView::keyPressEvent(event);
    const int now = currentIndex().row();
    if (now >= 0 && (now != before || event->key() == Qt::Key_Space)) emit Chosen(now);
}

} // namespace mirelle
