// Files in the windows: sending them, what others offer, and the window of transfers.
#include "controls.h"
#include "conversation/file_panel.h"
#include "conversation/small_picture.h"
#include "private_chat/private_windows.h"
#include "real_windows.h"

#include <gmock/gmock.h>

#include <QClipboard>
#include <QComboBox>
#include <QDropEvent>
#include <QFileDialog>
#include <QLabel>
#include <QMenu>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QScrollArea>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QToolButton>

#include <sys/stat.h>

namespace nimb::test
{
namespace
{

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;
using What = FetchedBytes::What;

const std::string annsPlan = "-Plan.pdf (2.3 MB) http://10.0.0.2:5549/0123456789abcdef0123456789abcdef/Plan.pdf";
const std::string annsPicture = "-a.png (2 bytes) http://10.0.0.2:5549/0123456789abcdef0123456789abcdef/a.png";

/// One of very few bytes, however large.
QString onePicture(const QTemporaryDir &folder, QSize size)
{
    QImage picture(size, QImage::Format_Mono);
    picture.fill(1);
    const QString path = folder.filePath(QStringLiteral("%1.png").arg(size.width()));
    EXPECT_TRUE(picture.save(path));
    return path;
}

class FilesInWindows : public testing::Test
{
protected:
    FilesInWindows()
    {
        windows.settleStart({"10.0.0.2"});
        windows.doubleClick(0);
        windows.sent();
        form().show();
    }

    QWidget &form() { return windows.privateWindow(); }
    template <class Widget = QWidget> Widget &control(const char *name) { return controlOf<Widget>(form(), name); }
    ReceivedFiles &received() { return windows.engine.transfers().received; }
    QStringList paths() const
    {
        QStringList all;
        for (const ServedFile &file : windows.fileServer.served)
            all += file.path;
        return all;
    }
    std::vector<FileRow *> rows()
    {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        const QList<FileRow *> found = form().findChildren<FileRow *>();
        return {found.begin(), found.end()};
    }
    static bool isShown(FileRow &row, const char *name) { return controlOf(row, name).isVisibleTo(&row); }
    /// What is dropped there; true where it was taken.
    static bool drop(QWidget &place, const QList<QUrl> &urls, const QString &text = {})
    {
        QMimeData data;
        if (!urls.isEmpty())
            data.setUrls(urls);
        if (!text.isEmpty())
            data.setText(text);
        QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, {});
        QCoreApplication::sendEvent(&place, &enter);
        QDropEvent event(QPointF(5, 5), Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, {});
        event.setDropAction(Qt::MoveAction);
        QCoreApplication::sendEvent(&place, &event);
        QCoreApplication::processEvents();
        return event.isAccepted() && event.dropAction() == Qt::CopyAction;
    }
    QFileDialog &dialog()
    {
        for (QWidget *const window : QApplication::topLevelWidgets()) {
            if (auto *const found = qobject_cast<QFileDialog *>(window); found && found->isVisible())
                return *found;
        }
        qFatal("no dialog");
    }
    QWidget &transfers()
    {
        windows.entry("mnuTransfers").trigger();
        for (QWidget *const window : QApplication::topLevelWidgets()) {
            if (window->objectName() == QLatin1String("frmTransfers") && window->isVisible())
                return *window;
        }
        qFatal("no window of transfers");
    }
    /// The same file from Ann, each with another token.
    void receiveAnother(int which)
    {
        std::string another = annsPlan;
        another[another.rfind('/') - 1] = static_cast<char>('0' + which);
        windows.arrive("10.0.0.2", another);
    }
    void tell(const FetchedBytes &fetched) { windows.fileFetcher.told(fetched); }

