#include "keyboard.h"
#include "real_windows.h"

#include "conversation/emoji_table.h"
#include "log/log_marks.h"
#include "log/rich_text_log.h"
#include "private_chat/mood_gauge.h"
#include "widgets/avatar_picture.h"

#include <QAccessible>
#include <QCheckBox>
#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTextBlock>
#include <QTimer>
#include <QToolButton>

#include <random>

namespace nimb::test
{
namespace
{

using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;

class FrmPrivate : public testing::Test
{
protected:
    FrmPrivate()
    {
        windows.settleStart({"10.0.0.2"});
        windows.doubleClick(0);
        windows.sent();
    }
    QWidget &form() { return windows.privateWindow(); }
    template <class Widget> Widget &control(const char *name) { return RealWindows::control<Widget>(form(), name); }
    QPlainTextEdit &intext() { return control<QPlainTextEdit>("intext"); }
    RichTextLogEdit &outtext() { return RealWindows::logOf(form()); }
    void type(const QString &text) { QTest::keyClicks(&intext(), text); }
    static bool becomes(const std::function<bool()> &condition) { return QTest::qWaitFor(condition, 30000); }
    QString lastLogLine() { return outtext().toPlainText().trimmed().section(u'\n', -1); }
    QColor colourOfLine(int line)
    {
        return outtext().document()->findBlockByNumber(line).begin().fragment().charFormat().foreground().color();
    }

    RealWindows windows{{{"10.0.0.2", "Ann"}}};
};

TEST_F(FrmPrivate, BearsItsFixedNamesAndCaptions)
{
    for (const char *name :
         {"rIP", "outtext", "intext", "StatusBar", "StatusBar_1", "StatusBar_2", "futuretype", "sendbtn", "clearbtn",
          "datetimebtn", "Emoticbtn", "BuzzBtn", "moodbtn", "AvatarBtn", "livetypebtn"})
        EXPECT_TRUE(form().findChild<QWidget *>(QLatin1String(name))) << name;
    EXPECT_EQ(control<QPushButton>("sendbtn").text(), QStringLiteral("Send"));
    EXPECT_EQ(control<QToolButton>("clearbtn").text(), QStringLiteral("Clear"));
    EXPECT_EQ(control<QToolButton>("datetimebtn").text(), QStringLiteral("Date&&Time"));
    EXPECT_EQ(control<QToolButton>("Emoticbtn").text(), QStringLiteral("Emoticons"));
    EXPECT_EQ(control<QToolButton>("BuzzBtn").text(), QStringLiteral("Buzz!"));
    EXPECT_EQ(control<QToolButton>("BuzzBtn").toolTip(), QStringLiteral("(CTRL+G)"));
    EXPECT_EQ(control<QToolButton>("moodbtn").text(), QStringLiteral("Mood"));
    EXPECT_EQ(control<QToolButton>("AvatarBtn").text(), QStringLiteral("Avatar"));
    EXPECT_EQ(control<QCheckBox>("livetypebtn").text(), QStringLiteral("LiveType!"));
    EXPECT_EQ(control<QLineEdit>("rIP").text(), QStringLiteral("10.0.0.2"));
    EXPECT_TRUE(control<QLineEdit>("rIP").isReadOnly());
}

TEST_F(FrmPrivate, ItsHeadSaysWhoIsTalkedTo)
{
    EXPECT_TRUE(control<QWidget>("peerHeader").isVisible());
    EXPECT_EQ(control<QLabel>("peerName").text(), QStringLiteral("Ann"));
    EXPECT_EQ(control<QLabel>("peerDetails").text(), QStringLiteral("Online · PC · 10.0.0.2"));
    EXPECT_FALSE(control<QLabel>("peerBand").isVisible());
    windows.arrive("10.0.0.2", "!STATUS BUSY Back at five");
    EXPECT_EQ(control<QLabel>("peerDetails").text(), QStringLiteral("Busy - Back at five · PC · 10.0.0.2"));
    windows.arrive("10.0.0.2", "!STATUS AWAY");
    EXPECT_EQ(control<QLabel>("peerDetails").text(), QStringLiteral("Away · PC · 10.0.0.2"));
    windows.arrive("10.0.0.2", "!STATUS Phoning");
    EXPECT_EQ(control<QLabel>("peerDetails").text(), QStringLiteral("Phoning · PC · 10.0.0.2"));
    windows.arrive("10.0.0.2", "!ONLINE 10.0.0.2 PC-2 <b>Anna</b>");
    EXPECT_EQ(control<QLabel>("peerName").text(), QStringLiteral("<b>Anna</b>"));
    EXPECT_EQ(control<QLabel>("peerDetails").text(), QStringLiteral("Online · PC-2 · 10.0.0.2"));
    EXPECT_EQ(control<QLabel>("peerName").textFormat(), Qt::PlainText);
}

TEST_F(FrmPrivate, ABandSaysWhatDoesNotArrive)
{
    auto &band = control<QLabel>("peerBand");
    windows.arrive("10.0.0.2", "!OFFLINE 10.0.0.2 PC Ann");
    EXPECT_TRUE(band.isVisible());
    EXPECT_EQ(band.text(), QStringLiteral("Ann is offline: what you write does not arrive"));
    windows.arrive("10.0.0.2", "?ONLINE 10.0.0.2 PC Ann");
    EXPECT_FALSE(band.isVisible());
}

TEST(PrivateWindowWithLargeLetters, OpensHighEnoughForItsLog)
{
    const QFont usual = QApplication::font();
    QFont large = usual;
    large.setPointSize(16);
    QApplication::setFont(large);
    {
        RealWindows windows{{{"10.0.0.2", "Ann"}}};
        windows.settleStart({});
        windows.doubleClick(0);
        QWidget &form = windows.privateWindow();
        EXPECT_TRUE(RealWindows::control<QLabel>(form, "peerBand").isVisible());
        EXPECT_TRUE(RealWindows::control<QLabel>(form, "historyBand").isVisible());
        const RichTextLogEdit &log = RealWindows::logOf(form);
        EXPECT_GE(log.viewport()->height(), 4 * log.heightOfLine());
        EXPECT_LE(form.height(), 640);
    }
    QApplication::setFont(usual);
}

TEST_F(FrmPrivate, ANameFromTheRightTurnsNoSentenceOfItsHead)
{
    windows.arrive("10.0.0.2", "!ONLINE 10.0.0.2 \u0645\u0643\u062A\u0628 \u05D3\u05E0\u05D4");
    EXPECT_EQ(control<QLabel>("peerDetails").text(),
              QStringLiteral("Online · \u2068\u0645\u0643\u062A\u0628\u2069 · 10.0.0.2"));
    windows.arrive("10.0.0.2", "!OFFLINE 10.0.0.2 \u0645\u0643\u062A\u0628 \u05D3\u05E0\u05D4");
    EXPECT_EQ(control<QLabel>("peerBand").text(),
              QStringLiteral("\u2068\u05D3\u05E0\u05D4\u2069 is offline: what you write does not arrive"));
}

TEST_F(FrmPrivate, InALayoutFromTheRightALatinNameIsIsolatedToo)
{
    qApp->setLayoutDirection(Qt::RightToLeft);
    windows.arrive("10.0.0.2", "!OFFLINE 10.0.0.2 PC Ann");
    const QString said = control<QLabel>("peerBand").text();
    qApp->setLayoutDirection(Qt::LeftToRight);
    EXPECT_EQ(said, QStringLiteral("\u2068Ann\u2069 is offline: what you write does not arrive"));
}

TEST_F(FrmPrivate, TheBandOffersToSendLaterWhatWasWrittenMeanwhile)
{
    auto &band = control<QLabel>("peerBand");
    auto &button = control<QPushButton>("sendLaterBtn");
    windows.arrive("10.0.0.2", "!ONLINE 10.0.0.2 PC Ann & Co");
    windows.arrive("10.0.0.2", "!OFFLINE 10.0.0.2 PC Ann & Co");
    EXPECT_FALSE(button.isVisible()) << "nothing was written";
    intext().setPlainText(QStringLiteral("call me"));
    control<QPushButton>("sendbtn").click();
    ASSERT_TRUE(button.isVisible());
    EXPECT_EQ(button.text(), QStringLiteral("Send when Ann && Co is back"));
    button.click();
    EXPECT_EQ(band.text(),
              QStringLiteral("Ann & Co is offline: what you write is sent when Ann & Co is back; waiting: 1"));
    EXPECT_TRUE(button.isVisible());
    EXPECT_EQ(button.text(), QStringLiteral("Do not send later"));
    button.click();
    EXPECT_EQ(band.text(), QStringLiteral("Ann & Co is offline: what you write does not arrive"));
    EXPECT_EQ(button.text(), QStringLiteral("Send when Ann && Co is back"));
    button.click();
    ASSERT_EQ(windows.engine.outbox().messages().size(), 1u);
    outtext().writeGathered();
    const QTextBlock line = outtext().document()->lastBlock().previous();
    EXPECT_EQ(LogMarks::fateOf(line.blockFormat()), MessageFate::waits);
    windows.arrive("10.0.0.2", "!ONLINE 10.0.0.2 PC Ann & Co");
    EXPECT_FALSE(band.isVisible());
    windows.time.advance(std::chrono::seconds(1));
    outtext().writeGathered();
    EXPECT_EQ(LogMarks::fateOf(line.blockFormat()), MessageFate::sent);
    EXPECT_THAT(outtext().document()->lastBlock().previous().text().toStdString(),
                testing::MatchesRegex("Me> call me \\(written ... ..:..\\)"));
    EXPECT_TRUE(windows.engine.outbox().messages().empty());
}

TEST_F(FrmPrivate, AnAnnouncementThatIsAnsweredShowsNoBand)
{
    auto &band = control<QLabel>("peerBand");
    windows.engine.announcement().run();
    EXPECT_FALSE(band.isVisible());
    windows.arrive("10.0.0.2", "!ONLINE 10.0.0.2 PC Ann");
    windows.time.advance(std::chrono::seconds(2));
    EXPECT_FALSE(band.isVisible());
    windows.engine.announcement().run();
    windows.time.advance(std::chrono::seconds(1)); // nobody answers
    EXPECT_EQ(band.text(), QStringLiteral("Ann is offline: what you write does not arrive"));
}

TEST_F(FrmPrivate, ABandSaysThatNobodyKnowsWhetherThePeerIsThere)
{
    auto &band = control<QLabel>("peerBand");
    windows.engine.contacts().change(QStringLiteral("10.0.0.2"), [](Contact &contact) { contact.setUnheard(); });
    windows.time.advance(std::chrono::milliseconds(1400));
    EXPECT_FALSE(band.isVisible());
    windows.time.advance(std::chrono::milliseconds(200));
    EXPECT_TRUE(band.isVisible());
    EXPECT_EQ(band.text(), QStringLiteral("Ann is not known to be there: what you write may not arrive"));
}

TEST_F(FrmPrivate, WhoWroteIsNotTypingAnyMore)
{
    auto &panel = control<QLabel>("StatusBar_2");
    windows.arrive("10.0.0.2", "!TYPING");
    EXPECT_EQ(panel.text(), QStringLiteral("Ann is typing a message..."));
    windows.arrive("10.0.0.2", "-here it is");
    EXPECT_EQ(panel.text(), QString());
    windows.arrive("10.0.0.2", "!TYPING");
    windows.time.advance(std::chrono::milliseconds(2499));
    EXPECT_EQ(panel.text(), QStringLiteral("Ann is typing a message..."));
    windows.time.advance(std::chrono::milliseconds(1));
    EXPECT_EQ(panel.text(), QString());
}

TEST_F(FrmPrivate, AMessageDoesNotHideThatThePeerBuzzes)
{
    windows.arrive("10.0.0.2", "!TYPING");
    windows.arrive("10.0.0.2", "!BUZZ");
    windows.arrive("10.0.0.2", "-hello");
    EXPECT_EQ(control<QLabel>("StatusBar_2").text(), QStringLiteral("Ann is buzzing you..."));
}

TEST_F(FrmPrivate, AWindowWithMoreThanCanBeSeenOpensWhereTheNewBegins)
{
    auto &button = control<QToolButton>("newLinesBtn");
    type(QStringLiteral("before"));
    QTest::keyClick(&intext(), Qt::Key_Return);
    form().close();
    for (int i = 0; i < 60; ++i)
        windows.arrive("10.0.0.2", "-message " + std::to_string(i));
    ASSERT_TRUE(form().isMinimized());
    windows.doubleClick(0);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&form(), 60000));
    QCoreApplication::processEvents();
    QTextCursor first(outtext().document()->findBlockByNumber(2));
    EXPECT_EQ(first.block().text(), QStringLiteral("Ann> message 0"));
    const int top = outtext().cursorRect(first).top();
    EXPECT_GE(top, outtext().fontMetrics().height()) << "the mark above it is seen";
    EXPECT_LE(top, 3 * outtext().fontMetrics().lineSpacing());
    EXPECT_TRUE(button.isVisible());
    int below = 0;
    for (int i = 0; i < 60; ++i) {
        const QTextCursor line(outtext().document()->findBlockByNumber(2 + i));
        below += outtext().cursorRect(line).bottom() > outtext().viewport()->height() ? 1 : 0;
    }
    EXPECT_EQ(button.text(), QString::number(below));
    EXPECT_EQ(windows.engine.contacts().find(QStringLiteral("10.0.0.2"))->unread(), below)
        << "what was not seen is not read";

