#include "real_windows.h"

#include "private/rich_text_log.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTextBlock>
#include <QToolButton>

namespace nimb::test
{
namespace
{

using testing::ElementsAre;
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
    QString lastLogLine() { return outtext().toPlainText().trimmed().section(u'\n', -1); }
    QColor colourOfLine(int line)
    {
        return outtext().document()->findBlockByNumber(line).begin().fragment().charFormat().foreground().color();
    }

    RealWindows windows{{{"10.0.0.2", "Ann"}}};
};

TEST_F(FrmPrivate, BearsItsPrescribedNamesAndCaptions)
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
    windows.common.options.DontDestroyWindow = 1;
    form().close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_THAT(RealWindows::privateWindows(), IsEmpty());
    EXPECT_EQ(windows.list().model()->index(0, 4).data().toString(), QString());
    windows.arrive("10.0.0.2", "-back");
    EXPECT_EQ(outtext().document()->blockCount(), 3);
    EXPECT_EQ(windows.list().model()->index(0, 4).data().toString(), QStringLiteral("2"));
}

TEST_F(FrmPrivate, FeaturesThatAreNotThereAreDisabled)
{
    for (const char *name : {"BuzzBtn", "moodbtn", "AvatarBtn", "livetypebtn"})
        EXPECT_FALSE(control<QWidget>(name).isEnabled()) << name;
    EXPECT_FALSE(control<QWidget>("futuretype").isVisible());
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

TEST(FrmPrivateFromAPeer, IsMinimisedByDefaultAndNormalOnTopByOption)
{
    RealWindows windows{{{"10.0.0.2", "Ann"}, {"10.0.0.3", "Ben"}}};
    windows.settleStart({"10.0.0.2", "10.0.0.3"});
    windows.arrive("10.0.0.2", "-hello");
    EXPECT_TRUE(windows.privateWindow().isMinimized());
    windows.common.options.PrivateBehaviour = 1;
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