    QFile slow; ///< a pipe that is read, which waits for whoever writes
    RealWindows windows{{{"10.0.0.2", "Ann"}}};
    QTemporaryDir folder;
};

// --- sending

TEST_F(FilesInWindows, AFileIsDroppedAnywhereOnTheWindow)
{
    const QList<QUrl> file{QUrl::fromLocalFile(QStringLiteral("/media/me/a b.txt"))};
    EXPECT_TRUE(drop(form(), file));
    EXPECT_TRUE(drop(*control<QPlainTextEdit>("intext").viewport(), file));
    EXPECT_TRUE(drop(*control<QTextEdit>("outtext").viewport(), file));
    EXPECT_EQ(paths(), QStringList(3, QStringLiteral("/media/me/a b.txt")));
    EXPECT_EQ(control<QPlainTextEdit>("intext").toPlainText(), QString());
    const std::vector<To> sent = windows.sent();
    ASSERT_THAT(sent, SizeIs(3));
    EXPECT_THAT(sent.front().bytes,
                testing::MatchesRegex("-a b\\.txt \\(2\\.3 MB\\) http://10\\.0\\.0\\.1:5549/[0-9a-f]{32}/a%20b\\.txt"));
    EXPECT_THAT(windows.prompts.asked, SizeIs(1)) << "once for all";
}

TEST_F(FilesInWindows, ATextThatIsDroppedStaysAText)
{
    drop(*control<QPlainTextEdit>("intext").viewport(), {}, QStringLiteral("hello"));
    EXPECT_EQ(control<QPlainTextEdit>("intext").toPlainText(), QStringLiteral("hello"));
    drop(*control<QPlainTextEdit>("intext").viewport(), {QUrl(QStringLiteral("http://10.0.0.9/"))});
    EXPECT_THAT(paths(), IsEmpty());
}

TEST_F(FilesInWindows, TheToolAsksForFiles)
{
    QFile one(folder.filePath(QStringLiteral("one")));
    ASSERT_TRUE(one.open(QIODevice::WriteOnly));
    control<QToolButton>("sendFileBtn").click();
    dialog().selectFile(one.fileName());
    dialog().setDirectory(folder.path());
    QMetaObject::invokeMethod(&dialog(), "filesSelected", Q_ARG(QStringList, {one.fileName()}));
    QCoreApplication::processEvents();
    EXPECT_EQ(paths(), QStringList{one.fileName()});
}

TEST_F(FilesInWindows, WhatIsSaidBeforeTheFirstFileDoesNotStandOverTheDialogThatChoseIt)
{
    QFile one(folder.filePath(QStringLiteral("one")));
    ASSERT_TRUE(one.open(QIODevice::WriteOnly));
    control<QToolButton>("sendFileBtn").click();
    QFileDialog &files = dialog();
    files.setDirectory(folder.path());
    files.selectFile(one.fileName());
    QMetaObject::invokeMethod(&files, "accept");
    EXPECT_FALSE(files.isVisible());
    EXPECT_THAT(windows.prompts.asked, IsEmpty());
    QCoreApplication::processEvents();
    EXPECT_THAT(windows.prompts.asked, SizeIs(1));
    EXPECT_EQ(paths(), QStringList{one.fileName()});
}

TEST_F(FilesInWindows, TheToolHasAMenuWithFoldersForMouseAndKeyboard)
{
    auto &tool = control<QToolButton>("sendFileBtn");
    form().activateWindow();
    tool.setFocus();
    ASSERT_TRUE(QTest::qWaitFor([&] { return tool.hasFocus(); }));
    QStringList entries;
    // The menu has an event loop of its own.
    QTimer::singleShot(0, &tool, [&] {
        auto *const menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        ASSERT_TRUE(menu);
        for (const QAction *const action : menu->actions())
            entries += action->text();
        QTest::keyClick(menu, Qt::Key_D);
    });
    QTest::keyClick(&tool, Qt::Key_Down);
    EXPECT_EQ(entries, (QStringList{QStringLiteral("Send Fil&es..."), QStringLiteral("Send a Fol&der...")}));
    QMetaObject::invokeMethod(&dialog(), "fileSelected", Q_ARG(QString, folder.path()));
    QCoreApplication::processEvents();
    EXPECT_EQ(paths(), QStringList{folder.path()});
}

TEST_F(FilesInWindows, TheContextMenuOfAContactSendsFiles)
{
    form().close();
    windows.click(0, Qt::RightButton);
    EXPECT_TRUE(windows.entry("mnuSendFile").isVisible());
    windows.entry("mnuSendFile").trigger();
    QMetaObject::invokeMethod(&dialog(), "filesSelected", Q_ARG(QStringList, {QStringLiteral("/media/me/a.txt")}));
    QCoreApplication::processEvents();
    EXPECT_EQ(paths(), QStringList{QStringLiteral("/media/me/a.txt")});
    EXPECT_THAT(windows.sent(), SizeIs(1));
    EXPECT_TRUE(windows.privateWindow().isVisible());
}

TEST_F(FilesInWindows, TheContextMenuOfTheLogSendsFilesAndFolders)
{
    auto &log = control<QTextEdit>("outtext");
    QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(5, 5), log.mapToGlobal(QPoint(5, 5)));
    QCoreApplication::sendEvent(log.viewport(), &event);
    auto *const menu = log.findChild<QMenu *>(QStringLiteral("logMenu"));
    ASSERT_TRUE(menu);
    QStringList entries;
    QString accessKeys;
    for (const QAction *const action : menu->actions()) {
        entries += action->text();
        if (const qsizetype mark = action->text().indexOf(u'&'); mark >= 0)
            accessKeys += action->text().at(mark + 1).toLower();
    }
    std::ranges::sort(accessKeys);
    EXPECT_EQ(std::ranges::adjacent_find(accessKeys), accessKeys.end()) << accessKeys.toStdString();
    EXPECT_EQ(entries.mid(entries.size() - 2),
              (QStringList{QStringLiteral("Send Fil&es..."), QStringLiteral("Send a Fol&der...")}));
    menu->actions().last()->trigger();
    menu->close();
    QMetaObject::invokeMethod(&dialog(), "fileSelected", Q_ARG(QString, folder.path()));
    QCoreApplication::processEvents();
    EXPECT_EQ(paths(), QStringList{folder.path()});
}

TEST_F(FilesInWindows, APastedPictureIsOfferedAndSentAtAClick)
{
    QImage picture(80, 60, QImage::Format_RGB32);
    picture.fill(Qt::green);
    QGuiApplication::clipboard()->setImage(picture);
    control<QPlainTextEdit>("intext").paste();
    auto &band = control<QLabel>("fileBand");
    EXPECT_TRUE(band.isVisibleTo(&form()));
    EXPECT_THAT(band.text().toStdString(), HasSubstr("A picture was pasted (80 × 60)."));
    EXPECT_THAT(paths(), IsEmpty()) << "not by itself";
    Q_EMIT band.linkActivated(QStringLiteral("send"));
    ASSERT_THAT(paths(), SizeIs(1));
    EXPECT_EQ(QImage(paths().front()).convertToFormat(QImage::Format_RGB32), picture);
    EXPECT_FALSE(band.isVisibleTo(&form()));
}

