// What is painted beside the lines of a log and above them, and how one finds his way in it.
#include "log/RTFSubClass.h"
#include "log/earlier_messages.h"
#include "log/find_bar.h"
#include "log/log_pictures.h"
#include "log/metafile.h"
#include "log/rich_text_log.h"
#include "widgets/muted_colour.h"

#include <gmock/gmock.h>

#include <QAccessible>
#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>
#include <QTest>
#include <QTextFrame>
#include <QToolButton>

#include <map>
#include <set>

namespace nimb
{
namespace
{

const QDateTime saturday(QDate(2026, 11, 21), QTime(20, 58, 10));

class LogMarksTest : public testing::Test
{
protected:
    LogMarksTest()
    {
        log.resize(400, 300);
        log.show();
        QCoreApplication::processEvents();
    }
    void write(const LogMessage &message, const QString &text)
    {
        log.setSelMessage(message);
        log.setSelBold(true);
        appendText(log, message.writer + QStringLiteral("> "), 0xC00000);
        log.setSelBold(false);
        log.setSelContinues(true);
        appendText(log, text, 0xC00000);
        log.setSelContinues(false);
        appendText(log, QStringLiteral("\r\n"), 0xC00000);
        log.setSelMessage({});
        log.writeGathered();
        QCoreApplication::processEvents();
    }
    void ann(const QString &text, const QDateTime &time = saturday) { write({.writer = ann_, .time = time}, text); }
    void me(const QString &text, MessageFate fate = MessageFate::sent, int number = 0)
    {
        write({.writer = QStringLiteral("Me"), .time = saturday, .isOwn = true, .fate = fate, .number = number}, text);
    }
    void lines(int count)
    {
        for (int i = 0; i < count; ++i)
            appendText(log, QStringLiteral("line %1\r\n").arg(i), 0);
        log.writeGathered();
        QCoreApplication::processEvents();
    }
    QRectF placeOf(int line) const
    {
        const QTextBlock block = log.document()->findBlockByNumber(line);
        return log.document()->documentLayout()->blockBoundingRect(block).translated(0,
                                                                                     -log.verticalScrollBar()->value());
    }
    double roomAbove(int line) const { return log.document()->findBlockByNumber(line).blockFormat().topMargin(); }
    QImage picture() { return log.viewport()->grab().toImage(); }
    /// Of a strip at the right side, as high as a line.
    QImage marginOf(int line)
    {
        const QRect place = placeOf(line).toAlignedRect();
        return picture().copy(log.viewport()->width() - 60, place.top() + 1, 60, log.fontMetrics().height() - 2);
    }
    static bool isBlank(const QImage &image)
    {
        std::set<QRgb> colours;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x)
                colours.insert(image.pixel(x, y));
        }
        return colours.size() == 1;
    }

    const QString ann_ = QStringLiteral("Ann");
    RichTextLogEdit log;
};

TEST_F(LogMarksTest, NothingThatIsPaintedStandsInTheText)
{
    ann(QStringLiteral("Hello"));
    me(QStringLiteral("Hi"), MessageFate::lost);
    log.markNew();
    ann(QStringLiteral("Plan"), saturday.addDays(1));
    EXPECT_EQ(log.toPlainText(), QStringLiteral("Ann> Hello\nMe> Hi\nAnn> Plan\n"));
}

TEST_F(LogMarksTest, TheTimeStandsBesideTheFirstLineOfAMinute)
{
    ann(QStringLiteral("Hello"));
    ann(QStringLiteral("again"), saturday.addSecs(20));
    ann(QStringLiteral("a minute later"), saturday.addSecs(60));
    EXPECT_FALSE(isBlank(marginOf(0)));
    EXPECT_TRUE(isBlank(marginOf(1)));
    EXPECT_FALSE(isBlank(marginOf(2)));
}

