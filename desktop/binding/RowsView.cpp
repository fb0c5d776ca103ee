#include "desktop/binding/RowsView.h"

#include "desktop/look/Tokens.h"
#include "desktop/look/ToolTips.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QToolTip>

#include <utility>

namespace mirelle {

RowsView::RowsView(QWidget* parent) : QListView(parent) {
    setUniformItemSizes(true);
    setEditTriggers(NoEditTriggers);
    setSelectionMode(SingleSelection);
    setVerticalScrollMode(ScrollPerItem);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setTextElideMode(Qt::ElideMiddle);
    setDragEnabled(false);
}

void RowsView::updateGeometries() {
    const int row = sizeHintForRow(0);
    const int room = height() - 2 * frameWidth();
    const QMargins rest(0, 0, 0, row > 0 && room > row ? room % row : 0);
    if (viewportMargins() != rest) setViewportMargins(rest);
    QListView::updateGeometries();
}

// The current row stays in sight.
void RowsView::resizeEvent(QResizeEvent* event) {
    QListView::resizeEvent(event);
    if (currentIndex().isValid()) scrollTo(currentIndex());
}

void RowsView::ShowRow(int row) {
    const QModelIndex index = model() ? model()->index(row, 0) : QModelIndex();
    if (index == currentIndex() && index.isValid()) {
        // A click with Ctrl takes the selection from the current row.
        selectionModel()->select(index, QItemSelectionModel::ClearAndSelect);
        scrollTo(index);
        return;
    }
    setCurrentIndex(index);
    if (!index.isValid()) clearSelection();
}

QString RowsView::TipAt(const QPoint& place) const {
    const QModelIndex index = indexAt(place);
    if (!index.isValid() || index.data(Qt::ToolTipRole).isValid()) return {};
    if (sizeHintForIndex(index).width() <= visualRect(index).width()) return {};
    const QString text = index.data().toString();
    return toolTip().isEmpty() ? text : text + u'\n' + toolTip();
}

bool RowsView::viewportEvent(QEvent* event) {
    if (event->type() == QEvent::ToolTip) {
        const auto* help = static_cast<QHelpEvent*>(event);
        const QString tip = TipAt(help->pos());
        if (!tip.isEmpty()) {
            QToolTip::showText(help->globalPos(),
                               look::BrokenIntoLines(tip, QToolTip::font(), look::kTipWidth), viewport());
            return true;
        }
    }
    return QListView::viewportEvent(event);
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
