// A list view that chooses as the program's lists do: a click on a row chooses it, also when it is the
// current one already, and so does moving to another row with the keyboard. What the program does to the list
// shows here without choosing anything. Rows are shown whole: what is left of the height stays empty.
#pragma once

#include <QListView>

namespace mirelle {

class RowsView : public QListView {
    Q_OBJECT

public:
    explicit RowsView(QWidget* parent);

    // Shows a row as the current one; -1 for none.
    void ShowRow(int row);
    // What the tip says at a place of the viewport: the whole text of a row that is cut, ahead of the list's
    // own tip. Nothing where no row is cut: then the list's own tip shows.
    QString TipAt(const QPoint& place) const;

signals:
    void Chosen(int row);
    void DoubleClicked(int row); // or Return on the row

protected:
    bool viewportEvent(QEvent* event) override;
    void updateGeometries() override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    int pressedRow_ = -1;
};

} // namespace mirelle