TEST_F(LogMarksTest, TheTimeStandsOnTheLineOfTheLettersBesideAPictureToo)
{
    ann(QStringLiteral("Hello"));
    log.setSelMessage(LogMessage{.writer = ann_, .time = saturday.addSecs(60)});
    appendText(log, QStringLiteral("Ann> "), 0xC00000);
    appendPicture(log, emoticonFragment(3), QStringLiteral(":)"));
    appendText(log, QStringLiteral("\r\n"), 0xC00000);
    log.writeGathered();
    QCoreApplication::processEvents();
    ASSERT_GT(placeOf(1).height(), placeOf(0).height()) << "the picture makes its line higher";
    const QImage margin = picture().copy(log.viewport()->width() - 40, 0, 40, log.viewport()->height());
    const auto belowLetters = [&](int line) {
        const QTextLine first = log.document()->findBlockByNumber(line).layout()->lineAt(0);
        const int baseline = qRound(placeOf(line).top() + first.y() + first.ascent());
        const int end = qRound(placeOf(line).bottom());
        for (int y = end; y > end - 40; --y) {
            if (!isBlank(margin.copy(0, y, margin.width(), 1)))
                return y - baseline;
        }
        return 40;
    };
    EXPECT_EQ(belowLetters(1), belowLetters(0));
}

/// The application is laid out from the right to the left as long as this is there.
class FromTheRight
{
public:
    FromTheRight() { QGuiApplication::setLayoutDirection(Qt::RightToLeft); }
    ~FromTheRight() { QGuiApplication::setLayoutDirection(Qt::LeftToRight); }
    FromTheRight(const FromTheRight &) = delete;
    FromTheRight &operator=(const FromTheRight &) = delete;
};

TEST(LogMarksFromTheRight, TimesAndMarksStandAtTheOtherSideAndNoTextRunsUnderThem)
{
    const FromTheRight direction;
    RichTextLogEdit log;
    log.resize(400, 300);
    log.show();
    for (const MessageFate fate : {MessageFate::sent, MessageFate::sent, MessageFate::lost}) {
        log.setSelMessage(LogMessage{.writer = QStringLiteral("Me"), .time = saturday, .isOwn = true, .fate = fate});
        appendText(log, QString(90, QChar(0x05D0)) + QStringLiteral("\r\n"), 0);
    }
    log.setSelMessage({});
    log.writeGathered();
    QCoreApplication::processEvents();
    const QImage picture = log.viewport()->grab().toImage();
    const QTextFrameFormat margins = log.document()->rootFrame()->frameFormat();
    EXPECT_GT(margins.leftMargin(), 30);
    EXPECT_LT(margins.rightMargin(), 10);
    std::vector<bool> hasInk;
    for (int message = 0; message < 3; ++message) {
        const QRectF line
            = log.document()->documentLayout()->blockBoundingRect(log.document()->findBlockByNumber(message));
        const QImage strip
            = picture.copy(0, qRound(line.top()) + 1, qRound(margins.leftMargin()) - 2, log.fontMetrics().height() - 2);
        std::set<QRgb> colours;
        for (int y = 0; y < strip.height(); ++y) {
            for (int x = 0; x < strip.width(); ++x)
                colours.insert(strip.pixel(x, y));
        }
        hasInk.push_back(colours.size() > 1);
    }
    EXPECT_THAT(hasInk, testing::ElementsAre(true, false, true));
}

TEST(EarlierMessagesTest, TheMarkOfWhatIsNewGoesUpToWhereReadingStoppedAsThatIsLoaded)
{
    const auto page = [](int first, int count) {
        std::vector<StoredMessage> messages;
        for (int i = first; i < first + count; ++i)
            messages.push_back(
                {.number = i,
                 .message
                 = {.time = saturday, .writer = QStringLiteral("Ann"), .text = QStringLiteral("number %1").arg(i)}});
        return messages;
    };
    QObject owner;
    LogPictures pictures([] { return LogPictures::Scale(); }, &owner);
    EarlierMessages earlier(pictures);
    const auto marked = [&earlier] {
        QStringList lines;
        for (QTextBlock line = earlier.text().begin(); line.isValid(); line = line.next()) {
            if (LogMarks::isNew(line.blockFormat()))
                lines += line.text();
        }
        return lines;
    };
    earlier.add(page(500, 20), 470);
    EXPECT_EQ(marked(), QStringList{"Ann> number 500"});
    earlier.add(page(480, 20));
    EXPECT_EQ(marked(), QStringList{"Ann> number 480"});
    earlier.add(page(460, 20));
    EXPECT_EQ(marked(), QStringList{"Ann> number 471"});
    earlier.add(page(440, 20));
    EXPECT_EQ(marked(), QStringList{"Ann> number 471"});

    EarlierMessages read(pictures);
    read.add(page(500, 20), 470);
    read.unmarkNew();
    read.add(page(480, 20));
    EXPECT_FALSE(read.hasNew()) << "what was read stays so";
}