TEST_F(FilesInWindows, APastedPictureIsLeft)
{
    QGuiApplication::clipboard()->setImage(QImage(8, 6, QImage::Format_RGB32));
    control<QPlainTextEdit>("intext").paste();
    Q_EMIT control<QLabel>("fileBand").linkActivated(QStringLiteral("no"));
    EXPECT_THAT(paths(), IsEmpty());
    EXPECT_FALSE(control<QLabel>("fileBand").isVisibleTo(&form()));
}

TEST_F(FilesInWindows, ATextThatIsPastedWithItsPictureIsAText)
{
    auto *const data = new QMimeData;
    data->setText(QStringLiteral("cells"));
    data->setImageData(QImage(8, 6, QImage::Format_RGB32));
    QGuiApplication::clipboard()->setMimeData(data);
    control<QPlainTextEdit>("intext").paste();
    EXPECT_EQ(control<QPlainTextEdit>("intext").toPlainText(), QStringLiteral("cells"));
}

TEST_F(FilesInWindows, WhatWasNotSentIsSaid)
{
    windows.fileServer.answersAtOnce = false;
    drop(form(), {QUrl::fromLocalFile(QStringLiteral("/a"))});
    windows.fileServer.readies.front()({.trouble = QStringLiteral("a <b> cannot be sent.")});
    auto &band = control<QLabel>("fileBand");
    EXPECT_TRUE(band.isVisibleTo(&form()));
    EXPECT_THAT(band.text().toStdString(), testing::StartsWith("a &lt;b&gt; cannot be sent."));
    Q_EMIT band.linkActivated(QStringLiteral("close"));
    EXPECT_FALSE(band.isVisibleTo(&form()));
}

TEST_F(FilesInWindows, SeveralTroublesAreSaidAndTheQuestionStays)
{
    drop(form(), {QUrl::fromLocalFile(QStringLiteral("/a"))});
    auto &band = control<QLabel>("fileBand");
    QGuiApplication::clipboard()->setImage(QImage(8, 6, QImage::Format_RGB32));
    control<QPlainTextEdit>("intext").paste();
    windows.fileServer.failed(windows.fileServer.served.front().token, QStringLiteral("a has changed."));
    EXPECT_EQ(
        band.text().toStdString(),
        "a has changed. <a href=\"close\">Close</a><br>"
        "A picture was pasted (8 × 6). <a href=\"send\">Send\u00A0it</a>\u00A0/ <a href=\"no\">leave\u00A0it</a>");
    Q_EMIT band.linkActivated(QStringLiteral("no"));
    EXPECT_EQ(band.text().toStdString(), "a has changed. <a href=\"close\">Close</a>");
    windows.fileServer.answersAtOnce = false;
    for (const char *const name : {"/b", "/c", "/c", "/d", "/e"}) {
        drop(form(), {QUrl::fromLocalFile(QLatin1String(name))});
        windows.fileServer.readies.back()({.trouble = QLatin1String(name) + QLatin1Char('.')});
    }
    EXPECT_EQ(band.text().toStdString(),
              "Earlier troubles with files: 2.<br>/c.<br>/d.<br>/e. <a href=\"close\">Close</a>");
    EXPECT_EQ(band.accessibleName().toStdString(), "Earlier troubles with files: 2. /c. /d. /e.");
    Q_EMIT band.linkActivated(QStringLiteral("close"));
    EXPECT_FALSE(band.isVisibleTo(&form()));
}

TEST_F(FilesInWindows, WhoeverIsOfflineGetsNoneAndNobodyHasToChooseOneFirst)
{
    windows.arrive("10.0.0.2", "!OFFLINE 10.0.0.2 PC Ann");
    const auto isAsked = [] {
        return std::ranges::any_of(QApplication::topLevelWidgets(), [](const QWidget *window) {
            return qobject_cast<const QFileDialog *>(window) && window->isVisible();
        });
    };
    auto &band = control<QLabel>("fileBand");
    const auto isSaid = [&] {
        EXPECT_TRUE(band.isVisibleTo(&form()));
        EXPECT_THAT(band.text().toStdString(),
                    testing::StartsWith("Ann is offline: files can be sent when Ann is back."));
        Q_EMIT band.linkActivated(QStringLiteral("close"));
    };
    control<QToolButton>("sendFileBtn").click();
    isSaid();
    drop(form(), {QUrl::fromLocalFile(QStringLiteral("/a"))});
    isSaid();
    QGuiApplication::clipboard()->setImage(QImage(8, 6, QImage::Format_RGB32));
    control<QPlainTextEdit>("intext").paste();
    isSaid();
    windows.click(0, Qt::RightButton);
    windows.entry("mnuSendFile").trigger();
    isSaid();
    EXPECT_FALSE(isAsked());
    EXPECT_THAT(paths(), IsEmpty());
}

TEST(FilesWithoutAServer, AreNotOfferedToBeSent)
{
    RealWindows windows{{{"10.0.0.2", "Ann"}}};
    windows.fileServer.available = false;
    windows.settleStart({"10.0.0.2"});
    windows.doubleClick(0);
    QWidget &form = windows.privateWindow();
    EXPECT_FALSE(controlOf(form, "sendFileBtn").isVisibleTo(&form));
    windows.click(0, Qt::RightButton);
    EXPECT_FALSE(windows.entry("mnuSendFile").isVisible());
    windows.arrive("10.0.0.2", annsPlan);
    EXPECT_THAT(form.findChildren<FileRow *>(), SizeIs(1)) << "others' are received";
}

