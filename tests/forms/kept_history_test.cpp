// What is kept, as the windows of conversations and the menus show it.
#include "real_windows.h"

#include <QComboBox>
#include <QLineEdit>
#include <QListView>
#include <QListWidget>
#include <QPlainTextEdit>
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

    /// Over so many kept messages and this one.
    void openFindBar(int kept, const char *newest = "-new")
    {
        keepSaid(kept);
        windows.arrive("10.0.0.2", newest);
        windows.privateWindow().showNormal();
        windows.privateWindow().resize(500, 400);
        windows.privateWindow().activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&windows.privateWindow(), 60000));
        log().setFocus();
        QTest::keyClick(&log(), Qt::Key_F, Qt::ControlModifier);
    }
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

TEST_F(KeptHistory, ItsAnswersAreBrokenBetweenEachOtherAlone)
{
    windows.arrive("10.0.0.2", "-hello");
    QTextDocument text;
    text.setHtml(band().text());
    const QString whole = text.toRawText();
    for (const char *const answer : {"for\u00A0a\u00A0year\u00A0/ ", "for\u00A0ever\u00A0/ ", "no"})
        EXPECT_TRUE(whole.contains(QString::fromUtf8(answer))) << answer;
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

TEST_F(KeptForEver, BringingBackWhatWasClearedBringsBackWhatWasSaidBefore)
{
    keepSaid(120);
    windows.arrive("10.0.0.2", "-new");
    windows.privateWindow().showNormal();
    windows.privateWindow().resize(500, 400);
    QCoreApplication::processEvents();
    const double before = log().document()->rootFrame()->frameFormat().topMargin();
    windows.control<QToolButton>(windows.privateWindow(), "clearbtn").click();
    Q_EMIT windows.control<QLabel>(windows.privateWindow(), "clearedBand").linkActivated(QStringLiteral("undo"));
    EXPECT_EQ(log().document()->rootFrame()->frameFormat().topMargin(), before);
    const QString text = log().earlierText();
    EXPECT_EQ(text.count(QStringLiteral("said before")), 50);
    log().verticalScrollBar()->setValue(0);
    EXPECT_EQ(log().earlierText().count(QStringLiteral("said before")), 120);
    EXPECT_TRUE(log().earlierText().endsWith(text)) << "none of them twice";
}

TEST_F(KeptForEver, AViewWithRoomForMoreAsksForMore)
{
    keepSaid(120);
    windows.arrive("10.0.0.2", "-new");
    windows.privateWindow().showNormal();
    windows.privateWindow().resize(500, 400);
    QCoreApplication::processEvents();
    EXPECT_EQ(log().earlierText().count(QStringLiteral("said before")), 50);
    windows.privateWindow().resize(500, 2500);
    EXPECT_TRUE(QTest::qWaitFor([this] { return log().earlierText().count(QStringLiteral("said before")) == 120; }));
}

TEST_F(KeptForEver, WhatWasSaidBeforeLooksLikeTheLog)
{
    windows.history.keep({.address = QStringLiteral("10.0.0.2")},
                         {.time = QDateTime(QDate(2026, 11, 20), QTime(9, 0)),
                          .writer = QStringLiteral("Ann"),
                          .text = QStringLiteral("see http://example.org/plan :-)\r\nand more")});
    windows.arrive("10.0.0.2", "-see http://example.org/plan :-)\r\nand more");
    windows.privateWindow().showNormal();
    windows.privateWindow().resize(600, 600);
    QCoreApplication::processEvents();
    RichTextLogEdit &outtext = log();
    outtext.verticalScrollBar()->setValue(0);
    EXPECT_EQ(outtext.earlierText(),
              QStringLiteral("Ann> see http://example.org/plan %1%2and more")
                  .arg(QChar(QChar::ObjectReplacementCharacter))
                  .arg(QChar(QChar::ParagraphSeparator)));
    // The same message in the log shows where things stand.
    QTextCursor line(outtext.document()->findBlockByNumber(1));
    line.movePosition(QTextCursor::Right, QTextCursor::MoveAnchor, 14);
    const int x = outtext.cursorRect(line).center().x();
    QList<QUrl> targets;
    QObject::connect(&outtext, &RichTextLogEdit::linkPressed, &outtext,
                     [&targets](const QUrl &target) { targets.append(target); });
    for (int y = 0; y < outtext.cursorRect(line).top() - outtext.fontMetrics().height() && targets.isEmpty(); ++y)
        QTest::mouseClick(outtext.viewport(), Qt::LeftButton, {}, QPoint(x, y));
    EXPECT_EQ(targets, QList<QUrl>{QUrl(QStringLiteral("http://example.org/plan"))});
    const QImage seen = outtext.viewport()->grab().toImage();
    const auto face = [&seen](int from, int to) {
        int count = 0;
        for (int y = from; y < to; ++y) {
            for (int i = 0; i < seen.width(); ++i) {
                const QColor colour = seen.pixelColor(i, y);
                count += colour.red() > 200 && colour.green() > 150 && colour.blue() < 120 ? 1 : 0;
            }
        }
        return count;
    };
    const int top = outtext.cursorRect(line).top();
    EXPECT_GT(face(top, top + 30), 20) << "the yellow of the face in the log";
    EXPECT_GT(face(0, top - 30), 20) << "and above it";
}

/// Ctrl+F in a conversation, with what was said before.
class FindInEarlier : public KeptForEver
{
protected:
    FindInEarlier() { openFindBar(30, "-said now"); }
    template <class T = QWidget> T &child(const char *name) { return *log().findChild<T *>(QLatin1String(name)); }
    void search(const char *word) { child<QLineEdit>("findText").setText(QLatin1String(word)); }
    QString count() { return child<QLabel>("findCount").text(); }
    void older() { QTest::keyClick(&child<QLineEdit>("findText"), Qt::Key_Return); }
    void newer() { QTest::keyClick(&child<QLineEdit>("findText"), Qt::Key_Return, Qt::ShiftModifier); }
};

TEST_F(FindInEarlier, CountsAndWalksUpIntoWhatWasSaidBefore)
{
    search("said");
    EXPECT_EQ(count(), QStringLiteral("31 of 31"));
    EXPECT_EQ(log().textCursor().selectedText(), QStringLiteral("said"));
    older();
    EXPECT_EQ(count(), QStringLiteral("30 of 31"));
    EXPECT_FALSE(log().textCursor().hasSelection());
    newer();
    EXPECT_EQ(count(), QStringLiteral("31 of 31"));
    EXPECT_TRUE(log().textCursor().hasSelection());
}

TEST_F(FindInEarlier, BringsTheHitIntoSightAndMarksIt)
{
    const int end = log().verticalScrollBar()->value();
    const QImage before = log().viewport()->grab().toImage();
    search("before 3");
    EXPECT_EQ(count(), QStringLiteral("1 of 1"));
    EXPECT_LT(log().verticalScrollBar()->value(), end);
    const QColor mark = log().palette().color(QPalette::Highlight);
    const QImage seen = log().viewport()->grab().toImage();
    int marked = 0;
    for (int y = 0; y < seen.height(); ++y) {
        for (int x = 0; x < seen.width(); ++x)
            marked += seen.pixelColor(x, y) == mark ? 1 : 0;
    }
    EXPECT_GT(marked, 100);
}

TEST_F(FindInEarlier, GoesAroundTheEndsAndSaysWhereMoreIsSearched)
{
    search("before 3");
    older();
    EXPECT_EQ(count(), QStringLiteral("1 of 1"));
    search("before 12");
    EXPECT_EQ(count(), QStringLiteral("1 of 1"));
    EXPECT_TRUE(child<QLineEdit>("findText").toolTip().contains(QStringLiteral("Ctrl+H")));
}

TEST_F(KeptForEver, MoreThatIsPaintedWhileOneSearchesIsSearchedToo)
{
    keepSaid(120);
    windows.arrive("10.0.0.2", "-new");
    windows.privateWindow().showNormal();
    windows.privateWindow().resize(500, 400);
    windows.privateWindow().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&windows.privateWindow(), 60000));
    log().setFocus();
    QTest::keyClick(&log(), Qt::Key_F, Qt::ControlModifier);
    auto &text = *log().findChild<QLineEdit *>(QStringLiteral("findText"));
    auto &count = *log().findChild<QLabel *>(QStringLiteral("findCount"));
    text.setText(QStringLiteral("said before 9"));
    EXPECT_EQ(count.text(), QStringLiteral("10 of 10")) << "90 to 99 are among the 50 that are painted";
    for (int i = 0; i < 5; ++i)
        QTest::keyClick(&text, Qt::Key_Return);
    EXPECT_EQ(count.text(), QStringLiteral("5 of 10"));
    log().verticalScrollBar()->setValue(0);
    EXPECT_TRUE(QTest::qWaitFor([&] { return count.text() == QStringLiteral("6 of 11"); }))
        << count.text().toStdString();
    QTest::keyClick(&text, Qt::Key_Return);
    EXPECT_EQ(count.text(), QStringLiteral("5 of 11"));
}