    QTest::mouseClick(&button, Qt::LeftButton);
    EXPECT_TRUE(outtext().isAtItsEnd());
    EXPECT_EQ(windows.engine.contacts().find(QStringLiteral("10.0.0.2"))->unread(), 0);
    form().showMinimized();
    form().showNormal();
    form().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&form(), 60000));
    EXPECT_TRUE(outtext().isAtItsEnd()) << "what was read is not gone back to";
}

TEST_F(FrmPrivate, WhileItIsNotTheActiveWindowItStaysWhereTheNewBegins)
{
    auto &button = control<QToolButton>("newLinesBtn");
    QScrollBar &bar = *outtext().verticalScrollBar();
    const auto unread = [this] { return windows.engine.contacts().find(QStringLiteral("10.0.0.2"))->unread(); };
    ASSERT_TRUE(QTest::qWaitForWindowActive(&form(), 60000));
    for (int i = 0; i < 40; ++i)
        windows.arrive("10.0.0.2", "-read " + std::to_string(i));
    outtext();
    ASSERT_TRUE(outtext().isAtItsEnd());
    windows.main().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&windows.main(), 60000));
    windows.arrive("10.0.0.2", "-new 0");
    outtext();
    EXPECT_EQ(bar.value(), bar.maximum()) << "there is room below the mark";
    EXPECT_FALSE(button.isVisible());
    for (int i = 1; i < 60; ++i) {
        windows.arrive("10.0.0.2", "-new " + std::to_string(i));
        outtext();
    }
    QTextCursor first(outtext().document()->findBlockByNumber(41));
    ASSERT_EQ(first.block().text(), QStringLiteral("Ann> new 0"));
    const int top = outtext().cursorRect(first).top();
    const auto expectedBelow = [this] {
        int below = 0;
        for (int i = 41; i < 101; ++i) {
            const QTextCursor line(outtext().document()->findBlockByNumber(i));
            below += outtext().cursorRect(line).bottom() > outtext().viewport()->height() ? 1 : 0;
        }
        return below;
    };
    EXPECT_GE(top, outtext().fontMetrics().height()) << "the mark above it is seen";
    EXPECT_LE(top, 3 * outtext().fontMetrics().lineSpacing());
    EXPECT_TRUE(button.isVisible());
    EXPECT_EQ(button.text(), QString::number(expectedBelow()));

    const int place = bar.value();
    form().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&form(), 60000));
    QCoreApplication::processEvents();
    EXPECT_EQ(bar.value(), place);
    EXPECT_EQ(unread(), expectedBelow()) << "what cannot be seen is not read";
    bar.setValue((place + bar.maximum()) / 2);
    EXPECT_GT(expectedBelow(), 0);
    EXPECT_EQ(unread(), expectedBelow()) << "read as it is scrolled to";
    bar.setValue(place);
    EXPECT_LT(unread(), expectedBelow()) << "what was read stays so";
    QTest::mouseClick(&button, Qt::LeftButton);
    EXPECT_EQ(bar.value(), bar.maximum());
    EXPECT_EQ(unread(), 0);
    windows.arrive("10.0.0.2", "-seen");
    outtext();
    EXPECT_EQ(bar.value(), bar.maximum());
    EXPECT_EQ(unread(), 0);
}