// --- receiving

TEST_F(FilesInWindows, WhatIsOfferedStandsInARow)
{
    windows.arrive("10.0.0.2", annsPlan);
    ASSERT_THAT(rows(), SizeIs(1));
    FileRow &row = *rows().front();
    EXPECT_TRUE(row.isVisibleTo(&form()));
    EXPECT_EQ(controlOf<QLabel>(row, "fileName").text(), QStringLiteral("Plan.pdf (2.3 MB) from Ann"));
    EXPECT_TRUE(isShown(row, "saveBtn"));
    for (const char *const other : {"lookBtn", "pauseBtn", "resumeBtn", "openFolderBtn", "fileProgress", "fileState"})
        EXPECT_FALSE(isShown(row, other)) << other;
    EXPECT_THAT(RealWindows::logOf(form()).toPlainText().toStdString(), HasSubstr("Ann> Plan.pdf (2.3 MB) http://"));
}

TEST_F(FilesInWindows, AnOrdinaryMessageHasNoRow)
{
    windows.arrive("10.0.0.2", "-See http://10.0.0.2:5549/0123456789abcdef0123456789abcdef/Plan.pdf");
    EXPECT_THAT(rows(), IsEmpty());
}

TEST_F(FilesInWindows, AFileIsSavedWhereTheUserWants)
{
    windows.arrive("10.0.0.2", annsPlan);
    FileRow &row = *rows().front();
    controlOf<QPushButton>(row, "saveBtn").click();
    EXPECT_EQ(dialog().fileMode(), QFileDialog::Directory);
    QMetaObject::invokeMethod(&dialog(), "fileSelected", Q_ARG(QString, folder.path()));
    ASSERT_THAT(windows.fileFetcher.fetched, SizeIs(1));
    EXPECT_EQ(windows.fileFetcher.fetched.front().folder, folder.path());
    const int number = row.number();
    tell({.number = number, .what = What::running, .place = 45, .size = 100});
    EXPECT_EQ(controlOf<QProgressBar>(row, "fileProgress").value(), 45);
    EXPECT_TRUE(isShown(row, "pauseBtn"));
    EXPECT_FALSE(isShown(row, "saveBtn"));
    controlOf<QPushButton>(row, "pauseBtn").click();
    EXPECT_TRUE(isShown(row, "resumeBtn"));
    controlOf<QPushButton>(row, "resumeBtn").click();
    tell(
        {.number = number, .what = What::done, .path = folder.filePath(QStringLiteral("Plan.pdf")), .isChecked = true});
    EXPECT_EQ(controlOf<QLabel>(row, "fileState").text(), QStringLiteral("saved and checked"));
    controlOf<QPushButton>(row, "openFolderBtn").click();
    EXPECT_THAT(windows.folders.opened, ElementsAre("file://" + folder.path().toStdString()));
}

TEST_F(FilesInWindows, WhatFailsSaysWhy)
{
    windows.arrive("10.0.0.2", annsPlan);
    FileRow &row = *rows().front();
    received().save(row.number(), folder.path());
    tell({.number = row.number(), .what = What::failed, .sentence = QStringLiteral("There is too little room.")});
    EXPECT_EQ(controlOf<QLabel>(row, "fileState").text(), QStringLiteral("There is too little room."));
    EXPECT_TRUE(isShown(row, "resumeBtn"));
}

TEST_F(FilesInWindows, APictureIsShownAfterAClick)
{
    windows.arrive("10.0.0.2", annsPicture);
    FileRow &row = *rows().front();
    EXPECT_TRUE(isShown(row, "lookBtn"));
    EXPECT_THAT(windows.fileFetcher.fetched, IsEmpty());
    controlOf<QPushButton>(row, "lookBtn").click();
    ASSERT_THAT(windows.fileFetcher.fetched, SizeIs(1));
    QImage picture(1000, 500, QImage::Format_RGB32);
    picture.fill(Qt::blue);
    const QString path = folder.filePath(QStringLiteral("a.png"));
    ASSERT_TRUE(picture.save(path));
    tell({.number = row.number(), .what = What::done, .path = path, .isChecked = true});
    auto &shown = controlOf<QLabel>(row, "shownPicture");
    EXPECT_TRUE(QTest::qWaitFor([&] { return shown.isVisibleTo(&row); }));
    EXPECT_EQ(shown.pixmap().deviceIndependentSize(), QSizeF(180, 90));
    EXPECT_TRUE(isShown(row, "saveBtn"));
    EXPECT_FALSE(isShown(row, "lookBtn"));
}

TEST_F(FilesInWindows, WhatIsNoPictureIsSaidToBeNone)
{
    windows.arrive("10.0.0.2", annsPicture);
    FileRow &row = *rows().front();
    received().look(row.number(), folder.path());
    QFile file(folder.filePath(QStringLiteral("a.png")));
    // Qt could draw it, and whatever it leads to.
    const QByteArray drawing = "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"9\" height=\"9\"/>";
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(drawing) > 0);
    file.close();
    tell({.number = row.number(), .what = What::done, .path = file.fileName(), .isChecked = true});
    auto &shown = controlOf<QLabel>(row, "shownPicture");
    EXPECT_TRUE(QTest::qWaitFor([&] { return shown.isVisibleTo(&row); }));
    EXPECT_EQ(shown.text(), QStringLiteral("This is no picture that NIMB-Chat can read."));
}