TEST_F(LogMarksTest, TheButtonToTheNewestLineLeavesTheTimesFree)
{
    for (int i = 0; i < 40; ++i)
        ann(QStringLiteral("line %1").arg(i), saturday.addSecs(60 * i));
    log.verticalScrollBar()->setValue(0);
    ann(QStringLiteral("new"), saturday.addSecs(3600));
    const auto &button = *log.findChild<QToolButton *>(QStringLiteral("newLinesBtn"));
    ASSERT_TRUE(button.isVisible());
    const int times
        = log.viewport()->geometry().right() - qRound(log.document()->rootFrame()->frameFormat().rightMargin());
    EXPECT_LE(button.geometry().right() + 5, times);
    EXPECT_GT(button.geometry().right() + 20, times) << "but stands at the side";
}

TEST_F(LogMarksTest, NoTextRunsUnderTheTimes)
{
    ann(QString(500, u'x'), saturday);
    ann(QString(500, u'x'), saturday);
    EXPECT_TRUE(isBlank(marginOf(1)));
}

TEST_F(LogMarksTest, ADayStandsWhereTheDateChanges)
{
    ann(QStringLiteral("Hello"));
    ann(QStringLiteral("again"));
    ann(QStringLiteral("tomorrow"), saturday.addDays(1));
    EXPECT_GT(roomAbove(0), log.fontMetrics().height());
    EXPECT_LT(roomAbove(1), log.fontMetrics().height());
    EXPECT_GT(roomAbove(2), log.fontMetrics().height());
    const QRect above(0, qRound(placeOf(2).top() - roomAbove(2)) + 2, log.viewport()->width(), 12);
    EXPECT_FALSE(isBlank(picture().copy(above)));
}

TEST_F(LogMarksTest, LinesOfOneWriterStandCloserThanThoseOfTwo)
{
    ann(QStringLiteral("one"));
    ann(QStringLiteral("two"));
    me(QStringLiteral("three"));
    EXPECT_EQ(roomAbove(1), 2);
    EXPECT_EQ(roomAbove(2), 6);
}

TEST_F(LogMarksTest, OwnMessagesHaveAGroundOfTheirOwn)
{
    ann(QStringLiteral("Hello"));
    me(QStringLiteral("Hi\r\nand more"));
    const auto groundAt
        = [this](int line, int y) { return picture().pixelColor(2, qRound(placeOf(line).top()) + y).rgb(); };
    const int height = log.fontMetrics().height();
    const auto groundOf = [&](int line) { return groundAt(line, height / 2); };
    EXPECT_EQ(groundOf(0), log.palette().color(QPalette::Base).rgb());
    EXPECT_EQ(groundOf(1), tintedGround(log.palette()).rgb());
    EXPECT_EQ(groundOf(2), tintedGround(log.palette()).rgb());
    for (const int y : {-1, height}) {
        EXPECT_EQ(groundAt(1, y), tintedGround(log.palette()).rgb()) << "around the letters as well";
        EXPECT_EQ(groundAt(2, y), tintedGround(log.palette()).rgb());
    }
}

/// What a widget was asked to paint.
class Painted : public QObject
{
public:
    explicit Painted(QWidget &view) : m_view(view) { view.installEventFilter(this); }
    QRegion region;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (watched == &m_view && event->type() == QEvent::Paint)
            region += static_cast<const QPaintEvent *>(event)->region();
        return false;
    }

private:
    QWidget &m_view;
};