/// The same where much more is kept than what is painted at first.
class FindInAllThatWasKept : public KeptForEver
{
protected:
    QLineEdit &text() { return *log().findChild<QLineEdit *>(QStringLiteral("findText")); }
    QToolButton &findKept() { return *log().findChild<QToolButton *>(QStringLiteral("findKept")); }
    QString count() { return log().findChild<QLabel *>(QStringLiteral("findCount"))->text(); }
    bool counts(const char *shown)
    {
        return QTest::qWaitFor([&] { return count() == QLatin1String(shown); }, 60000);
    }
    void older() { QTest::keyClick(&text(), Qt::Key_Return); }
};

TEST_F(FindInAllThatWasKept, BringsUpWhatWasNotPaintedYet)
{
    openFindBar(700);
    ASSERT_EQ(log().earlierText().count(QStringLiteral("said before")), 50);
    text().setText(QStringLiteral("before 101"));
    EXPECT_NE(count(), QStringLiteral("Not found")) << "nobody knows yet";
    EXPECT_TRUE(counts("1 of 1")) << count().toStdString();
    EXPECT_EQ(log().earlierText().count(QStringLiteral("said before")), 650) << "no more than it takes";
    EXPECT_FALSE(findKept().isVisible());
    EXPECT_LT(log().verticalScrollBar()->value(), log().verticalScrollBar()->maximum());
}