TEST_F(FilesInWindows, APictureThatIsTooLargeIsNotCalledNone)
{
    windows.arrive("10.0.0.2", annsPicture);
    FileRow &row = *rows().front();
    received().look(row.number(), folder.path());
    tell({.number = row.number(), .what = What::done, .path = onePicture(folder, {5001, 5000}), .isChecked = true});
    auto &shown = controlOf<QLabel>(row, "shownPicture");
    EXPECT_TRUE(QTest::qWaitFor([&] { return shown.isVisibleTo(&row); }));
    EXPECT_EQ(shown.text(),
              QStringLiteral("This picture is too large to be shown: it has more than 25 megapixels. Save it."));
}

TEST(PictureFormat, IsToldByTheFirstBytesAndOneOfFour)
{
    EXPECT_EQ(pictureFormatOf("\x89PNG\r\n\x1A\n...."), "png");
    EXPECT_EQ(pictureFormatOf("\xFF\xD8\xFF\xE0"), "jpeg");
    EXPECT_EQ(pictureFormatOf("GIF89a"), "gif");
    EXPECT_EQ(pictureFormatOf("RIFF1234WEBP"), "webp");
    for (const char *const other : {"", "BM", "<svg", "RIFF1234WAVE", "GIF", "\x89PNG", "%PDF"})
        EXPECT_EQ(pictureFormatOf(other), "") << other;
}

TEST(PictureOfOthers, HasNoMorePixelsThanAreWorthWhile)
{
    const QTemporaryDir folder;
    const auto isUnwanted = [] { return false; };
    EXPECT_EQ(smallPicture(onePicture(folder, {5000, 5000}), {90, 90}, isUnwanted).picture.size(), QSize(90, 90));
    EXPECT_EQ(smallPicture(onePicture(folder, {8000, 3}), {90, 90}, isUnwanted).picture.size(), QSize(90, 1));
    EXPECT_EQ(smallPicture(onePicture(folder, {3, 8000}), {90, 90}, isUnwanted).picture.size(), QSize(1, 90));
    const SmallPicture larger = smallPicture(onePicture(folder, {5001, 5000}), {90, 90}, isUnwanted);
    EXPECT_TRUE(larger.picture.isNull());
    EXPECT_TRUE(larger.isTooLarge);
}

TEST(PictureOfOthers, IsReadNoFurtherOnceNobodyWantsIt)
{
    const QTemporaryDir folder;
    int asked = 0;
    const SmallPicture read
        = smallPicture(onePicture(folder, {5000, 5000}), {90, 90}, [&asked] { return ++asked > 1; });
    EXPECT_TRUE(read.picture.isNull());
    EXPECT_FALSE(read.isTooLarge);
    EXPECT_GT(asked, 1);
}

TEST_F(FilesInWindows, ARowIsHiddenWhileItsPictureIsRead)
{
    windows.arrive("10.0.0.2", annsPicture);
    receiveAnother(1);
    FileRow &row = *rows().front();
    received().look(row.number(), folder.path());
    const QString path = folder.filePath(QStringLiteral("a.png"));
    ASSERT_EQ(mkfifo(qPrintable(path), 0600), 0);
    slow.setFileName(path);
    ASSERT_TRUE(slow.open(QIODevice::ReadWrite | QIODevice::Unbuffered));
    tell({.number = row.number(), .what = What::done, .path = path, .isChecked = true});
    controlOf<QToolButton>(row, "closeRowBtn").click();
    EXPECT_THAT(rows(), SizeIs(1)) << "or it waits for ever";
    // As much as a reader that has begun takes at once: with less it waits for the rest.
    constexpr int piece = 16384;
    EXPECT_EQ(slow.write(QByteArray(piece, 'x')), piece);
}

TEST_F(FilesInWindows, ThreeRowsAreShownAndThoseUnderWayStay)
{
    windows.arrive("10.0.0.2", annsPlan);
    const int first = rows().front()->number();
    received().save(first, folder.path());
    for (int i = 0; i < 5; ++i) {
        std::string another = annsPlan;
        another[another.rfind('/') - 1] = static_cast<char>('0' + i);
        windows.arrive("10.0.0.2", another);
    }
    std::vector<int> numbers;
    for (const FileRow *const row : rows())
        numbers.push_back(row->number());
    EXPECT_THAT(numbers, ElementsAre(first, first + 4, first + 5));
    EXPECT_EQ(received().rowCount(), 6);
}

TEST_F(FilesInWindows, FurtherFilesAreCountedAndShownTogether)
{
    const auto line = [this] { return form().findChild<QWidget *>(QStringLiteral("furtherFiles")); };
    receiveAnother(0);
    EXPECT_FALSE(line()) << "nothing is made before it is needed";
    for (int i = 1; i < 6; ++i)
        receiveAnother(i);
    ASSERT_TRUE(line() && line()->isVisibleTo(&form()));
    auto &count = control<QLabel>("furtherCount");
    EXPECT_TRUE(count.isVisibleTo(&form()));
    EXPECT_THAT(count.text().toStdString(), testing::StartsWith("Further files: 3."));
    Q_EMIT count.linkActivated(QStringLiteral("all"));
    EXPECT_TRUE(std::ranges::any_of(QApplication::topLevelWidgets(), [](const QWidget *window) {
        return window->objectName() == QLatin1String("frmTransfers") && window->isVisible();
    }));
}