TEST_F(LogMarksTest, TheGroundOfANewLineIsPaintedAsFarAsItGoesUp)
{
    me(QStringLiteral("one"));
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&log));
    picture();
    Painted painted(*log.viewport());
    me(QStringLiteral("two"));
    ASSERT_TRUE(QTest::qWaitFor([&] { return !painted.region.isEmpty(); }));
    const int firstEnd = qRound(placeOf(0).bottom());
    for (int y = firstEnd; y < placeOf(1).top(); ++y)
        EXPECT_TRUE(painted.region.contains(QPoint(2, y))) << y << " of " << firstEnd;
}

TEST_F(LogMarksTest, WhatHasNotArrivedBearsAMark)
{
    me(QStringLiteral("first"));
    me(QStringLiteral("arrives"));
    me(QStringLiteral("does not"), MessageFate::lost);
    EXPECT_TRUE(isBlank(marginOf(1)));
    EXPECT_FALSE(isBlank(marginOf(2)));
}

TEST_F(LogMarksTest, AMarkUnderThePointerSaysWhatItMeans)
{
    const LogMessage lost{.writer = QStringLiteral("Me"),
                          .time = saturday,
                          .isOwn = true,
                          .fate = MessageFate::lost,
                          .receiver = QStringLiteral("Ann"),
                          .number = 1};
    me(QStringLiteral("arrives"));
    write(lost, QStringLiteral("does not"));
    const auto tipAt = [this](int line, int fromRight) {
        const QRectF place = placeOf(line);
        const int y = qRound(place.top()) + log.fontMetrics().height() / 2;
        QTest::mouseMove(log.viewport(), QPoint(log.viewport()->width() - fromRight, y));
        return log.viewport()->toolTip();
    };
    EXPECT_EQ(tipAt(1, 17), QStringLiteral("Ann was not online: this has probably not arrived"));
    EXPECT_EQ(tipAt(0, 17), QString()) << "no mark";
    EXPECT_EQ(tipAt(1, 80), QString()) << "beside the mark";
    log.setFate(1, MessageFate::waits);
    EXPECT_EQ(tipAt(1, 17), QStringLiteral("Waits until Ann is back"));
    QTextCursor there(log.document()->findBlockByNumber(1));
    log.setTextCursor(there);
    QAccessibleInterface &reader = *QAccessible::queryAccessibleInterface(&log);
    EXPECT_EQ(reader.text(QAccessible::Description), QStringLiteral("Waits until Ann is back"));
    EXPECT_EQ(log.toPlainText(), QStringLiteral("Me> arrives\nMe> does not\n")) << "it stands in no text";
    log.setFate(1, MessageFate::sent);
    tipAt(0, 17); // what has not moved is at no other place
    EXPECT_EQ(tipAt(1, 17), QString());
    EXPECT_EQ(reader.text(QAccessible::Description), QString());
}

TEST_F(LogMarksTest, TheNameOfTheWriterIsBold)
{
    ann(QStringLiteral("Hello"));
    auto fragment = log.document()->firstBlock().begin();
    EXPECT_EQ(fragment.fragment().text(), QStringLiteral("Ann> "));
    EXPECT_EQ(fragment.fragment().charFormat().fontWeight(), QFont::Bold);
    ++fragment;
    EXPECT_EQ(fragment.fragment().text(), QStringLiteral("Hello"));
    EXPECT_NE(fragment.fragment().charFormat().fontWeight(), QFont::Bold);
}

TEST_F(LogMarksTest, TheMarkOfWhatIsNewStaysWithItsLine)
{
    ann(QStringLiteral("Hello"));
    log.markNew();
    ann(QStringLiteral("new"));
    EXPECT_GT(roomAbove(1), log.fontMetrics().height());
    log.unmarkNew();
    EXPECT_EQ(roomAbove(1), 2);
}