TEST_F(FrmPrivate, WhoScrollsInAnInactiveWindowIsNotBroughtBackToTheMark)
{
    QScrollBar &bar = *outtext().verticalScrollBar();
    windows.main().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&windows.main(), 60000));
    for (int i = 0; i < 60; ++i)
        windows.arrive("10.0.0.2", "-new " + std::to_string(i));
    outtext();
    ASSERT_LT(bar.value(), bar.maximum());
    bar.setValue(bar.maximum());
    const int place = bar.value();
    for (int i = 0; i < 3; ++i) {
        windows.arrive("10.0.0.2", "-another");
        outtext();
    }
    EXPECT_EQ(bar.value(), place);
    EXPECT_LT(bar.value(), bar.maximum()) << "nobody has read it";
    EXPECT_EQ(control<QToolButton>("newLinesBtn").text(), QStringLiteral("2")) << "the first has just room at the end";
}

TEST_F(FrmPrivate, AWindowInWhichAllThatIsNewCanBeSeenOpensAtTheEnd)
{
    form().close();
    windows.arrive("10.0.0.2", "-one");
    windows.arrive("10.0.0.2", "-two");
    windows.doubleClick(0);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&form(), 60000));
    QCoreApplication::processEvents();
    EXPECT_TRUE(outtext().isAtItsEnd());
    EXPECT_FALSE(control<QToolButton>("newLinesBtn").isVisible());
    EXPECT_EQ(windows.engine.contacts().find(QStringLiteral("10.0.0.2"))->unread(), 0);
}

TEST_F(FrmPrivate, PanelsAndStripsGiveTheWindowItsSizeBack)
{
    form().resize(380, 330);
    EXPECT_TRUE(becomes([&] { return form().size() == QSize(380, 330); }));
    for (const char *const panel : {"moodbtn", "AvatarBtn", "Emoticbtn"}) {
        control<QToolButton>(panel).click();
        EXPECT_TRUE(becomes([&] { return form().size() != QSize(380, 330) || form().minimumHeight() <= 330; }));
        control<QToolButton>(panel).click();
        EXPECT_TRUE(QTest::qWaitFor([this] { return form().size() == QSize(380, 330); })) << panel;
    }
    control<QToolButton>("moodbtn").click();
    control<QToolButton>("AvatarBtn").click();
    EXPECT_TRUE(QTest::qWaitFor([this] { return form().size() != QSize(380, 330); })) << "the panels need more";
    form().resize(700, 700);
    QCoreApplication::processEvents();
    control<QToolButton>("moodbtn").click();
    control<QToolButton>("AvatarBtn").click();
    QCoreApplication::processEvents();
    EXPECT_EQ(form().size(), QSize(700, 700)) << "who gave it another size meanwhile keeps that";
}

TEST_F(FrmPrivate, WhoIsNoContactAnyMoreIsSaidToBeNone)
{
    windows.engine.contactCommands().mnuRemoveUser(QStringLiteral("10.0.0.2"));
    EXPECT_EQ(control<QLabel>("peerDetails").text(), QStringLiteral("No contact any more · PC · 10.0.0.2"));
    EXPECT_EQ(control<QLabel>("peerBand").text(),
              QStringLiteral("Ann is no contact any more: what comes from there is not shown"));
}

TEST_F(FrmPrivate, OpenedAgainItsInputHasTheFocus)
{
    outtext().setFocus();
    form().close();
    windows.doubleClick(0);
    ASSERT_TRUE(form().isVisible());
    EXPECT_EQ(form().focusWidget(), &intext());
}

TEST_F(FrmPrivate, WhatIsTypedIntoTheLogGoesToTheInput)
{
    outtext().setFocus();
    QTest::keyClicks(&outtext(), QStringLiteral("Hi"));
    EXPECT_EQ(intext().toPlainText(), QStringLiteral("Hi"));
    EXPECT_EQ(form().focusWidget(), &intext());
    QGuiApplication::clipboard()->setText(QStringLiteral(" there"));
    outtext().setFocus();
    QTest::keyClick(&outtext(), Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(intext().toPlainText(), QStringLiteral("Hi there"));
    outtext().setFocus();
    QTest::keyClick(&outtext(), Qt::Key_Return);
    EXPECT_THAT(windows.sent(), testing::Contains(To{"10.0.0.2", "-Hi there"}));
    EXPECT_EQ(intext().toPlainText(), QString());
}

TEST_F(FrmPrivate, TheUpKeyInAnEmptyInputBringsTheLastMessageBack)
{
    type(QStringLiteral("first"));
    QTest::keyClick(&intext(), Qt::Key_Return);
    QTest::keyClick(&intext(), Qt::Key_Up);
    EXPECT_EQ(intext().toPlainText(), QStringLiteral("first"));
    type(QStringLiteral("!"));
    EXPECT_EQ(intext().toPlainText(), QStringLiteral("first!"));
    QTest::keyClick(&intext(), Qt::Key_Up);
    EXPECT_EQ(intext().toPlainText(), QStringLiteral("first!")) << "there the key moves the caret";
}

TEST_F(FrmPrivate, IsAWindowForScreenReaders)
{
    QAccessibleInterface *const reader = QAccessible::queryAccessibleInterface(&form());
    ASSERT_TRUE(reader);
    EXPECT_EQ(reader->role(), QAccessible::Window);
    EXPECT_EQ(reader->text(QAccessible::Name), QStringLiteral("Ann - NIMB-Chat - Private Chat Window"));
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&control<QWidget>("StatusBar"))->role(), QAccessible::Client);
}

TEST_F(FrmPrivate, ANarrowWindowShowsItsToolsAsPictures)
{
    auto &clear = control<QToolButton>("clearbtn");
    EXPECT_EQ(clear.toolButtonStyle(), Qt::ToolButtonTextBesideIcon);
    form().resize(360, 400);
    EXPECT_TRUE(becomes([&] { return form().width() == 360; }));
    EXPECT_EQ(clear.toolButtonStyle(), Qt::ToolButtonIconOnly);
    EXPECT_EQ(clear.toolTip(), QStringLiteral("Clear"));
    EXPECT_EQ(control<QToolButton>("datetimebtn").toolTip(), QStringLiteral("Date&Time"));
    EXPECT_EQ(control<QToolButton>("BuzzBtn").toolTip(), QStringLiteral("(CTRL+G)"));
    for (const QToolButton *const tool : form().findChildren<QToolButton *>()) {
        if (tool->isVisible()) {
            EXPECT_LE(tool->mapTo(&form(), tool->rect().bottomRight()).x(), 360) << tool->objectName().toStdString();
        }
    }
    form().resize(700, 400);
    EXPECT_TRUE(becomes([&] { return clear.toolButtonStyle() == Qt::ToolButtonTextBesideIcon; }));
}

