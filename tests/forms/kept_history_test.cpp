// What is kept, as the windows of conversations and the menus show it.
#include "real_windows.h"

#include <QComboBox>
#include <QListView>
#include <QPushButton>
#include <QScrollBar>
#include <QTextFrame>
#include <QToolButton>

namespace nimb::test
{
namespace
{

class KeptHistory : public testing::Test
{
protected:
    explicit KeptHistory(const char *stored = "")
        : windows({{"10.0.0.2", "Ann"}, {"10.0.0.3", "Ben"}}, {{"Options/KeepHistory", QLatin1String(stored)}})
    {
        windows.settleStart({"10.0.0.2", "10.0.0.3"});
    }
    void keepSaid(int messages)
    {
        for (int i = 0; i < messages; ++i)
            windows.history.keep({.address = QStringLiteral("10.0.0.2")},
                                 {.time = QDateTime(QDate(2026, 11, 20), QTime(9, 0)),
                                  .writer = QStringLiteral("Ann"),
                                  .text = QStringLiteral("said before %1").arg(i)});
    }
    QLabel &band() { return windows.control<QLabel>(windows.privateWindow(), "historyBand"); }
    RichTextLogEdit &log() { return windows.logOf(windows.privateWindow()); }
    static int painted(QWidget &widget)
    {
        const QImage picture = widget.grab().toImage();
        const QRgb ground = widget.palette().color(QPalette::Base).rgb();
        int count = 0;
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x)
                count += picture.pixel(x, y) != ground ? 1 : 0;
        }
        return count;
    }

    RealWindows windows;
};

class KeptForEver : public KeptHistory
{
protected:
    KeptForEver() : KeptHistory("ever") { }
};

TEST_F(KeptHistory, TheFirstConversationAsksAndTheAnswerEndsTheQuestion)
{
    windows.arrive("10.0.0.2", "-hello");
    windows.privateWindow().showNormal();
    EXPECT_TRUE(band().isVisible());
    EXPECT_TRUE(band().text().startsWith(QLatin1String("Conversations are not kept.")));
    Q_EMIT band().linkActivated(QStringLiteral("year"));
    EXPECT_FALSE(band().isVisible());
    EXPECT_EQ(windows.common.history.keep, KeepHistory::year);
    EXPECT_EQ(windows.history.texts(), QStringList{"hello"});
}

TEST_F(KeptHistory, NoIsAnAnswerToo)
{
    windows.arrive("10.0.0.2", "-hello");
    Q_EMIT band().linkActivated(QStringLiteral("no"));
    EXPECT_EQ(windows.common.history.keep, KeepHistory::no);
    EXPECT_TRUE(windows.history.kept.empty());
    EXPECT_FALSE(band().isVisibleTo(&windows.privateWindow()));
}

TEST_F(KeptHistory, TheOptionsAnswerToo)
{
    windows.arrive("10.0.0.2", "-hello");
    windows.privateWindow().showNormal();
    windows.entry("mnuToolsOptions").trigger();
    auto *const options = windows.main().findChild<QDialog *>(QStringLiteral("frmOptions"));
    ASSERT_TRUE(options);
    auto &combo = windows.control<QComboBox>(*options, "keepHistoryCombo");
    EXPECT_EQ(combo.currentText(), QStringLiteral("ask me"));
    combo.setCurrentIndex(combo.findText(QStringLiteral("for ever")));
    windows.control<QPushButton>(*options, "CmdOK").click();
    EXPECT_EQ(windows.common.history.keep, KeepHistory::ever);
    EXPECT_FALSE(band().isVisible());
    EXPECT_EQ(windows.history.texts(), QStringList{"hello"});
}