TEST_F(LogMarksTest, WhatStoodBehindTheMarkIsAsItWasWhenTheMarkHasGone)
{
    ann(QStringLiteral("Hello"));
    log.markNew();
    ann(QStringLiteral("first\r\nits second line"), saturday.addSecs(60));
    ann(QStringLiteral("second"), saturday.addSecs(120));
    ann(QStringLiteral("third"), saturday.addSecs(180));
    log.writeGathered();
    std::vector<QTextBlockFormat> before;
    for (QTextBlock line = log.document()->begin().next().next(); line.isValid(); line = line.next())
        before.push_back(line.blockFormat());
    ASSERT_GE(before.size(), 3u);

    log.unmarkNew();

    std::vector<QTextBlockFormat> after;
    for (QTextBlock line = log.document()->begin().next().next(); line.isValid(); line = line.next())
        after.push_back(line.blockFormat());
    EXPECT_TRUE(before == after);
}

TEST_F(LogMarksTest, LargerLettersGetMoreRoomForTheirMarks)
{
    ann(QStringLiteral("Hello"));
    const double room = roomAbove(0);
    log.zoom(10);
    EXPECT_GT(roomAbove(0), room + 5);
}

TEST_F(LogMarksTest, AnEmptiedLogBeginsWithTheDayAnew)
{
    ann(QStringLiteral("Hello"));
    log.clear();
    ann(QStringLiteral("Hello"));
    EXPECT_GT(roomAbove(0), log.fontMetrics().height());
    EXPECT_FALSE(isBlank(marginOf(0)));
}

/// Of the text that was written in this colour, as it is seen.
double contrastSeen(RichTextLogEdit &log, Colour colour)
{
    log.clear();
    appendText(log, QString(30, QChar(0x2588)), colour); // full blocks
    log.writeGathered();
    QCoreApplication::processEvents();
    const QImage image = log.viewport()->grab().toImage();
    const QColor ground = log.palette().color(QPalette::Base);
    double most = 1;
    for (int y = 0; y < 20; ++y) {
        for (int x = 10; x < 100; ++x)
            most = qMax(most, contrast(image.pixelColor(x, y), ground));
    }
    return most;
}

TEST_F(LogMarksTest, EveryColourOfALogCanBeReadOnEveryGround)
{
    constexpr Colour all[] = {colours::banner,          colours::presence, colours::stateChange,
                              colours::unknownDatagram, colours::fault,    colours::receivedMessage};
    for (const auto &[ground, text] : {std::pair(QColor(Qt::white), QColor(Qt::black)),
                                       std::pair(QColor(0x15, 0x18, 0x1B), QColor(0xE6, 0xE9, 0xEC)),
                                       std::pair(QColor(Qt::black), QColor(Qt::yellow))}) {
        QPalette palette;
        palette.setColor(QPalette::Base, ground);
        palette.setColor(QPalette::Text, text);
        log.setPalette(palette);
        for (const Colour colour : all)
            EXPECT_GE(contrastSeen(log, colour), 4.5) << std::hex << colour << " on " << ground.name().toStdString();
    }
}

TEST_F(LogMarksTest, InHighContrastNameAndTextStandOutAlike)
{
    QPalette palette;
    for (const QPalette::ColorRole ground : {QPalette::Base, QPalette::Window})
        palette.setColor(ground, Qt::black);
    for (const QPalette::ColorRole text : {QPalette::Text, QPalette::WindowText})
        palette.setColor(text, Qt::white);
    log.setPalette(palette);
    constexpr Colour red = 0x0000FF;
    log.setSelBold(true);
    appendText(log, QString(3, QChar(0x2588)), red);
    log.setSelBold(false);
    appendText(log, QString(30, QChar(0x2588)), red);
    log.writeGathered();
    QCoreApplication::processEvents();
    const QImage image = log.viewport()->grab().toImage();
    std::map<QRgb, int> seen;
    for (int y = 0; y < 20; ++y) {
        for (int x = 0; x < 200; ++x)
            ++seen[image.pixel(x, y)];
    }
    EXPECT_EQ(seen[qRgb(255, 0, 0)], 0);
    EXPECT_GT(seen[contrastingOn(Qt::red, palette).rgb()], 500);
}

TEST_F(LogMarksTest, TheDocumentKeepsTheColoursThatWereAskedFor)
{
    QPalette light;
    light.setColor(QPalette::Base, Qt::white);
    log.setPalette(light);
    appendText(log, QStringLiteral("grey"), 0xA0A0A0);
    log.writeGathered();
    EXPECT_EQ(log.document()->firstBlock().begin().fragment().charFormat().foreground().color(), QColor(160, 160, 160));
}

