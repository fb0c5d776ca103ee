#include "desktop/look/Typeface.h"

#include <gtest/gtest.h>
#include <QFontDatabase>
#include <QFontMetrics>
#include <QWidget>

#include "desktop/look/Tokens.h"

namespace mirelle::look {
namespace {

// Runs twice: with the fonts of the machine, and with none of them.
TEST(Typeface, TheBodyFontHasLettersEvenWhereTheSystemHasNone) {
    const QFontMetrics metrics(BodyFont());
    for (const QChar letter : QStringLiteral("Mirelle 0123456789 \u2026 \u00d7 \u00e4"))
        EXPECT_TRUE(metrics.inFont(letter));
    EXPECT_EQ(BodyFont().pixelSize(), kTypeSize);
}

TEST(Typeface, TheSystemsFontIsTakenWhereThereIsOne) {
    const QFont system = QFontDatabase::systemFont(QFontDatabase::GeneralFont);
    if (!QFontMetrics(system).inFont(u'A')) GTEST_SKIP() << "no fonts here";
    EXPECT_EQ(BodyFont().family(), system.family());
}

TEST(Typeface, ANoteIsSmallAndGoesBackToTheBody) {
    QWidget widget;
    SetTextRank(widget, TextRank::Note);
    EXPECT_EQ(widget.font().pixelSize(), kTypeSizeSmall);
    EXPECT_EQ(widget.palette().color(QPalette::WindowText).rgb(), kTextQuiet);
    SetTextRank(widget, TextRank::Body);
    EXPECT_EQ(widget.font().pixelSize(), kTypeSize);
    EXPECT_EQ(widget.palette().color(QPalette::WindowText).rgb(), kText);
}

} // namespace
} // namespace mirelle::look