TEST_F(FilesInWindows, FurtherFilesGetRowsWhereTheUserWantsThem)
{
    windows.arrive("10.0.0.2", annsPicture);
    const int picture = rows().front()->number();
    for (int i = 0; i < 5; ++i)
        receiveAnother(i);
    Q_EMIT control<QLabel>("furtherCount").linkActivated(QStringLiteral("here"));
    ASSERT_THAT(rows(), SizeIs(6));
    EXPECT_FALSE(control<QLabel>("furtherCount").isVisibleTo(&form()));
    QCoreApplication::processEvents();
    std::map<int, int> numberAtHeight;
    for (const FileRow *const row : rows())
        numberAtHeight[row->y()] = row->number();
    std::vector<int> downwards;
    for (const auto &[height, number] : numberAtHeight)
        downwards.push_back(number);
    EXPECT_THAT(downwards, ElementsAre(picture, picture + 1, picture + 2, picture + 3, picture + 4, picture + 5));
    for (FileRow *const row : rows()) {
        if (row->number() == picture)
            controlOf<QPushButton>(*row, "lookBtn").click();
    }
    ASSERT_THAT(windows.fileFetcher.fetched, SizeIs(1)) << "shown as any other picture is";
    receiveAnother(6);
    EXPECT_THAT(rows(), SizeIs(6)) << "and no more than the user wanted";
}

TEST_F(FilesInWindows, NoMoreThanTwentyFurtherFilesGetRows)
{
    for (int i = 0; i < 30; ++i) {
        std::string another = annsPlan;
        windows.arrive("10.0.0.2", another.replace(another.rfind('/') - 2, 2, std::to_string(10 + i)));
    }
    Q_EMIT control<QLabel>("furtherCount").linkActivated(QStringLiteral("here"));
    EXPECT_THAT(rows(), SizeIs(23));
    EXPECT_THAT(control<QLabel>("furtherCount").text().toStdString(), testing::StartsWith("Further files: 7."));
}

TEST_F(FilesInWindows, ManyRowsLeaveTheConversationItsRoomAndAreScrolledTo)
{
    for (int i = 0; i < 5; ++i)
        receiveAnother(i);
    const int before = form().minimumSizeHint().height();
    Q_EMIT control<QLabel>("furtherCount").linkActivated(QStringLiteral("here"));
    for (FileRow *const row : rows())
        received().save(row->number(), folder.path()); // each has a second line then
    QCoreApplication::processEvents();
    EXPECT_LT(form().minimumSizeHint().height(), before + 150);
    const auto isSeen = [](const FileRow &row) { return row.visibleRegion().boundingRect().size() == row.size(); };
    receiveAnother(6);
    EXPECT_TRUE(QTest::qWaitFor([&] { return isSeen(*rows().back()); })) << "the newest";
}

/// Two with a second line, a picture and what had to make room; above them whatever bands can be there.
TEST_F(FilesInWindows, RowsAndBandsHaveRoomOnASmallScreenAtLargeLetters)
{
    const QFont usual = QApplication::font();
    QFont large = usual;
    large.setPointSize(16);
    QApplication::setFont(large);
    windows.arrive("10.0.0.2", annsPlan);
    for (int i = 0; i < 3; ++i)
        receiveAnother(i);
    std::string another = annsPicture;
    windows.arrive("10.0.0.2", another.replace(another.rfind('/') - 1, 1, "9"));
    received().save(rows().at(0)->number(), folder.path());
    received().save(rows().at(1)->number(), folder.path());
    received().look(rows().at(2)->number(), folder.path());
    QImage picture(1000, 500, QImage::Format_RGB32);
    ASSERT_TRUE(picture.save(folder.filePath(QStringLiteral("a.png"))));
    tell({.number = rows().at(2)->number(), .what = What::done, .path = folder.filePath(QStringLiteral("a.png"))});
    auto &shown = controlOf<QLabel>(*rows().at(2), "shownPicture");
    EXPECT_TRUE(QTest::qWaitFor([&] { return shown.isVisible(); }));
    drop(form(), {QUrl::fromLocalFile(QStringLiteral("/a"))});
    windows.fileServer.failed(windows.fileServer.served.front().token, QStringLiteral("a has changed."));
    QGuiApplication::clipboard()->setImage(QImage(8, 6, QImage::Format_RGB32));
    control<QPlainTextEdit>("intext").paste();
    windows.arrive("10.0.0.2", "!OFFLINE 10.0.0.2 PC Ann");
    QCoreApplication::processEvents();
    form().resize(600, 100);
    QCoreApplication::processEvents();
    constexpr int smallScreen = 720, panelAndFrame = 60;
    EXPECT_LE(form().height(), smallScreen - panelAndFrame);
    form().resize(600, 900);
    QCoreApplication::processEvents();
    EXPECT_GT(control<QScrollArea>("rowsOfFiles").height(), 240) << "with room they have more of it";
    QApplication::setFont(usual);
}

TEST_F(FilesInWindows, FurtherFilesAreStillThereWhenAllRowsAreHidden)
{
    for (int i = 0; i < 5; ++i)
        receiveAnother(i);
    for (FileRow *const row : rows())
        controlOf<QToolButton>(*row, "closeRowBtn").click();
    EXPECT_THAT(rows(), IsEmpty());
    auto &count = control<QLabel>("furtherCount");
    EXPECT_TRUE(count.isVisibleTo(&form()));
    EXPECT_THAT(count.text().toStdString(), testing::StartsWith("Further files: 2."));
    EXPECT_TRUE(control<QPushButton>("saveAllBtn").isVisibleTo(&form()));
    Q_EMIT count.linkActivated(QStringLiteral("hide"));
    EXPECT_FALSE(count.isVisibleTo(&form()));
    receiveAnother(5);
    EXPECT_TRUE(rows().front()->isVisibleTo(&form()));
    EXPECT_FALSE(count.isVisibleTo(&form()));
}