TEST_F(LogMarksTest, ARoundButtonCountsWhatComesBelowAndLeadsThere)
{
    auto &button = *log.findChild<QToolButton *>(QStringLiteral("newLinesBtn"));
    lines(100);
    log.verticalScrollBar()->setValue(20);
    EXPECT_FALSE(button.isVisible());
    lines(3);
    EXPECT_TRUE(button.isVisible());
    EXPECT_EQ(button.text(), QStringLiteral("3"));
    lines(2);
    EXPECT_EQ(button.text(), QStringLiteral("5"));
    QTest::mouseClick(&button, Qt::LeftButton);
    EXPECT_EQ(log.verticalScrollBar()->value(), log.verticalScrollBar()->maximum());
    EXPECT_FALSE(button.isVisible());
}

TEST_F(LogMarksTest, TheButtonGoesWhenTheReaderComesToTheEnd)
{
    lines(100);
    log.verticalScrollBar()->setValue(20);
    lines(1);
    log.verticalScrollBar()->setValue(log.verticalScrollBar()->maximum());
    EXPECT_FALSE(log.findChild<QToolButton *>(QStringLiteral("newLinesBtn"))->isVisible());
}

class FindBarTest : public LogMarksTest
{
protected:
    FindBarTest()
    {
        for (const char *const line : {"The key is at the desk", "Which KEY?", "the key", "nothing"})
            appendText(log, QString::fromLatin1(line) + QStringLiteral("\r\n"), 0);
        log.writeGathered();
        log.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&log));
        log.setFocus();
        QTest::keyClick(&log, Qt::Key_F, Qt::ControlModifier);
    }
    template <class T> T &child(const char *name) { return *log.findChild<T *>(QLatin1String(name)); }
    QWidget &bar() { return child<QWidget>("findBar"); }
    QLineEdit &text() { return child<QLineEdit>("findText"); }
    QString count() { return child<QLabel>("findCount").text(); }
    int foundAt() { return log.textCursor().selectionStart(); }
};

TEST_F(FindBarTest, ComesWithCtrlFAndGoesWithEscape)
{
    EXPECT_TRUE(bar().isVisible());
    EXPECT_TRUE(text().hasFocus());
    QTest::keyClick(&text(), Qt::Key_Escape);
    EXPECT_FALSE(bar().isVisible());
    EXPECT_TRUE(log.hasFocus());
}

TEST_F(FindBarTest, CoversNoLineOfTheLog)
{
    EXPECT_LE(bar().geometry().bottom(), log.viewport()->geometry().top());
}

TEST_F(FindBarTest, FindsTheNewestFirstAndCounts)
{
    QTest::keyClicks(&text(), QStringLiteral("key"));
    EXPECT_EQ(count(), QStringLiteral("3 of 3"));
    EXPECT_EQ(foundAt(), log.toPlainText().lastIndexOf(QStringLiteral("key")));
    EXPECT_EQ(log.textCursor().selectedText(), QStringLiteral("key"));
    QTest::keyClick(&text(), Qt::Key_Return);
    EXPECT_EQ(count(), QStringLiteral("2 of 3"));
    EXPECT_EQ(log.textCursor().selectedText(), QStringLiteral("KEY"));
    QTest::keyClick(&text(), Qt::Key_Return, Qt::ShiftModifier);
    EXPECT_EQ(count(), QStringLiteral("3 of 3"));
}

TEST_F(FindBarTest, GoesAroundTheEnds)
{
    QTest::keyClicks(&text(), QStringLiteral("key"));
    QTest::mouseClick(&child<QToolButton>("findNext"), Qt::LeftButton);
    EXPECT_EQ(count(), QStringLiteral("1 of 3"));
    QTest::mouseClick(&child<QToolButton>("findPrevious"), Qt::LeftButton);
    EXPECT_EQ(count(), QStringLiteral("3 of 3"));
}