TEST_F(FindInAllThatWasKept, GoesOnBehindTheOldestOfThosePainted)
{
    openFindBar(700);
    text().setText(QStringLiteral("before 33"));
    EXPECT_TRUE(counts("10 of 10")) << "330 to 339";
    for (int i = 0; i < 9; ++i)
        older();
    EXPECT_EQ(count(), QStringLiteral("1 of 10"));
    older();
    EXPECT_TRUE(counts("1 of 11")) << count().toStdString();
    older();
    EXPECT_TRUE(counts("11 of 11")) << "nothing older is left: around the end";
}

TEST_F(FindInAllThatWasKept, OffersTheWindowThatSearchesEverythingWhereNothingIsFound)
{
    openFindBar(3000);
    text().setText(QStringLiteral("before 5!"));
    EXPECT_TRUE(counts("Not found")) << count().toStdString();
    EXPECT_EQ(log().earlierText().count(QStringLiteral("said before")), 2050) << "bounded";
    ASSERT_TRUE(findKept().isVisible());
    auto &bar = *log().findChild<QWidget *>(QStringLiteral("findBar"));
    EXPECT_GE(bar.height(), bar.sizeHint().height());
    EXPECT_LE(bar.geometry().bottom(), log().viewport()->geometry().top()) << "covers no line";
    EXPECT_EQ(findKept().text(), QStringLiteral("Search all that was kept"));
    QTest::mouseClick(&findKept(), Qt::LeftButton);
    auto *const history = windows.main().findChild<QDialog *>(QStringLiteral("frmHistory"));
    ASSERT_TRUE(history);
    EXPECT_EQ(windows.control<QLineEdit>(*history, "searchText").text(), QStringLiteral("before 5!"));
    EXPECT_EQ(windows.control<QListWidget>(*history, "conversations").currentItem()->toolTip(),
              QStringLiteral("10.0.0.2"));
    text().setText(QStringLiteral("new"));
    EXPECT_FALSE(findKept().isVisible());
}