TEST_F(FrmPrivate, ADraftComesBackWithoutATypingNotice)
{
    windows.common.options.closedWindowsGo = true;
    type(QStringLiteral("See you at"));
    windows.sent();
    form().close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    windows.doubleClick(0);
    EXPECT_EQ(intext().toPlainText(), QStringLiteral("See you at"));
    EXPECT_THAT(windows.sent(), ElementsAre(To{"10.0.0.2", "?AVATARHEAD"}));
}

TEST_F(FrmPrivate, ACounterAppearsWhenAMessageBecomesLong)
{
    auto &counter = control<QLabel>("messageCounter");
    intext().setPlainText(QString(1799, u'x'));
    EXPECT_FALSE(counter.isVisible());
    type(QStringLiteral("y"));
    EXPECT_TRUE(counter.isVisible());
    EXPECT_EQ(counter.text(), QStringLiteral("1800 of 2000"));
    QTest::keyClick(&intext(), Qt::Key_Return, Qt::ShiftModifier);
    EXPECT_EQ(counter.text(), QStringLiteral("1802 of 2000"));
    QTest::keyClick(&intext(), Qt::Key_Return);
    EXPECT_FALSE(counter.isVisible());
}

TEST_F(FrmPrivate, APasteThatIsTooLongIsSaidAndItsRestOffered)
{
    auto &band = control<QLabel>("cutBand");
    QGuiApplication::clipboard()->setText(QString(1990, u'x') + QStringLiteral("0123456789and\nmore"));
    intext().paste();
    EXPECT_EQ(intext().toPlainText(), QString(1990, u'x') + QStringLiteral("0123456789"));
    EXPECT_TRUE(band.isVisible());
    EXPECT_THAT(band.text().toStdString(), testing::HasSubstr("the last 8 of what you pasted did not fit"));
    Q_EMIT band.linkActivated(QStringLiteral("rest"));
    EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("and\nmore"));
    QTest::keyClick(&intext(), Qt::Key_Return);
    EXPECT_FALSE(band.isVisible());
}

TEST_F(FrmPrivate, WhatDidNotFitIsOfferedNoMoreOnceTheInputIsEmptied)
{
    QGuiApplication::clipboard()->setText(QString(2010, u'x'));
    intext().paste();
    EXPECT_TRUE(control<QLabel>("cutBand").isVisible());
    intext().clear();
    EXPECT_FALSE(control<QLabel>("cutBand").isVisible());
}

TEST_F(FrmPrivate, TheCounterHasAllTheRoomThatItNeeds)
{
    form().show();
    auto &counter = control<QLabel>("messageCounter");
    for (const int length : {1800, 100, 2000}) {
        intext().setPlainText(QString(length, u'x'));
        QCoreApplication::processEvents();
        EXPECT_EQ(counter.isVisible(), length >= 1800);
        EXPECT_EQ(counter.font().bold(), length == 2000);
        EXPECT_TRUE(!counter.isVisible() || counter.width() >= counter.sizeHint().width()) << counter.width();
        for (const char *const tool : {"Emoticbtn", "datetimebtn", "clearbtn"}) {
            const auto &button = control<QToolButton>(tool);
            EXPECT_GE(button.width(), button.minimumSizeHint().width()) << tool << " with " << length;
        }
    }
}

TEST_F(FrmPrivate, AKeyThatFindsNoRoomIsNoPaste)
{
    intext().setPlainText(QString(2000, u'x'));
    type(QStringLiteral("y"));
    EXPECT_FALSE(control<QLabel>("cutBand").isVisible());
}

TEST_F(FrmPrivate, WhatWasClearedCanBeBroughtBackForTenSeconds)
{
    windows.arrive("10.0.0.2", "-I am :) at http://example.org");
    type(QStringLiteral("mine"));
    QTest::keyClick(&intext(), Qt::Key_Return);
    outtext().writeGathered();
    const QString before = outtext().toHtml();
    auto &band = control<QLabel>("clearedBand");
    EXPECT_FALSE(band.isVisible());
    control<QToolButton>("clearbtn").click();
    outtext().writeGathered();
    EXPECT_FALSE(outtext().toPlainText().contains(QStringLiteral("mine")));
    EXPECT_TRUE(band.isVisible());
    EXPECT_EQ(form().findChild<QTimer *>(QStringLiteral("clearedForGood"))->interval(), 10000);
    Q_EMIT band.linkActivated(QStringLiteral("undo"));
    EXPECT_EQ(outtext().toHtml(), before);
    EXPECT_FALSE(band.isVisible());
    EXPECT_TRUE(outtext().isAtItsEnd());
}

TEST_F(FrmPrivate, WhatCameAfterClearingStandsBehindWhatIsBroughtBack)
{
    windows.arrive("10.0.0.2", "-old");
    outtext().writeGathered();
    const QString before = outtext().toPlainText();
    control<QToolButton>("clearbtn").click();
    windows.arrive("10.0.0.2", "-young");
    Q_EMIT control<QLabel>("clearedBand").linkActivated(QStringLiteral("undo"));
    EXPECT_EQ(outtext().toPlainText(), before + QStringLiteral("Ann> young\n"));
}

TEST_F(FrmPrivate, ClearingTwiceLosesNothing)
{
    windows.arrive("10.0.0.2", "-old");
    outtext().writeGathered();
    const QString before = outtext().toPlainText();
    control<QToolButton>("clearbtn").click();
    windows.arrive("10.0.0.2", "-young");
    control<QToolButton>("clearbtn").click();
    Q_EMIT control<QLabel>("clearedBand").linkActivated(QStringLiteral("undo"));
    EXPECT_EQ(outtext().toPlainText(), before + QStringLiteral("Ann> young\n"));
}

TEST_F(FrmPrivate, AfterTenSecondsWhatWasClearedIsGone)
{
    windows.arrive("10.0.0.2", "-old");
    control<QToolButton>("clearbtn").click();
    auto *const end = form().findChild<QTimer *>(QStringLiteral("clearedForGood"));
    EXPECT_TRUE(end->isActive());
    end->start(0);
    EXPECT_TRUE(becomes([&] { return !control<QLabel>("clearedBand").isVisible(); }));
    const QString now = outtext().toPlainText();
    Q_EMIT control<QLabel>("clearedBand").linkActivated(QStringLiteral("undo"));
    EXPECT_EQ(outtext().toPlainText(), now);
}

TEST_F(FrmPrivate, SendingShowsTheEndOfTheLog)
{
    for (int i = 0; i < 100; ++i)
        windows.arrive("10.0.0.2", "-line");
    QScrollBar &bar = *outtext().verticalScrollBar();
    bar.setValue(3);
    windows.arrive("10.0.0.2", "-another line");
    EXPECT_EQ(bar.value(), 3);
    type(QStringLiteral("mine"));
    QTest::keyClick(&intext(), Qt::Key_Return);
    outtext();
    EXPECT_EQ(bar.value(), bar.maximum());
}

TEST_F(FrmPrivate, TheEscapeKeyLeavesThePickerAndCtrlWTheWindow)
{
    control<QToolButton>("Emoticbtn").click();
    QTest::keyClick(&intext(), Qt::Key_Escape);
    EXPECT_FALSE(control<QListWidget>("ListViewEmot").isVisible());
    EXPECT_TRUE(form().isVisible());
    form().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&form()));
    QTest::keyClick(&intext(), Qt::Key_W, Qt::ControlModifier);
    EXPECT_FALSE(form().isVisible());
}

