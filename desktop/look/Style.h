// The style of every widget of the program: dark, neutral and quiet, drawn out of the tokens. It stands on
// Fusion, which keeps what is not told here (layouts of dialogs, the text of labels, the behaviour of
// controls).
#pragma once

#include <QProxyStyle>

class QStyleOptionButton;

namespace mirelle::look {

class Style : public QProxyStyle {
    Q_OBJECT
public:
    Style();

    QPalette standardPalette() const override;
    void polish(QWidget* widget) override;
    using QProxyStyle::polish;

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget = nullptr) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget = nullptr) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget = nullptr) const override;

    QRect subElementRect(SubElement element, const QStyleOption* option,
                         const QWidget* widget = nullptr) const override;
    QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                         const QWidget* widget = nullptr) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                           const QWidget* widget = nullptr) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option = nullptr,
                    const QWidget* widget = nullptr) const override;
    int styleHint(StyleHint hint, const QStyleOption* option = nullptr, const QWidget* widget = nullptr,
                  QStyleHintReturn* data = nullptr) const override;
    QIcon standardIcon(StandardPixmap which, const QStyleOption* option = nullptr,
                       const QWidget* widget = nullptr) const override;
    QPixmap standardPixmap(StandardPixmap which, const QStyleOption* option = nullptr,
                           const QWidget* widget = nullptr) const override;

private:
    void DrawMarked(ControlElement element, const QStyleOptionButton& option, QPainter& painter,
                    const QWidget* widget) const;
};

} // namespace mirelle::look