TEST_F(FindInAllThatWasKept, WhatIsTypedOnEndsTheSearchForWhatWasTypedBefore)
{
    openFindBar(700);
    text().setText(QStringLiteral("nothing like that"));
    text().setText(QStringLiteral("new"));
    EXPECT_EQ(count(), QStringLiteral("1 of 1"));
    EXPECT_TRUE(QTest::qWaitFor([this] { return count() == QStringLiteral("1 of 1"); }));
    EXPECT_EQ(log().earlierText().count(QStringLiteral("said before")), 50);
}

TEST_F(KeptForEver, WhatAnEarlierRunLeftUnreadOpensWhereReadingStopped)
{
    const auto unread = [this] { return windows.engine.contacts().find(QStringLiteral("10.0.0.2"))->unread(); };
    keepSaid(30);
    windows.history.leaveUnread({.address = QStringLiteral("10.0.0.2")});
    keepSaid(60);
    windows.engine.privateWindows().loadUnread();
    EXPECT_EQ(unread(), 60);
    EXPECT_EQ(windows.list().model()->index(0, 0).data(ContactList::UnreadRole).toInt(), 60);
    windows.doubleClick(0);
    QWidget &form = windows.privateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&form, 60000));
    QCoreApplication::processEvents();
    auto &button = windows.control<QToolButton>(form, "newLinesBtn");
    QScrollBar &bar = *log().verticalScrollBar();
    EXPECT_LT(bar.value(), bar.maximum());
    EXPECT_TRUE(button.isVisible());
    const int below = unread();
    EXPECT_GT(below, 0) << "what cannot be seen is not read";
    EXPECT_LT(below, 60);
    EXPECT_GE(button.text().toInt(), below);
    // The word above the first of them is painted in red; the messages are not.
    const QImage seen = log().viewport()->grab().toImage();
    const auto red = [&seen](int from, int to) {
        int count = 0;
        for (int y = from; y < to; ++y) {
            for (int x = 0; x < seen.width(); ++x) {
                const QColor colour = seen.pixelColor(x, y);
                count += colour.red() > 150 && colour.green() < 120 && colour.blue() < 120 ? 1 : 0;
            }
        }
        return count;
    };
    const int line = log().heightOfLine();
    EXPECT_GT(red(0, line), 5) << "at the top";
    EXPECT_EQ(red(2 * line, seen.height()), 0);

    windows.main().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&windows.main(), 60000));
    EXPECT_EQ(windows.history.readTo.at(QStringLiteral("10.0.0.2")), 90 - below);
    form.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&form, 60000));
    QTest::mouseClick(&button, Qt::LeftButton);
    EXPECT_EQ(bar.value(), bar.maximum());
    EXPECT_EQ(unread(), 0);
    EXPECT_TRUE(windows.history.readTo.empty());
    windows.arrive("10.0.0.2", "-now");
    QTest::keyClicks(&windows.control<QPlainTextEdit>(form, "intext"), QStringLiteral("answer"));
    QTest::keyClick(&windows.control<QPlainTextEdit>(form, "intext"), Qt::Key_Return);
    log().verticalScrollBar()->setValue(0);
    const int top = log().verticalScrollBar()->value();
    for (int place = top; place < bar.maximum(); place += log().viewport()->height() / 2) {
        bar.setValue(place);
        const QImage now = log().viewport()->grab().toImage();
        for (int y = 0; y < now.height(); ++y) {
            const QColor middle = now.pixelColor(now.width() / 4, y);
            ASSERT_FALSE(middle.red() > 150 && middle.green() < 120 && middle.blue() < 120)
                << "who answers has read: nothing is new any more";
        }
    }
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
