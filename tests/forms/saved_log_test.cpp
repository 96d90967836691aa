// A log as a file and on paper.
#include "log/saved_log.h"

#include "base/rich_text.h"
#include "log/emoticons.h"
#include "log/rich_text_log.h"
#include "print_qt.h"

#include <gmock/gmock.h>

#include <QFile>
#include <QFileDialog>
#include <QMessageBox>
#include <QPdfWriter>
#include <QPrintDialog>
#include <QTemporaryDir>

namespace nimb::test
{
namespace
{

using testing::HasSubstr;
using testing::Not;

class SavedLogTest : public testing::Test
{
protected:
    SavedLogTest()
    {
        log.setLinkDetection(true);
        log.setWindowTitle(QStringLiteral("Chat: Ann/Ben?"));
        appendText(log, QStringLiteral("Opened\r\n"), 0x808080);
    }
    void message(const QString &writer, const QString &text, const QTime &time, bool isOwn = false)
    {
        log.setSelMessage(LogMessage{.writer = writer, .time = {day, time}, .isOwn = isOwn});
        log.setSelBold(true);
        appendText(log, writer + QStringLiteral("> "), 0xC00000);
        log.setSelBold(false);
        AddTextWithEmoticons(log, text, 0xC00000);
        appendText(log, QStringLiteral("\r\n"), 0xC00000);
        log.setSelMessage({});
    }
    const QTextDocument &document()
    {
        log.writeGathered();
        return *log.document();
    }
    QByteArray saved(const QString &name)
    {
        const QString path = folder.filePath(name);
        EXPECT_EQ(saveLog(document(), title, path), QString());
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    QAction &entry(const char *name) { return *log.findChild<QAction *>(QLatin1String(name)); }

    const QDate day{2026, 11, 21};
    const QString title = QStringLiteral("Chat with <Ann>");
    const QTemporaryDir folder;
    RichTextLogEdit log;
};

TEST_F(SavedLogTest, AsTextHasDaysTimesAndWhatPicturesStandFor)
{
    message(QStringLiteral("Ann"), QStringLiteral("Hi :) there"), QTime(9, 5));
    message(QStringLiteral("Ann"), QStringLiteral("again"), QTime(9, 5, 30));
    message(QStringLiteral("Me"), QStringLiteral("yes"), QTime(21, 30), true);
    EXPECT_EQ(saved(QStringLiteral("a.txt")),
              "       Opened\n"
              "\nSaturday, 21 November\n"
              "09:05  Ann> Hi :) there\n"
              "       Ann> again\n"
              "21:30  Me> yes\n");
}

TEST_F(SavedLogTest, AsTextHasNoColumnWhereNothingHasATime)
{
    EXPECT_EQ(saved(QStringLiteral("a.txt")), "Opened\n");
}

TEST_F(SavedLogTest, AsPageTakesNothingThatSomebodyWroteForMarkup)
{
    message(QStringLiteral("A<b>"), QStringLiteral("</p><script>alert(1)</script> & \"x\""), QTime(9, 5));
    const std::string page = saved(QStringLiteral("a.html")).toStdString();
    EXPECT_THAT(page, HasSubstr("<title>Chat with &lt;Ann&gt;</title>"));
    EXPECT_THAT(page, HasSubstr("<b>A&lt;b&gt;&gt; </b>"));
    EXPECT_THAT(page, HasSubstr("&lt;/p&gt;&lt;script&gt;alert(1)&lt;/script&gt; &amp; &quot;x&quot;"));
    EXPECT_THAT(page, Not(HasSubstr("<script")));
    EXPECT_THAT(page, HasSubstr("<span class=\"time\">09:05</span>"));
    EXPECT_THAT(page, HasSubstr("<p class=\"day\">Saturday, 21 November</p>"));
}

TEST_F(SavedLogTest, AsPageHasLinksAndMarksOwnMessages)
{
    message(QStringLiteral("Me"), QStringLiteral("see http://example.org/?a=\"b&c=d or ann@example.org"), QTime(9, 5),
            true);
    const std::string page = saved(QStringLiteral("a.HTM")).toStdString();
    EXPECT_THAT(page, HasSubstr("<p class=\"own\">"));
    EXPECT_THAT(page, HasSubstr("<a href=\"mailto:ann@example.org\">ann@example.org</a>"));
    EXPECT_THAT(page, HasSubstr("<a href=\"http://example.org/?a=\">http://example.org/?a=</a>"));
}

TEST_F(SavedLogTest, AsPageOfADarkDesktopHasTheColoursThatAreMeantOnWhite)
{
    QPalette dark;
    dark.setColor(QPalette::Base, QColor(30, 30, 30));
    dark.setColor(QPalette::WindowText, Qt::white);
    log.setPalette(dark);
    appendText(log, QStringLiteral("own\r\n"), logColour(Qt::white));
    appendText(log, QStringLiteral("received\r\n"), 0xC00000);
    const std::string page = saved(QStringLiteral("a.html")).toStdString();
    EXPECT_THAT(page, HasSubstr("<p>own</p>"));
    EXPECT_THAT(page, HasSubstr("<span style=\"color:#0000c0\">received</span>"));
}

TEST_F(SavedLogTest, ACommandOfTheProgramBecomesNoLink)
{
    log.setSelCommand(QStringLiteral("doctor"));
    appendText(log, QStringLiteral("Network doctor"), 0);
    log.setSelCommand({});
    appendText(log, QStringLiteral("\r\n"), 0);
    EXPECT_THAT(saved(QStringLiteral("a.html")).toStdString(), Not(HasSubstr("href")));
}

TEST_F(SavedLogTest, SaysWhatKeepsItFromBeingWritten)
{
    EXPECT_FALSE(saveLog(document(), title, QStringLiteral("/nowhere/a.txt")).isEmpty());
}

TEST_F(SavedLogTest, IsPrintedOnAsManyPagesAsItNeeds)
{
    for (int i = 0; i < 200; ++i)
        message(QStringLiteral("Ann"), QStringLiteral("line %1").arg(i), QTime(9, 5));
    const QString path = folder.filePath(QStringLiteral("a.pdf"));
    {
        QPdfWriter paper(path);
        printLog(document(), title, paper);
    }
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray bytes = file.readAll();
    EXPECT_TRUE(bytes.startsWith("%PDF-"));
    EXPECT_GE(bytes.count("/Type /Page\n"), 3);
}

TEST_F(SavedLogTest, TheMenuAsksWhereAndWritesThere)
{
    message(QStringLiteral("Ann"), QStringLiteral("Hi"), QTime(9, 5));
    entry("logSave").trigger();
    auto *const dialog = log.findChild<QFileDialog *>();
    ASSERT_TRUE(dialog);
    EXPECT_EQ(dialog->acceptMode(), QFileDialog::AcceptSave);
    EXPECT_EQ(dialog->selectedFiles().value(0).section(u'/', -1), QStringLiteral("Chat- Ann-Ben-.txt"));
    Q_EMIT dialog->filterSelected(dialog->nameFilters().last());
    EXPECT_EQ(dialog->defaultSuffix(), QStringLiteral("html"));
    const QString path = folder.filePath(QStringLiteral("b.txt"));
    Q_EMIT dialog->fileSelected(path);
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_THAT(file.readAll().toStdString(), HasSubstr("Ann> Hi\n"));
    Q_EMIT dialog->fileSelected(QStringLiteral("/nowhere/b.txt"));
    const auto *const box = log.findChild<QMessageBox *>();
    ASSERT_TRUE(box);
    EXPECT_THAT(box->text().toStdString(), testing::StartsWith("b.txt cannot be written: "));
}

TEST_F(SavedLogTest, AFileIsCalledAfterThoseWhoTalked)
{
    log.setWindowTitle(QStringLiteral("Ann - NIMB-Chat - Private Chat Window"));
    entry("logSave").trigger();
    const auto *const dialog = log.findChild<QFileDialog *>();
    ASSERT_TRUE(dialog);
    EXPECT_EQ(dialog->selectedFiles().value(0).section(u'/', -1), QStringLiteral("Ann.txt"));
}

TEST_F(SavedLogTest, TheMenuAsksHowToPrint)
{
    entry("logPrint").trigger();
    const auto *const dialog = log.findChild<QPrintDialog *>();
    ASSERT_TRUE(dialog);
    EXPECT_TRUE(dialog->isVisible());
}

} // namespace
} // namespace nimb::test