TEST_F(FrmPrivate, TheTabKeyGoesFromTheLogToTheInputAndThenToTheTools)
{
    for (const char *const tool : {"Emoticbtn", "moodbtn", "AvatarBtn"})
        control<QToolButton>(tool).click();
    std::vector<std::string> stops
        = {"outtext",     "ListViewEmot", "intext",  "sendbtn",   "Emoticbtn", "BuzzBtn",
           "datetimebtn", "livetypebtn",  "moodbtn", "AvatarBtn", "clearbtn",  "sendFileBtn"};
    if (EmojiTable::isThere())
        stops.insert(stops.begin() + 2, {"emojiSearch", "emojiList"});
    EXPECT_THAT(tabStops(form()), ElementsAreArray(stops));
}

TEST_F(FrmPrivate, EnterSendsAndEmptiesTheBox)
{
    type(QStringLiteral("hello Ann"));
    QTest::keyClick(&intext(), Qt::Key_Return);
    EXPECT_THAT(windows.sent(), ElementsAre(To{"10.0.0.2", "-hello Ann"}));
    EXPECT_EQ(intext().toPlainText(), QString());
    EXPECT_EQ(lastLogLine(), QStringLiteral("Me> hello Ann"));
}

TEST_F(FrmPrivate, ShiftEnterBreaksTheLine)
{
    type(QStringLiteral("one"));
    QTest::keyClick(&intext(), Qt::Key_Return, Qt::ShiftModifier);
    type(QStringLiteral("two"));
    QTest::mouseClick(&control<QPushButton>("sendbtn"), Qt::LeftButton);
    EXPECT_THAT(windows.sent(), ElementsAre(To{"10.0.0.2", "-one\r\ntwo"}));
    EXPECT_EQ(lastLogLine(), QStringLiteral("two"));
}

TEST_F(FrmPrivate, AnEmptyBoxSendsNothing)
{
    QTest::mouseClick(&control<QPushButton>("sendbtn"), Qt::LeftButton);
    QTest::keyClick(&intext(), Qt::Key_Enter);
    EXPECT_THAT(windows.sent(), IsEmpty());
    EXPECT_TRUE(form().focusWidget() == &intext());
}

TEST_F(FrmPrivate, TheBoxHolds2000CharactersAtMost)
{
    intext().insertPlainText(QString(3000, u'x'));
    EXPECT_EQ(intext().toPlainText(), QString(2000, u'x'));
    EXPECT_EQ(intext().textCursor().position(), 2000);
    type(QStringLiteral("y"));
    EXPECT_EQ(intext().toPlainText(), QString(2000, u'x'));
}

TEST_F(FrmPrivate, ALineBreakInTheBoxCountsTwo)
{
    intext().insertPlainText(QString(1999, u'x') + QStringLiteral("\ny"));
    EXPECT_EQ(intext().toPlainText(), QString(1999, u'x'));
}

TEST_F(FrmPrivate, DateAndTimeReplaceTheSelection)
{
    type(QStringLiteral("at ? sharp"));
    QTextCursor cursor = intext().textCursor();
    cursor.setPosition(3);
    cursor.setPosition(4, QTextCursor::KeepAnchor);
    intext().setTextCursor(cursor);
    QTest::mouseClick(&control<QToolButton>("datetimebtn"), Qt::LeftButton);
    EXPECT_EQ(intext().toPlainText(), QStringLiteral("at 21/11/2026 14:05:10 sharp"));
    EXPECT_TRUE(form().focusWidget() == &intext());
}

TEST_F(FrmPrivate, ClearingLeavesTheReadyLine)
{
    windows.arrive("10.0.0.2", "-hello");
    QTest::mouseClick(&control<QToolButton>("clearbtn"), Qt::LeftButton);
    EXPECT_EQ(outtext().toPlainText(), QStringLiteral("« NIMB-Chat [today:21/11/2026 - now:14:05:10] Ready »\n"));
    EXPECT_TRUE(form().focusWidget() == &intext());
}

TEST_F(FrmPrivate, AReceivedMessageIsShownWithItsTime)
{
    windows.arrive("10.0.0.2", "-hello");
    EXPECT_EQ(lastLogLine(), QStringLiteral("Ann> hello"));
    EXPECT_EQ(colourOfLine(1), QColor(0, 0, 192));
    EXPECT_EQ(control<QLabel>("StatusBar_1").text(), QStringLiteral("Last message: 21/11/2026 @ 14:05:10"));
}

TEST_F(FrmPrivate, OwnMessagesHaveTheWindowsTextColour)
{
    type(QStringLiteral("x"));
    QTest::keyClick(&intext(), Qt::Key_Return);
    EXPECT_EQ(colourOfLine(1), form().palette().color(QPalette::WindowText));
}

TEST_F(FrmPrivate, TheCloseBoxHidesAndKeepsTheLog)
{
    windows.arrive("10.0.0.2", "-hello");
    form().close();
    EXPECT_FALSE(form().isVisible());
    windows.doubleClick(0);
    EXPECT_TRUE(form().isVisible());
    EXPECT_EQ(lastLogLine(), QStringLiteral("Ann> hello"));
}

TEST_F(FrmPrivate, WithTheOptionTheCloseBoxUnloads)
{
    windows.common.options.closedWindowsGo = true;
    form().close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_THAT(RealWindows::privateWindows(), IsEmpty());
    EXPECT_EQ(windows.list().model()->index(0, 4).data().toString(), QString());
    windows.arrive("10.0.0.2", "-back");
    EXPECT_EQ(outtext().document()->blockCount(), 3);
    EXPECT_EQ(windows.list().model()->index(0, 4).data().toString(), QStringLiteral("2"));
}

TEST_F(FrmPrivate, CtrlGBuzzesWhereverTheFocusIs)
{
    for (QWidget *const focus : {static_cast<QWidget *>(&intext()), static_cast<QWidget *>(&outtext()),
                                 static_cast<QWidget *>(&control<QPushButton>("sendbtn"))}) {
        QTest::keyClick(focus, Qt::Key_G, Qt::ControlModifier);
        EXPECT_THAT(windows.sent(), ElementsAre(To("10.0.0.2", "!BUZZ"))) << focus->objectName().toStdString();
    }
    EXPECT_EQ(lastLogLine(), QStringLiteral("BUZZ!"));
    EXPECT_EQ(intext().toPlainText(), QString());
}

TEST_F(FrmPrivate, OnlyCtrlAloneWithGBuzzes)
{
    QTest::keyClick(&intext(), Qt::Key_G, Qt::ControlModifier | Qt::ShiftModifier);
    QTest::keyClick(&intext(), Qt::Key_G);
    EXPECT_THAT(windows.sent(), IsEmpty());
    EXPECT_EQ(intext().toPlainText(), QStringLiteral("g"));
}

TEST_F(FrmPrivate, TheBuzzButtonBuzzesAndReturnsToTheEndOfTheInput)
{
    intext().setPlainText(QStringLiteral("text"));
    QTest::mouseClick(&control<QToolButton>("BuzzBtn"), Qt::LeftButton);
    EXPECT_THAT(windows.sent(), ElementsAre(To("10.0.0.2", "!BUZZ")));
    EXPECT_TRUE(intext().textCursor().atEnd());
    EXPECT_EQ(form().focusWidget(), &intext());
}

TEST_F(FrmPrivate, TypingIsNoticedAndFollowedByTheLiveText)
{
    EXPECT_TRUE(control<QCheckBox>("livetypebtn").isChecked());
    type(QStringLiteral("twelve chars"));
    EXPECT_THAT(windows.sent(), IsEmpty());
    type(QStringLiteral("!"));
    EXPECT_THAT(windows.sent(), ElementsAre(To("10.0.0.2", "!TYPING")));
    windows.time.advance(std::chrono::milliseconds(750));
    EXPECT_THAT(windows.sent(), ElementsAre(To("10.0.0.2", "!LIVETYPE twelve chars!")));
}

