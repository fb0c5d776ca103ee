#include <cmath>
#include <limits>

#include <gtest/gtest.h>
#include <QHelpEvent>
#include <QSignalSpy>
#include <QTest>
#include <QToolTip>
#include <QVBoxLayout>

#include "desktop/look/Card.h"
#include "desktop/look/ColorSwatchButton.h"
#include "desktop/look/ElidedLabel.h"
#include "desktop/look/IconButton.h"
#include "desktop/look/ProgressLine.h"
#include "desktop/look/SectionCaption.h"
#include "desktop/look/SpinArrows.h"
#include "desktop/look/Tokens.h"
#include "desktop/look/ToolTips.h"
#include "desktop/look/Typeface.h"
#include "tests/desktop/look/Shots.h"

namespace mirelle::look {
namespace {

TEST(IconButton, IsNamedByItsToolTip) {
    IconButton button(u"paste");
    button.setToolTip(QStringLiteral("Paste from clipboard"));
    EXPECT_EQ(button.accessibleName(), QStringLiteral("Paste from clipboard"));
    button.setToolTip(QStringLiteral("Fullscreen"));
    EXPECT_EQ(button.accessibleName(), QStringLiteral("Fullscreen"));
}

TEST(IconButton, HasTheSizeOfTheTokens) {
    EXPECT_EQ(IconButton(u"paste").size(), QSize(kIconButton, kIconButton));
}

TEST(IconButton, IsReachedAndPressedByTheKeyboard) {
    IconButton button(u"paste");
    const QSignalSpy clicks(&button, &QToolButton::clicked);
    EXPECT_TRUE(button.focusPolicy() & Qt::TabFocus);
    QTest::keyClick(&button, Qt::Key_Space);
    EXPECT_EQ(clicks.count(), 1);
}

TEST(IconButton, ADrawingCanBeChangedAndTakenAway) {
    IconButton button(u"full-screen");
    const QImage before = ShotOf(button);
    button.SetDrawing(u"normal-size");
    EXPECT_NE(ShotOf(button), before);
    button.SetDrawing({});
    EXPECT_TRUE(button.icon().isNull());
}

TEST(Card, IsOpaqueWithRoundedCorners) {
    Card card;
    card.resize(100, 60);
    const QImage shot = ShotOf(card);
    EXPECT_EQ(shot.pixel(50, 30), kCard);
    EXPECT_EQ(shot.pixel(50, 0), kCardEdge);
    EXPECT_EQ(shot.pixel(0, 30), kCardEdge);
    EXPECT_EQ(qAlpha(shot.pixel(0, 0)), 0);
    EXPECT_EQ(qAlpha(shot.pixel(99, 59)), 0);
}

TEST(Card, ItsContentsStandBeneathItsCaption) {
    Card plain;
    Card named(QStringLiteral("Image FX"));
    EXPECT_GT(named.contentsMargins().top(), plain.contentsMargins().top());
    EXPECT_EQ(named.accessibleName(), QStringLiteral("Image FX"));
    named.SetCaption({});
    EXPECT_EQ(named.contentsMargins(), plain.contentsMargins());
}

TEST(Card, ItsBodyFillsItInsideOfTheMargins) {
    Card card;
    auto* body = new QVBoxLayout;
    auto* child = new QWidget;
    body->addWidget(child);
    card.SetBody(body);
    card.resize(100, 80);
    card.show();
    EXPECT_EQ(child->geometry(), card.contentsRect());
}

class PressCounter : public QWidget {
public:
    int presses = 0;

protected:
    void mousePressEvent(QMouseEvent*) override { ++presses; }
};

TEST(Card, KeepsPressesFromTheCanvasBeneath) {
    PressCounter canvas;
    canvas.resize(200, 200);
    Card card({}, &canvas);
    card.setGeometry(20, 20, 100, 100);
    canvas.show();
    QTest::mousePress(&card, Qt::LeftButton);
    EXPECT_EQ(canvas.presses, 0);
    QTest::mousePress(&canvas, Qt::LeftButton, {}, QPoint(5, 5));
    EXPECT_EQ(canvas.presses, 1);
}

TEST(SectionCaption, IsSmallAndQuiet) {
    const SectionCaption caption(QStringLiteral("Library"));
    EXPECT_EQ(caption.font().pixelSize(), kTypeSizeSmall);
    EXPECT_EQ(caption.palette().color(QPalette::WindowText).rgb(), kTextQuiet);
}

class ElidedLabelTest : public testing::Test {
protected:
    const QString path_ = QStringLiteral("/home/somebody/Support/Materials/Architecture/Arch_0012.jpg");
    ElidedLabel label_{path_};
};

TEST_F(ElidedLabelTest, ShowsATextThatFitsWhole) {
    label_.setToolTip(QStringLiteral("Current path"));
    label_.resize(label_.sizeHint());
    EXPECT_EQ(label_.ShownText(), path_);
    EXPECT_EQ(label_.Tip(), QStringLiteral("Current path"));
}

TEST_F(ElidedLabelTest, CutsALongTextInTheMiddle) {
    label_.resize(200, 20);
    const QString shown = label_.ShownText();
    EXPECT_TRUE(shown.startsWith(u"/home"));
    EXPECT_TRUE(shown.endsWith(u".jpg"));
    EXPECT_TRUE(shown.contains(u'\u2026'));
    EXPECT_LE(label_.fontMetrics().horizontalAdvance(shown), 200);
}

TEST_F(ElidedLabelTest, ItsTipBeginsWithTheWholeTextWhereItIsCut) {
    label_.resize(200, 20);
    EXPECT_EQ(label_.Tip(), path_);
    label_.setToolTip(QStringLiteral("Current path"));
    EXPECT_EQ(label_.Tip(), path_ + QStringLiteral("\nCurrent path"));
}

TEST_F(ElidedLabelTest, TellsADoubleClickOfTheLeftButton) {
    const QSignalSpy clicks(&label_, &ElidedLabel::DoubleClicked);
    QTest::mouseDClick(&label_, Qt::RightButton);
    EXPECT_EQ(clicks.count(), 0);
    QTest::mouseDClick(&label_, Qt::LeftButton);
    EXPECT_EQ(clicks.count(), 1);
}

TEST_F(ElidedLabelTest, IsNamedByItsWholeText) {
    EXPECT_EQ(label_.accessibleName(), path_);
}

TEST(ColorSwatchButton, ShowsAndTellsItsColour) {
    ColorSwatchButton swatch;
    swatch.SetColour(QColor(12, 200, 99));
    EXPECT_EQ(ShotOf(swatch).pixel(12, 12), qRgb(12, 200, 99));
    EXPECT_EQ(swatch.accessibleDescription(), QStringLiteral("12, 200, 99"));
}

TEST(ColorSwatchButton, ShowsABarOfItsColourBeneathADrawing) {
    ColorSwatchButton swatch(u"hairline-colour");
    swatch.SetColour(QColor(255, 255, 0));
    const QImage shot = ShotOf(swatch);
    EXPECT_EQ(shot.pixel(14, 23), qRgb(255, 255, 0));
    EXPECT_EQ(CountOf(shot.copy(0, 0, 28, 20), qRgb(255, 255, 0)), 0);
}

TEST(ColorSwatchButton, AColourLikeItsOwnGroundGetsAnEdge) {
    ColorSwatchButton swatch;
    swatch.SetColour(QColor(kControl));
    EXPECT_GT(CountOf(ShotOf(swatch), kMarkEdge), 20);
    swatch.SetColour(QColor(Qt::yellow));
    EXPECT_EQ(CountOf(ShotOf(swatch), kMarkEdge), 0);
}

class ProgressLineTest : public testing::Test {
protected:
    ProgressLineTest() { line_.resize(100, kProgressLine); }
    int Filled() { return CountOf(ShotOf(line_), kAccent) / kProgressLine; }
    ProgressLine line_;
};

TEST_F(ProgressLineTest, ShowsNothingUntilWorkIsTold) {
    EXPECT_FALSE(line_.IsShowing());
    EXPECT_EQ(ShotOf(line_), Blank(line_.size()));
}

TEST_F(ProgressLineTest, IsFilledByTheShareThatIsDone) {
    line_.ShowShare(0.4);
    EXPECT_TRUE(line_.IsShowing());
    EXPECT_EQ(Filled(), 40);
    line_.ShowShare(1);
    EXPECT_EQ(Filled(), 100);
}

TEST_F(ProgressLineTest, LimitsTheShare) {
    line_.ShowShare(7);
    EXPECT_EQ(line_.Share(), 1);
    line_.ShowShare(-7);
    EXPECT_EQ(line_.Share(), 0);
    line_.ShowShare(std::numeric_limits<double>::quiet_NaN());
    EXPECT_EQ(line_.Share(), 0);
}

TEST_F(ProgressLineTest, APieceWandersWhileTheLengthOfTheWorkIsUnknown) {
    line_.ShowBusy();
    EXPECT_TRUE(line_.IsBusy());
    const QImage start = ShotOf(line_);
    EXPECT_TRUE(QTest::qWaitFor([&] { return ShotOf(line_) != start; }));
}

TEST_F(ProgressLineTest, IsClearedWhenTheWorkIsDone) {
    line_.ShowBusy();
    line_.Clear();
    EXPECT_FALSE(line_.IsShowing());
    EXPECT_EQ(ShotOf(line_), Blank(line_.size()));
}

class SpinArrowsTest : public testing::Test {
protected:
    std::vector<int> Steps() const {
        std::vector<int> steps;
        for (const QList<QVariant>& signal : spy_)
            steps.push_back(signal[0].toInt());
        return steps;
    }
    SpinArrows arrows_;
    QSignalSpy spy_{&arrows_, &SpinArrows::Stepped};
    const QPoint up_{10, 5};
    const QPoint down_{10, 18};
};

TEST_F(SpinArrowsTest, TheUpperHalfStepsUpAndTheLowerDown) {
    QTest::mouseClick(&arrows_, Qt::LeftButton, {}, up_);
    QTest::mouseClick(&arrows_, Qt::LeftButton, {}, down_);
    EXPECT_EQ(Steps(), (std::vector<int>{1, -1}));
}

TEST_F(SpinArrowsTest, TheArrowKeysStepToo) {
    QTest::keyClick(&arrows_, Qt::Key_Up);
    QTest::keyClick(&arrows_, Qt::Key_Down);
    QTest::keyClick(&arrows_, Qt::Key_Left);
    EXPECT_EQ(Steps(), (std::vector<int>{1, -1}));
}

TEST_F(SpinArrowsTest, OnlyTheLeftButtonSteps) {
    QTest::mouseClick(&arrows_, Qt::RightButton, {}, up_);
    EXPECT_TRUE(Steps().empty());
}

TEST_F(SpinArrowsTest, AHeldArrowGoesOnUntilItIsLetGo) {
    QTest::mousePress(&arrows_, Qt::LeftButton, {}, up_);
    EXPECT_TRUE(QTest::qWaitFor([&] { return spy_.count() >= 3; }));
    QTest::mouseRelease(&arrows_, Qt::LeftButton, {}, up_);
    for (const int step : Steps())
        EXPECT_EQ(step, 1);
}

TEST_F(SpinArrowsTest, AStepThatDisablesTheArrowsIsTheLast) {
    QObject::connect(&arrows_, &SpinArrows::Stepped, &arrows_, [this] { arrows_.setEnabled(false); });
    QTest::mousePress(&arrows_, Qt::LeftButton, {}, up_);

    EXPECT_FALSE(arrows_.IsHeld());
    EXPECT_EQ(spy_.count(), 1);
}

TEST(ToolTips, LongTextsAreBrokenWithoutLosingAWord) {
    const QString text =
        QStringLiteral("Fast Save: Select/Enter file and material name for save; select Increment "
                       "Checkbox to increment");
    const QFont font = BodyFont();
    const QString broken = BrokenIntoLines(text, font, kTipWidth);
    EXPECT_EQ(QString(broken).replace(u'\n', u' '), text);
    EXPECT_GT(broken.count(u'\n'), 0);
    for (const QString& line : broken.split(u'\n'))
        EXPECT_LE(QFontMetrics(font).horizontalAdvance(line), kTipWidth);
}

TEST(ToolTips, ShortTextsAndOwnLineEndsStay) {
    EXPECT_EQ(BrokenIntoLines(QStringLiteral("Blur"), BodyFont(), kTipWidth), QStringLiteral("Blur"));
    EXPECT_EQ(BrokenIntoLines(QStringLiteral("a\n\nb"), BodyFont(), kTipWidth), QStringLiteral("a\n\nb"));
    EXPECT_EQ(BrokenIntoLines({}, BodyFont(), kTipWidth), QString());
}

TEST(ToolTips, AreShownBroken) {
    ToolTips tips;
    QWidget widget;
    widget.installEventFilter(&tips);
    widget.setToolTip(
        QStringLiteral("Send multiple directories and image types to SketchUp, all of them, one by one"));
    widget.show();
    QHelpEvent event(QEvent::ToolTip, {1, 1}, widget.mapToGlobal(QPoint(1, 1)));
    QApplication::sendEvent(&widget, &event);
    EXPECT_EQ(QToolTip::text(), BrokenIntoLines(widget.toolTip(), QToolTip::font(), kTipWidth));
    EXPECT_TRUE(QToolTip::text().contains(u'\n'));
    QToolTip::hideText();
}

} // namespace
} // namespace mirelle::look