TEST_F(FilesInWindows, AllThatIsOfferedIsSavedAtOnce)
{
    for (int i = 0; i < 5; ++i)
        receiveAnother(i);
    received().save(received().at(1).number, QStringLiteral("/elsewhere"));
    control<QPushButton>("saveAllBtn").click();
    QMetaObject::invokeMethod(&dialog(), "fileSelected", Q_ARG(QString, folder.path()));
    for (int row = 0; row < 5; ++row)
        EXPECT_EQ(received().at(row).folder, row == 1 ? QStringLiteral("/elsewhere") : folder.path());
    EXPECT_FALSE(control<QPushButton>("saveAllBtn").isVisibleTo(&form())) << "nothing is left";
    EXPECT_TRUE(control<QLabel>("furtherCount").isVisibleTo(&form()));
}

TEST_F(FilesInWindows, OneFileIsSavedByItsRowAlone)
{
    receiveAnother(0);
    EXPECT_FALSE(form().findChild<QPushButton *>(QStringLiteral("saveAllBtn")));
    receiveAnother(1);
    EXPECT_TRUE(control<QPushButton>("saveAllBtn").isVisibleTo(&form()));
    EXPECT_FALSE(control<QLabel>("furtherCount").isVisibleTo(&form()));
    controlOf<QToolButton>(*rows().front(), "closeRowBtn").click();
    EXPECT_FALSE(control<QPushButton>("saveAllBtn").isVisibleTo(&form()));
}

TEST_F(FilesInWindows, ARowIsHidden)
{
    windows.arrive("10.0.0.2", annsPlan);
    auto *const panel = form().findChild<FilePanel *>();
    ASSERT_TRUE(panel && panel->isVisibleTo(&form()));
    controlOf<QToolButton>(*rows().front(), "closeRowBtn").click();
    EXPECT_THAT(rows(), IsEmpty());
    EXPECT_FALSE(panel->isVisibleTo(&form()));
    EXPECT_EQ(received().rowCount(), 1);
}

// --- the window of transfers

TEST_F(FilesInWindows, TheWindowStopsOffersAndSaysHowLongTheyLast)
{
    drop(form(), {QUrl::fromLocalFile(QStringLiteral("/a"))});
    QWidget &window = transfers();
    auto &stop = controlOf<QPushButton>(window, "stopOfferBtn");
    auto &life = controlOf<QComboBox>(window, "lifeBox");
    EXPECT_FALSE(stop.isEnabled());
    auto &list = controlOf<QTreeView>(window, "offerList");
    list.setCurrentIndex(list.model()->index(0, 0));
    EXPECT_TRUE(stop.isEnabled());
    EXPECT_EQ(life.currentIndex(), 0);
    life.setCurrentIndex(2);
    Q_EMIT life.activated(2);
    EXPECT_EQ(windows.engine.transfers().offers.lifeOf(0), OfferLife::untilStopped);
    stop.click();
    EXPECT_THAT(windows.fileServer.withdrawn, SizeIs(1));
    EXPECT_FALSE(stop.isEnabled());
    EXPECT_FALSE(life.isEnabled());
}

TEST_F(FilesInWindows, TheWindowSavesWhatIsOffered)
{
    windows.arrive("10.0.0.2", annsPlan);
    QWidget &window = transfers();
    auto &list = controlOf<QTreeView>(window, "receivedList");
    auto &save = controlOf<QPushButton>(window, "saveReceivedBtn");
    EXPECT_FALSE(save.isEnabled());
    list.setCurrentIndex(list.model()->index(0, 0));
    save.click();
    QMetaObject::invokeMethod(&dialog(), "fileSelected", Q_ARG(QString, folder.path()));
    ASSERT_THAT(windows.fileFetcher.fetched, SizeIs(1));
    EXPECT_FALSE(save.isEnabled());
    controlOf<QPushButton>(window, "pauseReceivedBtn").click();
    controlOf<QPushButton>(window, "resumeReceivedBtn").click();
    ASSERT_THAT(windows.fileFetcher.fetched, SizeIs(2));
    tell({.number = received().at(0).number,
          .what = What::done,
          .path = folder.filePath(QStringLiteral("Plan.pdf")),
          .isChecked = true});
    controlOf<QPushButton>(window, "openReceivedBtn").click();
    EXPECT_THAT(windows.folders.opened, ElementsAre("file://" + folder.path().toStdString()));
}

TEST_F(FilesInWindows, TheEndThatComesByItselfWhileTheUserIsAskedComesOnce)
{
    drop(form(), {QUrl::fromLocalFile(QStringLiteral("/media/me/Plan.pdf"))});
    ASSERT_THAT(windows.fileServer.served, SizeIs(1));
    windows.fileServer.sent({.token = windows.fileServer.served.front().token,
                             .transfer = 1,
                             .to = Ipv4Address(10, 0, 0, 2),
                             .place = 1,
                             .size = 2});
    windows.prompts.asked.clear();
    windows.prompts.meanwhile = [this] {
        windows.prompts.attended = false;
        windows.main().unload(UnloadMode::code);
    };
    windows.entry("mnuFileExit").trigger();
    EXPECT_THAT(windows.prompts.asked, SizeIs(2)) << "the second is answered by nobody";
    EXPECT_TRUE(windows.ended);
    EXPECT_EQ(windows.settings.saves, 1);
}