TEST_F(FindBarTest, MatchesTheCaseWhenAsked)
{
    QTest::keyClicks(&text(), QStringLiteral("key"));
    child<QToolButton>("findCase").click();
    EXPECT_EQ(count(), QStringLiteral("2 of 2"));
}

TEST_F(FindBarTest, SaysWhenThereIsNothing)
{
    QTest::keyClicks(&text(), QStringLiteral("keys"));
    EXPECT_EQ(count(), QStringLiteral("Not found"));
    EXPECT_FALSE(child<QToolButton>("findNext").isEnabled());
}

TEST_F(FindBarTest, WhereNothingIsFoundNothingIsSelected)
{
    QTest::keyClicks(&text(), QStringLiteral("key"));
    ASSERT_TRUE(log.textCursor().hasSelection());
    QTest::keyClicks(&text(), QStringLiteral("s"));
    EXPECT_EQ(count(), QStringLiteral("Not found"));
    EXPECT_FALSE(log.textCursor().hasSelection());
    text().setText(QStringLiteral("desk"));
    ASSERT_TRUE(log.textCursor().hasSelection());
    text().clear();
    EXPECT_FALSE(log.textCursor().hasSelection());
}

TEST_F(FindBarTest, WhatTheReaderHasSelectedHimselfStaysSo)
{
    text().setText(QStringLiteral("keys"));
    log.selectAll();
    QTest::keyClicks(&text(), QStringLiteral("!"));
    EXPECT_EQ(count(), QStringLiteral("Not found"));
    EXPECT_TRUE(log.textCursor().hasSelection());
}

TEST_F(FindBarTest, AHitAtTheEndLeavesNoLinesToGoDownTo)
{
    auto &button = child<QToolButton>("newLinesBtn");
    lines(100);
    log.verticalScrollBar()->setValue(20);
    lines(17);
    ASSERT_EQ(button.text(), QStringLiteral("17"));
    QTest::keyClicks(&text(), QStringLiteral("line 16"));
    ASSERT_EQ(count(), QStringLiteral("2 of 2"));
    EXPECT_FALSE(button.isVisible()) << button.text().toStdString();
    QTest::keyClick(&text(), Qt::Key_Return);
    lines(1);
    EXPECT_TRUE(button.isVisible());
    EXPECT_EQ(button.text(), QStringLiteral("1")) << "only what is new";
}

TEST_F(FindBarTest, LooksAgainInATextThatHasGrown)
{
    QTest::keyClicks(&text(), QStringLiteral("key"));
    lines(1);
    appendText(log, QStringLiteral("a fourth key\r\n"), 0);
    log.writeGathered();
    EXPECT_TRUE(QTest::qWaitFor([this] { return count() == QStringLiteral("3 of 4"); }));
    QTest::keyClick(&text(), Qt::Key_Return, Qt::ShiftModifier);
    EXPECT_EQ(count(), QStringLiteral("4 of 4"));
}

TEST_F(FindBarTest, MarksEveryPlaceThatItFinds)
{
    const QImage before = picture();
    QTest::keyClicks(&text(), QStringLiteral("desk"));
    log.setTextCursor(QTextCursor(log.document()));
    EXPECT_NE(picture(), before);
}

TEST(FoundLook, IsToldFromThePlaceAtWhichASearchStandsInEveryPalette)
{
    for (const QColor &accent : {QColor(0x1B, 0x6E, 0xC2), QColor(0xFF, 0xD5, 0x4F), QColor(Qt::yellow)}) {
        QPalette palette;
        palette.setColor(QPalette::Highlight, accent);
        QTextCharFormat found;
        LogMarks::setFoundLook(found, palette);
        EXPECT_GE(contrast(found.background().color(), accent), 1.5) << accent.name().toStdString();
        EXPECT_GE(contrast(found.background().color(), found.foreground().color()), 4.5);
    }
}

TEST_F(FindBarTest, AWordThatGoesAcrossLinesIsNone)
{
    QTest::keyClicks(&text(), QStringLiteral("deskWhich"));
    EXPECT_EQ(count(), QStringLiteral("Not found"));
}

} // namespace
} // namespace nimb
