#include "private/rich_text_log.h"

#include "core/limits.h"
#include "core/muted_colour.h"

#include <gtest/gtest.h>

#include <QScrollBar>
#include <QTest>
#include <QTextBlock>

namespace nimb
{
namespace
{

class RichTextLogTest : public testing::Test
{
protected:
    RichTextLogTest()
    {
        log.resize(300, 120);
        log.show();
        QCoreApplication::processEvents();
    }
    void lines(int count)
    {
        for (int i = 0; i < count; ++i)
            appendText(log, QStringLiteral("line %1\r\n").arg(i), 0x0000FF);
        QCoreApplication::processEvents();
    }
    bool atEnd() { return log.verticalScrollBar()->value() == log.verticalScrollBar()->maximum(); }
    QColor colourAt(int block)
    {
        return log.document()->findBlockByNumber(block).begin().fragment().charFormat().foreground().color();
    }

    RichTextLogEdit log;
};

TEST_F(RichTextLogTest, ColoursAreBlueGreenRedFromTheHighByte)
{
    EXPECT_EQ(screenColour(0xC08001), QColor(0x01, 0x80, 0xC0));
    EXPECT_EQ(logColour(QColor(0x01, 0x80, 0xC0)), 0xC08001u);
    appendText(log, QStringLiteral("x"), 0x0000C0);
    EXPECT_EQ(colourAt(0), QColor(192, 0, 0));
}

TEST_F(RichTextLogTest, FollowsNewTextOnlyWhileTheReaderIsAtTheEnd)
{
    lines(100);
    EXPECT_TRUE(atEnd());
    log.verticalScrollBar()->setValue(20);
    lines(10);
    EXPECT_EQ(log.verticalScrollBar()->value(), 20);
    log.verticalScrollBar()->setValue(log.verticalScrollBar()->maximum());
    lines(10);
    EXPECT_TRUE(atEnd());
}

TEST_F(RichTextLogTest, CrLfIsOneLineBreak)
{
    appendText(log, QStringLiteral("a\r\nb"), 0);
    EXPECT_EQ(log.document()->blockCount(), 2);
    EXPECT_EQ(log.toPlainText(), QStringLiteral("a\nb"));
}

TEST_F(RichTextLogTest, AFullLogDropsAThousandOfItsOldestLines)
{
    lines(limits::logLines - 1);
    EXPECT_EQ(log.document()->blockCount(), limits::logLines);
    appendText(log, QStringLiteral("last\r\n"), 0);
    EXPECT_EQ(log.document()->blockCount(), limits::logLines - limits::logLinesDropped);
    EXPECT_EQ(log.document()->firstBlock().text(), QStringLiteral("line 1001"));
    EXPECT_EQ(log.document()->lastBlock().previous().text(), QStringLiteral("last"));
}

TEST_F(RichTextLogTest, ReadersMarkTextWithoutChangingWhereNewTextGoes)
{
    lines(3);
    log.selectAll();
    appendText(log, QStringLiteral("end"), 0);
    EXPECT_EQ(log.toPlainText(), QStringLiteral("line 0\nline 1\nline 2\nend"));
}

TEST_F(RichTextLogTest, NothingCanBeTypedOrUndone)
{
    lines(1);
    log.setFocus();
    QTest::keyClicks(&log, QStringLiteral("abc"));
    log.undo();
    EXPECT_EQ(log.toPlainText(), QStringLiteral("line 0\n"));
}

TEST_F(RichTextLogTest, ADarkGroundLightensTheColoursKeepingTheirHue)
{
    appendText(log, QStringLiteral("x\r\n"), 0xC00000);
    QPalette dark;
    dark.setColor(QPalette::Base, QColor(30, 30, 30));
    log.setPalette(dark);
    const QColor old = colourAt(0);
    EXPECT_GE(contrast(old, QColor(30, 30, 30)), 4.5);
    EXPECT_NEAR(old.hsvHueF(), QColor(0, 0, 192).hsvHueF(), 0.01);
    appendText(log, QStringLiteral("y"), 0xC00000);
    EXPECT_EQ(colourAt(1), old);
    log.setPalette(QPalette(Qt::lightGray));
    EXPECT_EQ(colourAt(0), QColor(0, 0, 192));
}

TEST(MutedColour, IsReadableOnEveryGround)
{
    for (const QColor ground : {QColor(Qt::white), QColor(Qt::black), QColor(49, 54, 59), QColor(239, 240, 241)}) {
        QPalette palette;
        palette.setColor(QPalette::Base, ground);
        palette.setColor(QPalette::Text, ground.lightness() > 128 ? Qt::black : Qt::white);
        EXPECT_GE(contrast(mutedTextColour(palette), ground), 4.5);
    }
}

TEST(ReadableOn, LeavesPrescribedColoursAloneOnWhite)
{
    for (const QColor prescribed :
         {QColor(160, 160, 160), QColor(128, 128, 128), QColor(0, 0, 192), QColor(0, 128, 192)})
        EXPECT_EQ(readableOn(prescribed, Qt::white), prescribed);
    EXPECT_GE(contrast(readableOn(Qt::white, Qt::white), Qt::white), 4.5);
}

} // namespace
} // namespace nimb