TEST_F(FilesInWindows, TheWindowDiscardsWhatCameToAHaltAfterAQuestion)
{
    windows.arrive("10.0.0.2", annsPlan);
    QWidget &window = transfers();
    auto &list = controlOf<QTreeView>(window, "receivedList");
    list.setCurrentIndex(list.model()->index(0, 0));
    auto &discard = controlOf<QPushButton>(window, "discardReceivedBtn");
    EXPECT_FALSE(discard.isEnabled()) << "nothing has been begun";
    const int number = received().at(0).number;
    received().save(number, folder.path());
    EXPECT_FALSE(discard.isEnabled()) << "it is under way";
    tell({.number = number, .what = What::failed, .place = 2000, .size = 3000, .isGone = true});
    windows.prompts.answer = false;
    discard.click();
    EXPECT_THAT(windows.prompts.asked,
                ElementsAre("NIMB-Chat - Transfers: Discard \"Plan.pdf\"? What has come of it, 2.0 kB, is "
                            "removed from the disk."));
    EXPECT_EQ(windows.prompts.carefully, 1) << "Return means No";
    EXPECT_EQ(received().rowCount(), 1);
    EXPECT_THAT(rows(), SizeIs(1));
    windows.prompts.answer = true;
    discard.click();
    EXPECT_EQ(received().rowCount(), 0);
    EXPECT_THAT(windows.fileFetcher.discarded, SizeIs(1));
    EXPECT_THAT(rows(), IsEmpty()) << "nor in the conversation";
    EXPECT_FALSE(discard.isEnabled());
}

TEST_F(FilesInWindows, TheContextMenuOfATransferHasWhatCanBeDoneNow)
{
    windows.arrive("10.0.0.2", annsPlan);
    QWidget &window = transfers();
    auto &list = controlOf<QTreeView>(window, "receivedList");
    list.setCurrentIndex(list.model()->index(0, 0));
    received().save(received().at(0).number, folder.path());
    received().pause(received().at(0).number);
    list.setFocus();
    QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(5, 5), list.viewport()->mapToGlobal(QPoint(5, 5)));
    QCoreApplication::sendEvent(&list, &event);
    auto *const menu = window.findChild<QMenu *>(QStringLiteral("transferMenu"));
    ASSERT_TRUE(menu);
    QStringList entries;
    for (const QAction *const action : menu->actions())
        entries += action->text();
    EXPECT_EQ(entries, (QStringList{QStringLiteral("&Resume"), QStringLiteral("&Discard...")}));
    menu->actions().back()->trigger();
    menu->close();
    EXPECT_EQ(received().rowCount(), 0);
}

TEST(UnfinishedFilesInWindows, AreALineOfTheLogThatLeadsToThem)
{
    const QString message = QString::fromStdString(annsPlan.substr(1));
    const QString stored
        = QStringLiteral(R"([{"message":"%1","own":"10.0.0.1","folder":"/in","sender":"Ann","size":9}])").arg(message);
    RealWindows windows{{{"10.0.0.2", "Ann"}}, {{"Transfers/UnfinishedFiles", stored}}};
    auto &log = controlOf<RichTextLogEdit>(windows.main(), "outtext");
    EXPECT_THAT(log.toPlainText().toStdString(), HasSubstr("when NIMB-Chat ended: 1; Tools, Transfers... goes on"));
    Q_EMIT log.commandPressed(transfersCommand);
    EXPECT_TRUE(std::ranges::any_of(QApplication::topLevelWidgets(), [](const QWidget *window) {
        return window->objectName() == QLatin1String("frmTransfers") && window->isVisible();
    }));
}

TEST_F(FilesInWindows, TheWindowSavesAllThatWaits)
{
    receiveAnother(0);
    QWidget &window = transfers();
    auto &saveAll = controlOf<QPushButton>(window, "saveAllReceivedBtn");
    EXPECT_FALSE(saveAll.isEnabled());
    for (int i = 1; i < 4; ++i)
        receiveAnother(i);
    received().save(received().at(1).number, QStringLiteral("/elsewhere"));
    EXPECT_TRUE(saveAll.isEnabled());
    EXPECT_EQ(saveAll.text(), QStringLiteral("Save A&ll (3)..."));
    saveAll.click();
    receiveAnother(4); // which came when the user had been told of three
    QMetaObject::invokeMethod(&dialog(), "fileSelected", Q_ARG(QString, folder.path()));
    for (int row = 0; row < 4; ++row)
        EXPECT_EQ(received().at(row).folder, row == 1 ? QStringLiteral("/elsewhere") : folder.path());
    EXPECT_EQ(received().at(4).folder, QString());
    EXPECT_FALSE(saveAll.isEnabled());
}

TEST_F(FilesInWindows, TheWindowMayBeClosedWhileATransferIsUnderWay)
{
    windows.arrive("10.0.0.2", annsPlan);
    received().save(received().at(0).number, folder.path());
    QPointer<QWidget> window = &transfers();
    window->close();
    EXPECT_TRUE(hasGone(window));
    tell({.number = received().at(0).number, .what = What::running, .place = 1, .size = 2});
    EXPECT_THAT(windows.fileFetcher.stopped, IsEmpty());
}

} // namespace
} // namespace nimb::test