TEST_F(KeptForEver, WhatWasSaidBeforeIsPaintedAboveTheLogAndStandsInNoText)
{
    windows.arrive("10.0.0.2", "-new");
    const QString without = log().toPlainText();
    windows.engine.privateWindows().unloadAll();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    windows.history.kept.clear();
    keepSaid(5);
    windows.arrive("10.0.0.2", "-new");
    windows.privateWindow().showNormal();
    EXPECT_EQ(log().toPlainText(), without);
    EXPECT_FALSE(log().toPlainText().contains(QStringLiteral("said before")));
    EXPECT_GT(log().document()->rootFrame()->frameFormat().topMargin(), 5 * log().fontMetrics().height());
    EXPECT_TRUE(log().isAtItsEnd());
}

TEST_F(KeptForEver, OneLongMessageOfBeforeTakesNoMoreThanAPiece)
{
    windows.history.keep({.address = QStringLiteral("10.0.0.2")},
                         {.time = QDateTime(QDate(2026, 11, 20), QTime(9, 0)),
                          .writer = QStringLiteral("Ann"),
                          .text = QStringLiteral("a long line of words\r\n").repeated(2000)});
    windows.arrive("10.0.0.2", "-new");
    EXPECT_LT(log().document()->rootFrame()->frameFormat().topMargin(), 60 * log().fontMetrics().height());
}

TEST_F(KeptForEver, ScrollingUpPaintsMore)
{
    keepSaid(120);
    windows.arrive("10.0.0.2", "-new");
    windows.privateWindow().showNormal();
    windows.privateWindow().resize(500, 400);
    QCoreApplication::processEvents();
    const double first = log().document()->rootFrame()->frameFormat().topMargin();
    EXPECT_GT(painted(*log().viewport()), 100);
    log().verticalScrollBar()->setValue(0);
    const double more = log().document()->rootFrame()->frameFormat().topMargin();
    EXPECT_GT(more, first * 2);
    EXPECT_GT(log().verticalScrollBar()->value(), 0);
    EXPECT_GT(painted(*log().viewport()), 100);
}

TEST_F(KeptForEver, ClearingTakesAwayWhatWasSaidBefore)
{
    keepSaid(5);
    windows.arrive("10.0.0.2", "-new");
    windows.control<QToolButton>(windows.privateWindow(), "clearbtn").click();
    log().writeGathered();
    EXPECT_LT(log().document()->rootFrame()->frameFormat().topMargin(), 20);
}

TEST_F(KeptForEver, AContactCanBeLeftOutByItsMenu)
{
    windows.click(0, Qt::RightButton);
    QAction &entry = windows.entry("mnuLeaveOut");
    EXPECT_FALSE(entry.isChecked());
    entry.trigger();
    EXPECT_EQ(windows.common.history.leftOut, QStringList{"10.0.0.2"});
    windows.arrive("10.0.0.2", "-between us");
    EXPECT_TRUE(windows.history.kept.empty());
    windows.click(1, Qt::RightButton);
    EXPECT_FALSE(entry.isChecked());
    windows.click(0, Qt::RightButton);
    EXPECT_TRUE(entry.isChecked());
}

TEST_F(KeptForEver, AKeyOpensTheHistoryOfAConversation)
{
    keepSaid(3);
    windows.history.keep({.address = QStringLiteral("10.0.0.3"), .name = QStringLiteral("Ben")},
                         {.time = {}, .text = QStringLiteral("other")});
    windows.arrive("10.0.0.2", "-new");
    windows.privateWindow().showNormal();
    windows.privateWindow().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&windows.privateWindow(), 60000));
    QTest::keyClick(windows.privateWindow().focusWidget(), Qt::Key_H, Qt::ControlModifier);
    auto *const history = windows.main().findChild<QDialog *>(QStringLiteral("frmHistory"));
    ASSERT_TRUE(history);
    EXPECT_EQ(windows.control<QListView>(*history, "messages").model()->rowCount(), 4);
}

TEST_F(KeptForEver, TheMenusOpenTheHistory)
{
    windows.entry("mnuHistory").trigger();
    EXPECT_TRUE(windows.main().findChild<QDialog *>(QStringLiteral("frmHistory")));
    EXPECT_EQ(windows.entry("mnuHistory").shortcut(), QKeySequence(Qt::CTRL | Qt::Key_H));
}

} // namespace
} // namespace nimb::test