TEST_F(FrmPrivate, PastingThreeThousandCharactersIsNoticedOnce)
{
    intext().insertPlainText(QString(3000, u'x'));
    EXPECT_EQ(intext().toPlainText().size(), 2000);
    EXPECT_THAT(windows.sent(), ElementsAre(To("10.0.0.2", "!TYPING")));
}

TEST_F(FrmPrivate, LiveTypeCanBeSwitchedOff)
{
    intext().setPlainText(QStringLiteral("x"));
    windows.sent();
    QTest::mouseClick(&control<QCheckBox>("livetypebtn"), Qt::LeftButton, {}, QPoint(8, 12));
    EXPECT_FALSE(control<QCheckBox>("livetypebtn").isChecked());
    EXPECT_EQ(form().focusWidget(), &intext());
    EXPECT_TRUE(intext().textCursor().atEnd());
    type(QStringLiteral("thirteen and more"));
    windows.time.advance(std::chrono::seconds(60));
    EXPECT_THAT(windows.sent(), ElementsAre(To("10.0.0.2", "!TYPING")));
}

TEST_F(FrmPrivate, ThePreviewGrowsUpwardsOverTheLogUntilTheMessageComes)
{
    auto &preview = control<QPlainTextEdit>("futuretype");
    EXPECT_FALSE(preview.isVisible());
    const QWidget &log = control<QWidget>("outtext");
    const int logsEnd = log.mapTo(&form(), QPoint(0, log.height())).y();
    for (const int length : {1, 5, 12, 150}) {
        windows.arrive("10.0.0.2", "!LIVETYPE " + std::string(std::size_t(length), 'x'));
        EXPECT_TRUE(preview.isVisible());
        EXPECT_EQ(preview.toPlainText(), QString(length, u'x'));
        const int height = qMin(67, 10 + 5 * length); // 1000 twips at most
        EXPECT_NEAR(preview.height(), height, 1) << length;
        EXPECT_NEAR(preview.geometry().bottom() + 1, logsEnd - 23, 1) << "340 twips above the log's end";
    }
    windows.arrive("10.0.0.2", "-done");
    EXPECT_FALSE(preview.isVisible());
    windows.arrive("10.0.0.2", "!LIVETYPE more");
    EXPECT_TRUE(preview.isVisible());
    windows.arrive("10.0.0.2", "!LIVETYPE ");
    EXPECT_FALSE(preview.isVisible());
}

TEST_F(FrmPrivate, ThePreviewCoversNoLineOfTheLog)
{
    auto &preview = control<QPlainTextEdit>("futuretype");
    auto &log = control<QTextEdit>("outtext");
    const int room = log.viewport()->height();
    windows.arrive("10.0.0.2", "!LIVETYPE what is being typed");
    const auto seen = [&preview] { return preview.mask().boundingRect().translated(preview.pos()); };
    EXPECT_LE(log.viewport()->mapTo(&form(), QPoint(0, log.viewport()->height())).y(), seen().top());
    windows.arrive("10.0.0.2", "!LIVETYPE " + std::string(190, 'x'));
    EXPECT_LE(log.viewport()->mapTo(&form(), QPoint(0, log.viewport()->height())).y(), seen().top());
    windows.arrive("10.0.0.2", "-done");
    EXPECT_EQ(log.viewport()->height(), room);
}

TEST_F(FrmPrivate, ThePreviewIsSeenAsHighAsItsTextAndTakesNoMoreOfTheLog)
{
    auto &preview = control<QPlainTextEdit>("futuretype");
    const int room = outtext().viewport()->height();
    const int line = preview.fontMetrics().lineSpacing();
    const auto seen = [&preview] { return preview.mask().boundingRect().height(); };
    windows.arrive("10.0.0.2", "!LIVETYPE what is being typed");
    EXPECT_GE(seen(), line);
    EXPECT_LT(seen(), 2 * line);
    EXPECT_EQ(preview.viewport()->height(), seen());
    EXPECT_LT(room - outtext().viewport()->height(), 2 * line + 35);
    const int one = seen();
    windows.arrive("10.0.0.2", "!LIVETYPE " + std::string(120, 'w'));
    EXPECT_GT(seen(), one);
    EXPECT_LE(seen(), preview.height());
    windows.arrive("10.0.0.2", "!LIVETYPE short again");
    EXPECT_EQ(seen(), one);
}

TEST_F(FrmPrivate, TheBandKeepsItsDistanceFromTheHead)
{
    windows.arrive("10.0.0.2", "!OFFLINE 10.0.0.2 PC Ann");
    QCoreApplication::processEvents();
    const auto &details = control<QLabel>("peerDetails"), &band = control<QLabel>("peerBand");
    const int end = details.mapTo(&form(), QPoint(0, details.height())).y();
    EXPECT_GE(band.mapTo(&form(), QPoint()).y() - end, 6);
}

TEST_F(FrmPrivate, TheEmojiLeaveFiveLinesOfTheLog)
{
    if (!EmojiTable::isThere())
        GTEST_SKIP() << "built without emoji";
    form().resize(380, 330);
    EXPECT_TRUE(becomes([&] { return form().size() == QSize(380, 330); }));
    for (int i = 0; i < 20; ++i)
        windows.arrive("10.0.0.2", "-hello");
    control<QToolButton>("Emoticbtn").click();
    const auto linesSeen = [this] {
        int lines = 0;
        for (QTextBlock line = outtext().document()->begin(); line.isValid(); line = line.next()) {
            const QRect place = outtext().cursorRect(QTextCursor(line));
            lines += line.length() > 1 && place.top() >= 0 && place.bottom() < outtext().viewport()->height() ? 1 : 0;
        }
        return lines;
    };
    EXPECT_TRUE(QTest::qWaitFor([&linesSeen] { return linesSeen() >= 5; })) << linesSeen();
    control<QToolButton>("Emoticbtn").click();
    EXPECT_TRUE(QTest::qWaitFor([this] { return form().size() == QSize(380, 330); }));
}

