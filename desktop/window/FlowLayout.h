// Lays equal buttons in rows as they fit, as words in a text.
#pragma once

#include <QLayout>

#include <memory>
#include <vector>

namespace mirelle {

class FlowLayout : public QLayout {
    Q_OBJECT

public:
    explicit FlowLayout(int spacing);
    ~FlowLayout() override;

    void addItem(QLayoutItem* item) override;
    int count() const override { return static_cast<int>(items_.size()); }
    QLayoutItem* itemAt(int index) const override;
    QLayoutItem* takeAt(int index) override;
    Qt::Orientations expandingDirections() const override { return Qt::Horizontal; }
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override { return Arrange(QRect(0, 0, width, 0), Do::Measure); }
    void setGeometry(const QRect& rect) override;
    QSize sizeHint() const override;
    QSize minimumSize() const override;

private:
    enum class Do { Measure, Place };
    int Arrange(const QRect& rect, Do what) const;

    std::vector<QLayoutItem*> items_;
    int spacing_;
};

} // namespace mirelle