TEST_F(FrmPrivate, APreviewThatNobodyGoesOnWithGoesAfterHalfAMinute)
{
    auto &preview = control<QPlainTextEdit>("futuretype");
    windows.arrive("10.0.0.2", "!LIVETYPE begun");
    windows.time.advance(std::chrono::milliseconds(29'900));
    EXPECT_TRUE(preview.isVisible());
    windows.arrive("10.0.0.2", "!LIVETYPE begun anew");
    windows.time.advance(std::chrono::milliseconds(29'900));
    EXPECT_TRUE(preview.isVisible());
    windows.time.advance(std::chrono::milliseconds(200));
    EXPECT_FALSE(preview.isVisible());
}

TEST_F(FrmPrivate, ThePreviewShowsMarkupAsText)
{
    windows.arrive("10.0.0.2", "!LIVETYPE <b>x</b>");
    EXPECT_EQ(control<QPlainTextEdit>("futuretype").toPlainText(), QStringLiteral("<b>x</b>"));
}

TEST_F(FrmPrivate, TheAvatarPanelAsksAndShows)
{
    auto &panel = control<QWidget>("Avatarframe");
    EXPECT_FALSE(panel.isVisible());
    QTest::mouseClick(&control<QToolButton>("AvatarBtn"), Qt::LeftButton);
    EXPECT_TRUE(panel.isVisible());
    EXPECT_THAT(windows.sent(), ElementsAre(To("10.0.0.2", "?AVATARHEAD")));
    std::string body;
    for (int i = 0; i < 2500; ++i)
        body += std::string("\xC0\x80\x01"); // blue, green, red
    windows.arrive("10.0.0.2", "!AVATARHEAD today");
    windows.arrive("10.0.0.2", "!AVATARBODY " + body);
    EXPECT_EQ(control<QLineEdit>("AvatarCh").text(), QStringLiteral("today"));
    EXPECT_FALSE(control<QLineEdit>("AvatarCh").isVisible());
    auto &picture = control<AvatarPicture>("Picture1");
    EXPECT_TRUE(picture.hasPicture());
    EXPECT_EQ(picture.grab().toImage().pixelColor(50, 50), QColor(0x01, 0x80, 0xC0));
    windows.arrive("10.0.0.2", "!AVATAROFF");
    EXPECT_FALSE(picture.hasPicture());
    windows.sent();
    QTest::mouseClick(&control<QToolButton>("AvatarBtn"), Qt::LeftButton);
    EXPECT_FALSE(panel.isVisible());
    EXPECT_THAT(windows.sent(), IsEmpty()) << "hiding asks nothing";
}

TEST_F(FrmPrivate, TheMoodPanelTogglesAndReturnsToTheInput)
{
    auto &gauge = control<MoodGauge>("mymoodpct");
    intext().setPlainText(QStringLiteral("text"));
    windows.sent();
    QTest::mouseClick(&control<QToolButton>("moodbtn"), Qt::LeftButton);
    EXPECT_TRUE(gauge.isVisible());
    EXPECT_EQ(form().focusWidget(), &intext());
    EXPECT_TRUE(intext().textCursor().atEnd());
    EXPECT_EQ(gauge.toolTip(), QStringLiteral("Your mood (unspecified)"));
    EXPECT_EQ(control<QWidget>("hismoodpct").toolTip(), QStringLiteral("His/her mood (unspecified)"));
    QTest::mouseClick(&control<QToolButton>("moodbtn"), Qt::LeftButton);
    EXPECT_FALSE(gauge.isVisible());
}

TEST_F(FrmPrivate, EveryClickOnTheGaugeIsAMood)
{
    QTest::mouseClick(&control<QToolButton>("moodbtn"), Qt::LeftButton);
    QCoreApplication::processEvents();
    auto &gauge = control<MoodGauge>("mymoodpct");
    for (int y = 0; y < gauge.height(); ++y) {
        QTest::mouseClick(&gauge, Qt::LeftButton, {}, QPoint(5, y));
        const std::vector<To> sent = windows.sent();
        ASSERT_EQ(sent.size(), 1u) << y;
        const double value = std::stod(sent.front().bytes.substr(6));
        EXPECT_GE(value, 0);
        EXPECT_LT(value, 64);
    }
    QTest::mouseClick(&gauge, Qt::LeftButton, {}, QPoint(5, 80));
    EXPECT_THAT(windows.sent(), ElementsAre(To("10.0.0.2", "!MOOD 40")));
    EXPECT_EQ(gauge.toolTip(), QStringLiteral("Your mood (Mainly Yellow)"));
    EXPECT_FALSE(gauge.mood()->bright);
    QTest::mouseClick(&gauge, Qt::LeftButton, {}, QPoint(5, 82));
    EXPECT_TRUE(gauge.mood()->bright);
    windows.sent();
    QTest::mouseClick(&gauge, Qt::RightButton, {}, QPoint(5, 10));
    EXPECT_THAT(windows.sent(), IsEmpty());
}

TEST_F(FrmPrivate, ThePeersMoodIsOnItsGauge)
{
    windows.arrive("10.0.0.2", "!MOOD 50");
    auto &gauge = control<MoodGauge>("hismoodpct");
    EXPECT_EQ(gauge.toolTip(), QStringLiteral("His/her mood (Red)"));
    EXPECT_EQ(gauge.mood()->value, 50);
    windows.arrive("10.0.0.2", "!MOOD 64");
    EXPECT_EQ(gauge.mood()->value, 50);
    windows.sent();
    QTest::mouseClick(&gauge, Qt::LeftButton, {}, QPoint(5, 5));
    EXPECT_THAT(windows.sent(), IsEmpty()) << "nobody sets another's mood";
}

TEST_F(FrmPrivate, PanelsOpenWithoutMovingTheReadersPlace)
{
    for (int i = 0; i < 60; ++i)
        windows.arrive("10.0.0.2",
                       "-a line that is long enough to be broken once the log becomes narrower by a panel beside it");
    const auto firstLine = [this] { return outtext().cursorForPosition(QPoint(4, 4)).block().blockNumber(); };
    QScrollBar &bar = *outtext().verticalScrollBar();
    bar.setValue(0);
    bar.setValue(outtext().cursorRect(QTextCursor(outtext().document()->findBlockByNumber(20))).top());
    const int before = firstLine();
    ASSERT_EQ(before, 20);
    QTest::mouseClick(&control<QToolButton>("moodbtn"), Qt::LeftButton);
    QCoreApplication::processEvents();
    EXPECT_EQ(firstLine(), before);
    QTest::mouseClick(&control<QToolButton>("moodbtn"), Qt::LeftButton);
    QCoreApplication::processEvents();
    EXPECT_EQ(firstLine(), before);
}

TEST_F(FrmPrivate, TenThousandMutatedSignalsLeaveTheWindowWorking)
{
    const std::array seeds = {std::string("!TYPING"),
                              std::string("!LIVETYPE hello there"),
                              std::string("!BUZZ"),
                              std::string("!MOOD 12.5"),
                              std::string("!AVATARHEAD WEBCAM 12"),
                              "!AVATARBODY " + std::string(7500, 'x'),
                              std::string("!AVATAROFF"),
                              std::string("?AVATARHEAD"),
                              std::string("?AVATARBODY"),
                              std::string("!USER 10.1.1.1 PC Cleo")};
    std::mt19937 random(20261121); // the same in every run
    const auto below = [&random](std::size_t end) { return std::size_t(random()) % end; };
    for (int i = 0; i < 10000; ++i) {
        std::string bytes = seeds[below(seeds.size())];
        for (std::size_t change = below(4); change-- > 0 && !bytes.empty();) {
            const std::size_t at = below(bytes.size());
            switch (below(3)) {
            case 0:
                bytes[at] = static_cast<char>(below(256));
                break;
            case 1:
                bytes.erase(at, 1 + below(8));
                break;
            default:
                bytes.insert(at, std::string(1 + below(8), static_cast<char>(below(256))));
            }
        }
        windows.socket.arrive(QStringLiteral("10.0.0.2"), bytes);
        if (i % 100 == 0)
            QCoreApplication::processEvents();
    }
    windows.time.advance(std::chrono::seconds(10));
    windows.arrive("10.0.0.2", "-still here");
    EXPECT_EQ(lastLogLine().section(u'>', 1), QStringLiteral(" still here"));
    windows.arrive("10.0.0.2", "!MOOD 20");
    EXPECT_EQ(control<MoodGauge>("hismoodpct").mood()->value, 20);
}

TEST_F(FrmPrivate, ThePickerOffersNineFacesWithTheirTexts)
{
    auto &picker = control<QListWidget>("ListViewEmot");
    EXPECT_FALSE(picker.isVisible());
    QTest::mouseClick(&control<QToolButton>("Emoticbtn"), Qt::LeftButton);
    EXPECT_TRUE(picker.isVisible());
    const std::vector<std::pair<const char *, const char *>> items
        = {{":)", "i1"}, {":))", "i7"}, {":D", "i9"}, {";)", "i5"}, {":p", "i4"},
           {";p", "i6"}, {":|", "i3"},  {":(", "i2"}, {":((", "i8"}};
    ASSERT_EQ(picker.count(), 9);
    for (int i = 0; i < 9; ++i) {
        EXPECT_EQ(picker.item(i)->text(), QLatin1String(items[std::size_t(i)].first));
        EXPECT_EQ(picker.item(i)->data(Qt::UserRole).toString(), QLatin1String(items[std::size_t(i)].second));
        EXPECT_EQ(picker.item(i)->icon().pixmap(24).size(), QSize(24, 24));
    }
    QTest::mouseClick(&control<QToolButton>("Emoticbtn"), Qt::LeftButton);
    EXPECT_FALSE(picker.isVisible());
}

TEST_F(FrmPrivate, APickedEmoticonGoesToTheEndOfTheInput)
{
    QTest::mouseClick(&control<QToolButton>("Emoticbtn"), Qt::LeftButton);
    QCoreApplication::processEvents();
    intext().setPlainText(QStringLiteral("well\ndone"));
    intext().moveCursor(QTextCursor::Start);
    auto &picker = control<QListWidget>("ListViewEmot");
    for (const int item : {2, 8})
        QTest::mouseClick(picker.viewport(), Qt::LeftButton, {}, picker.visualItemRect(picker.item(item)).center());
    EXPECT_EQ(intext().toPlainText(), QStringLiteral("well\ndone:D:(("));
    EXPECT_TRUE(intext().textCursor().atEnd());
    EXPECT_EQ(form().focusWidget(), &intext());
}

TEST_F(FrmPrivate, OpeningThePickerKeepsTheReadersPlace)
{
    for (int i = 0; i < 60; ++i)
        windows.arrive("10.0.0.2", "-line");
    QScrollBar &bar = *outtext().verticalScrollBar();
    QTest::mouseClick(&control<QToolButton>("Emoticbtn"), Qt::LeftButton);
    QCoreApplication::processEvents();
    EXPECT_EQ(bar.value(), bar.maximum()) << "who reads the end goes on reading it";
    QTest::mouseClick(&control<QToolButton>("Emoticbtn"), Qt::LeftButton);
    bar.setValue(50);
    QTest::mouseClick(&control<QToolButton>("Emoticbtn"), Qt::LeftButton);
    QCoreApplication::processEvents();
    EXPECT_EQ(bar.value(), 50);
}

TEST_F(FrmPrivate, EmoticonsBecomePicturesInTheLogOnly)
{
    type(QStringLiteral("hi :)"));
    EXPECT_EQ(intext().toPlainText(), QStringLiteral("hi :)"));
    QTest::keyClick(&intext(), Qt::Key_Return);
    EXPECT_THAT(windows.sent(), ElementsAre(To("10.0.0.2", "-hi :)")));
    EXPECT_EQ(lastLogLine(), QStringLiteral("Me> hi \uFFFC"));
}

TEST_F(FrmPrivate, AClickOnAReceivedAddressOpensIt)
{
    windows.arrive("10.0.0.2", "-see http://fileserver/plans (new)");
    const auto clickAt = [this](const QString &word) {
        QTextCursor cursor = outtext().document()->find(word);
        cursor.setPosition(cursor.selectionStart() + 1);
        QTest::mouseClick(outtext().viewport(), Qt::LeftButton, {}, outtext().cursorRect(cursor).center());
    };
    clickAt(QStringLiteral("see"));
    EXPECT_THAT(windows.links.opened, IsEmpty());
    clickAt(QStringLiteral("fileserver"));
    EXPECT_THAT(windows.links.opened, ElementsAre("http://fileserver/plans"));
}

TEST_F(FrmPrivate, NothingButWebAddressesIsEverOpened)
{
    for (const char *text : {"file:///etc/passwd", "javascript:alert(1)", "\\\\server\\share", "smb://server/share",
                             "http://ann@bank.example", "data:text/html,x"})
        windows.arrive("10.0.0.2", std::string("-") + text);
    for (QTextBlock line = outtext().document()->begin(); line.isValid(); line = line.next()) {
        for (auto it = line.begin(); !it.atEnd(); ++it)
            EXPECT_FALSE(it.fragment().charFormat().isAnchor()) << it.fragment().text().toStdString();
    }
}

TEST_F(FrmPrivate, ABuzzStandsInTheLogAndInTheSecondPanel)
{
    windows.arrive("10.0.0.2", "!BUZZ");
    EXPECT_EQ(lastLogLine(), QStringLiteral("BUZZ!"));
    EXPECT_EQ(control<QLabel>("StatusBar_2").text(), QStringLiteral("Ann is buzzing you..."));
    windows.time.advance(std::chrono::milliseconds(2500));
    EXPECT_EQ(control<QLabel>("StatusBar_2").text(), QString());
}

TEST_F(FrmPrivate, ALongNameDoesNotWidenTheWindow)
{
    windows.arrive("10.0.0.2", "!ONLINE 10.0.0.2 PC " + std::string(255, 'W'));
    windows.arrive("10.0.0.2", "!TYPING");
    QCoreApplication::processEvents();
    EXPECT_EQ(form().width(), 600);
    EXPECT_LE(form().minimumSizeHint().width(), 600);
}

TEST_F(FrmPrivate, TheFontIsTheStoredOne)
{
    windows.common.logFont = {QStringLiteral("no such face"), 14, QStringLiteral("bi")};
    QTest::mouseClick(&control<QToolButton>("clearbtn"), Qt::LeftButton);
    EXPECT_EQ(intext().font().pointSize(), 14);
    EXPECT_TRUE(intext().font().bold());
    EXPECT_TRUE(intext().font().italic());
    EXPECT_EQ(windows.common.logFont.face, QStringLiteral("no such face"));
}

TEST_F(FrmPrivate, AClosedWindowOpensInTheFontThatWasChosenMeanwhile)
{
    const auto sizes = [this] { return std::pair(intext().font().pointSize(), outtext().font().pointSize()); };
    const std::pair usual = sizes();
    windows.common.logFont = {QStringLiteral("no such face"), 14, {}};
    windows.doubleClick(0);
    EXPECT_EQ(sizes(), usual) << "open ones keep theirs";
    form().close();
    ASSERT_TRUE(form().isHidden());
    windows.doubleClick(0);
    EXPECT_EQ(sizes(), std::pair(14, 14));
    form().close();
    windows.common.logFont = {QStringLiteral("no such face"), 11, {}};
    windows.arrive("10.0.0.2", "-hello");
    ASSERT_FALSE(form().isHidden());
    EXPECT_EQ(sizes(), std::pair(11, 11)) << "also when a message opens it";
}

TEST_F(FrmPrivate, WithoutAStoredFontTheInputFollowsTheDesktopsWhenThatChanges)
{
    const QFont usual = QApplication::font();
    QFont large = usual;
    large.setPointSize(16);
    QApplication::setFont(large);
    QCoreApplication::processEvents();
    EXPECT_EQ(intext().font().pointSize(), 16);
    QApplication::setFont(usual);
    QCoreApplication::processEvents();
    EXPECT_EQ(intext().font().pointSize(), usual.pointSize());
}

TEST(FrmPrivateFromAPeer, IsMinimisedByDefaultAndNormalOnTopByOption)
{
    RealWindows windows{{{"10.0.0.2", "Ann"}, {"10.0.0.3", "Ben"}}};
    windows.settleStart({"10.0.0.2", "10.0.0.3"});
    windows.arrive("10.0.0.2", "-hello");
    EXPECT_TRUE(windows.privateWindow().isMinimized());
    windows.common.options.privateWindowsOnTop = true;
    windows.arrive("10.0.0.3", "-hello");
    const std::vector<QWidget *> both = RealWindows::privateWindows();
    ASSERT_EQ(both.size(), 2u);
    const bool firstIsBen = both[0]->windowTitle().startsWith(QLatin1String("Ben"));
    QWidget &ben = *both[firstIsBen ? 0 : 1];
    EXPECT_TRUE(ben.isVisible());
    EXPECT_FALSE(ben.isMinimized());
}

} // namespace
} // namespace nimb::test
